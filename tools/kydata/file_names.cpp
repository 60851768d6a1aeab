#include "file_names.h"

#ifdef _WIN32
#include <windows.h>
// After windows.h, which it needs.
#include <shellapi.h>

#include <memory>
#endif

namespace kydata {

#ifdef _WIN32

// The letters of argv are those of the system's code page, which lacks most.
std::vector<std::string> argumentsOf(int, char**) {
  int count = 0;
  const std::unique_ptr<wchar_t*, HLOCAL(WINAPI*)(HLOCAL)> words(
      CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
  std::vector<std::string> arguments;
  for (int i = 0; i < count; ++i) {
    arguments.push_back(std::filesystem::path(words.get()[i]).u8string());
  }
  return arguments;
}

std::FILE* openFile(const std::string& name, const char* mode) {
  return _wfopen(pathOf(name).c_str(), std::filesystem::path(mode).c_str());
}

#else

std::vector<std::string> argumentsOf(int argc, char** argv) { return {argv, argv + argc}; }

std::FILE* openFile(const std::string& name, const char* mode) {
  return std::fopen(name.c_str(), mode);
}

#endif

std::filesystem::path pathOf(const std::string& name) { return std::filesystem::u8path(name); }

}  // namespace kydata
