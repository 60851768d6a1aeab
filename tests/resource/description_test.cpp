// The description itself: what it holds, what makes it valid, its key, its copies.

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "resource/description.h"
#include "resource/foreign_info.h"

namespace {

TEST(Description, StartsEmpty) {
  const Held<Info> info = newInfo();
  EXPECT_EQ(info->refCount(), 1);
  EXPECT_TRUE(info->isEmpty());
  EXPECT_FALSE(info->isValid());
  EXPECT_STREQ(info->uniqueKey(), "");
  EXPECT_EQ(inside(info).intValue("rsResType"), -1);
  EXPECT_EQ(inside(info).intValue("rsResId"), 0);
  EXPECT_STREQ(inside(info).stringValue("rsResSlug"), "");
  ZOL::_Property out{};
  EXPECT_EQ(info->getProperty("rsResType", &out), 1001);
  EXPECT_EQ(written(info), "refused");
  EXPECT_EQ(inside(info).hostData(), 0u);
  EXPECT_EQ(show(info), "{}");
}

TEST(Description, IsValidWithSlugTypeAndInfoType) {
  const Held<Info> info = newInfo();
  inside(info).setIntValue("rsResType", 3);
  inside(info).setIntValue("rsResInfoType", 7);
  inside(info).setStringValue("rsResSlug", "abc");
  EXPECT_TRUE(info->isValid());
  EXPECT_STREQ(info->uniqueKey(), "abc_res_type_3_info_type_7");
}

TEST(Description, AnswersItsFourNamesAndNoOther) {
  const Held<Info> info = newInfo();
  void* const main = info.get();
  void* const internal = &inside(info);
  EXPECT_EQ(info->queryInterface("IZolResSerializeInfo"), main);
  EXPECT_EQ(info->queryInterface("ZolResSerializeInfo"), main);
  EXPECT_EQ(info->queryInterface("IDmBaseObj"), static_cast<ZOL::IDmBaseObj*>(info.get()));
  EXPECT_NE(internal, nullptr);
  EXPECT_NE(internal, main);
  for (const char* const name :
       {"", "izolresserializeinfo", "IZolResSerializeInf", "IZolResSerializeInfoX",
        "zolResSerializeInfo", "ZolResSerializeInfoInternal", "IZolResSerializeInfoList",
        "IZolString", "listData", "RefCnt", "IDmDeepClonableObj"}) {
    EXPECT_EQ(info->queryInterface(name), nullptr) << name;
  }
  EXPECT_EQ(info->refCount(), 1);
}

TEST(Description, CountsItsReferences) {
  const Held<Info> info = newInfo();
  EXPECT_EQ(info->addRef(), 2);
  EXPECT_EQ(info->refCount(), 2);
  EXPECT_EQ(info->release(), 1);
}

TEST(Description, KeepsAWordOfItsHost) {
  const Held<Info> info = newInfo();
  EXPECT_EQ(inside(info).setHostData(UINTPTR_MAX), 0);
  EXPECT_EQ(inside(info).hostData(), UINTPTR_MAX);
  EXPECT_TRUE(info->isEmpty());
  EXPECT_EQ(inside(info).setHostData(0), 0);
  EXPECT_EQ(inside(info).hostData(), 0u);
}

TEST(Description, IsEmptyUntilAnythingIsHeld) {
  const auto emptyAfter = [](auto change) {
    const Held<Info> info = newInfo();
    change(info);
    return info->isEmpty();
  };
  EXPECT_FALSE(emptyAfter([](auto& info) { inside(info).setIntValue("rsResId", 0); }));
  EXPECT_FALSE(emptyAfter([](auto& info) { inside(info).setStringValue("rsResSlug", ""); }));
  EXPECT_FALSE(emptyAfter([](auto& info) { info->setUserString("rsiusCustomRsMd5", ""); }));
  EXPECT_FALSE(emptyAfter([](auto& info) { inside(info).addRelatedRes(single("a").get()); }));
  EXPECT_TRUE(emptyAfter([](auto& info) {
    inside(info).addRelatedRes(single("a").get());
    inside(info).removeRelatedRes(nullptr);
  }));
  EXPECT_TRUE(emptyAfter([](auto& info) { info->uniqueKey(); }));
  EXPECT_TRUE(emptyAfter([](auto& info) { readText(info, "{\"res_type\":3}"); }));
}

// Properties as records.

TEST(DescriptionProperty, IsGivenAsAnIntegerInTheFirstEightBytes) {
  const Held<Info> info = newInfo();
  for (const long long value : {0LL, 1LL, -1LL, LLONG_MIN, LLONG_MAX, 4294967296LL}) {
    inside(info).setIntValue("rsResState", value);
    ZOL::_Property out;
    std::memset(&out, 0x5A, sizeof out);
    EXPECT_EQ(info->getProperty("rsResState", &out), 0);
    EXPECT_EQ(show(out), "integer " + std::to_string(value));
    EXPECT_EQ(out.present, 1);
    // On purpose the other bytes are left as they were.
    EXPECT_EQ(std::string(out.value + 8, sizeof out.value - 8),
              std::string(sizeof out.value - 8, '\x5A'));
  }
}

TEST(DescriptionProperty, IsGivenAsATextWithZerosBehindIt) {
  const Held<Info> info = newInfo();
  inside(info).setStringValue("rsResSlug", "abc");
  ZOL::_Property out;
  std::memset(&out, 0x5A, sizeof out);
  EXPECT_EQ(info->getProperty("rsResSlug", &out), 0);
  EXPECT_EQ(show(out), "text \"abc\"");
  EXPECT_EQ(out.present, 1);
  EXPECT_EQ(std::string(out.value + 3, sizeof out.value - 3),
            std::string(sizeof out.value - 3, '\0'));
}

TEST(DescriptionProperty, CutsATextTo1023Bytes) {
  for (const std::size_t size : {0u, 1u, 7u, 8u, 1022u, 1023u, 1024u, 1025u, 2000u, 100000u}) {
    const Held<Info> info = newInfo();
    const std::string text(size, 'x');
    inside(info).setStringValue("rsResSlug", text.c_str());
    EXPECT_EQ(inside(info).stringValue("rsResSlug"), text) << size;
    ZOL::_Property out;
    std::memset(&out, 0x5A, sizeof out);
    EXPECT_EQ(info->getProperty("rsResSlug", &out), 0);
    EXPECT_EQ(std::string(out.value), text.substr(0, 1023)) << size;
    EXPECT_EQ(out.value[1023], '\0') << size;
  }
}

TEST(DescriptionProperty, LeavesTheRecordAsItWasWhenRefused) {
  const Held<Info> info = newInfo();
  for (const char* const key : {"rsResType", "rsResSlug", "unknown", "", "rsiusCustomRsMd5"}) {
    ZOL::_Property out;
    std::memset(&out, 0x5A, sizeof out);
    const ZOL::_Property before = out;
    EXPECT_EQ(info->getProperty(key, &out), 1001) << key;
    EXPECT_EQ(std::memcmp(&out, &before, sizeof out), 0) << key;
  }
}

TEST(DescriptionProperty, IsRefusedAlthoughADefaultIsReported) {
  const Held<Info> info = newInfo();
  ZOL::_Property out{};
  EXPECT_EQ(info->getProperty("rsResSaleMode", &out), 1001);
  EXPECT_EQ(inside(info).intValue("rsResSaleMode"), -1);
}

TEST(DescriptionProperty, IsStoredByTheTypeOfTheRecord) {
  const Held<Info> info = newInfo();
  const ZOL::_Property number = integerProperty(-5);
  const ZOL::_Property text = textProperty("abc");
  EXPECT_EQ(info->setProperty("rsResType", &number), 0);
  EXPECT_EQ(info->setProperty("rsResSlug", &number), 0);
  EXPECT_EQ(info->setProperty("rsResSlug", &text), 0);
  EXPECT_EQ(info->setProperty("rsResPackId", &text), 0);
  EXPECT_EQ(show(info), "{rsResPackId: \"abc\", rsResSlug: -5 and \"abc\", rsResType: -5}");
}

TEST(DescriptionProperty, UnderOneKeyAsBothIsReportedAsTheNumber) {
  const Held<Info> info = newInfo();
  inside(info).setIntValue("rsResType", 5);
  const ZOL::_Property text = textProperty("abc");
  EXPECT_EQ(info->setProperty("rsResType", &text), 0);
  ZOL::_Property out{};
  EXPECT_EQ(info->getProperty("rsResType", &out), 0);
  EXPECT_EQ(show(out), "integer 5");
  EXPECT_STREQ(inside(info).stringValue("rsResType"), "abc");
}

TEST(DescriptionProperty, OfAnyOtherTypeIsRefused) {
  for (const std::int32_t type : {-1, 0, 1, 2, 3, 5, 6, 8, 19, 4 + 65536, INT_MAX, INT_MIN}) {
    const Held<Info> info = newInfo();
    ZOL::_Property value = integerProperty(5);
    value.type = type;
    EXPECT_EQ(info->setProperty("rsResType", &value), 1001) << type;
    EXPECT_TRUE(info->isEmpty()) << type;
  }
}

TEST(DescriptionProperty, CountsAsPresentUnlessTheWordIsZero) {
  for (const std::int32_t present : {1, 2, -1, 256, 65536, INT_MIN}) {
    const Held<Info> info = newInfo();
    ZOL::_Property value = integerProperty(5);
    value.present = present;
    EXPECT_EQ(info->setProperty("rsResType", &value), 0) << present;
    EXPECT_EQ(show(info), "{rsResType: 5}");
  }
  const Held<Info> info = newInfo();
  ZOL::_Property absent = integerProperty(5);
  absent.present = 0;
  EXPECT_EQ(info->setProperty("rsResType", &absent), 1001);
  absent = textProperty("a");
  absent.present = 0;
  EXPECT_EQ(info->setProperty("rsResSlug", &absent), 1001);
  EXPECT_TRUE(info->isEmpty());
}

TEST(DescriptionProperty, TakesATextUpToItsFirstZeroByte) {
  const Held<Info> info = newInfo();
  ZOL::_Property value = textProperty(std::string("ab\0cd", 5));
  EXPECT_EQ(info->setProperty("rsResSlug", &value), 0);
  EXPECT_STREQ(inside(info).stringValue("rsResSlug"), "ab");
  value = textProperty("");
  EXPECT_EQ(info->setProperty("rsResSlug", &value), 0);
  EXPECT_STREQ(inside(info).stringValue("rsResSlug"), "");
  // A record that is full to its last byte has no zero in it.
  value = textProperty(std::string(1024, 'x'));
  EXPECT_EQ(info->setProperty("rsResSlug", &value), 0);
  EXPECT_EQ(inside(info).stringValue("rsResSlug"), std::string(1024, 'x'));
}

TEST(DescriptionProperty, IsCopiedWhenSet) {
  const Held<Info> info = newInfo();
  char text[] = "abc";
  inside(info).setStringValue("rsResSlug", text);
  info->setUserString("rsiusCustomRsMd5", text);
  long long number = 5;
  inside(info).setIntValue("rsResState", number);
  text[0] = 'X';
  number = 6;
  EXPECT_EQ(show(info), "{rsResSlug: \"abc\", rsResState: 5, rsiusCustomRsMd5: \"abc\"}");
}

TEST(DescriptionProperty, CanBeSetToItsOwnText) {
  const Held<Info> info = newInfo();
  inside(info).setStringValue("rsResSlug", "a text that is too long for any short place");
  inside(info).setStringValue("rsResSlug", inside(info).stringValue("rsResSlug") + 7);
  EXPECT_EQ(show(info), "{rsResSlug: \"that is too long for any short place\"}");
  info->setUserString("rsiusCustomRsMd5", inside(info).stringValue("rsResSlug"));
  info->setUserString("rsiusCustomRsMd5", info->userString("rsiusCustomRsMd5") + 8);
  EXPECT_STREQ(info->userString("rsiusCustomRsMd5"), "too long for any short place");
}

TEST(DescriptionProperty, StaysWhereItIsWhileOtherKeysAreSet) {
  const Held<Info> info = newInfo();
  inside(info).setStringValue("rsResSlug", "slug");
  info->setUserString("rsiusCustomRsMd5", "md5");
  const char* const slug = inside(info).stringValue("rsResSlug");
  const char* const md5 = info->userString("rsiusCustomRsMd5");
  for (const PropertyRow& row : kPropertyRows) {
    inside(info).setIntValue(row.key, 1);
    if (row.key != std::string("rsResSlug")) inside(info).setStringValue(row.key, "other");
  }
  info->setUserString("rsiusOpenFxPluginName", "other");
  EXPECT_STREQ(slug, "slug");
  EXPECT_STREQ(md5, "md5");
}

// User strings.

TEST(DescriptionUserString, IsTheSameFromBothSides) {
  const Held<Info> info = newInfo();
  EXPECT_EQ(info->setUserString("rsiusCustomRsMd5", "a"), 0);
  EXPECT_STREQ(inside(info).userString("rsiusCustomRsMd5"), "a");
  EXPECT_EQ(inside(info).setUserString("rsiusCustomRsMd5", "b"), 0);
  EXPECT_STREQ(info->userString("rsiusCustomRsMd5"), "b");
}

TEST(DescriptionUserString, RefusesNullAndUnknownKeys) {
  const Held<Info> info = newInfo();
  EXPECT_EQ(info->setUserString(nullptr, "a"), 1001);
  EXPECT_EQ(info->setUserString("rsiusCustomRsMd5", nullptr), 1001);
  EXPECT_EQ(info->setUserString(nullptr, nullptr), 1001);
  EXPECT_EQ(info->setUserString("rsResSlug", "a"), 1001);
  EXPECT_EQ(inside(info).setUserString(nullptr, "a"), 1001);
  EXPECT_EQ(inside(info).setUserString("rsiusCustomRsMd5", nullptr), 1001);
  EXPECT_TRUE(info->isEmpty());
  EXPECT_STREQ(info->userString(nullptr), "");
  EXPECT_STREQ(info->userString("rsiusCustomRsMd5"), "");
  EXPECT_STREQ(inside(info).userString(nullptr), "");
}

TEST(DescriptionUserString, StoresAnEmptyTextAsAnyOther) {
  const Held<Info> info = single("a");
  EXPECT_EQ(info->setUserString("rsiusVST3PluginName", ""), 0);
  EXPECT_EQ(written(info),
            "{\"infoType\":7,\"res_type\":3,\"name\":\"a\","
            "\"user_string\":{\"vst3_plugin_name\":\"\"}}");
}

// Validity.

enum class Needs { nothingElse, packAndType, stockId, id, never };

Needs needsOf(long long infoType) {
  static const std::set<long long> stock = {101, 102, 103, 104, 106, 107, 108, 109, 112, 113};
  if (infoType == 6) return Needs::packAndType;
  if (infoType == 7) return Needs::nothingElse;
  if (infoType == 1007) return Needs::id;
  return stock.count(infoType) ? Needs::stockId : Needs::never;
}

// Each info type with each choice of the other properties.
TEST(DescriptionValidity, FollowsFromTheInfoType) {
  std::vector<long long> infoTypes = {LLONG_MIN,        LLONG_MAX,          4294967296LL + 6,
                                      4294967296LL + 7, 4294967296LL + 101, 4294967296LL + 1007};
  for (long long code = -3; code <= 130; ++code) infoTypes.push_back(code);
  for (long long code = 1000; code <= 1010; ++code) infoTypes.push_back(code);
  int valid = 0;
  for (const long long infoType : infoTypes) {
    for (const char* const slug : {"", "a"}) {
      for (const long long type : {-1LL, 0LL, 1LL, 25LL, 39LL, -2LL}) {
        for (const long long number : {-1LL, 0LL, 1LL, 5LL}) {
          for (const char* const stockId : {"", "x"}) {
            const Held<Info> info = newInfo();
            inside(info).setIntValue("rsResInfoType", infoType);
            inside(info).setIntValue("rsResType", type);
            inside(info).setStringValue("rsResSlug", slug);
            inside(info).setStringValue("rsResStockMediaStrId", stockId);
            // One of both at a time: the other would do no harm.
            inside(info).setIntValue(infoType == 6 ? "rsResPackId" : "rsResId", number);
            const Needs needs = needsOf(infoType);
            const bool expected = *slug != '\0' && type != -1 && needs != Needs::never &&
                                  (needs != Needs::packAndType || (number >= 1 && type != 0)) &&
                                  (needs != Needs::id || number >= 1) &&
                                  (needs != Needs::stockId || *stockId != '\0');
            valid += expected;
            EXPECT_EQ(info->isValid(), expected) << show(info) << " of info type " << infoType;
          }
        }
      }
    }
  }
  EXPECT_GT(valid, 200);
}

TEST(DescriptionValidity, OfUnsetPropertiesFollowsFromTheirDefaults) {
  const Held<Info> info = newInfo();
  inside(info).setStringValue("rsResSlug", "a");
  EXPECT_FALSE(info->isValid());
  inside(info).setIntValue("rsResType", 3);
  EXPECT_FALSE(info->isValid()) << "an info type of 0 is never valid";
  inside(info).setIntValue("rsResInfoType", 7);
  EXPECT_TRUE(info->isValid());
}

// On purpose the pack's info type alone refuses the type 0.
TEST(DescriptionValidity, RefusesTheTypeZeroForAPackAlone) {
  const Held<Info> info = single("a", 0);
  inside(info).setIntValue("rsResPackId", 5);
  inside(info).setIntValue("rsResId", 5);
  inside(info).setStringValue("rsResStockMediaStrId", "5");
  std::string valid;
  for (const long long infoType : {6, 7, 101, 106, 112, 1007}) {
    inside(info).setIntValue("rsResInfoType", infoType);
    if (info->isValid()) valid += std::to_string(infoType) + " ";
  }
  EXPECT_EQ(valid, "7 101 106 112 1007 ");
}

TEST(DescriptionValidity, LooksAtTheMapThatHoldsTheKindItNeeds) {
  const Held<Info> pack = single("a");
  inside(pack).setIntValue("rsResInfoType", 6);
  inside(pack).setStringValue("rsResPackId", "5");
  EXPECT_FALSE(pack->isValid());
  const Held<Info> stock = single("a");
  inside(stock).setIntValue("rsResInfoType", 101);
  inside(stock).setIntValue("rsResStockMediaStrId", 5);
  EXPECT_FALSE(stock->isValid());
  const Held<Info> typed = newInfo();
  inside(typed).setStringValue("rsResSlug", "a");
  inside(typed).setStringValue("rsResType", "3");
  inside(typed).setIntValue("rsResInfoType", 7);
  EXPECT_FALSE(typed->isValid());
  const Held<Info> slug = newInfo();
  inside(slug).setIntValue("rsResSlug", 5);
  inside(slug).setIntValue("rsResType", 3);
  inside(slug).setIntValue("rsResInfoType", 7);
  EXPECT_FALSE(slug->isValid());
}

// The key.

TEST(DescriptionKey, PrintsAPropertyThatIsNotHeldAsZero) {
  const Held<Info> info = newInfo();
  inside(info).setStringValue("rsResSlug", "abc");
  EXPECT_EQ(inside(info).intValue("rsResType"), -1);
  EXPECT_STREQ(info->uniqueKey(), "abc_res_type_0_info_type_0");
  inside(info).setIntValue("rsResType", -1);
  EXPECT_STREQ(info->uniqueKey(), "abc_res_type_-1_info_type_0");
}

TEST(DescriptionKey, CutsNumbersToTheirLow32Bits) {
  const struct {
    long long number;
    const char* printed;
  } rows[] = {
      {2147483647, "2147483647"},
      {2147483648, "-2147483648"},
      {4294967295, "-1"},
      {4294967296, "0"},
      {4294967299, "3"},
      {-2147483648LL, "-2147483648"},
      {-2147483649LL, "2147483647"},
      {-4294967297LL, "-1"},
      {LLONG_MAX, "-1"},
      {LLONG_MIN, "0"},
  };
  for (const auto& row : rows) {
    const Held<Info> info = newInfo();
    inside(info).setStringValue("rsResSlug", "s");
    inside(info).setIntValue("rsResType", row.number);
    EXPECT_EQ(info->uniqueKey(), "s_res_type_" + std::string(row.printed) + "_info_type_0");
    inside(info).setIntValue("rsResInfoType", row.number);
    EXPECT_EQ(info->uniqueKey(),
              "s_res_type_" + std::string(row.printed) + "_info_type_" + std::string(row.printed));
  }
}

TEST(DescriptionKey, IsTheLastOneWithoutASlug) {
  const Held<Info> info = single("abc");
  EXPECT_STREQ(info->uniqueKey(), "abc_res_type_3_info_type_7");
  inside(info).setStringValue("rsResSlug", "");
  inside(info).setIntValue("rsResType", 9);
  EXPECT_STREQ(info->uniqueKey(), "abc_res_type_3_info_type_7");
  inside(info).setStringValue("rsResSlug", "d");
  EXPECT_STREQ(info->uniqueKey(), "d_res_type_9_info_type_7");
}

TEST(DescriptionKey, IsTheEmptyTextBeforeThereWasASlug) {
  const Held<Info> info = newInfo();
  inside(info).setIntValue("rsResType", 9);
  EXPECT_STREQ(info->uniqueKey(), "");
  inside(info).setStringValue("rsResSlug", "");
  EXPECT_STREQ(info->uniqueKey(), "");
}

TEST(DescriptionKey, StaysUntilTheNextCall) {
  const Held<Info> info = single("abc");
  const char* const key = info->uniqueKey();
  inside(info).setStringValue("rsResSlug", "other");
  inside(info).setIntValue("rsResType", 12);
  readText(info, "{\"name\":\"third\",\"res_type\":1}");
  EXPECT_STREQ(key, "abc_res_type_3_info_type_7");
  EXPECT_STREQ(info->uniqueKey(), "third_res_type_1_info_type_7");
}

TEST(DescriptionKey, TakesTheSlugAsAPropertyGivesIt) {
  const Held<Info> longSlug = single(std::string(2000, 'x'));
  EXPECT_EQ(longSlug->uniqueKey(), std::string(1023, 'x') + "_res_type_3_info_type_7");
  // Held as a number, it is the text that the number's bytes spell.
  const Held<Info> number = single("a");
  long long bytes = 0;
  std::memcpy(&bytes, "xyz", 3);
  inside(number).setIntValue("rsResSlug", bytes);
  EXPECT_STREQ(number->uniqueKey(), "xyz_res_type_3_info_type_7");
  inside(number).setIntValue("rsResSlug", 0);
  EXPECT_STREQ(number->uniqueKey(), "xyz_res_type_3_info_type_7");
}

// Copies.

TEST(DescriptionCopy, LandsOnTopOfWhatIsThere) {
  const Held<Info> from = single("b", 4);
  from->setUserString("rsiusCustomRsMd5", "new");
  inside(from).setIntValue("rsResState", 2);
  inside(from).setHostData(77);
  const Held<Info> to = single("a", 3);
  inside(to).setStringValue("rsResOriginSlug", "stays");
  inside(to).setIntValue("rsResRate", 4);
  to->setUserString("rsiusCustomRsMd5", "old");
  to->setUserString("rsiusVST3PluginName", "stays too");
  inside(to).setHostData(55);
  EXPECT_EQ(to->copyFrom(from.get()), 0);
  EXPECT_EQ(show(to),
            "{rsResInfoType: 7, rsResOriginSlug: \"stays\", rsResRate: 4, rsResSlug: \"b\", "
            "rsResState: 2, rsResType: 4, rsiusCustomRsMd5: \"new\", "
            "rsiusVST3PluginName: \"stays too\"}");
  EXPECT_EQ(inside(to).hostData(), 55u);
}

TEST(DescriptionCopy, TakesUnknownMembersOfTheTextAlong) {
  const Held<Info> from = newInfo();
  ASSERT_EQ(readText(from, "{\"x\":[1.50],\"name\":\"a\",\"res_type\":3}"), 0);
  const Held<Info> to = newInfo();
  ASSERT_EQ(readText(to, "{\"y\":1,\"name\":\"b\",\"res_type\":4}"), 0);
  EXPECT_EQ(to->copyFrom(from.get()), 0);
  EXPECT_EQ(written(to),
            "{\"x\":[1.50],\"name\":\"a\",\"res_type\":3,\"infoType\":7,\"user_string\":{}}");
}

TEST(DescriptionCopy, IsRefusedForNullAndForADescriptionThatWritesNothing) {
  const Held<Info> info = single("a");
  EXPECT_EQ(info->copyFrom(nullptr), 1001);
  EXPECT_EQ(info->copyFrom(newInfo().get()), 1001);
  EXPECT_EQ(show(info), show(single("a")));
}

TEST(DescriptionCopy, ThatIsNotValidIsRefusedAndKeepsWhatWasRead) {
  const Held<Info> from = newInfo();
  inside(from).setIntValue("rsResId", 5);
  inside(from).setIntValue("rsResState", 2);
  const Held<Info> to = newInfo();
  EXPECT_EQ(to->copyFrom(from.get()), 1001);
  EXPECT_EQ(show(to), "{rsResId: 5, rsResState: 2}");
  // On a description that is valid already the same text is accepted.
  const Held<Info> valid = single("a");
  EXPECT_EQ(valid->copyFrom(from.get()), 0);
}

TEST(DescriptionCopy, OfItselfReducesTheRelatedEntriesToTheirText) {
  const Held<Info> entry = single("b", 4);
  inside(entry).setIntValue("rsResState", 2);
  const Held<Info> info = single("a");
  inside(info).addRelatedRes(entry.get());
  EXPECT_EQ(show(info),
            "{rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3, related: "
            "[{rsResInfoType: 7, rsResSlug: \"b\", rsResState: 2, rsResType: 4}]}");
  EXPECT_EQ(info->copyFrom(info.get()), 0);
  EXPECT_EQ(show(info),
            "{rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3, related: "
            "[{rsResInfoType: 7, rsResSlug: \"b\", rsResType: 4}]}");
}

TEST(DescriptionCopy, KeepsRelatedEntriesUnlessTheOtherHasSome) {
  const Held<Info> to = single("a");
  inside(to).addRelatedRes(single("b").get());
  EXPECT_EQ(to->copyFrom(single("c").get()), 0);
  EXPECT_EQ(show(to),
            "{rsResInfoType: 7, rsResSlug: \"c\", rsResType: 3, related: "
            "[{rsResInfoType: 7, rsResSlug: \"b\", rsResType: 3}]}");
  const Held<Info> from = single("d");
  inside(from).addRelatedRes(single("e", 8).get());
  EXPECT_EQ(to->copyFrom(from.get()), 0);
  EXPECT_EQ(show(to),
            "{rsResInfoType: 7, rsResSlug: \"d\", rsResType: 3, related: "
            "[{rsResInfoType: 7, rsResSlug: \"e\", rsResType: 8}]}");
}

TEST(DescriptionCopy, OfAForeignDescriptionGoesThroughWhatItWrites) {
  const Held<Info> inner = single("a");
  ForeignInfo foreign(inner.get());
  const Held<Info> info = newInfo();
  EXPECT_EQ(info->copyFrom(&foreign), 0);
  EXPECT_EQ(foreign.writings, 1);
  EXPECT_EQ(show(info), "{rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3}");

  WritingInfo writing(inner.get(), "{\"name\":\"w\",\"res_type\":8}", 0);
  EXPECT_EQ(info->copyFrom(&writing), 0);
  EXPECT_EQ(show(info), "{rsResInfoType: 7, rsResSlug: \"w\", rsResType: 8}");
}

TEST(DescriptionCopy, OfAForeignDescriptionThatRefusesOrWritesNonsenseIsRefused) {
  const Held<Info> inner = single("a");
  const Held<Info> info = single("b");
  WritingInfo refusing(inner.get(), "{\"name\":\"w\",\"res_type\":8}", 1001);
  EXPECT_EQ(info->copyFrom(&refusing), 1001);
  for (const char* const text : {"", "nonsense", "[]", "{}", "{\"res_type\":8}"}) {
    WritingInfo writing(inner.get(), text, 0);
    EXPECT_EQ(info->copyFrom(&writing), 1001) << text;
  }
  EXPECT_EQ(show(info), "{rsResInfoType: 7, rsResSlug: \"b\", rsResType: 3}");
}

}  // namespace
