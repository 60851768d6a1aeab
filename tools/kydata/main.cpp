// kydata: reads the texts that the library reads, and shows what they hold.

#include <cstdlib>
#include <exception>
#include <iostream>

#include "command_line.h"
#include "file_names.h"
#include "status_line.h"
#include "terminal.h"

int main(int argc, char** argv) {
  kydata::prepareStreams();
  try {
    return kydata::runCommandLine(kydata::argumentsOf(argc, argv));
  } catch (const std::exception& error) {
    kydata::clearStatus();
    std::cerr << "kydata: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
}
