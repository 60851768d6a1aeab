// A tagged value as text, and back.

#include <KyDataStructure/frame.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>
#include <new>
#include <ostream>
#include <stdexcept>
#include <string>
#include <typeinfo>

#include "support/held.h"
#include "support/release_buffer.h"
#include "support/show.h"

namespace {

using ZOL::ZolValue;

// The value after the text was read into it; or the exception, and then the value.
std::string read(const char* text, ZolValue value) {
  try {
    const int result = ZOLStringToZolValue(text, &value);
    return (result == 0 ? "" : show(result) + ", ") + show(value);
  } catch (const std::invalid_argument& error) {
    const bool exact = typeid(error) == typeid(std::invalid_argument);
    return (exact ? "invalid_argument: " : "other: ") + std::string(error.what()) + ", " +
           show(value);
  } catch (const std::out_of_range& error) {
    const bool exact = typeid(error) == typeid(std::out_of_range);
    return (exact ? "out_of_range: " : "other: ") + std::string(error.what()) + ", " + show(value);
  }
}

// The text that the value was written as.
std::string write(ZolValue value) {
  Held<ZOL::IZolString> text(createZolString());
  text->setText("old", -1);
  const int result = ZOLValueToString(&value, text.get());
  return (result == 0 ? "" : show(result) + ", ") + text->text();
}

struct Case {
  const char* text;
  const char* result;
};

TEST(ReadValue, OfABooleanTakesAnyInteger) {
  for (const Case& each : {
           Case{"1", "bool true"},
           Case{"0", "bool false"},
           Case{"2", "bool true"},
           Case{"-1", "bool true"},
           Case{"  7 days", "bool true"},
           Case{"0.9", "bool false"},
           Case{"true", "invalid_argument: invalid stoi argument, bool true"},
           Case{"false", "invalid_argument: invalid stoi argument, bool true"},
           Case{"", "invalid_argument: invalid stoi argument, bool true"},
           Case{"2147483648", "out_of_range: stoi argument out of range, bool true"},
       }) {
    EXPECT_EQ(read(each.text, ZolValue(true)), each.result) << each.text;
  }
  EXPECT_EQ(read("true", ZolValue(false)), "invalid_argument: invalid stoi argument, bool false");
}

TEST(ReadValue, OfAnIntTakesTheNumberInFront) {
  for (const Case& each : {
           Case{"12abc", "int 12"},
           Case{"12", "int 12"},
           Case{" \t\n-7.9", "int -7"},
           Case{"+5", "int 5"},
           Case{"007", "int 7"},
           Case{"0x10", "int 0"},
           Case{"2147483647", "int 2147483647"},
           Case{"-2147483648", "int -2147483648"},
           Case{"2147483648", "out_of_range: stoi argument out of range, int 9"},
           Case{"-2147483649", "out_of_range: stoi argument out of range, int 9"},
           Case{"99999999999999999999999", "out_of_range: stoi argument out of range, int 9"},
           Case{"abc", "invalid_argument: invalid stoi argument, int 9"},
           Case{"", "invalid_argument: invalid stoi argument, int 9"},
           Case{" ", "invalid_argument: invalid stoi argument, int 9"},
           Case{"-", "invalid_argument: invalid stoi argument, int 9"},
           Case{"- 5", "invalid_argument: invalid stoi argument, int 9"},
       }) {
    EXPECT_EQ(read(each.text, ZolValue(9)), each.result) << each.text;
  }
}

// On purpose by the signed conversion.
TEST(ReadValue, OfAnUnsignedIntTakesASignedOne) {
  for (const Case& each : {
           Case{"5", "uint 5"},
           Case{"-1", "uint 4294967295"},
           Case{"-2147483648", "uint 2147483648"},
           Case{"2147483647", "uint 2147483647"},
           Case{"3000000000", "out_of_range: stoi argument out of range, uint 9"},
           Case{"4294967295", "out_of_range: stoi argument out of range, uint 9"},
           Case{"x", "invalid_argument: invalid stoi argument, uint 9"},
       }) {
    EXPECT_EQ(read(each.text, ZolValue(9U)), each.result) << each.text;
  }
}

TEST(ReadValue, OfALonglongTakesSixtyFourBits) {
  for (const Case& each : {
           Case{"9223372036854775807", "longlong 9223372036854775807"},
           Case{"-9223372036854775808", "longlong -9223372036854775808"},
           Case{" 3000000000 bytes", "longlong 3000000000"},
           Case{"9223372036854775808", "out_of_range: stoll argument out of range, longlong 9"},
           Case{"-9223372036854775809", "out_of_range: stoll argument out of range, longlong 9"},
           Case{"x", "invalid_argument: invalid stoll argument, longlong 9"},
           Case{"", "invalid_argument: invalid stoll argument, longlong 9"},
       }) {
    EXPECT_EQ(read(each.text, ZolValue(9LL)), each.result) << each.text;
  }
}

TEST(ReadValue, OfADoubleTakesAnyNumber) {
  for (const Case& each : {
           Case{"2.5", "double 2.5"},
           Case{".5", "double 0.5"},
           Case{" -1e3x", "double -1000"},
           Case{"0x10", "double 16"},
           Case{"inf", "double inf"},
           Case{"-0", "double -0"},
           Case{"1e400", "out_of_range: stod argument out of range, double 9"},
           Case{"-1e400", "out_of_range: stod argument out of range, double 9"},
           Case{"1e-400", "out_of_range: stod argument out of range, double 9"},
           Case{"e5", "invalid_argument: invalid stod argument, double 9"},
           Case{"", "invalid_argument: invalid stod argument, double 9"},
       }) {
    EXPECT_EQ(read(each.text, ZolValue(9.0)), each.result) << each.text;
  }
  ZolValue value(0.0);
  EXPECT_EQ(ZOLStringToZolValue("nan", &value), 0);
  EXPECT_TRUE(std::isnan(value.doubleValue()));
}

// On purpose a narrowed double.
TEST(ReadValue, OfAFloatNarrowsADouble) {
  for (const Case& each : {
           Case{".5", "float 0.5"},
           Case{"1e300", "float inf"},
           Case{"-1e300", "float -inf"},
           Case{"1e-300", "float 0"},
           Case{"1e400", "out_of_range: stod argument out of range, float 9"},
           Case{"x", "invalid_argument: invalid stod argument, float 9"},
       }) {
    EXPECT_EQ(read(each.text, ZolValue(9.0F)), each.result) << each.text;
  }
  ZolValue value(0.0F);
  EXPECT_EQ(ZOLStringToZolValue("0.1", &value), 0);
  EXPECT_EQ(value.floatValue(), 0.1F);
}

TEST(ReadValue, OfATextTakesAll) {
  for (const Case& each : {
           Case{"", "string \"\""},
           Case{"  12abc", "string \"  12abc\""},
       }) {
    EXPECT_EQ(read(each.text, ZolValue("old")), each.result) << each.text;
  }
}

TEST(ReadValue, WithoutATypeChangesNothing) {
  EXPECT_EQ(read("12", ZolValue()), "none");
  EXPECT_EQ(read("abc", ZolValue()), "none");
}

TEST(ReadValue, OfAnUnusedTypeChangesNothing) {
  ZOL::_ZolValueUnion payload;
  payload.longInteger = 77;
  for (const int type : {7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 20, 255, -1, INT_MIN}) {
    ZolValue value(static_cast<ZOL::_ValueType>(type), payload);
    EXPECT_EQ(ZOLStringToZolValue("12", &value), 0) << type;
    EXPECT_EQ(show(value), "type " + show(type));
  }
}

TEST(ReadValue, OfNullIsRefused) {
  EXPECT_EQ(read(nullptr, ZolValue(9)), "1001, int 9");
  EXPECT_EQ(read(nullptr, ZolValue("old")), "1001, string \"old\"");
  EXPECT_EQ(read(nullptr, ZolValue()), "1001, none");
}

TEST(ReadValue, HeedsNoErrorThatWasThereBefore) {
  errno = ERANGE;
  EXPECT_EQ(read("5", ZolValue(9)), "int 5");
  errno = ERANGE;
  EXPECT_EQ(read("2.5", ZolValue(9.0)), "double 2.5");
}

TEST(ReadValue, KeepsATextWithoutKeepingThePointer) {
  std::string text = "a text that is too long for any place but the heap";
  ZolValue value("");
  EXPECT_EQ(ZOLStringToZolValue(text.c_str(), &value), 0);
  text.assign(text.size(), 'x');
  EXPECT_STREQ(value.charValue(), "a text that is too long for any place but the heap");
}

TEST(WriteValue, WritesABooleanAsADigit) {
  EXPECT_EQ(write(ZolValue(true)), "1");
  EXPECT_EQ(write(ZolValue(false)), "0");
}

TEST(WriteValue, WritesIntegersInDecimal) {
  EXPECT_EQ(write(ZolValue(INT_MIN)), "-2147483648");
  EXPECT_EQ(write(ZolValue(0)), "0");
  EXPECT_EQ(write(ZolValue(UINT_MAX)), "4294967295");
  EXPECT_EQ(write(ZolValue(LLONG_MIN)), "-9223372036854775808");
  EXPECT_EQ(write(ZolValue(LLONG_MAX)), "9223372036854775807");
}

TEST(WriteValue, WritesSixDecimalsAndNoExponent) {
  EXPECT_EQ(write(ZolValue(2.5)), "2.500000");
  EXPECT_EQ(write(ZolValue(1.5F)), "1.500000");
  EXPECT_EQ(write(ZolValue(0.1F)), "0.100000");
  EXPECT_EQ(write(ZolValue(-0.0)), "-0.000000");
  EXPECT_EQ(write(ZolValue(-0.0F)), "-0.000000");
  EXPECT_EQ(write(ZolValue(0.0000004)), "0.000000");
  EXPECT_EQ(write(ZolValue(0.0000006)), "0.000001");
  EXPECT_EQ(write(ZolValue(1e20)), "100000000000000000000.000000");
  EXPECT_EQ(write(ZolValue(16777217.25F)), "16777218.000000");
}

TEST(WriteValue, WritesAHugeDoubleDigitByDigit) {
  const std::string largest = write(ZolValue(DBL_MAX));
  EXPECT_EQ(largest.size(), 309U + 7U);
  EXPECT_EQ(largest.substr(0, 20), "17976931348623157081");
  EXPECT_EQ(largest.substr(300), "124858368.000000");
  EXPECT_EQ(write(ZolValue(FLT_MAX)), "340282346638528859811704183484516925440.000000");
}

TEST(WriteValue, WritesWhatIsNoNumberAsAWord) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(write(ZolValue(std::copysign(nan, 1.0))), "nan");
  EXPECT_EQ(write(ZolValue(std::copysign(nan, -1.0))), "-nan");
  EXPECT_EQ(write(ZolValue(infinity)), "inf");
  EXPECT_EQ(write(ZolValue(-infinity)), "-inf");
  EXPECT_EQ(write(ZolValue(static_cast<float>(-infinity))), "-inf");
}

TEST(WriteValue, WritesATextAsItIs) {
  EXPECT_EQ(write(ZolValue("12abc")), "12abc");
  EXPECT_EQ(write(ZolValue("")), "");
}

TEST(WriteValue, WritesATextOfNullAsTheEmptyText) {
  ZolValue value("gone");
  releaseBufferOf(value);
  Held<ZOL::IZolString> text(createZolString());
  text->setText("old", -1);
  EXPECT_EQ(ZOLValueToString(&value, text.get()), 0);
  EXPECT_STREQ(text->text(), "");
}

TEST(WriteValue, WritesAnEmptyOrUnusedTypeAsTheEmptyText) {
  EXPECT_EQ(write(ZolValue()), "");
  ZOL::_ZolValueUnion payload;
  payload.longInteger = 77;
  for (const int type : {7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 20, -1}) {
    EXPECT_EQ(write(ZolValue(static_cast<ZOL::_ValueType>(type), payload)), "") << type;
  }
}

TEST(WriteValue, IntoNullIsRefused) {
  ZolValue value(5);
  EXPECT_EQ(ZOLValueToString(&value, nullptr), 1001);
  EXPECT_EQ(show(value), "int 5");
}

TEST(WriteValue, AddsNoReferenceToTheTextObject) {
  Held<ZOL::IZolString> text(createZolString());
  ZolValue value(5);
  EXPECT_EQ(ZOLValueToString(&value, text.get()), 0);
  EXPECT_EQ(text->refCount(), 1);
}

// On purpose no inverse of each other.
TEST(ValueText, DoesNotAlwaysReadBackWhatItWrites) {
  EXPECT_EQ(read(write(ZolValue(0.1234567891)).c_str(), ZolValue(9.0)), "double 0.123457");
  EXPECT_EQ(read(write(ZolValue(4000000000U)).c_str(), ZolValue(9U)),
            "out_of_range: stoi argument out of range, uint 9");
  EXPECT_EQ(read(write(ZolValue(-5)).c_str(), ZolValue(9)), "int -5");
}

}  // namespace
