#ifndef KYDATA_STATUS_LINE_H_
#define KYDATA_STATUS_LINE_H_

#include <string>

namespace kydata {

// One line on standard error that tells a waiting person what goes on. It is shown only
// where standard error is a terminal, and taken away before anything else is written.

void showStatus(const std::string& text);
void clearStatus();

}  // namespace kydata

#endif  // KYDATA_STATUS_LINE_H_
