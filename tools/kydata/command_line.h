#ifndef KYDATA_COMMAND_LINE_H_
#define KYDATA_COMMAND_LINE_H_

namespace kydata {

/// Does what the command line asks for. Answers with the exit status.
int runCommandLine(int argc, char** argv);

}  // namespace kydata

#endif  // KYDATA_COMMAND_LINE_H_
