#ifndef KYDATA_UTF8_H_
#define KYDATA_UTF8_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace kydata {

/// A code point and the bytes it takes; `valid` is false for one byte that begins
/// no UTF-8 character.
struct CodePoint {
  char32_t value;
  std::size_t bytes;
  bool valid;
};

/// The first code point of a text that is not empty.
CodePoint firstCodePoint(std::string_view text);

/// The number of code points, a stray byte counting as one.
std::size_t codePointCount(std::string_view text);

/// True if there is no stray byte.
bool isUtf8(std::string_view text);

/// The text on one line, as a terminal can show it: control characters, marks that
/// turn the writing direction and stray bytes become escapes such as \n, \x1b and
/// \u202e, and a backslash becomes two, so that nothing is ambiguous.
std::string printable(std::string_view text);

}  // namespace kydata

#endif  // KYDATA_UTF8_H_
