// Spans of time in a report, as text: "0:1:30Z-0:2:0Z".

#ifndef KYDATASTRUCTURE_CUTSCRIPT_TIME_TEXT_H_
#define KYDATASTRUCTURE_CUTSCRIPT_TIME_TEXT_H_

namespace ZOL {

struct Span {
  long long start, end;  // milliseconds
};

// Cut at the first hyphen; false without one. Each half is hours:minutes:seconds, scanned
// as by "%d:%d:%dZ": fields are not limited to 59, what does not match ends the scan, and
// fields that were not read are 0. Computed in 32 bits that wrap around, so times past
// about 596 hours do.
bool readSpan(const char* text, Span& span);

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_CUTSCRIPT_TIME_TEXT_H_
