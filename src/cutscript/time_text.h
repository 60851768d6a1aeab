// Moments and spans of a report, as text: "0:1:30Z" and "0:1:30Z-0:2:0Z".

#ifndef KYDATASTRUCTURE_CUTSCRIPT_TIME_TEXT_H_
#define KYDATASTRUCTURE_CUTSCRIPT_TIME_TEXT_H_

#include <optional>
#include <string_view>

namespace ZOL {

// Milliseconds of an hours:minutes:seconds text, scanned as by "%d:%d:%dZ": fields are
// not limited to 59, what does not match ends the scan, and fields that were not read
// are 0. Computed in 32 bits that wrap around, so times past about 596 hours do.
long long timeOf(std::string_view text);

struct Span {
  long long start, end;  // milliseconds
};

// Cut at the first hyphen; none without one.
std::optional<Span> spanOf(std::string_view text);

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_CUTSCRIPT_TIME_TEXT_H_
