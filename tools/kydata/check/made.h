#ifndef KYDATA_CHECK_MADE_H_
#define KYDATA_CHECK_MADE_H_

#include <optional>
#include <string>
#include <utility>

#include "check/form.h"

namespace kydata::check {

// What the library makes of a text, told by the library. They throw a Fault where it
// refuses the text.

Made makeCut(const std::string& text, std::optional<int> completeType);
Made makeDataMap(const std::string& text, std::optional<int> completeType);
Made makeStoryboard(const std::string& text, std::optional<int> completeType);
Made makeResource(const std::string& text, std::optional<int> completeType);
Made makeReport(const std::string& text, std::optional<int> completeType);
Made makeHighlight(const std::string& text, std::optional<int> completeType);

/// The milliseconds that it reads out of the span text of a report.
std::pair<long long, long long> spanMadeOf(const std::string& text);
/// The id that it reads out of a name in a dataMap.
int idMadeOf(const std::string& name);

}  // namespace kydata::check

#endif  // KYDATA_CHECK_MADE_H_
