#include "output.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "file_names.h"
#include "input.h"
#include "status_line.h"
#include "terminal.h"

namespace kydata {

namespace {

bool isSet(const char* name) {
  const char* value = std::getenv(name);
  return value && *value;
}

}  // namespace

Output::Output(Colour colour)
    : hasColour_(colour == Colour::always ||
                 (colour == Colour::automatic && isOutputWatched() && !isSet("NO_COLOR"))) {}

std::ostream& Output::text() {
  clearStatus();
  noteFault();
  return std::cout;
}

std::string Output::coloured(const char* code, const std::string& text) const {
  if (!hasColour_ || text.empty()) return text;
  return "\x1b[" + std::string(code) + "m" + text + "\x1b[0m";
}

void Output::noteFault() {
  if (!std::cout && fault_ == 0) fault_ = errno;
}

void Output::finish() {
  text().flush();
  noteFault();
  if (fault_ != 0) throw Fault(std::string("cannot be written: ") + std::strerror(fault_));
  if (!std::cout) throw Fault("cannot be written");
}

void writeFile(Output& out, const std::string& file, const std::string& text) {
  if (file == "-") {
    out.text() << text;
    return;
  }
  std::FILE* opened = openFile(file, "wb");
  if (!opened) throw Fault(std::string("cannot be opened: ") + std::strerror(errno));
  const bool isWritten = std::fwrite(text.data(), 1, text.size(), opened) == text.size();
  const bool isClosed = std::fclose(opened) == 0;
  if (!isWritten || !isClosed) {
    throw Fault(std::string("cannot be written: ") + std::strerror(errno));
  }
}

}  // namespace kydata
