#include "output.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "input.h"

namespace kydata {

namespace {

bool isSet(const char* name) {
  const char* value = std::getenv(name);
  return value && *value;
}

}  // namespace

Output::Output() : hasColour_(isatty(STDOUT_FILENO) != 0 && !isSet("NO_COLOR")) {}

std::string Output::coloured(const char* code, const std::string& text) const {
  if (!hasColour_ || text.empty()) return text;
  return "\x1b[" + std::string(code) + "m" + text + "\x1b[0m";
}

void Output::finish() {
  if (!text().flush()) throw Fault("cannot be written");
}

void writeFile(Output& out, const std::string& file, const std::string& text) {
  if (file == "-") {
    out.text() << text;
    return;
  }
  std::FILE* opened = std::fopen(file.c_str(), "wb");
  if (!opened) throw Fault(std::string("cannot be opened: ") + std::strerror(errno));
  const bool isWritten = std::fwrite(text.data(), 1, text.size(), opened) == text.size();
  const bool isClosed = std::fclose(opened) == 0;
  if (!isWritten || !isClosed) {
    throw Fault(std::string("cannot be written: ") + std::strerror(errno));
  }
}

}  // namespace kydata
