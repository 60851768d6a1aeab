#include "check/value.h"

#include <charconv>
#include <limits>

namespace kydata::check {

namespace {

bool isInteger(Type type) {
  return type == Type::integer32 || type == Type::integer64 || type == Type::integerOrText;
}

bool isWhole(const Value& value) {
  return value.kind == Kind::number && value.text.find_first_of(".eE") == std::string_view::npos;
}

}  // namespace

std::optional<long long> Value::integer() const {
  if (!isWhole(*this)) return std::nullopt;
  long long number = 0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
  return number;
}

bool Value::hasType(Type type) const {
  const auto number = integer();
  switch (type) {
    case Type::object:
      return kind == Kind::object;
    case Type::array:
      return kind == Kind::array;
    case Type::text:
      return kind == Kind::text;
    case Type::integer32:
      return number && *number >= std::numeric_limits<int>::min() &&
             *number <= std::numeric_limits<int>::max();
    case Type::integer64:
      return number.has_value();
    case Type::integerOrText:
      return number || kind == Kind::text;
    case Type::unread:
      break;
  }
  return true;
}

std::string nameOf(const Value& value) {
  switch (value.kind) {
    case Kind::null:
      return "null";
    case Kind::no:
      return "false";
    case Kind::yes:
      return "true";
    case Kind::text:
      return "text";
    case Kind::array:
      return "array";
    case Kind::object:
      return "object";
    case Kind::number:
      break;
  }
  if (isWhole(value)) return "integer";
  const bool hasExponent = value.text.find_first_of("eE") != std::string_view::npos;
  return hasExponent ? "number with an exponent" : "number with a fraction";
}

const char* nameOf(Type type) {
  switch (type) {
    case Type::object:
      return "object";
    case Type::array:
      return "array";
    case Type::text:
      return "text";
    case Type::integer32:
      return "32-bit integer";
    case Type::integer64:
      return "64-bit integer";
    case Type::integerOrText:
      return "64-bit integer or text";
    case Type::unread:
      break;
  }
  return "anything";
}

Code codeOf(const Value& value, Type type) {
  if (value.kind != Kind::number || !isInteger(type)) return Code::wrongType;
  return isWhole(value) ? Code::outOfRange : Code::notAnInteger;
}

}  // namespace kydata::check
