// The tagged value.

#include <KyDataStructure/frame.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>

#include "support/heap_watch.h"
#include "support/release_buffer.h"
#include "support/show.h"

namespace {

using ZOL::ZolValue;

constexpr char kLongText[] = "a text that is too long for any place but the heap";

// What ZolValue consists of.
struct Layout {
  ZOL::_ValueType type;
  ZOL::_ZolValueUnion payload;  // 8 bytes behind the type, or 4 where no type needs more
  char* text;
};
static_assert(sizeof(void*) != 8 || offsetof(Layout, payload) == 8, "a word, then a word");

// The payload as it stands, whatever the type.
std::uint64_t bitsOf(const ZolValue& value) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, reinterpret_cast<const char*>(&value) + offsetof(Layout, payload),
              sizeof bits);
  return bits;
}

ZOL::_ZolValueUnion unionOf(std::uint64_t bits) {
  ZOL::_ZolValueUnion payload;
  std::memcpy(&payload, &bits, sizeof payload);
  return payload;
}

ZOL::_ZolValueUnion unionOf(const char* text) {
  ZOL::_ZolValueUnion payload;
  payload.text = text;
  return payload;
}

// What each getter answers: at most one of them more than a zero.
std::string getters(ZolValue& value) {
  return show(value.boolValue()) + " " + show(value.doubleValue()) + " " +
         show(value.floatValue()) + " " + show(value.longlongValue()) + " " +
         show(value.intValue()) + " " + show(value.uintValue()) + " " + show(value.charValue());
}

TEST(ZolValue, HasTheNumbersOfItsTypes) {
  EXPECT_EQ(ZOL::kEmptyValue, 0);
  EXPECT_EQ(ZOL::kBoolValue, 1);
  EXPECT_EQ(ZOL::kDoubleValue, 2);
  EXPECT_EQ(ZOL::kFloatValue, 3);
  EXPECT_EQ(ZOL::kLonglongValue, 4);
  EXPECT_EQ(ZOL::kIntValue, 5);
  EXPECT_EQ(ZOL::kUintValue, 6);
  EXPECT_EQ(ZOL::kStringValue, 19);
  EXPECT_EQ(sizeof(ZOL::_ValueType), 4U);
  EXPECT_EQ(sizeof(ZOL::_ZolValueUnion), 8U);
  EXPECT_EQ(sizeof(ZolValue), sizeof(Layout)) << "three machine words of 64 bits";
}

TEST(ZolValue, TypeAndPayloadStandInFront) {
  const ZolValue value(0x1122334455667788LL);
  std::int32_t type = 0;
  std::memcpy(&type, &value, sizeof type);
  EXPECT_EQ(type, 4);
  EXPECT_EQ(bitsOf(value), 0x1122334455667788U);
}

TEST(ZolValue, IsMadeFromEachType) {
  EXPECT_EQ(show(ZolValue()), "none");
  EXPECT_EQ(show(ZolValue(true)), "bool true");
  EXPECT_EQ(show(ZolValue(2.5)), "double 2.5");
  EXPECT_EQ(show(ZolValue(2.5F)), "float 2.5");
  EXPECT_EQ(show(ZolValue(-4LL)), "longlong -4");
  EXPECT_EQ(show(ZolValue(-5)), "int -5");
  EXPECT_EQ(show(ZolValue(4000000000U)), "uint 4000000000");
  EXPECT_EQ(show(ZolValue("abc")), "string \"abc\"");
}

TEST(ZolValue, AnEmptyOneHasNoBits) {
  const ZolValue value;
  EXPECT_EQ(bitsOf(value), 0U);
}

TEST(ZolValue, GettersAnswerTheirOwnTypeAlone) {
  ZolValue values[] = {ZolValue(),    ZolValue(true), ZolValue(2.5), ZolValue(2.5F),
                       ZolValue(4LL), ZolValue(5),    ZolValue(6U),  ZolValue("7")};
  const char* const expected[] = {
      "false 0 0 0 0 0 null",   "true 0 0 0 0 0 null",   "false 2.5 0 0 0 0 null",
      "false 0 2.5 0 0 0 null", "false 0 0 4 0 0 null",  "false 0 0 0 5 0 null",
      "false 0 0 0 0 6 null",   "false 0 0 0 0 0 \"7\"",
  };
  for (std::size_t i = 0; i < std::size(expected); ++i) EXPECT_EQ(getters(values[i]), expected[i]);
}

TEST(ZolValue, FloatAndDoubleDoNotConvert) {
  EXPECT_EQ(ZolValue(2.5).floatValue(), 0.0F);
  EXPECT_EQ(ZolValue(2.5F).doubleValue(), 0.0);
}

TEST(ZolValue, SetValueTurnsAnyTypeIntoAnyOther) {
  ZolValue value;
  value.setValue(true);
  EXPECT_EQ(show(value), "bool true");
  value.setValue("text");
  EXPECT_EQ(show(value), "string \"text\"");
  value.setValue(1.25);
  EXPECT_EQ(show(value), "double 1.25");
  EXPECT_EQ(value.charValue(), nullptr);
  value.setValue(1.25F);
  EXPECT_EQ(show(value), "float 1.25");
  value.setValue(std::numeric_limits<long long>::min());
  EXPECT_EQ(show(value), "longlong -9223372036854775808");
  value.setValue(-1);
  EXPECT_EQ(show(value), "int -1");
  value.setValue(1U);
  EXPECT_EQ(show(value), "uint 1");
  value.setValue(static_cast<const char*>(nullptr));
  EXPECT_EQ(show(value), "string \"\"");
}

TEST(ZolValue, ResetLeavesTheStateOfANewOne) {
  for (ZolValue value : {ZolValue(kLongText), ZolValue(2.5), ZolValue()}) {
    value.reset();
    EXPECT_EQ(show(value), "none");
    EXPECT_EQ(bitsOf(value), 0U);
  }
}

TEST(ZolValue, NullIsTheEmptyText) {
  ZolValue value(static_cast<const char*>(nullptr));
  EXPECT_EQ(value.type(), ZOL::kStringValue);
  EXPECT_STREQ(value.charValue(), "");
}

TEST(ZolValue, AllEmptyTextsAreOneAddress) {
  ZolValue null(static_cast<const char*>(nullptr));
  ZolValue empty("");
  ZolValue set("x");
  set.setValue("");
  ZolValue byType(ZOL::kStringValue, unionOf(static_cast<const char*>(nullptr)));
  EXPECT_NE(null.charValue(), nullptr);
  EXPECT_EQ(null.charValue(), empty.charValue());
  EXPECT_EQ(null.charValue(), set.charValue());
  EXPECT_EQ(null.charValue(), byType.charValue());
  EXPECT_EQ(null.charValue(), ZolValue(null).charValue());
}

TEST(ZolValue, CopiesATextIn) {
  char text[] = "door";
  ZolValue value(text);
  EXPECT_NE(value.charValue(), text);
  text[0] = 'p';
  EXPECT_STREQ(value.charValue(), "door");
}

TEST(ZolValue, TakesATextUpToItsFirstZero) {
  EXPECT_STREQ(ZolValue("one\0two").charValue(), "one");
}

TEST(ZolValue, OfATextTypeAndAUnionCopiesTheText) {
  std::string text = kLongText;
  ZolValue value(static_cast<ZOL::_ValueType>(19), unionOf(text.c_str()));
  text.assign(text.size(), 'x');
  EXPECT_STREQ(value.charValue(), kLongText);
}

TEST(ZolValue, OfAnyOtherTypeAndAUnionKeepsTheBits) {
  const std::uint64_t bits = 0xFEDCBA9876543210U;
  for (int type = 0; type <= 25; ++type) {
    if (type == ZOL::kStringValue) continue;
    const ZolValue value(static_cast<ZOL::_ValueType>(type), unionOf(bits));
    EXPECT_EQ(value.type(), type);
    EXPECT_EQ(bitsOf(value), bits) << type;
  }
}

TEST(ZolValue, OfAnUnusedTypeAnswersNoGetter) {
  for (int type = 7; type <= 18; ++type) {
    ZolValue value(static_cast<ZOL::_ValueType>(type), unionOf(std::uint64_t{0xFEDCBA9876543210U}));
    EXPECT_EQ(getters(value), "false 0 0 0 0 0 null") << type;
  }
}

TEST(ZolValue, OfAnUnusedTypeIsCopiedBitForBit) {
  for (int type = 7; type <= 18; ++type) {
    const ZolValue value(static_cast<ZOL::_ValueType>(type),
                         unionOf(std::uint64_t{0xFEDCBA9876543210U}));
    const ZolValue copy(value);
    ZolValue assigned("old");
    assigned = value;
    EXPECT_EQ(copy.type(), type);
    EXPECT_EQ(bitsOf(copy), bitsOf(value));
    EXPECT_EQ(assigned.type(), type);
    EXPECT_EQ(bitsOf(assigned), bitsOf(value));
  }
}

TEST(ZolValue, CopiesAreDeep) {
  ZolValue source(kLongText);
  ZolValue copy(source);
  EXPECT_STREQ(copy.charValue(), kLongText);
  EXPECT_NE(copy.charValue(), source.charValue());
  source.setValue("changed");
  EXPECT_STREQ(copy.charValue(), kLongText);
}

TEST(ZolValue, MovingLeavesTheSourceWhole) {
  ZolValue source(kLongText);
  ZolValue moved(std::move(source));
  EXPECT_STREQ(source.charValue(), kLongText);  // NOLINT(bugprone-use-after-move): on purpose
  EXPECT_STREQ(moved.charValue(), kLongText);
  EXPECT_NE(moved.charValue(), source.charValue());
}

TEST(ZolValue, MoveAssigningLeavesTheSourceWhole) {
  ZolValue source(kLongText);
  ZolValue target(1);
  ZolValue& result = target = std::move(source);
  EXPECT_EQ(&result, &target);
  EXPECT_STREQ(source.charValue(), kLongText);  // NOLINT(bugprone-use-after-move): on purpose
  EXPECT_STREQ(target.charValue(), kLongText);
  EXPECT_NE(target.charValue(), source.charValue());
}

TEST(ZolValue, AssigningTakesTypeAndPayload) {
  ZolValue text("x");
  ZolValue& result = text = ZolValue(5);
  EXPECT_EQ(&result, &text);
  EXPECT_EQ(text.intValue(), 5);
  EXPECT_EQ(text.charValue(), nullptr);
  const ZolValue source("y");
  text = source;
  EXPECT_EQ(show(text), "string \"y\"");
  text = ZolValue();
  EXPECT_EQ(show(text), "none");
}

TEST(ZolValue, AssignedToItselfIsAsItWas) {
  ZolValue values[] = {ZolValue(kLongText), ZolValue(""), ZolValue(2.5), ZolValue()};
  for (ZolValue& value : values) {
    const std::string before = show(value);
    const ZolValue& same = value;
    EXPECT_EQ(show(value = same), before);
    ZolValue& moved = value;
    EXPECT_EQ(show(value = std::move(moved)), before);
  }
}

TEST(ZolValue, SetToItsOwnTextOrAPartOfItHasThatPart) {
  ZolValue value("harbour bell");
  value.setValue(value.charValue());
  EXPECT_EQ(show(value), "string \"harbour bell\"");
  value.setValue(value.charValue() + 8);
  EXPECT_EQ(show(value), "string \"bell\"");
  value.setValue(value.charValue() + 4);
  EXPECT_EQ(show(value), "string \"\"") << "its terminating zero";
}

TEST(ZolValue, SetToTheTextOfAnotherValueTakesThatText) {
  // Both ways, as either may lie in front of the other in memory.
  ZolValue first("first");
  ZolValue second("second");
  ZolValue copyOfFirst(first);
  ZolValue copyOfSecond(second);
  copyOfFirst.setValue(second.charValue());
  copyOfSecond.setValue(first.charValue());
  EXPECT_EQ(show(copyOfFirst), "string \"second\"");
  EXPECT_EQ(show(copyOfSecond), "string \"first\"");
  first.setValue(static_cast<const char*>(nullptr));
  EXPECT_EQ(show(first), "string \"\"");
}

TEST(ZolValue, SetToItsOwnTerminatingZeroGivesItsMemoryBack) {
  const long long before = liveBlocks();
  ZolValue value(kLongText);
  value.setValue(value.charValue() + std::strlen(kLongText));
  EXPECT_EQ(show(value), "string \"\"");
  EXPECT_EQ(liveBlocks(), before);
}

TEST(ZolValue, WithoutItsBufferIsATextOfNullThatOnlyAnotherOneEquals) {
  ZolValue value(kLongText);
  ZolValue other(kLongText);
  releaseBufferOf(value);
  EXPECT_EQ(value.type(), ZOL::kStringValue);
  EXPECT_EQ(value.charValue(), nullptr);
  EXPECT_FALSE(value == other);
  EXPECT_FALSE(other == value);
  EXPECT_FALSE(value == ZolValue(""));
  releaseBufferOf(other);
  EXPECT_TRUE(value == other);
  EXPECT_TRUE(value == value);
  EXPECT_EQ(show(ZolValue(value)), "string \"\"") << "a copy has the empty text";
  releaseBufferOf(value);  // which has none any more
  value.setValue("new");
  EXPECT_EQ(show(value), "string \"new\"");
}

// On purpose: the memory of the old text stays until something else gives it up.
TEST(ZolValue, KeepsTheMemoryOfATextThatANumberWasAssignedOver) {
  using Step = void (*)(ZolValue&);
  const Step steps[] = {
      [](ZolValue& value) { value.setValue(1); },    [](ZolValue& value) { value.setValue(1U); },
      [](ZolValue& value) { value.setValue(1.0F); }, [](ZolValue& value) { value.setValue(1.0); },
      [](ZolValue& value) { value.setValue(1LL); },  [](ZolValue& value) { value.setValue(true); },
      [](ZolValue& value) { value.setValue(""); },   [](ZolValue& value) { value.reset(); },
      [](ZolValue& value) { value = ZolValue(""); },
  };
  for (const Step step : steps) {
    const long long before = liveBlocks();
    ZolValue value(kLongText);
    value = ZolValue(5);
    EXPECT_EQ(liveBlocks(), before + 1);
    const ZolValue copy(value);
    EXPECT_EQ(liveBlocks(), before + 1) << "a copy has no part in it";
    value = ZolValue(6);
    EXPECT_EQ(liveBlocks(), before + 1);
    step(value);
    EXPECT_EQ(liveBlocks(), before) << "step " << &step - steps;
  }
  const long long before = liveBlocks();
  {
    ZolValue value(kLongText);
    value = ZolValue();
  }
  EXPECT_EQ(liveBlocks(), before) << "and its end gives it up, too";
}

TEST(ZolValue, AllocatesForATextThatIsNotEmptyAlone) {
  const long long before = liveBlocks();
  ZolValue values[] = {ZolValue(), ZolValue(1), ZolValue(2.0), ZolValue(true), ZolValue("")};
  EXPECT_EQ(liveBlocks(), before);
  values[0].setValue("x");
  EXPECT_EQ(liveBlocks(), before + 1);
  values[0].setValue(kLongText);
  EXPECT_EQ(liveBlocks(), before + 1);
  values[0].setValue(1);
  EXPECT_EQ(liveBlocks(), before);
}

TEST(ZolValue, EqualsByTypeAndPayload) {
  EXPECT_TRUE(ZolValue(true) == ZolValue(true));
  EXPECT_FALSE(ZolValue(true) == ZolValue(false));
  EXPECT_TRUE(ZolValue(5) == ZolValue(5));
  EXPECT_FALSE(ZolValue(5) == ZolValue(6));
  EXPECT_TRUE(ZolValue(6U) == ZolValue(6U));
  EXPECT_TRUE(ZolValue(1LL << 40) == ZolValue(1LL << 40));
  EXPECT_FALSE(ZolValue(1LL << 40) == ZolValue(1LL << 41));
  EXPECT_TRUE(ZolValue(2.5) == ZolValue(2.5));
  EXPECT_TRUE(ZolValue(2.5F) == ZolValue(2.5F));
  EXPECT_FALSE(ZolValue(2.5F) == ZolValue(2.25F));
}

TEST(ZolValue, OfDifferentTypesNeverEqual) {
  EXPECT_FALSE(ZolValue(0) == ZolValue(false));
  EXPECT_FALSE(ZolValue(1) == ZolValue(1U));
  EXPECT_FALSE(ZolValue(1) == ZolValue(1LL));
  EXPECT_FALSE(ZolValue(1.0) == ZolValue(1.0F));
  EXPECT_FALSE(ZolValue("") == ZolValue());
}

TEST(ZolValue, ComparesNumbersWithAPointAsSuch) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  ZolValue value(nan);
  EXPECT_FALSE(value == value) << "NaN equals nothing";
  ZolValue narrow(std::numeric_limits<float>::quiet_NaN());
  EXPECT_FALSE(narrow == narrow);
  EXPECT_TRUE(ZolValue(0.0) == ZolValue(-0.0));
  EXPECT_TRUE(ZolValue(0.0F) == ZolValue(-0.0F));
}

TEST(ZolValue, ComparesTextsByTheirBytes) {
  const std::string text = "abc";
  EXPECT_TRUE(ZolValue("abc") == ZolValue(text.c_str()));
  EXPECT_FALSE(ZolValue("abc") == ZolValue("abd"));
  EXPECT_FALSE(ZolValue("abc") == ZolValue("ab"));
  EXPECT_FALSE(ZolValue("ABC") == ZolValue("abc"));
  EXPECT_TRUE(ZolValue("") == ZolValue(static_cast<const char*>(nullptr)));
}

TEST(ZolValue, AnEmptyOneEqualsNothingNotEvenItself) {
  ZolValue value;
  EXPECT_FALSE(value == value);
  EXPECT_FALSE(ZolValue() == ZolValue());
}

TEST(ZolValue, OfAnUnusedTypeEqualsNothingNotEvenItself) {
  for (int type = 7; type <= 18; ++type) {
    ZolValue value(static_cast<ZOL::_ValueType>(type), unionOf(std::uint64_t{0}));
    EXPECT_FALSE(value == value) << type;
  }
}

TEST(ZolValue, KeepsTheSignOfZero) {
  EXPECT_TRUE(std::signbit(ZolValue(-0.0).doubleValue()));
  EXPECT_TRUE(std::signbit(ZolValue(ZolValue(-0.0F)).floatValue()));
}

}  // namespace
