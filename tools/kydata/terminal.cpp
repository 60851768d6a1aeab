#include "terminal.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace kydata {

namespace {

#ifdef _WIN32

/// A console, told to obey control sequences, which not every one can.
bool isTerminal(std::FILE* stream) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr)
  const HANDLE console = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
  DWORD mode = 0;
  return GetConsoleMode(console, &mode) != 0 &&
         SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

/// What a console took bytes for before the program began, which it must be given back.
UINT consoleCodePage = 0;

void takeBytesForUtf8() {
  consoleCodePage = GetConsoleOutputCP();
  if (consoleCodePage == 0 || SetConsoleOutputCP(CP_UTF8) == 0) return;
  std::atexit([] { SetConsoleOutputCP(consoleCodePage); });
}

#else

bool isTerminal(std::FILE* stream) { return isatty(fileno(stream)) != 0; }

#endif

/// A dumb terminal shows control sequences as letters.
bool isDumb() {
  const char* const kind = std::getenv("TERM");
  return kind && std::string_view(kind) == "dumb";
}

}  // namespace

void prepareStreams() {
#ifdef _WIN32
  for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  takeBytesForUtf8();
#endif
#ifdef SIGPIPE
  std::signal(SIGPIPE, SIG_IGN);
#endif
}

bool isOutputWatched() { return isTerminal(stdout) && !isDumb(); }

bool isErrorWatched() { return isTerminal(stderr) && !isDumb(); }

}  // namespace kydata
