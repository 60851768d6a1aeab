#ifndef KYDATA_TIMES_H_
#define KYDATA_TIMES_H_

#include <string>

namespace kydata {

struct Span {
  long long start;
  long long end;
};

/// Sum and difference that stop at the ends of the range instead of going over:
/// a text may hold any 64-bit time.
long long plus(long long a, long long b);
long long minus(long long a, long long b);

/// Milliseconds as "1:05.250", with hours in front where there are any.
std::string timeText(long long milliseconds);

/// "0:04.000 - 0:07.000".
std::string spanText(const Span& span);

}  // namespace kydata

#endif  // KYDATA_TIMES_H_
