// The text of a tagged value. The first byte picks the type.

#include <KyDataStructure/frame.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <string>

#include "support/held.h"
#include "support/zol_text.h"
#include "target.h"

namespace {

using ZOL::ZolValue;

std::string written(ZolValue& value) {
  const Held<ZOL::IZolString> out(createZolString());
  require(ZOLValueToString(&value, out.get()) == ZOL::kSuccess, "any value is written");
  return bytesIn(*out);
}

// As the standard library's streams write it.
std::string printed(ZolValue& value) {
  std::ostringstream out;
  out << std::fixed;
  switch (value.type()) {
    case ZOL::kBoolValue:
      out << value.boolValue();
      break;
    case ZOL::kDoubleValue:
      out << value.doubleValue();
      break;
    case ZOL::kFloatValue:
      out << value.floatValue();
      break;
    case ZOL::kLonglongValue:
      out << value.longlongValue();
      break;
    case ZOL::kIntValue:
      out << value.intValue();
      break;
    case ZOL::kUintValue:
      out << value.uintValue();
      break;
    case ZOL::kStringValue:
      out << value.charValue();
      break;
    default:
      break;
  }
  return out.str();
}

// The number that the text begins with.
bool holdsNumberOf(const char* text, ZolValue& value) {
  switch (value.type()) {
    case ZOL::kDoubleValue: {
      const double number = std::strtod(text, nullptr);
      return value.doubleValue() == number || std::isnan(number);
    }
    case ZOL::kLonglongValue:
      return value.longlongValue() == std::strtoll(text, nullptr, 10);
    case ZOL::kIntValue:
      return value.intValue() == std::strtoll(text, nullptr, 10);
    case ZOL::kUintValue:
      return value.uintValue() == static_cast<unsigned>(std::strtoll(text, nullptr, 10));
    case ZOL::kBoolValue:
      return value.boolValue() == (std::strtoll(text, nullptr, 10) != 0);
    default:
      return true;
  }
}

bool isRead(const char* text, ZolValue& value) {
  try {
    require(ZOLStringToZolValue(text, &value) == ZOL::kSuccess, "a text is refused by throwing");
    return true;
  } catch (const std::invalid_argument&) {
    return false;
  } catch (const std::out_of_range&) {
    return false;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  if (size == 0) return 0;
  const ZolValue kinds[] = {ZolValue(),    ZolValue(true), ZolValue(2.5), ZolValue(2.5F),
                            ZolValue(6LL), ZolValue(-7),   ZolValue(8U),  ZolValue("nine")};
  ZolValue value = kinds[*bytes % std::size(kinds)];
  const ZOL::_ValueType type = value.type();
  const std::string before = written(value);
  const std::string text = textOf(bytes + 1, size - 1).c_str();  // up to a zero byte

  const bool taken = isRead(text.c_str(), value);
  require(value.type() == type, "the value's type decides");
  require(taken || written(value) == before, "a text that is not read changes nothing");
  require(!taken || holdsNumberOf(text.c_str(), value), "a text's number is the value");
  if (type == ZOL::kStringValue) require(value.charValue() == text, "a text is taken as it is");

  const std::string first = written(value);
  require(first == printed(value), "a value is written as the standard library writes it");
  ZolValue again = kinds[*bytes % std::size(kinds)];
  if (value.uintValue() > static_cast<unsigned>(std::numeric_limits<int>::max())) {
    // On purpose an unsigned number is read as a signed one.
    require(!isRead(first.c_str(), again), "an unsigned number beyond that is not read");
  } else {
    require(isRead(first.c_str(), again), "what was written is read");
    require(written(again) == first, "a value is written as before");
  }
  const ZolValue copy = value;
  value.reset();
  ZolValue copied = copy;
  require(written(copied) == first, "a copy stands by itself");
  return 0;
}
