#ifndef KYDATA_FILE_NAMES_H_
#define KYDATA_FILE_NAMES_H_

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

namespace kydata {

// What comes from the command line is UTF-8 in the whole program, file names among it, also
// where the system has them in another form.

/// The program's name and arguments.
std::vector<std::string> argumentsOf(int argc, char** argv);

/// As std::fopen does.
std::FILE* openFile(const std::string& name, const char* mode);

/// What std::filesystem calls that file.
std::filesystem::path pathOf(const std::string& name);

}  // namespace kydata

#endif  // KYDATA_FILE_NAMES_H_
