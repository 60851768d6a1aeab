// The text of a tagged value. The first byte picks the type.

#include <KyDataStructure/frame.h>

#include <cstring>
#include <iterator>
#include <limits>
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
  if (type == ZOL::kStringValue) require(value.charValue() == text, "a text is taken as it is");

  const std::string first = written(value);
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
