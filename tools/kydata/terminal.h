#ifndef KYDATA_TERMINAL_H_
#define KYDATA_TERMINAL_H_

namespace kydata {

// What the program has to know of the streams that it was started with.

/// Bytes pass through the streams as they are, and a reader who goes away makes writing
/// fail instead of ending the program.
void prepareStreams();

/// True if a person watches standard output, and can be shown more than letters there.
bool isOutputWatched();

/// The same of standard error.
bool isErrorWatched();

}  // namespace kydata

#endif  // KYDATA_TERMINAL_H_
