#include "terminal.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#else
#include <unistd.h>
#endif

namespace kydata {

namespace {

bool isTerminal(std::FILE* stream) {
#ifdef _WIN32
  return _isatty(_fileno(stream)) != 0;
#else
  return isatty(fileno(stream)) != 0;
#endif
}

/// A dumb terminal shows control sequences as letters.
bool isDumb() {
  const char* const kind = std::getenv("TERM");
  return kind && std::string_view(kind) == "dumb";
}

}  // namespace

void prepareStreams() {
#ifdef _WIN32
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
#endif
#ifdef SIGPIPE
  std::signal(SIGPIPE, SIG_IGN);
#endif
}

bool isOutputWatched() { return isTerminal(stdout) && !isDumb(); }

bool isErrorWatched() { return isTerminal(stderr) && !isDumb(); }

}  // namespace kydata
