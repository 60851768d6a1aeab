#include "frame/number_text.h"

#include <cerrno>
#include <cstdlib>
#include <limits>
#include <stdexcept>
#include <string>

namespace ZOL {
namespace {

// Runs one of the C conversions with the thread's error word cleared ahead and
// looked at behind it; the caller's own error word is given back.
template <class Number, class Convert>
Number convertText(const char* text, const char* name, Convert convert) {
  const int callers = errno;
  errno = 0;
  char* end = nullptr;
  const Number number = convert(text, &end);
  const bool outOfRange = errno == ERANGE;
  errno = callers;
  if (end == text) throw std::invalid_argument(std::string("invalid ") + name + " argument");
  if (outOfRange) throw std::out_of_range(std::string(name) + " argument out of range");
  return number;
}

}  // namespace

int textToInt(const char* text) {
  return convertText<int>(text, "stoi", [](const char* from, char** end) {
    const long long number = std::strtoll(from, end, 10);
    if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max()) {
      errno = ERANGE;
    }
    return static_cast<int>(number);
  });
}

long long textToLonglong(const char* text) {
  return convertText<long long>(
      text, "stoll", [](const char* from, char** end) { return std::strtoll(from, end, 10); });
}

double textToDouble(const char* text) {
  return convertText<double>(text, "stod",
                             [](const char* from, char** end) { return std::strtod(from, end); });
}

}  // namespace ZOL
