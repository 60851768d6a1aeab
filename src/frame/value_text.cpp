// A ZolValue as text and back. The text carries no type: the reader takes it from
// the value that it is given.

#include <KyDataStructure/frame.h>

#include <cmath>
#include <string>

#include "frame/number_text.h"

namespace ZOL {
namespace {

// As "%f" writes it, also where the standard library has other words for what is no number.
std::string textOf(double number) {
  if (std::isnan(number)) return std::signbit(number) ? "-nan" : "nan";
  return std::to_string(number);
}

std::string textOf(ZolValue& value) {
  switch (value.type()) {
    case kBoolValue:
      return value.boolValue() ? "1" : "0";
    case kDoubleValue:
      return textOf(value.doubleValue());
    case kFloatValue:
      return textOf(static_cast<double>(value.floatValue()));
    case kLonglongValue:
      return std::to_string(value.longlongValue());
    case kIntValue:
      return std::to_string(value.intValue());
    case kUintValue:
      return std::to_string(value.uintValue());
    case kStringValue:  // the text is null where its buffer was released by name
      return value.charValue() ? value.charValue() : "";
    default:
      return std::string();
  }
}

}  // namespace
}  // namespace ZOL

int ZOLStringToZolValue(const char* text, ZOL::ZolValue* value) {
  if (!text) return ZOL::kRefused;
  switch (value->type()) {
    case ZOL::kBoolValue:
      value->setValue(ZOL::textToInt(text) != 0);
      break;
    case ZOL::kDoubleValue:
      value->setValue(ZOL::textToDouble(text));
      break;
    case ZOL::kFloatValue:  // on purpose a narrowed double: "1e300" becomes infinite
      value->setValue(static_cast<float>(ZOL::textToDouble(text)));
      break;
    case ZOL::kLonglongValue:
      value->setValue(ZOL::textToLonglong(text));
      break;
    case ZOL::kIntValue:
      value->setValue(ZOL::textToInt(text));
      break;
    case ZOL::kUintValue:  // on purpose by the signed conversion: "-1" is 4294967295
      value->setValue(static_cast<unsigned int>(ZOL::textToInt(text)));
      break;
    case ZOL::kStringValue:
      value->setValue(text);
      break;
    default:
      break;
  }
  return ZOL::kSuccess;
}

int ZOLValueToString(ZOL::ZolValue* value, ZOL::IZolString* text) {
  if (!text) return ZOL::kRefused;
  text->setText(ZOL::textOf(*value).c_str(), -1);
  return ZOL::kSuccess;
}
