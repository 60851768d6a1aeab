#include "status_line.h"

#include <iostream>

#include "terminal.h"
#include "utf8.h"

namespace kydata {

namespace {

constexpr const char* kBackToAnEmptyLine = "\r\x1b[K";

bool isShown = false;  // there is one such line, as there is one terminal

}  // namespace

void showStatus(const std::string& text) {
  static const bool isWatched = isErrorWatched();
  if (!isWatched) return;
  std::cerr << kBackToAnEmptyLine << printable(text) << std::flush;
  isShown = true;
}

void clearStatus() {
  if (!isShown) return;
  std::cerr << kBackToAnEmptyLine << std::flush;
  isShown = false;
}

}  // namespace kydata
