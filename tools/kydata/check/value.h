#ifndef KYDATA_CHECK_VALUE_H_
#define KYDATA_CHECK_VALUE_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "check/rule.h"

namespace kydata::check {

enum class Kind { null, no, yes, number, text, array, object };

/// A value of the text; of an array or object, its beginning.
struct Value {
  Kind kind;
  std::string_view text;  ///< of a text, or the characters of a number
  std::size_t start;      ///< in bytes from the beginning of the text

  bool hasType(Type type) const;
  /// A number without fraction and exponent that fits 64 bits.
  std::optional<long long> integer() const;
  /// Up to the first zero byte, as far as the library reads a text.
  std::string_view untilZero() const { return text.substr(0, text.find('\0')); }
};

/// "a text", "a number with a fraction".
std::string nameOf(const Value& value);
/// "64-bit integer".
const char* nameOf(Type type);
/// What is wrong about a value that does not have the type.
Code codeOf(const Value& value, Type type);

}  // namespace kydata::check

#endif  // KYDATA_CHECK_VALUE_H_
