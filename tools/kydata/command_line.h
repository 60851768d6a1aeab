#ifndef KYDATA_COMMAND_LINE_H_
#define KYDATA_COMMAND_LINE_H_

#include <string>
#include <vector>

namespace kydata {

/// Does what the command line asks for. Answers with the exit status.
int runCommandLine(const std::vector<std::string>& arguments);

}  // namespace kydata

#endif  // KYDATA_COMMAND_LINE_H_
