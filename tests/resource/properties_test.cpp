// Which properties and user strings there are, what each is called in which text, and
// what it reads as when it is unset.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <climits>
#include <string>
#include <utility>
#include <vector>

#include "resource/description.h"

namespace {

bool isKnown(const std::string& key) {
  for (const PropertyRow& row : kPropertyRows) {
    if (key == row.key) return true;
  }
  for (const UserStringRow& row : kUserStringRows) {
    if (key == row.key) return true;
  }
  return false;
}

// Keys that are nearly this one, and some that are not near at all.
std::vector<std::string> wrongKeys(const std::string& key) {
  std::string lower = key;
  std::string upper = key;
  for (char& letter : lower) letter = static_cast<char>(std::tolower(letter));
  for (char& letter : upper) letter = static_cast<char>(std::toupper(letter));
  std::string firstUpper = key;
  firstUpper[0] = 'R';
  std::vector<std::string> keys = {"",
                                   " " + key,
                                   key + " ",
                                   key + "x",
                                   "x" + key,
                                   key + key,
                                   lower,
                                   upper,
                                   firstUpper,
                                   "id",
                                   "name",
                                   "user_string",
                                   "task_id",
                                   "\xC3\xA9",
                                   key + std::string(100000, 'x'),
                                   std::string(100000, 'x')};
  for (std::size_t length = 1; length < key.size(); ++length) {
    keys.push_back(key.substr(0, length));
    keys.push_back(key.substr(length));
  }
  for (std::size_t place = 0; place < key.size(); ++place) {
    std::string other = key;
    other[place] = '_';
    keys.push_back(other);
  }
  keys.erase(std::remove_if(keys.begin(), keys.end(), isKnown), keys.end());
  return keys;
}

// What is held under a key: `integer 7`, `text "a"`, both, or nothing.
std::string heldUnder(const Held<Info>& info, const char* key) {
  ZOL::_Property property{};
  if (info->getProperty(key, &property) != ZOL::kSuccess) return "nothing";
  const std::string text = inside(info).stringValue(key);
  if (property.type == ZOL::kPropertyText) return "text " + inQuotes(text);
  const std::string integer = "integer " + std::to_string(inside(info).intValue(key));
  return text.empty() ? integer : integer + " and text " + inQuotes(text);
}

TEST(Properties, ReadAsTheirDefaultUntilSet) {
  const Held<Info> info = newInfo();
  for (const PropertyRow& row : kPropertyRows) {
    EXPECT_EQ(inside(info).intValue(row.key), row.unset) << row.key;
    EXPECT_STREQ(inside(info).stringValue(row.key), "") << row.key;
    EXPECT_EQ(heldUnder(info, row.key), "nothing") << row.key;
  }
}

TEST(Properties, DoNotHoldADefaultThatWasAskedFor) {
  const Held<Info> info = newInfo();
  for (const PropertyRow& row : kPropertyRows) inside(info).intValue(row.key);
  EXPECT_TRUE(info->isEmpty());
  EXPECT_EQ(show(info), "{}");
  inside(info).setStringValue("rsResSlug", "a");
  EXPECT_EQ(written(info), "{\"name\":\"a\",\"user_string\":{}}");
  // And a key without a default answers 0 again and again.
  EXPECT_EQ(inside(info).intValue("rsResOriginId"), 0);
  EXPECT_EQ(inside(info).intValue("rsResOriginId"), 0);
}

TEST(Properties, MayBeSetAsANumberOrAsATextWhateverTheirKind) {
  for (const PropertyRow& row : kPropertyRows) {
    const Held<Info> info = newInfo();
    EXPECT_EQ(inside(info).setStringValue(row.key, "old"), 0) << row.key;
    EXPECT_EQ(heldUnder(info, row.key), "text \"old\"") << row.key;
    EXPECT_EQ(inside(info).intValue(row.key), row.unset) << row.key;
    EXPECT_EQ(inside(info).setIntValue(row.key, LLONG_MIN), 0) << row.key;
    EXPECT_EQ(heldUnder(info, row.key), "integer -9223372036854775808 and text \"old\"") << row.key;
    EXPECT_EQ(inside(info).setIntValue(row.key, LLONG_MAX), 0) << row.key;
    EXPECT_EQ(inside(info).setStringValue(row.key, ""), 0) << row.key;
    EXPECT_EQ(heldUnder(info, row.key), "integer 9223372036854775807") << row.key;
    for (const PropertyRow& other : kPropertyRows) {
      if (other.key == row.key) continue;
      EXPECT_EQ(heldUnder(info, other.key), "nothing") << row.key << ", " << other.key;
    }
  }
}

TEST(Properties, AreKnownByTheirWholeKeyAlone) {
  const ZOL::_Property value = integerProperty(7);
  for (const PropertyRow& row : kPropertyRows) {
    const Held<Info> info = newInfo();
    ASSERT_EQ(inside(info).setIntValue(row.key, 1), 0);
    ASSERT_EQ(inside(info).setStringValue(row.key, "a"), 0);
    const std::string before = show(info);
    for (const std::string& key : wrongKeys(row.key)) {
      const std::string shown = key.substr(0, 60);
      ZOL::_Property out{};
      EXPECT_EQ(inside(info).setIntValue(key.c_str(), 7), 1001) << shown;
      EXPECT_EQ(inside(info).setStringValue(key.c_str(), "b"), 1001) << shown;
      EXPECT_EQ(info->setProperty(key.c_str(), &value), 1001) << shown;
      EXPECT_EQ(info->getProperty(key.c_str(), &out), 1001) << shown;
      EXPECT_EQ(out.present, 0) << shown;
      EXPECT_EQ(inside(info).intValue(key.c_str()), 0) << shown;
      EXPECT_STREQ(inside(info).stringValue(key.c_str()), "") << shown;
    }
    EXPECT_EQ(show(info), before);
  }
}

TEST(Properties, AreNotReachedByTheKeyOfAUserString) {
  const Held<Info> info = newInfo();
  for (const UserStringRow& row : kUserStringRows) {
    EXPECT_EQ(inside(info).setIntValue(row.key, 7), 1001) << row.key;
    EXPECT_EQ(inside(info).setStringValue(row.key, "a"), 1001) << row.key;
    EXPECT_EQ(inside(info).intValue(row.key), 0) << row.key;
  }
  EXPECT_TRUE(info->isEmpty());
}

TEST(Properties, RefuseANullKeyARecordThatIsNullAndANullText) {
  const Held<Info> info = newInfo();
  const ZOL::_Property value = integerProperty(7);
  ZOL::_Property out{};
  EXPECT_EQ(inside(info).setIntValue(nullptr, 7), 1001);
  EXPECT_EQ(inside(info).setStringValue(nullptr, "a"), 1001);
  EXPECT_EQ(inside(info).setStringValue("rsResSlug", nullptr), 1001);
  EXPECT_EQ(info->setProperty(nullptr, &value), 1001);
  EXPECT_EQ(info->setProperty("rsResType", nullptr), 1001);
  EXPECT_EQ(info->getProperty(nullptr, &out), 1001);
  EXPECT_EQ(inside(info).intValue(nullptr), 0);
  EXPECT_STREQ(inside(info).stringValue(nullptr), "");
  EXPECT_TRUE(info->isEmpty());
}

TEST(UserStrings, AreKnownByTheirWholeKeyAlone) {
  for (const UserStringRow& row : kUserStringRows) {
    const Held<Info> info = newInfo();
    EXPECT_EQ(info->setUserString(row.key, "a"), 0) << row.key;
    for (const std::string& key : wrongKeys(row.key)) {
      const std::string shown = key.substr(0, 60);
      EXPECT_EQ(info->setUserString(key.c_str(), "b"), 1001) << shown;
      EXPECT_STREQ(info->userString(key.c_str()), "") << shown;
      EXPECT_EQ(inside(info).setUserString(key.c_str(), "b"), 1001) << shown;
      EXPECT_STREQ(inside(info).userString(key.c_str()), "") << shown;
    }
    EXPECT_EQ(show(info), "{" + std::string(row.key) + ": \"a\"}");
  }
}

TEST(UserStrings, AreNotReachedByTheKeyOfAProperty) {
  const Held<Info> info = newInfo();
  for (const PropertyRow& row : kPropertyRows) {
    EXPECT_EQ(info->setUserString(row.key, "a"), 1001) << row.key;
    EXPECT_STREQ(info->userString(row.key), "") << row.key;
  }
  EXPECT_TRUE(info->isEmpty());
}

// What the members of the normal form do to a key that holds the number 77 and the
// text "old": only a value of the row's own kind replaces anything.
TEST(NormalFormMembers, ReplaceOnlyTheValueOfTheirOwnKind) {
  const struct {
    const char* value;
    const char* asInteger;  // what the number is afterwards where a number travels
    const char* asText;
  } cases[] = {
      {"7", "7", "old"},
      {"-7", "-7", "old"},
      {"0", "0", "old"},
      {"-0", "0", "old"},
      {"9223372036854775807", "9223372036854775807", "old"},
      {"-9223372036854775808", "-9223372036854775808", "old"},
      {"9223372036854775808", "77", "old"},
      {"18446744073709551616", "77", "old"},
      {"-9223372036854775809", "77", "old"},
      {"12.0", "77", "old"},
      {"12.5", "77", "old"},
      {"1e2", "77", "old"},
      {"1E0", "77", "old"},
      {"\"new\"", "77", "new"},
      {"\"12\"", "77", "12"},
      {"\"new\\u0000er\"", "77", "new"},
      {"\"caf\\u00e9\"", "77", "caf\xC3\xA9"},
      {"null", "77", "old"},
      {"true", "77", "old"},
      {"false", "77", "old"},
      {"[]", "77", "old"},
      {"[7]", "77", "old"},
      {"[\"new\"]", "77", "old"},
      {"{}", "77", "old"},
      {"{\"a\":7}", "77", "old"},
  };
  for (const PropertyRow& row : kPropertyRows) {
    for (const auto& one : cases) {
      const Held<Info> info = newInfo();
      inside(info).setIntValue(row.key, 77);
      inside(info).setStringValue(row.key, "old");
      // Accepted for a member that is not the one in question.
      const std::string pass = row.jsonName == std::string("id") ? "\"name\":\"s\"" : "\"id\":5";
      readText(info, "{\"" + std::string(row.jsonName) + "\":" + one.value + "," + pass + "}");
      const std::string integer = row.travels == Travels::asInteger ? one.asInteger : "77";
      const std::string text = row.travels == Travels::asText ? one.asText : "old";
      EXPECT_EQ(heldUnder(info, row.key), "integer " + integer + " and text " + inQuotes(text))
          << row.jsonName << ": " << one.value;
    }
  }
}

TEST(NormalFormMembers, AreReadUnderTheirOwnNameAlone) {
  for (const PropertyRow& row : kPropertyRows) {
    if (row.travels == Travels::inGroup) continue;
    const std::string value = row.travels == Travels::asInteger ? "7" : "\"a\"";
    const std::string name = row.jsonName;
    for (const std::string& wrong : {name + "s", name.substr(1), " " + name, name + "\\u0000",
                                     std::string(row.key), "X" + name.substr(1), std::string()}) {
      const Held<Info> info = newInfo();
      readText(info, "{\"" + wrong + "\":" + value + ",\"id\":5}");
      EXPECT_EQ(show(info), "{rsResId: 5}") << wrong;
    }
  }
}

TEST(NormalFormMembers, OfTheGroupsAreIgnoredAtTheTop) {
  for (const char* const value : {"7", "\"a\""}) {
    for (const PropertyRow& row : kPropertyRows) {
      if (row.travels != Travels::inGroup) continue;
      const std::string text = "{\"id\":5,\"" + std::string(row.jsonName) + "\":" + value + "}";
      EXPECT_EQ(afterReading(text), "1001 {rsResId: 5}") << row.jsonName;
    }
  }
  EXPECT_EQ(afterReading("{\"id\":5,\"openFx_sub_element_type\":3,"
                         "\"extension_info\":[{\"openFx_sub_element_type\":4}]}"),
            "1001 {rsResId: 5, rsResOpenFxSubType: 4}");
}

// The map that holds a key decides how it is written, and not the row.
TEST(NormalFormMembers, AreWrittenAsTheyAreHeld) {
  for (const PropertyRow& row : kPropertyRows) {
    const std::string name = row.jsonName;
    const bool grouped = row.travels == Travels::inGroup;
    const std::string key = row.key;
    const bool isId = key == "rsResId";
    const bool isSlug = key == "rsResSlug";

    const Held<Info> number = newInfo();
    inside(number).setIntValue(row.key, -5);
    if (!isId) inside(number).setStringValue("rsResSlug", "s");
    std::string expected = "\"name\":\"s\"";
    if (isId) {
      expected = "\"id\":-5";
    } else if (!isSlug && !grouped) {
      expected = "\"" + name + "\":-5," + expected;
    }
    if (key == "rsResOpenFxSubType") {
      expected += ",\"extension_info\":[{\"openFx_sub_element_type\":-5}]";
    }
    EXPECT_EQ(written(number), "{" + expected + ",\"user_string\":{}}") << row.key;

    const Held<Info> text = newInfo();
    inside(text).setIntValue("rsResId", 9);
    inside(text).setStringValue(row.key, "t");
    expected = isId ? "" : "\"id\":9";
    if (!grouped) expected += (isId ? "\"" : ",\"") + name + "\":\"t\"";
    EXPECT_EQ(written(text), "{" + expected + ",\"user_string\":{}}") << row.key;
  }
}

TEST(NormalFormMembers, AreWrittenAsATextWhenBothAreHeld) {
  for (const PropertyRow& row : kPropertyRows) {
    if (row.travels == Travels::inGroup) continue;
    const Held<Info> info = newInfo();
    inside(info).setIntValue(row.key, 7);
    inside(info).setStringValue(row.key, "t");
    const bool isId = std::string(row.key) == "rsResId";
    const bool isSlug = std::string(row.key) == "rsResSlug";
    if (!isId && !isSlug) inside(info).setIntValue("rsResId", 9);
    const std::string id = isId || isSlug ? "" : "\"id\":9,";
    EXPECT_EQ(written(info), "{" + id + "\"" + row.jsonName + "\":\"t\",\"user_string\":{}}")
        << row.key;
  }
}

TEST(NormalFormMembers, OfUserStringsAreCalledAsTheTableSays) {
  for (const UserStringRow& row : kUserStringRows) {
    const std::string text =
        "{\"id\":5,\"user_string\":{\"" + std::string(row.jsonName) + "\":\"a\"}}";
    EXPECT_EQ(afterReading(text), "1001 {rsResId: 5, " + std::string(row.key) + ": \"a\"}");
    EXPECT_EQ(rewritten(text), text);
    EXPECT_EQ(afterReading("{\"id\":5,\"user_string\":{\"" + std::string(row.key) + "\":\"a\"}}"),
              "1001 {rsResId: 5}");
  }
}

// In a full record each number row reads a number, each text row a text, under the
// names of the normal form.
TEST(CompleteFormMembers, IncludeThoseOfTheNormalForm) {
  for (const PropertyRow& row : kPropertyRows) {
    const std::string name = row.jsonName;
    if (row.travels == Travels::inGroup || name == "infoType") continue;
    const std::string number = "{\"" + name + "\":41}";
    const std::string text = "{\"" + name + "\":\"t\"}";
    const std::string key = row.key;
    const auto found = [&](const std::string& value) {
      const std::string infoType = "rsResInfoType: 7";
      const std::string one = key + ": " + value;
      return key < "rsResInfoType" ? "{" + one + ", " + infoType + "}"
                                   : "{" + infoType + ", " + one + "}";
    };
    const std::string none = "1001 {rsResInfoType: 7}";
    const bool isNumber = row.travels == Travels::asInteger;
    EXPECT_EQ(afterReadingRecord(number, 7), isNumber ? "1001 " + found("41") : none) << name;
    EXPECT_EQ(afterReadingRecord(text, 7), isNumber ? none : "1001 " + found("\"t\"")) << name;
  }
}

TEST(CompleteFormMembers, HaveFurtherNames) {
  const struct {
    const char* record;
    const char* expected;
  } rows[] = {
      {"{\"slug\":\"a\"}", "{rsResInfoType: 7, rsResSlug: \"a\"}"},
      {"{\"slug\":5}", "{rsResInfoType: 7}"},
      {"{\"type\":3}", "{rsResInfoType: 7, rsResType: 3}"},
      {"{\"type\":\"3\"}", "{rsResInfoType: 7}"},
      {"{\"source\":2}", "{rsResInfoType: 7, rsResSourceType: 2}"},
      {"{\"element_sub_type\":4}", "{rsResInfoType: 7, rsResOpenFxSubType: 4, rsResSubType: 4}"},
      {"{\"element_sub_type\":4.0}", "{rsResInfoType: 7}"},
      {"{\"pack_id\":\"12\"}", "{rsResInfoType: 7, rsResPackId: \"12\"}"},
      {"{\"pack_id\":12}", "{rsResInfoType: 7}"},
      {"{\"pack_name\":\"p\"}", "{rsResInfoType: 7, rsResPackSlug: \"p\"}"},
      {"{\"pack_name\":1}", "{rsResInfoType: 7}"},
      {"{\"openFx_sub_element_type\":4}", "{rsResInfoType: 7}"},
      // The later table counts, whichever stands first.
      {"{\"slug\":\"b\",\"name\":\"a\"}", "{rsResInfoType: 7, rsResSlug: \"b\"}"},
      {"{\"name\":\"a\",\"slug\":\"b\"}", "{rsResInfoType: 7, rsResSlug: \"b\"}"},
      {"{\"name\":\"a\",\"slug\":7}", "{rsResInfoType: 7, rsResSlug: \"a\"}"},
      {"{\"name\":\"a\",\"slug\":\"\"}", "{rsResInfoType: 7, rsResSlug: \"\"}"},
      {"{\"type\":4,\"res_type\":3}", "{rsResInfoType: 7, rsResType: 4}"},
      {"{\"res_type\":3,\"type\":null}", "{rsResInfoType: 7, rsResType: 3}"},
      {"{\"element_sub_type\":4,\"res_sub_type\":3}",
       "{rsResInfoType: 7, rsResOpenFxSubType: 4, rsResSubType: 4}"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(afterReadingRecord(row.record, 7), "1001 " + std::string(row.expected)) << row.record;
  }
}

TEST(CompleteFormMembers, OfTheVcgLibraryHaveNamesOfTheirOwn) {
  const struct {
    const char* record;
    const char* expected;
  } rows[] = {
      {"{}", "1001 {rsResInfoType: 1007, rsResType: 39}"},
      {"{\"res_id\":9}", "1001 {rsResId: 9, rsResInfoType: 1007, rsResType: 39}"},
      {"{\"res_type\":2}", "1001 {rsResInfoType: 1007, rsResMeidaType: 2, rsResType: 39}"},
      {"{\"status\":1}", "1001 {rsResInfoType: 1007, rsResState: 1, rsResType: 39}"},
      {"{\"id\":9,\"mediaType\":2,\"resourceState\":1,\"name\":\"a\",\"slug\":\"b\",\"type\":3}",
       "1001 {rsResInfoType: 1007, rsResType: 39}"},
      {"{\"res_id\":\"9\",\"res_type\":2.0,\"status\":null}",
       "1001 {rsResInfoType: 1007, rsResType: 39}"},
  };
  for (const auto& row : rows) EXPECT_EQ(afterReadingRecord(row.record, 1007), row.expected);
}

}  // namespace
