#ifndef KYDATA_RECOGNITION_H_
#define KYDATA_RECOGNITION_H_

#include <string>

namespace kydata {

// Which of the library's readers takes a text as its own. A report and a highlight are
// known by a member as well (report_model.h, highlight_text.h): their readers take any
// object.

bool isCutReply(const std::string& text);
bool isDataMap(const std::string& text);
bool isStoryboard(const std::string& text);
bool isDescription(const std::string& text);

}  // namespace kydata

#endif  // KYDATA_RECOGNITION_H_
