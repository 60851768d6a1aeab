#include <KyDataStructure/frame.h>

#include <cstring>
#include <functional>

namespace ZOL {
namespace {

// The text of every empty string value: one address for all, never freed.
constexpr char kEmptyText[] = "";

_ZolValueUnion noValue() {
  _ZolValueUnion none;
  none.longInteger = 0;
  return none;
}

// The bits of a boolean: a caller's union may hold any byte in its place.
unsigned char booleanByte(const _ZolValueUnion& value) {
  unsigned char byte = 0;
  std::memcpy(&byte, &value, 1);
  return byte;
}

bool liesIn(const char* text, const char* begin, std::size_t size) {
  const std::less<const char*> before;
  return !before(text, begin) && before(text, begin + size);
}

}  // namespace

ZolValue::ZolValue() : type_(kEmptyValue), value_(noValue()), buffer_(nullptr) {}
ZolValue::ZolValue(bool value) : ZolValue() { setValue(value); }
ZolValue::ZolValue(double value) : ZolValue() { setValue(value); }
ZolValue::ZolValue(float value) : ZolValue() { setValue(value); }
ZolValue::ZolValue(long long value) : ZolValue() { setValue(value); }
ZolValue::ZolValue(int value) : ZolValue() { setValue(value); }
ZolValue::ZolValue(unsigned int value) : ZolValue() { setValue(value); }
ZolValue::ZolValue(const char* value) : ZolValue() { setValue(value); }
ZolValue::ZolValue(_ValueType type, _ZolValueUnion value) : ZolValue() { InitByType(type, value); }
ZolValue::ZolValue(const ZolValue& other) : ZolValue() { InitByType(other.type_, other.value_); }
ZolValue::ZolValue(ZolValue&& other) : ZolValue() { InitByType(other.type_, other.value_); }
ZolValue::~ZolValue() { delete[] buffer_; }

// On purpose: an old text is not released here when the new value is none. It is
// unused, still owned, and goes with the next operation that releases.
ZolValue& ZolValue::operator=(const ZolValue& other) {
  if (this != &other) InitByType(other.type_, other.value_);
  return *this;
}

ZolValue& ZolValue::operator=(ZolValue&& other) {
  if (this != &other) InitByType(other.type_, other.value_);
  return *this;
}

bool ZolValue::operator==(const ZolValue& other) {
  if (type_ != other.type_) return false;
  switch (type_) {
    case kBoolValue:
      return booleanByte(value_) == booleanByte(other.value_);
    case kDoubleValue:
      return value_.number == other.value_.number;
    case kFloatValue:
      return value_.shortNumber == other.value_.shortNumber;
    case kLonglongValue:
      return value_.longInteger == other.value_.longInteger;
    case kIntValue:
    case kUintValue:
      return value_.unsignedInteger == other.value_.unsignedInteger;
    case kStringValue:
      // A text is null where its buffer was released by name.
      if (!value_.text || !other.value_.text) return value_.text == other.value_.text;
      return std::strcmp(value_.text, other.value_.text) == 0;
    default:
      return false;  // on purpose also two empty values
  }
}

void ZolValue::reset() {
  releaseBuffer();
  type_ = kEmptyValue;
  value_ = noValue();
}

void ZolValue::setValue(int value) {
  reset();
  type_ = kIntValue;
  value_.integer = value;
}

void ZolValue::setValue(unsigned int value) {
  reset();
  type_ = kUintValue;
  value_.unsignedInteger = value;
}

void ZolValue::setValue(float value) {
  reset();
  type_ = kFloatValue;
  value_.shortNumber = value;
}

void ZolValue::setValue(double value) {
  reset();
  type_ = kDoubleValue;
  value_.number = value;
}

void ZolValue::setValue(long long value) {
  reset();
  type_ = kLonglongValue;
  value_.longInteger = value;
}

void ZolValue::setValue(bool value) {
  reset();
  type_ = kBoolValue;
  value_.boolean = value;
}

void ZolValue::setValue(const char* value) {
  type_ = kStringValue;
  createAndCopyBuffer(value);
}

bool ZolValue::boolValue() { return type_ == kBoolValue && booleanByte(value_) != 0; }
double ZolValue::doubleValue() { return type_ == kDoubleValue ? value_.number : 0.0; }
float ZolValue::floatValue() { return type_ == kFloatValue ? value_.shortNumber : 0.0F; }
long long ZolValue::longlongValue() { return type_ == kLonglongValue ? value_.longInteger : 0; }
int ZolValue::intValue() { return type_ == kIntValue ? value_.integer : 0; }
unsigned int ZolValue::uintValue() { return type_ == kUintValue ? value_.unsignedInteger : 0; }
const char* ZolValue::charValue() { return type_ == kStringValue ? value_.text : nullptr; }

void ZolValue::InitByType(_ValueType type, _ZolValueUnion value) {
  type_ = type;
  value_ = noValue();
  if (type == kStringValue) {
    createAndCopyBuffer(value.text);
  } else {
    value_ = value;
  }
}

void ZolValue::createAndCopyBuffer(const char* text) {
  const std::size_t size = text ? std::strlen(text) : 0;
  // The value's own text would be gone before it is copied: it moves to the front.
  if (size != 0 && buffer_ && liesIn(text, buffer_, std::strlen(buffer_))) {
    std::memmove(buffer_, text, size + 1);
    value_.text = buffer_;
    return;
  }
  // The empty text first, so that a copy that fails for want of memory leaves a
  // value that can still be read.
  releaseBuffer();
  value_.text = kEmptyText;
  if (size == 0) return;
  buffer_ = new char[size + 1];
  std::memcpy(buffer_, text, size + 1);
  value_.text = buffer_;
}

void ZolValue::releaseBuffer() {
  if (!buffer_) return;
  delete[] buffer_;
  buffer_ = nullptr;
  value_ = noValue();
}

}  // namespace ZOL
