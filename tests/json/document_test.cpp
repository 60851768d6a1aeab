#include "json/document.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/json_tree.h"
#include "support/small_stack.h"
#include "support/zol_text.h"

namespace {

using ZOL::json::ByteOrderMark;
using ZOL::json::Document;
using ZOL::json::Grammar;
using ZOL::json::Member;
using ZOL::json::Value;

std::string show(std::optional<long long> number) {
  return number ? std::to_string(*number) : "none";
}

std::string show(std::optional<int> number) { return number ? std::to_string(*number) : "none"; }

std::string show(const char* text) { return text ? "\"" + escaped(text) + "\"" : "none"; }

TEST(JsonDocument, TakesANumberWithoutPointAndExponentThatFits) {
  const struct {
    const char* text;
    const char* integer64;
    const char* integer32;
  } rows[] = {
      {"0", "0", "0"},
      {"-0", "0", "0"},
      {"7", "7", "7"},
      {"-7", "-7", "-7"},
      {"2147483646", "2147483646", "2147483646"},
      {"2147483647", "2147483647", "2147483647"},
      {"2147483648", "2147483648", "none"},
      {"-2147483647", "-2147483647", "-2147483647"},
      {"-2147483648", "-2147483648", "-2147483648"},
      {"-2147483649", "-2147483649", "none"},
      {"4294967295", "4294967295", "none"},
      {"4294967296", "4294967296", "none"},
      {"4294967303", "4294967303", "none"},
      {"999999999999999999", "999999999999999999", "none"},
      {"9223372036854775799", "9223372036854775799", "none"},
      {"9223372036854775806", "9223372036854775806", "none"},
      {"9223372036854775807", "9223372036854775807", "none"},
      {"9223372036854775808", "none", "none"},
      {"9223372036854775809", "none", "none"},
      {"9223372036854775810", "none", "none"},
      {"9999999999999999999", "none", "none"},
      {"-9223372036854775807", "-9223372036854775807", "none"},
      {"-9223372036854775808", "-9223372036854775808", "none"},
      {"-9223372036854775809", "none", "none"},
      {"-9223372036854775810", "none", "none"},
      {"18446744073709551615", "none", "none"},
      {"18446744073709551616", "none", "none"},
      {"18446744073709551623", "none", "none"},
      {"12345678901234567890", "none", "none"},
      {"92233720368547758070", "none", "none"},
      {"-92233720368547758080", "none", "none"},
      {"99999999999999999999999999999999999999", "none", "none"},
      {"12.0", "none", "none"},
      {"-0.0", "none", "none"},
      {"0.0", "none", "none"},
      {"1e0", "none", "none"},
      {"1E2", "none", "none"},
      {"0e0", "none", "none"},
      {"12e-1", "none", "none"},
      {"\"12\"", "none", "none"},
      {"true", "none", "none"},
      {"null", "none", "none"},
      {"[12]", "none", "none"},
      {"{\"a\":12}", "none", "none"},
  };
  for (const auto& row : rows) {
    const Document document(row.text);
    ASSERT_TRUE(document.root()) << row.text;
    EXPECT_EQ(show(document.root().integer64()), row.integer64) << row.text;
    EXPECT_EQ(show(document.root().integer32()), row.integer32) << row.text;
    // Where another character of a number could follow it in the buffer.
    const Document inside("{\"a\":" + std::string(row.text) + ",\"b\":55}");
    EXPECT_EQ(show(inside.root().member("a").integer64()), row.integer64) << row.text;
    EXPECT_EQ(show(inside.root().member("b").integer64()), "55") << row.text;
  }
}

TEST(JsonDocument, AnswersForAnotherTypeAsForNoValue) {
  const std::vector<std::string> texts = {"null", "true", "12", "\"ab\"", "[1]", "{\"a\":1}"};
  std::string found;
  for (const std::string& text : texts) {
    const Document document(text);
    const Value value = document.root();
    found += text + ":" + (value.isNumber() ? " number" : "") +
             (value.isString() ? " string" : "") + (value.isArray() ? " array" : "") +
             (value.isObject() ? " object" : "") + " " + show(value.integer64()) + " " +
             show(value.text()) + " " + std::to_string(value.size()) + " " +
             show(value.member("a").integer64()) + "\n";
  }
  EXPECT_EQ(found,
            "null: none none 0 none\n"
            "true: none none 0 none\n"
            "12: number 12 none 0 none\n"
            "\"ab\": string none \"ab\" 0 none\n"
            "[1]: array none none 1 none\n"
            "{\"a\":1}: object none none 1 1\n");
  const Value none;
  EXPECT_FALSE(none);
  EXPECT_FALSE(none.isNumber() || none.isString() || none.isArray() || none.isObject());
  EXPECT_EQ(none.integer64(), std::nullopt);
  EXPECT_EQ(none.integer32(), std::nullopt);
  EXPECT_EQ(none.text(), nullptr);
  EXPECT_EQ(none.size(), 0u);
  EXPECT_FALSE(none.member("a"));
  EXPECT_FALSE(none.elements().begin() != none.elements().end());
  EXPECT_FALSE(none.members().begin() != none.members().end());
}

TEST(JsonDocument, HasNoElementsInAnObjectAndNoMembersInAnArray) {
  const Document object("{\"a\":1}");
  EXPECT_FALSE(object.root().elements().begin() != object.root().elements().end());
  const Document array("[\"a\",1]");
  EXPECT_FALSE(array.root().members().begin() != array.root().members().end());
  EXPECT_FALSE(array.root().member("a"));
}

TEST(JsonDocument, CountsTheFirstOfMembersWithOneName) {
  const Document document("{\"a\":1,\"b\":2,\"a\":{\"a\":3},\"\":4,\"b\":5,\"\":6}");
  EXPECT_EQ(show(document.root().member("a").integer64()), "1");
  EXPECT_EQ(show(document.root().member("b").integer64()), "2");
  EXPECT_EQ(show(document.root().member("").integer64()), "4");
  EXPECT_EQ(document.root().size(), 6u);
}

TEST(JsonDocument, FindsAMemberByItsWholeName) {
  const Document document(
      "{\"name\\u0000x\":1,\"names\":2,\"nam\":3,\"Name\":4,\" "
      "name\":5,\"n\\u0061me\":6,\"name\":7}");
  EXPECT_EQ(show(document.root().member("name").integer64()), "6");
  EXPECT_EQ(show(document.root().member(std::string("name\0x", 6)).integer64()), "1");
  EXPECT_EQ(show(document.root().member("NAME").integer64()), "none");
}

TEST(JsonDocument, EndsATextAtItsFirstZeroByte) {
  const Document document("[\"a\\u0000b\",\"\\u0000\",\"\",\"ab\"]");
  std::string texts;
  for (const Value text : document.root().elements()) texts += show(text.text());
  EXPECT_EQ(texts, "\"a\"\"\"\"\"\"ab\"");
}

TEST(JsonDocument, WalksOverNestedValuesAtOnce) {
  const Document document("[[1,[2,{\"a\":[]}]],{},{\"a\":{\"b\":[1,2,3]},\"c\":4},[],5]");
  std::string sizes;
  for (const Value element : document.root().elements()) sizes += std::to_string(element.size());
  EXPECT_EQ(sizes, "20200");
  std::string names;
  Value object;
  for (const Value element : document.root().elements()) {
    if (element.isObject()) object = element;
  }
  for (const Member member : object.members()) names += std::string(member.name()) + ".";
  EXPECT_EQ(names, "a.c.");
  EXPECT_EQ(show(object.member("c").integer64()), "4");
}

TEST(JsonDocument, CopiesTheTextItIsMadeFrom) {
  std::string text = "{\"a\":\"text\",\"b\":12}";
  const Document document(text);
  text.assign(text.size(), '?');
  EXPECT_EQ(show(document.root().member("a").text()), "\"text\"");
  EXPECT_EQ(show(document.root().member("b").integer64()), "12");
}

TEST(JsonDocument, LooksAtNoByteBehindItsLength) {
  const std::string text = "{\"a\":1}";
  for (std::size_t length = 0; length <= text.size(); ++length) {
    const Document document(std::string_view(text).substr(0, length));
    EXPECT_EQ(static_cast<bool>(document.root()), length == text.size()) << length;
  }
  const Document number(std::string_view("12345").substr(0, 3));
  EXPECT_EQ(show(number.root().integer64()), "123");
}

TEST(JsonDocument, ReadsStringsOfEachLengthAndPlace) {
  for (std::size_t before = 0; before < 20; ++before) {
    for (std::size_t behind = 0; behind < 20; ++behind) {
      const std::string plain(before, 'x');
      const std::string rest(behind, '\xE9');
      const Document document("[\"" + plain + "\\n" + rest + "\",\"" + plain + rest + "\"]");
      ASSERT_TRUE(document.root());
      std::string texts;
      for (const Value text : document.root().elements()) texts += std::string(text.text()) + "|";
      EXPECT_EQ(escaped(texts), escaped(plain + "\n" + rest + "|" + plain + rest + "|"));
    }
  }
}

TEST(JsonDocument, ReadsAMillionLevelsOnASmallStack) {
  onSmallStack([] {
    const Document arrays(times(kManyLevels, "[") + times(kManyLevels, "]"));
    EXPECT_EQ(arrays.root().size(), 1u);
    const Document objects(times(kManyLevels, "{\"a\":") + "7" + times(kManyLevels, "}"));
    Value value = objects.root();
    std::size_t levels = 0;
    for (; value.isObject(); ++levels) value = value.member("a");
    EXPECT_EQ(levels, kManyLevels);
    EXPECT_EQ(show(value.integer64()), "7");
    for (const char* const nest : {"[", "{\"a\":", "[{\"a\":", "[1,", "{\"a\":1,\"b\":"}) {
      EXPECT_FALSE(Document(times(kManyLevels, nest)).root()) << nest;
      EXPECT_FALSE(Document(times(kManyLevels, nest), Grammar::strict).root()) << nest;
    }
    EXPECT_FALSE(Document(times(kManyLevels, "[") + times(kManyLevels - 1, "]")).root());
    EXPECT_FALSE(Document(times(kManyLevels, "[") + times(kManyLevels, "}")).root());
    EXPECT_FALSE(
        Document(times(kManyLevels, "[") + times(kManyLevels + 1, "]"), Grammar::strict).root());
  });
}

TEST(JsonDocument, SortsInTheMembersThatHaveAPlace) {
  static constexpr auto kNames = ZOL::json::namesOf("id", "name", "type");
  const Document document("{\"x\":1,\"type\":2,\"name\":3,\"type\":4,\"ID\":5,\"name\":null}");
  const auto places = ZOL::json::sortIn(kNames, document.root());
  EXPECT_FALSE(places[0]);
  EXPECT_EQ(show(places[1].integer64()), "3");
  EXPECT_EQ(show(places[2].integer64()), "2");
  for (const char* const text : {"[\"id\",1]", "\"id\"", "12", "null", "{}"}) {
    const Document other(text);
    for (const Value value : ZOL::json::sortIn(kNames, other.root())) EXPECT_FALSE(value) << text;
  }
  for (const Value value : ZOL::json::sortIn(kNames, Value())) EXPECT_FALSE(value);
}

// Takes the children whose text, or number's first digit, begins as said, and writes down
// all that it sees.
class Taker final : public ZOL::json::RootWatcher {
 public:
  explicit Taker(std::string taken) : taken_(std::move(taken)) {}

  void begin() override { seen_.clear(); }
  bool takes(const ZOL::json::Node* key, Value child) override {
    const std::string name = key ? key->text : "";
    const std::string kind = child.isArray()    ? "array"
                             : child.isObject() ? "object"
                             : child.text()     ? child.text()
                                                : show(child.integer64());
    seen_ += name + ":" + kind + " ";
    return taken_.find((key ? name : kind).substr(0, 1)) != std::string::npos;
  }

  const std::string& seen() const { return seen_; }

 private:
  const std::string taken_;
  std::string seen_;
};

TEST(JsonRootWatcher, SeesEachMemberOfTheRootAndNoOther) {
  Taker taker("");
  const Document document(R"({"a": 1, "b": {"c": [2, {"d": 3}]}, "e": ["f"], "g": "h"})", taker);
  EXPECT_EQ(taker.seen(), "a:1 b:object e:array g:h ");
  EXPECT_EQ(document.root().size(), 4U);
  EXPECT_EQ(document.root().member("b").member("c").size(), 2U);
}

TEST(JsonRootWatcher, SeesEachElementOfTheRootAndNoOther) {
  Taker taker("");
  const Document document(R"([1, [2, [3]], {"a": 4}, "b"])", taker);
  EXPECT_EQ(taker.seen(), ":1 :array :object :b ");
  EXPECT_EQ(document.root().size(), 4U);
}

TEST(JsonRootWatcher, LeavesTheMembersThatItDoesNotTake) {
  Taker taker("ac");
  const Document document(
      R"({"a": [1, 2, 3], "b": {"x": 5}, "c": {"y": [6]}, "d": "last", "a": 7})", taker);
  const Value root = document.root();
  ASSERT_TRUE(root.isObject());
  EXPECT_EQ(root.size(), 2U);
  EXPECT_EQ(show(root.member("b").member("x").integer64()), "5");
  EXPECT_EQ(show(root.member("d").text()), "\"last\"");
  EXPECT_FALSE(root.member("a"));
  EXPECT_FALSE(root.member("c"));
}

TEST(JsonRootWatcher, LeavesTheElementsThatItDoesNotTake) {
  Taker taker("1a");
  const Document document(R"([1, 2, [1], 13, "b", "a", null])", taker);
  EXPECT_EQ(document.root().size(), 3U);
  std::string left;
  for (const Value element : document.root().elements()) {
    left += element.text() ? element.text() : show(element.integer64());
    left += " ";
  }
  EXPECT_EQ(left, "2 b none ");
}

TEST(JsonRootWatcher, SeesNothingOfARootThatIsNoContainer) {
  Taker taker("1");
  const Document document("1", taker);
  EXPECT_EQ(taker.seen(), "");
  EXPECT_EQ(show(document.root().integer64()), "1");
}

TEST(JsonRootWatcher, HasSeenWhatStandsInFrontOfAnError) {
  Taker taker("1");
  const Document document("[1, 2, oops]", taker);
  EXPECT_EQ(taker.seen(), ":1 :2 ");
  EXPECT_FALSE(document.root());
}

TEST(JsonRootWatcher, IsShownADeepTextFromTheBeginning) {
  for (const std::size_t depth : {62U, 63U, 64U, 65U, 1000U}) {
    Taker taker("1");
    const std::string deep = std::string(depth, '[') + std::string(depth, ']');
    const Document document("[1, 2, " + deep + ", 1]", taker);
    EXPECT_EQ(taker.seen(), ":1 :2 :array :1 ") << depth;
    EXPECT_EQ(document.root().size(), 2U) << depth;
  }
}

}  // namespace
