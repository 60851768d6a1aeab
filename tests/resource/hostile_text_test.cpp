// Texts that are meant to do harm: nested without end, never finished, full of numbers
// at the edge of what a number can be, or simply large.

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "resource/description.h"
#include "support/json_tree.h"
#include "support/small_stack.h"

namespace {

// A million levels of arrays, and of objects.
const std::vector<std::string>& nests() {
  static const std::vector<std::string> nests = {
      times(kManyLevels, "[") + times(kManyLevels, "]"),
      times(kManyLevels, "{\"\":") + "0" + times(kManyLevels, "}")};
  return nests;
}

// The same without their ends.
const std::vector<std::string>& unfinishedNests() {
  static const std::vector<std::string> nests = {times(kManyLevels, "["),
                                                 times(kManyLevels, "{\"\":")};
  return nests;
}

// The template with the value in the place of its `@`.
std::string filled(const std::string& text, const std::string& value) {
  const std::size_t place = text.find('@');
  return text.substr(0, place) + value + text.substr(place + 1);
}

// Where a nest may stand in the normal form, and how it is written then.
struct Place {
  const char* read;
  int result;
  const char* written;
};

void expectToReadAndWrite(const std::vector<Place>& places) {
  for (const std::string& nest : nests()) {
    for (const Place& place : places) {
      onSmallStack([&] {
        const Held<Info> info = newInfo();
        EXPECT_EQ(readText(info, filled(place.read, nest)), place.result) << place.read;
        // Not compared as texts, for they are too long to be printed.
        EXPECT_TRUE(written(info) == filled(place.written, nest)) << place.read;
      });
    }
  }
}

TEST(HostileNest, PassesThroughAsAMember) {
  expectToReadAndWrite({
      {"{\"id\":5,\"x\":@}", 1001, "{\"id\":5,\"x\":@,\"user_string\":{}}"},
      {"{\"x\":@,\"name\":\"a\",\"res_type\":3,\"infoType\":7}", 0,
       "{\"x\":@,\"name\":\"a\",\"res_type\":3,\"infoType\":7,\"user_string\":{}}"},
      {"{\"name\":@,\"id\":5}", 1001, "{\"name\":@,\"id\":5,\"user_string\":{}}"},
      {"{\"name\":\"a\",\"res_type\":@}", 1001,
       "{\"name\":\"a\",\"res_type\":@,\"user_string\":{}}"},
  });
}

TEST(HostileNest, PassesThroughInAGroupThatIsNotWritten) {
  expectToReadAndWrite({
      {"{\"id\":5,\"pack_info\":@}", 1001, "{\"id\":5,\"pack_info\":@,\"user_string\":{}}"},
      {"{\"id\":5,\"pack_info\":[@]}", 1001, "{\"id\":5,\"pack_info\":[@],\"user_string\":{}}"},
      {"{\"id\":5,\"pack_info\":[{\"pack_id\":@}]}", 1001,
       "{\"id\":5,\"pack_info\":[{\"pack_id\":@}],\"user_string\":{}}"},
      {"{\"id\":5,\"extension_info\":[{\"openFx_sub_element_type\":@}]}", 1001,
       "{\"id\":5,\"extension_info\":[{\"openFx_sub_element_type\":@}],\"user_string\":{}}"},
      {"{\"id\":5,\"related_res_list\":[@]}", 1001,
       "{\"id\":5,\"related_res_list\":[@],\"user_string\":{}}"},
      {"{\"id\":5,\"related_res_list\":[{\"rsResSlug\":@,\"rsResType\":3}]}", 1001,
       "{\"id\":5,\"related_res_list\":[{\"rsResSlug\":@,\"rsResType\":3}],\"user_string\":{}}"},
  });
}

constexpr const char* kNoUserStrings =
    "{\"animated_stt_state_type\":\"\",\"customRsMd5\":\"\",\"openfx_plugin_name\":\"\","
    "\"vst3_plugin_name\":\"\"}";

TEST(HostileNest, GoesWithAGroupThatIsWrittenAnew) {
  const std::string entry =
      "{\"id\":5,\"related_res_list\":[{\"rsResSlug\":\"b\",\"rsResType\":3,"
      "\"user_string\":" +
      std::string(kNoUserStrings) + "}],\"user_string\":{}}";
  const struct {
    std::string read;
    std::string written;
  } rows[] = {
      {"{\"id\":5,\"user_string\":@}", "{\"id\":5,\"user_string\":{}}"},
      {"{\"id\":5,\"user_string\":{\"customRsMd5\":@}}", "{\"id\":5,\"user_string\":{}}"},
      {"{\"id\":5,\"user_string\":{\"x\":@,\"customRsMd5\":\"m\"}}",
       "{\"id\":5,\"user_string\":{\"customRsMd5\":\"m\"}}"},
      {"{\"id\":5,\"pack_info\":[{\"x\":@,\"pack_id\":5,\"pack_name\":\"p\"},@]}",
       "{\"id\":5,\"pack_info\":[{\"pack_id\":5,\"pack_name\":\"p\"}],\"user_string\":{}}"},
      {"{\"id\":5,\"extension_info\":[{\"x\":@,\"openFx_sub_element_type\":1}]}",
       "{\"id\":5,\"extension_info\":[{\"openFx_sub_element_type\":1}],\"user_string\":{}}"},
      {"{\"id\":5,\"related_res_list\":[@,{\"rsResSlug\":\"b\",\"rsResType\":3}]}", entry},
      {"{\"id\":5,\"related_res_list\":[{\"x\":@,\"rsResSlug\":\"b\",\"rsResType\":3}]}", entry},
      {"{\"id\":5,\"related_res_list\":[{\"rsResSlug\":\"b\",\"rsResType\":3,\"user_string\":@}]}",
       entry},
      {"{\"id\":5,\"related_res_list\":[{\"rsResSlug\":\"b\",\"rsResType\":3,"
       "\"user_string\":{\"customRsMd5\":@}}]}",
       entry},
  };
  for (const std::string& nest : nests()) {
    for (const auto& row : rows) {
      std::string read = filled(row.read, nest);
      if (read.find('@') != std::string::npos) read = filled(read, nest);
      onSmallStack([&] {
        const Held<Info> info = newInfo();
        EXPECT_EQ(readText(info, read), 1001) << row.read;
        EXPECT_EQ(written(info), row.written) << row.read;
      });
    }
  }
}

TEST(HostileNest, IsCopiedRelatedAndMadeByTheFactories) {
  for (const std::string& nest : nests()) {
    onSmallStack([&] {
      const std::string text = "{\"x\":" + nest + ",\"name\":\"a\",\"res_type\":3,\"infoType\":7}";
      const Held<Info> info(createZolResSerializeInfoFromBuffer(text.c_str()));
      ASSERT_NE(info.get(), nullptr);
      const Held<Info> parent = newInfo();
      EXPECT_EQ(parent->copyFrom(info.get()), 0);
      EXPECT_EQ(inside(parent).addRelatedRes(info.get()), 0);
      const Held<InfoList> related = newInfoList();
      EXPECT_EQ(inside(parent).relatedResList(related.get()), 0);
      EXPECT_TRUE(written(related->at(0)) ==
                  text.substr(0, text.size() - 1) + ",\"user_string\":{}}");
      const Held<ZOL::ZOLPCharList> texts(createZOLPCharList());
      texts->add(text.c_str());
      texts->add(nest.c_str());
      EXPECT_EQ(resInfoStr2SerializeList(texts.get(), related.get()), 0);
      EXPECT_EQ(related->size(), 2);
    });
  }
}

TEST(HostileNest, IsPassedOverInAFullRecord) {
  for (const std::string& nest : nests()) {
    onSmallStack([&] {
      const std::string record =
          "{\"x\":" + nest +
          ",\"id\":42,\"res_id\":9,\"res_type\":2,\"slug\":" + "\"a\",\"pack_id\":" + nest + "}";
      for (const int infoType : {7, 106, 1007}) {
        EXPECT_EQ(readRecord(newInfo(), record, infoType), 0) << infoType;
      }
      for (const int infoType : {7, 101, 1007}) {
        const std::string onlyId = "{\"id\":" + nest + ",\"res_id\":" + nest + ",\"slug\":\"a\"}";
        EXPECT_EQ(readRecord(newInfo(), onlyId, infoType), 1001) << infoType;
      }
      // As the outermost value: refused unless it is an object, which then says nothing.
      EXPECT_EQ(readRecord(newInfo(), nest, 7), 1001);
      EXPECT_EQ(readText(newInfo(), nest), 1001);
    });
  }
}

TEST(HostileNest, BehindTheTextIsNotLookedAt) {
  for (const auto& group : {nests(), unfinishedNests()}) {
    for (const std::string& nest : group) {
      onSmallStack([&] {
        EXPECT_EQ(afterReading("{\"name\":\"a\",\"res_type\":3}" + nest),
                  "0 {rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3}");
      });
    }
  }
}

TEST(HostileNest, ThatNeverEndsIsRefused) {
  const std::vector<std::string> places = {
      "@",
      "{\"id\":5,\"x\":@",
      "{\"id\":5,\"pack_info\":@",
      "{\"id\":5,\"related_res_list\":[{\"rsResSlug\":\"b\",\"rsResType\":3,\"user_string\":@",
      "{\"user_string\":@",
  };
  for (const std::string& nest : unfinishedNests()) {
    for (const std::string& place : places) {
      onSmallStack([&] {
        const Held<Info> info = single("old");
        EXPECT_EQ(readText(info, filled(place, nest)), 1001) << place;
        EXPECT_EQ(readText(info, filled(place, nest) + "}"), 1001) << place;
        EXPECT_EQ(readRecord(info, filled(place, nest), 101), 1001) << place;
        EXPECT_EQ(show(info), show(single("old"))) << place;
      });
    }
  }
}

TEST(HostileNest, ThatIsClosedOnceTooOftenOrWronglyIsRefused) {
  onSmallStack([] {
    EXPECT_EQ(afterReading("{\"id\":5,\"x\":" + times(kManyLevels, "[") +
                           times(kManyLevels - 1, "]") + "}"),
              "1001 {}");
    EXPECT_EQ(afterReading("{\"id\":5,\"x\":" + times(kManyLevels, "[") +
                           times(kManyLevels + 1, "]") + "}"),
              "1001 {}");
    EXPECT_EQ(
        afterReading("{\"id\":5,\"x\":" + times(kManyLevels, "[") + times(kManyLevels, "}") + "}"),
        "1001 {}");
  });
}

TEST(HostileSize, OfCommentsStringsAndMembersIsRead) {
  onSmallStack([] {
    const std::string plain = "0 {rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3}";
    const std::string members = "\"name\":\"a\",\"res_type\":3}";
    EXPECT_EQ(afterReading(times(kManyLevels, "/**/") + "{" + members), plain);
    EXPECT_EQ(afterReading("{" + times(kManyLevels, "//\n") + members), plain);
    EXPECT_EQ(afterReading("/*" + times(kManyLevels, "/ * ") + "*/{" + members), plain);
    EXPECT_EQ(afterReading("{\"x\":\"" + times(kManyLevels, "\\u0041\\\\") + "\"," + members),
              plain);
    EXPECT_EQ(afterReading("{" + times(kManyLevels, "\"x\":1,") + members), plain);
    EXPECT_EQ(afterReading("{\"x\":[" + times(kManyLevels, "1,") + "]," + members), plain);
    EXPECT_EQ(afterReading("/*" + times(kManyLevels, "/ * ") + "{" + members), "1001 {}");
    EXPECT_EQ(afterReading("{\"x\":\"" + times(kManyLevels, "\\\"") + members), "1001 {}");
  });
}

TEST(HostileSize, OfMembersIsWrittenAgain) {
  onSmallStack([] {
    const std::string many = times(300000, "\"x\":1,");
    EXPECT_TRUE(rewritten("{" + many + "\"id\":5}") == "{" + many + "\"id\":5,\"user_string\":{}}");
    const std::string ids = times(300000, ",\"id\":6");
    EXPECT_TRUE(rewritten("{\"id\":5" + ids + "}") == "{\"id\":5" + ids + ",\"user_string\":{}}");
    const std::string groups = times(300000, ",\"user_string\":{}");
    EXPECT_TRUE(rewritten("{\"id\":5" + groups + "}") == "{\"id\":5" + groups + "}");
  });
}

TEST(HostileSize, OfARelatedListIsReadAndWritten) {
  const std::string entry =
      "{\"rsResSlug\":\"b\",\"rsResType\":3,\"user_string\":" + std::string(kNoUserStrings) + "}";
  std::string list = entry;
  for (int i = 1; i < 10000; ++i) list += "," + entry;
  const std::string text = "{\"id\":5,\"related_res_list\":[" + list + "],\"user_string\":{}}";
  onSmallStack([&] { EXPECT_TRUE(rewritten(text) == text); });
}

// Numbers.

const std::vector<std::string>& edgeNumbers() {
  static const std::vector<std::string> numbers = {"-0",
                                                   "0",
                                                   "1",
                                                   "-1",
                                                   "-0.0",
                                                   "0e0",
                                                   "1.0",
                                                   "1e0",
                                                   "4294967296",
                                                   "9223372036854775807",
                                                   "9223372036854775808",
                                                   "-9223372036854775808",
                                                   "-9223372036854775809",
                                                   "18446744073709551615",
                                                   "18446744073709551616",
                                                   "12345678901234567890",
                                                   "99999999999999999999",
                                                   "-99999999999999999999",
                                                   "1.0000000000e-2147483639",
                                                   "1.0000000000e-99999999999999999999",
                                                   "1.7976931348623157e308",
                                                   "1.7976931348623159e308",
                                                   "-1.7976931348623159e308",
                                                   "4.9e-324",
                                                   "1e-400",
                                                   "0.1e308",
                                                   times(308, "9"),
                                                   "-" + times(308, "9") + ".5",
                                                   "0." + times(2000, "9")};
  return numbers;
}

// No double is that large: such a number is an error of the text, wherever it stands.
const std::vector<std::string>& tooLargeNumbers() {
  static const std::vector<std::string> numbers = {"1e309",
                                                   "-1e309",
                                                   "1e400",
                                                   "-1e400",
                                                   "1E+999999999999",
                                                   "0e400",
                                                   "10.5e400",
                                                   times(310, "9"),
                                                   "-" + times(400, "9"),
                                                   times(2000, "1") + ".5"};
  return numbers;
}

struct NumberPlace {
  const char* text;
  const char* property;  // what an integer is read as, if anything
};

constexpr NumberPlace kNumberPlaces[] = {
    {"{\"id\":5,\"x\":@}", nullptr},
    {"{\"id\":5,\"x\":[[@],{\"y\":@}]}", nullptr},
    {"{\"id\":5,\"name\":@}", nullptr},
    {"{\"id\":5,\"res_type\":@}", "rsResType"},
    {"{\"id\":5,\"infoType\":@}", "rsResInfoType"},
    {"{\"id\":5,\"is_custom\":@}", "rsResIsCustom"},
    {"{\"id\":5,\"real_id\":@}", nullptr},
    {"{\"id\":5,\"pack_info\":@}", nullptr},
    {"{\"id\":5,\"pack_info\":[@]}", nullptr},
    {"{\"id\":5,\"pack_info\":[{\"pack_id\":@}]}", "rsResPackId"},
    {"{\"id\":5,\"pack_info\":[{\"pack_name\":@}]}", nullptr},
    {"{\"id\":5,\"extension_info\":[@]}", nullptr},
    {"{\"id\":5,\"related_res_list\":@}", nullptr},
    {"{\"id\":5,\"related_res_list\":[@]}", nullptr},
    {"{\"id\":5,\"related_res_list\":[{\"rsResSlug\":@,\"rsResType\":@}]}", nullptr},
    {"{\"id\":5,\"user_string\":@,\"x\":1}", nullptr},
    {"{\"id\":5,\"user_string\":{\"customRsMd5\":@},\"x\":1}", nullptr},
};

std::string filledWith(std::string text, const std::string& value) {
  while (text.find('@') != std::string::npos) text = filled(text, value);
  return text;
}

TEST(HostileNumber, IsAnIntegerOrPassesInEachPlace) {
  for (const std::string& number : edgeNumbers()) {
    const Json json = Json::number(number);
    const auto integer = integerOf(&json);
    for (const NumberPlace& place : kNumberPlaces) {
      const Held<Info> info = newInfo();
      EXPECT_EQ(readText(info, filledWith(place.text, number)), 1001) << place.text << number;
      std::string expected = "rsResId: 5";
      if (integer && place.property) {
        expected += ", " + std::string(place.property) + ": " + std::to_string(*integer);
      }
      EXPECT_EQ(show(info), "{" + expected + "}") << place.text << number;
      // Read again it is the same.
      const Held<Info> again = newInfo();
      EXPECT_EQ(readText(again, written(info)), 1001);
      EXPECT_EQ(show(again), show(info)) << place.text << number;
    }
    EXPECT_EQ(rewritten("{\"id\":5,\"x\":[" + number + ",{\"y\":" + number + "}]}"),
              "{\"id\":5,\"x\":[" + number + ",{\"y\":" + number + "}],\"user_string\":{}}");
    EXPECT_EQ(rewritten("{\"id\":5,\"related_res_list\":[" + number + "]}"),
              "{\"id\":5,\"related_res_list\":[" + number + "],\"user_string\":{}}");
  }
}

TEST(HostileNumber, IsAnIdOnlyIfItFits) {
  for (const std::string& number : edgeNumbers()) {
    const Json json = Json::number(number);
    const auto integer = integerOf(&json);
    const std::string text = "{\"id\":" + number + "}";
    const bool accepted = integer && *integer != 0;
    const std::string digits = integer ? std::to_string(*integer) : "";
    EXPECT_EQ(afterReading(text), accepted ? "1001 {rsResId: " + digits + "}" : "1001 {}");
    EXPECT_EQ(afterReadingRecord(text, 101),
              integer ? "0 {rsResId: " + digits + ", rsResInfoType: 101, rsResSlug: \"pixabay/" +
                            digits + "\", rsResStockMediaStrId: \"" + digits +
                            "\", rsResSubType: 2, rsResType: 25}"
                      : "1001 {rsResInfoType: 101, rsResSubType: 2, rsResType: 25}");
    EXPECT_EQ(afterReadingRecord("{\"res_id\":1,\"res_type\":" + number + "}", 1007),
              integer ? "0 {rsResId: 1, rsResInfoType: 1007, rsResMeidaType: " + digits +
                            ", rsResSlug: \"" + digits + "_1\", rsResType: 39}"
                      : "1001 {rsResId: 1, rsResInfoType: 1007, rsResType: 39}");
  }
}

TEST(HostileNumber, ThatIsTooLargeForADoubleIsAnError) {
  for (const std::string& number : tooLargeNumbers()) {
    for (const NumberPlace& place : kNumberPlaces) {
      EXPECT_EQ(afterReading(filledWith(place.text, number)), "1001 {}") << place.text << number;
    }
    EXPECT_EQ(afterReadingRecord("{\"id\":" + number + "}", 101), "1001 {}");
    // Behind the text nobody looks.
    EXPECT_EQ(afterReading("{\"id\":5}" + number), "1001 {rsResId: 5}");
  }
}

TEST(HostileNumber, AsTheOutermostValueIsRefused) {
  for (const auto& group : {edgeNumbers(), tooLargeNumbers()}) {
    for (const std::string& number : group) {
      EXPECT_EQ(afterReading(number), "1001 {}");
      EXPECT_EQ(afterReadingRecord(number, 101), "1001 {}");
    }
  }
}

}  // namespace
