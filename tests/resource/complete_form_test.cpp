// A provider's full record, by info type.

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "resource/description.h"
#include "support/foreign_string.h"

namespace {

struct Provider {
  int infoType;
  int subType;
  const char* prefix;
};

constexpr Provider kNumbered[] = {
    {101, 2, "pixabay/"},  {102, 2, "pixabay/"}, {103, 3, "unsplash/"},
    {104, 3, "unsplash/"}, {112, 4, "pexels/"},  {113, 4, "pexels/"},
};
constexpr int kGiphy[] = {106, 107, 108, 109};

std::string stockItem(const std::string& id, int infoType, int subType, const std::string& slug) {
  return "{rsResId: " + id + ", rsResInfoType: " + std::to_string(infoType) + ", rsResSlug: \"" +
         slug + "\", rsResStockMediaStrId: \"" + id +
         "\", rsResSubType: " + std::to_string(subType) + ", rsResType: 25}";
}

TEST(CompleteForm, OfAStockItemIsItsIdUnderTheProvidersName) {
  for (const Provider& provider : kNumbered) {
    EXPECT_EQ(
        afterReadingRecord("{\"id\":42,\"name\":\"not read\",\"res_type\":3,\"slug\":\"nor this\","
                           "\"type\":4,\"infoType\":7,\"real_id\":\"9\",\"res_sub_type\":9}",
                           provider.infoType),
        "0 " + stockItem("42", provider.infoType, provider.subType,
                         provider.prefix + std::string("42")));
  }
}

TEST(CompleteForm, OfPixabayGivesTheSlugOfItsId) {
  const Held<Info> info = newInfo();
  EXPECT_EQ(readRecord(info, "{\"id\":42}", 101), 0);
  EXPECT_STREQ(inside(info).stringValue("rsResSlug"), "pixabay/42");
  EXPECT_STREQ(inside(info).stringValue("rsResStockMediaStrId"), "42");
  EXPECT_EQ(inside(info).intValue("rsResType"), 25);
  EXPECT_EQ(inside(info).intValue("rsResSubType"), 2);
  EXPECT_EQ(inside(info).intValue("rsResInfoType"), 101);
}

// A number stands for itself; a text is the sum of its signed bytes.
TEST(CompleteForm, TakesAStockIdAsANumberOrAsASumOfBytes) {
  const struct {
    const char* id;
    const char* number;
  } rows[] = {
      {"0", "0"},
      {"-0", "0"},
      {"-5", "-5"},
      {"9223372036854775807", "9223372036854775807"},
      {"-9223372036854775808", "-9223372036854775808"},
      {"\"\"", "0"},
      {"\"a\"", "97"},
      {"\"ab\"", "195"},
      {"\"ba\"", "195"},
      {"\"42\"", "102"},
      {"\"xT9IgG50Fb7Mi0prBC\"", "1421"},
      {"\"\x7F\"", "127"},
      {"\"\x80\"", "-128"},
      {"\"\xFF\"", "-1"},
      {"\"\xC3\xA9\"", "-148"},
      {"\"\\u00e9\"", "-148"},
      {"\"a\\u0000b\"", "97"},
      {"\"\\u0000b\"", "0"},
      {"\"\\n\"", "10"},
  };
  for (const auto& row : rows) {
    for (const Provider& provider : kNumbered) {
      EXPECT_EQ(afterReadingRecord("{\"id\":" + std::string(row.id) + "}", provider.infoType),
                "0 " + stockItem(row.number, provider.infoType, provider.subType,
                                 provider.prefix + std::string(row.number)))
          << row.id;
    }
    for (const int infoType : kGiphy) {
      EXPECT_EQ(
          afterReadingRecord("{\"id\":" + std::string(row.id) + ",\"slug\":\"cat\"}", infoType),
          "0 " + stockItem(row.number, infoType, 1, "giphy/cat"))
          << row.id;
    }
  }
}

// Each byte from 0x01 up alone, as far as a text may hold it.
TEST(CompleteForm, CountsEachByteOfAStockIdAsASignedOne) {
  for (int byte = 0x20; byte < 0x100; ++byte) {
    if (byte == '"' || byte == '\\') continue;
    const std::string id = std::string(3, static_cast<char>(byte));
    const int expected = 3 * (byte < 0x80 ? byte : byte - 0x100);
    const Held<Info> info = newInfo();
    EXPECT_EQ(readRecord(info, "{\"id\":\"" + id + "\"}", 101), 0) << byte;
    EXPECT_EQ(inside(info).intValue("rsResId"), expected) << byte;
    EXPECT_EQ(inside(info).stringValue("rsResStockMediaStrId"), std::to_string(expected)) << byte;
  }
}

TEST(CompleteForm, LetsTheSumOfBytesWrapAroundIn32Bits) {
  const struct {
    char byte;
    std::size_t count;
    const char* sum;
  } rows[] = {
      {'\x7F', 16909320, "2147483640"},
      {'\x7F', 16909321, "-2147483529"},
      {'\x80', 16777216, "-2147483648"},
      {'\x80', 16777217, "2147483520"},
  };
  for (const auto& row : rows) {
    const Held<Info> info = newInfo();
    EXPECT_EQ(readRecord(info, "{\"id\":\"" + std::string(row.count, row.byte) + "\"}", 101), 0);
    EXPECT_EQ(show(info), stockItem(row.sum, 101, 2, "pixabay/" + std::string(row.sum)));
  }
}

TEST(CompleteForm, OfAStockItemWithoutAnIdHasNoIdAndNoSlug) {
  const std::vector<std::string> ids = {"12.0",
                                        "1e2",
                                        "-0.0",
                                        "9223372036854775808",
                                        "99999999999999999999",
                                        "-9223372036854775809",
                                        "null",
                                        "true",
                                        "[]",
                                        "[42]",
                                        "{}",
                                        "{\"id\":42}"};
  for (const std::string& id : ids) {
    for (const Provider& provider : kNumbered) {
      const std::string rest = "rsResInfoType: " + std::to_string(provider.infoType);
      const std::string subType = "rsResSubType: " + std::to_string(provider.subType);
      EXPECT_EQ(afterReadingRecord("{\"id\":" + id + "}", provider.infoType),
                "1001 {" + rest + ", " + subType + ", rsResType: 25}")
          << id;
      EXPECT_EQ(afterReadingRecord("{\"Id\":42,\"real_id\":\"42\"}", provider.infoType),
                "1001 {" + rest + ", " + subType + ", rsResType: 25}");
      // What was there before stays, and makes the description valid.
      const Held<Info> info = single("old");
      inside(info).setIntValue("rsResId", 7);
      inside(info).setStringValue("rsResStockMediaStrId", "8");
      EXPECT_EQ(readRecord(info, "{\"id\":" + id + "}", provider.infoType), 0);
      EXPECT_EQ(show(info), "{rsResId: 7, " + rest +
                                ", rsResSlug: \"old\", rsResStockMediaStrId: \"8\", " + subType +
                                ", rsResType: 25}");
    }
  }
}

TEST(CompleteForm, OfGiphyTakesTheSlugOfTheText) {
  const Held<Info> info = newInfo();
  EXPECT_EQ(readRecord(info, "{\"id\":\"ab\",\"slug\":\"cat\"}", 106), 0);
  EXPECT_EQ(inside(info).intValue("rsResId"), 195);
  EXPECT_STREQ(inside(info).stringValue("rsResStockMediaStrId"), "195");
  EXPECT_STREQ(inside(info).stringValue("rsResSlug"), "giphy/cat");
}

TEST(CompleteForm, OfGiphyHasNoSlugOfItsId) {
  const struct {
    const char* record;
    const char* expected;
  } rows[] = {
      {"{\"id\":42}",
       "1001 {rsResId: 42, rsResInfoType: 107, rsResStockMediaStrId: \"42\", "
       "rsResSubType: 1, rsResType: 25}"},
      {"{\"id\":42,\"slug\":5}",
       "1001 {rsResId: 42, rsResInfoType: 107, rsResStockMediaStrId: \"42\", rsResSubType: 1, "
       "rsResType: 25}"},
      {"{\"id\":42,\"name\":\"a\"}",
       "1001 {rsResId: 42, rsResInfoType: 107, rsResStockMediaStrId: \"42\", rsResSubType: 1, "
       "rsResType: 25}"},
      {"{\"slug\":\"cat\"}",
       "1001 {rsResInfoType: 107, rsResSlug: \"giphy/cat\", rsResSubType: 1, rsResType: 25}"},
      {"{\"id\":1.5,\"slug\":\"cat\"}",
       "1001 {rsResInfoType: 107, rsResSlug: \"giphy/cat\", rsResSubType: 1, rsResType: 25}"},
      {"{\"id\":42,\"slug\":\"\"}",
       "0 {rsResId: 42, rsResInfoType: 107, rsResSlug: \"giphy/\", rsResStockMediaStrId: \"42\", "
       "rsResSubType: 1, rsResType: 25}"},
      {"{\"id\":42,\"slug\":\"c\\u0000t\"}",
       "0 {rsResId: 42, rsResInfoType: 107, rsResSlug: \"giphy/c\", rsResStockMediaStrId: \"42\", "
       "rsResSubType: 1, rsResType: 25}"},
      {"{\"slug\":\"first\",\"id\":1,\"slug\":\"second\",\"id\":2}",
       "0 {rsResId: 1, rsResInfoType: 107, rsResSlug: \"giphy/first\", rsResStockMediaStrId: "
       "\"1\", rsResSubType: 1, rsResType: 25}"},
  };
  for (const auto& row : rows) EXPECT_EQ(afterReadingRecord(row.record, 107), row.expected);
  const Held<Info> info = single("old");
  EXPECT_EQ(readRecord(info, "{\"id\":42}", 108), 0);
  EXPECT_EQ(show(info), stockItem("42", 108, 1, "old"));
}

TEST(CompleteForm, OfOtherProvidersDoesNotLookAtTheSlug) {
  for (const Provider& provider : kNumbered) {
    const Held<Info> info = newInfo();
    EXPECT_EQ(readRecord(info, "{\"id\":1,\"slug\":\"cat\"}", provider.infoType), 0);
    EXPECT_EQ(inside(info).stringValue("rsResSlug"), std::string(provider.prefix) + "1");
  }
}

TEST(CompleteForm, OfTheVcgLibraryMakesTheSlugOfMediumAndId) {
  EXPECT_EQ(afterReadingRecord("{\"res_id\":9,\"res_type\":2,\"status\":1}", 1007),
            "0 {rsResId: 9, rsResInfoType: 1007, rsResMeidaType: 2, rsResSlug: \"2_9\", "
            "rsResState: 1, rsResType: 39}");
  EXPECT_EQ(afterReadingRecord("{\"res_id\":-9,\"res_type\":-2}", 1007),
            "1001 {rsResId: -9, rsResInfoType: 1007, rsResMeidaType: -2, rsResSlug: \"-2_-9\", "
            "rsResType: 39}");
  EXPECT_EQ(afterReadingRecord("{\"res_id\":9223372036854775807,\"res_type\":0}", 1007),
            "0 {rsResId: 9223372036854775807, rsResInfoType: 1007, rsResMeidaType: 0, "
            "rsResSlug: \"0_9223372036854775807\", rsResType: 39}");
}

// Both halves are asked of the description and not of the text.
TEST(CompleteForm, OfTheVcgLibraryMakesTheSlugOfWhatIsHeldAlready) {
  const Held<Info> info = newInfo();
  EXPECT_EQ(readRecord(info, "{\"res_id\":9}", 1007), 1001);
  EXPECT_STREQ(inside(info).stringValue("rsResSlug"), "");
  EXPECT_EQ(readRecord(info, "{\"res_type\":2}", 1007), 0);
  EXPECT_STREQ(inside(info).stringValue("rsResSlug"), "2_9");
  EXPECT_EQ(readRecord(info, "{}", 1007), 0);
  EXPECT_STREQ(inside(info).stringValue("rsResSlug"), "2_9");
  inside(info).setStringValue("rsResSlug", "other");
  EXPECT_EQ(readRecord(info, "{\"status\":1}", 1007), 0);
  EXPECT_STREQ(inside(info).stringValue("rsResSlug"), "2_9");
}

TEST(CompleteForm, OfAnyOtherInfoTypeReadsNothing) {
  const std::string record =
      "{\"id\":42,\"name\":\"a\",\"slug\":\"b\",\"res_type\":3,\"type\":3,\"infoType\":7,"
      "\"res_id\":9,\"status\":1}";
  for (const int infoType : {INT_MIN, -7, -1, 0, 1, 5, 8, 25, 39, 100, 105, 110, 111, 114, 1006,
                             1008, 10007, 65536 + 7, INT_MAX}) {
    EXPECT_EQ(afterReadingRecord(record, infoType), "1001 {}") << infoType;
    // A description that was valid before is so still.
    const Held<Info> valid = single("old");
    EXPECT_EQ(readRecord(valid, record, infoType), 0) << infoType;
    EXPECT_EQ(show(valid), show(single("old"))) << infoType;
  }
}

TEST(CompleteForm, OfASingleResourceReadsAllItsNames) {
  EXPECT_EQ(afterReadingRecord("{\"id\":12,\"slug\":\"a\",\"type\":3,\"source\":1,"
                               "\"element_sub_type\":4,\"sale_mode\":2,\"unknown\":[1]}",
                               7),
            "0 {rsResId: 12, rsResInfoType: 7, rsResOpenFxSubType: 4, rsResSaleMode: 2, "
            "rsResSlug: \"a\", rsResSourceType: 1, rsResSubType: 4, rsResType: 3}");
}

TEST(CompleteForm, LetsTheTextReplaceTheInfoTypeOfSevenAndSixAlone) {
  const struct {
    int infoType;
    const char* record;
    const char* expected;
  } rows[] = {
      {7, "{\"slug\":\"a\",\"type\":3}", "0 {rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3}"},
      {7, "{\"slug\":\"a\",\"type\":3,\"infoType\":0}",
       "1001 {rsResInfoType: 0, rsResSlug: \"a\", rsResType: 3}"},
      {7, "{\"infoType\":6,\"slug\":\"a\",\"type\":3}",
       "1001 {rsResInfoType: 6, rsResSlug: \"a\", rsResType: 3}"},
      {7, "{\"slug\":\"a\",\"type\":3,\"infoType\":\"6\"}",
       "0 {rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3}"},
      {7, "{\"slug\":\"a\",\"type\":25,\"infoType\":101,\"real_id\":\"5\"}",
       "0 {rsResInfoType: 101, rsResSlug: \"a\", rsResStockMediaStrId: \"5\", rsResType: 25}"},
      {6, "{\"slug\":\"a\",\"type\":3}", "1001 {rsResInfoType: 6, rsResSlug: \"a\", rsResType: 3}"},
      {6, "{\"slug\":\"a\",\"type\":3,\"infoType\":7}",
       "0 {rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3}"},
      {101, "{\"id\":1,\"infoType\":7}",
       "0 {rsResId: 1, rsResInfoType: 101, rsResSlug: \"pixabay/1\", rsResStockMediaStrId: \"1\", "
       "rsResSubType: 2, rsResType: 25}"},
      {1007, "{\"res_id\":1,\"res_type\":2,\"infoType\":7}",
       "0 {rsResId: 1, rsResInfoType: 1007, rsResMeidaType: 2, rsResSlug: \"2_1\", rsResType: 39}"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(afterReadingRecord(row.record, row.infoType), row.expected) << row.record;
  }
}

// On purpose the pack id of a full record is a text, and never makes a pack valid.
TEST(CompleteForm, OfAPackIsNotValidByItsOwnPackId) {
  EXPECT_EQ(
      afterReadingRecord("{\"slug\":\"a\",\"type\":3,\"pack_id\":\"12\",\"pack_name\":\"p\"}", 6),
      "1001 {rsResInfoType: 6, rsResPackId: \"12\", rsResPackSlug: \"p\", "
      "rsResSlug: \"a\", rsResType: 3}");
  EXPECT_EQ(afterReadingRecord("{\"slug\":\"a\",\"type\":3,\"pack_id\":12,\"pack_name\":\"p\"}", 6),
            "1001 {rsResInfoType: 6, rsResPackSlug: \"p\", rsResSlug: \"a\", rsResType: 3}");
  const Held<Info> info = newInfo();
  inside(info).setIntValue("rsResPackId", 5);
  EXPECT_EQ(readRecord(info, "{\"slug\":\"a\",\"type\":3,\"pack_id\":\"12\"}", 6), 0);
  EXPECT_EQ(show(info),
            "{rsResInfoType: 6, rsResPackId: 5 and \"12\", rsResSlug: \"a\", rsResType: 3}");
}

TEST(CompleteForm, OfASingleResourceKeepsItsPackAsTextsThatAreNotWritten) {
  const Held<Info> info = newInfo();
  EXPECT_EQ(
      readRecord(info, "{\"slug\":\"a\",\"type\":3,\"pack_id\":\"12\",\"pack_name\":\"p\"}", 7), 0);
  ZOL::_Property packId{};
  EXPECT_EQ(info->getProperty("rsResPackId", &packId), 0);
  EXPECT_EQ(show(packId), "text \"12\"");
  EXPECT_EQ(inside(info).intValue("rsResPackId"), 0);
  EXPECT_STREQ(inside(info).stringValue("rsResPackSlug"), "p");
  EXPECT_EQ(written(info), "{\"infoType\":7,\"res_type\":3,\"name\":\"a\",\"user_string\":{}}");
}

TEST(CompleteForm, DoesNotLookAtTheGroups) {
  EXPECT_EQ(afterReadingRecord("{\"slug\":\"a\",\"type\":3,"
                               "\"pack_info\":[{\"pack_id\":5,\"pack_name\":\"p\"}],"
                               "\"extension_info\":[{\"openFx_sub_element_type\":1}],"
                               "\"related_res_list\":[{\"rsResSlug\":\"b\",\"rsResType\":3}],"
                               "\"user_string\":{\"customRsMd5\":\"m\"}}",
                               7),
            "0 {rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3}");
  const Held<Info> info = single("a");
  inside(info).addRelatedRes(single("b").get());
  const std::string before = show(info);
  EXPECT_EQ(readRecord(info, "{\"slug\":\"a\",\"related_res_list\":[]}", 7), 0);
  EXPECT_EQ(show(info), before);
}

TEST(CompleteForm, IsNotRemembered) {
  const Held<Info> info = newInfo();
  EXPECT_EQ(readRecord(info, "{\"x\":1,\"slug\":\"a\",\"type\":3}", 7), 0);
  EXPECT_EQ(written(info), "{\"infoType\":7,\"res_type\":3,\"name\":\"a\",\"user_string\":{}}");
  ASSERT_EQ(readText(info, "{\"y\":2,\"name\":\"b\"}"), 0);
  EXPECT_EQ(readRecord(info, "{\"x\":1,\"slug\":\"c\"}", 7), 0);
  EXPECT_EQ(written(info),
            "{\"y\":2,\"name\":\"c\",\"infoType\":7,\"res_type\":3,\"user_string\":{}}");
}

TEST(CompleteForm, AddsToWhatIsThere) {
  const Held<Info> info = single("old");
  inside(info).setIntValue("rsResState", 4);
  inside(info).setIntValue("rsResRate", 2);
  info->setUserString("rsiusCustomRsMd5", "m");
  EXPECT_EQ(readRecord(info, "{\"res_id\":9,\"res_type\":2,\"status\":1}", 1007), 0);
  EXPECT_EQ(show(info),
            "{rsResId: 9, rsResInfoType: 1007, rsResMeidaType: 2, rsResRate: 2, "
            "rsResSlug: \"2_9\", rsResState: 1, rsResType: 39, rsiusCustomRsMd5: \"m\"}");
}

TEST(CompleteForm, IsRefusedUnlessItIsAnObject) {
  for (const char* const text : {"", " ", "null", "true", "12", "\"a\"", "[]", "[{\"id\":42}]", "{",
                                 "{\"id\":42", "{\"id\":}", "{\"id\":NaN}", "id", "{'id':42}"}) {
    for (const int infoType : {6, 7, 101, 106, 1007, 105}) {
      EXPECT_EQ(afterReadingRecord(text, infoType), "1001 {}") << text;
      const Held<Info> valid = single("old");
      EXPECT_EQ(readRecord(valid, text, infoType), 1001) << text;
      EXPECT_EQ(show(valid), show(single("old"))) << text;
    }
  }
  const Held<Info> info = single("old");
  EXPECT_EQ(info->setFromCompletResInfo(nullptr, 7), 1001);
  EXPECT_EQ(info->setFromCompletResInfo(nullptr, 105), 1001);
}

TEST(CompleteForm, IsReadAsTolerantlyAsTheNormalForm) {
  EXPECT_EQ(afterReadingRecord("\xEF\xBB\xBF /* a */ {\"id\" : 42, // b\n } and so on", 101),
            "0 " + stockItem("42", 101, 2, "pixabay/42"));
}

TEST(CompleteForm, IsTakenFromAnyStringObjectWithItsLength) {
  ForeignString text(std::string("{\"id\":42}\0garbage", 17));
  const Held<Info> info = newInfo();
  EXPECT_EQ(info->setFromCompletResInfo(&text, 101), 0);
  EXPECT_EQ(text.calls, "");
  ForeignString broken(std::string("{\"id\":\0 42}", 11));
  EXPECT_EQ(info->setFromCompletResInfo(&broken, 101), 1001);
}

}  // namespace
