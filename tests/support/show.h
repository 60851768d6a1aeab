// What a test compares: the state of a thing as a text.
//
//   EXPECT_EQ(show(list), "[1, 8, 9, 2]");

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_SHOW_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_SHOW_H_

#include <KyDataStructure/lists.h>

#include <string>
#include <type_traits>

#include "support/held.h"

template <class Number, std::enable_if_t<std::is_integral<Number>::value, int> = 0>
std::string show(Number number) {
  if (std::is_same<Number, bool>::value) return number ? "true" : "false";
  return std::to_string(number);
}

// Without the zeros behind the last digit that says something: 2.5, 3, -0.
template <class Number, std::enable_if_t<std::is_floating_point<Number>::value, int> = 0>
std::string show(Number number) {
  std::string text = std::to_string(number);
  if (text.find('.') == std::string::npos) return text;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

inline std::string show(const char* text) {
  return text ? "\"" + std::string(text) + "\"" : "null";
}

// The type and the payload: bool true, double 2.5, uint 3, string "abc", none. For
// values alone, and not for all that would make one.
template <class Value, std::enable_if_t<std::is_same<Value, ZOL::ZolValue>::value, int> = 0>
std::string show(Value value) {
  switch (value.type()) {
    case ZOL::kEmptyValue:
      return "none";
    case ZOL::kBoolValue:
      return "bool " + show(value.boolValue());
    case ZOL::kDoubleValue:
      return "double " + show(value.doubleValue());
    case ZOL::kFloatValue:
      return "float " + show(value.floatValue());
    case ZOL::kLonglongValue:
      return "longlong " + show(value.longlongValue());
    case ZOL::kIntValue:
      return "int " + show(value.intValue());
    case ZOL::kUintValue:
      return "uint " + show(value.uintValue());
    case ZOL::kStringValue:
      return "string " + show(value.charValue());
  }
  return "type " + show(static_cast<int>(value.type()));
}

inline std::string show(const ZOL::_Range& range) {
  return show(range.start) + ".." + show(range.end);
}

inline std::string show(const ZOL::_PointN& point) {
  return "(" + show(point.x) + ", " + show(point.y) + ")";
}

inline std::string show(const ZOL::_RectF& rect) {
  return "(" + show(rect.left) + ", " + show(rect.top) + ", " + show(rect.right) + ", " +
         show(rect.bottom) + ")";
}

// absent, integer 7, text "abc", or the number of a type that is neither.
inline std::string show(const ZOL::_Property& property) {
  if (property.present == 0) return "absent";
  if (property.type == ZOL::kPropertyText) {
    return "text " + show(static_cast<const char*>(property.value));
  }
  if (property.type != ZOL::kPropertyInteger) return "type " + show(property.type);
  long long integer = 0;
  static_assert(sizeof integer <= sizeof property.value, "an integer stands in front");
  __builtin_memcpy(&integer, property.value, sizeof integer);
  return "integer " + show(integer);
}

// Any list, by what `element` makes of each of its elements: "[1, 2, 3]".
template <class List, class ShowElement>
std::string showBy(List& list, ShowElement element) {
  std::string text = "[";
  for (long long index = 0; index < list.size(); ++index) {
    if (index > 0) text += ", ";
    text += element(list.at(index));
  }
  return text + "]";
}

template <class Self, class T>
std::string show(ZOL::ListInterface<Self, T>* list) {
  return showBy(*list, [](T element) { return show(element); });
}

template <class List>
std::string show(const Held<List>& list) {
  return show(list.get());
}

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_SHOW_H_
