// Which texts are accepted, and what they say: the iterative parser and its tape
// against RapidJSON's recursive parser and its document.

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "json/document.h"
#include "json/reference_json.h"
#include "support/json_tree.h"
#include "support/zol_text.h"

namespace {

using ZOL::json::ByteOrderMark;
using ZOL::json::Document;
using ZOL::json::Grammar;
using ZOL::json::Kind;
using ZOL::json::Member;
using ZOL::json::Value;

std::string quotedBytes(const ZOL::json::Node& node) {
  return "\"" + escaped(std::string(node.text, static_cast<std::size_t>(node.size()))) + "\"";
}

std::string shape(Value value) {
  if (value.isNumber()) {
    if (const auto number = value.integer32()) return "int " + std::to_string(*number);
    if (const auto number = value.integer64()) return "long " + std::to_string(*number);
    return "number";
  }
  if (value.isString()) return quotedBytes(*value.node());
  std::string text;
  if (value.isArray()) {
    for (const Value element : value.elements())
      text += (text.empty() ? "" : ", ") + shape(element);
    return "[" + text + "]";
  }
  if (value.isObject()) {
    for (const Member member : value.members()) {
      text += (text.empty() ? "" : ", ") + quotedBytes(*member.key) + ": " + shape(member.value);
    }
    return "{" + text + "}";
  }
  if (value.node()->kind() == Kind::null) return "null";
  return value.node()->kind() == Kind::yes ? "true" : "false";
}

std::string shapeByLibrary(const std::string& text, Setting setting) {
  const Document document(text, setting.tolerant ? Grammar::tolerant : Grammar::strict,
                          setting.skipsMark ? ByteOrderMark::skipped : ByteOrderMark::error);
  return document.root() ? shape(document.root()) : "refused";
}

// Each text in all four settings. Stops after ten that differ.
struct Comparison {
  int accepted = 0;
  int refused = 0;
  int different = 0;

  void compare(const std::string& text) {
    for (const Setting setting :
         {Setting{true, true}, Setting{true, false}, Setting{false, true}, Setting{false, false}}) {
      const std::string expected = shapeByReference(text, setting);
      const std::string actual = shapeByLibrary(text, setting);
      ++(expected == "refused" ? refused : accepted);
      if (actual == expected || different >= 10) continue;
      ++different;
      ADD_FAILURE() << "text:     " << escaped(text)
                    << "\nsetting:  " << (setting.tolerant ? "tolerant" : "strict")
                    << (setting.skipsMark ? ", skips the mark" : "") << "\nexpected: " << expected
                    << "\nactual:   " << actual;
    }
  }
};

TEST(JsonAgreement, OnTextsWrittenByHand) {
  const std::vector<std::string> texts = {
      "",
      " ",
      "\n\t\r ",
      "{}",
      "[]",
      "null",
      "true",
      "false",
      "nul",
      "nulll",
      "True",
      "\"\"",
      "{} ",
      " {}",
      "{}x",
      "{}{}",
      "{},",
      "{}]",
      "{}\"",
      "[]1",
      "1 2",
      "null null",
      "{",
      "}",
      "[",
      "]",
      "[{]}",
      "{[}]",
      "[[]",
      "{\"a\":{}",
      "{\"a\":[}",
      "{\"a\"}",
      "{\"a\":}",
      "{\"a\" 1}",
      "{:1}",
      "{a:1}",
      "{'a':1}",
      "{1:1}",
      "{null:1}",
      "{\"a\":1 \"b\":2}",
      "{\"a\":1,}",
      "[1,]",
      "{,}",
      "[,]",
      "{\"a\":1,,}",
      "[1,,]",
      "[,1]",
      "{,\"a\":1}",
      "[1 2]",
      "{\"a\":1,\"a\":2}",
      "{\"a\":{\"a\":1},\"a\":[]}",
      "{\"\":0}",
      "{\"\\u0061\":1,\"a\":2}",
      // Comments.
      "/**/{}",
      "//\n{}",
      "//{}",
      "{}//",
      "{}/*",
      "{}/",
      "/",
      "/*",
      "/* *",
      "/* * /{}",
      "/*/ {}",
      "/***/{}",
      "/*/**/{}",
      "/**//**/{}",
      "{/**/}",
      "{/**/\"a\"/**/:/**/1/**/,/**/}",
      "[1/**/]",
      "[1//\n]",
      "[1//",
      "[1/**/,//x\n2]",
      "[1 /2]",
      "[1/ /2]",
      "\"/*x*/\"",
      "\"//x\"",
      "[/x/]",
      "tr/**/ue",
      "1/**/2",
      "1//\n",
      "/* \xFF */{}",
      "# x\n{}",
      "[1]/**",
      "{\"a\":/**/}",
      // Numbers.
      "0",
      "-0",
      "-",
      "+1",
      "--1",
      "01",
      "00",
      "-01",
      "[01]",
      "[-01]",
      "[0 1]",
      "1.",
      ".5",
      "-.5",
      "1.5",
      "1.e5",
      "1e",
      "1e+",
      "1e-",
      "1e5",
      "1E5",
      "1e+05",
      "1e-05",
      "1e5.5",
      "[1.5.5]",
      "[1e5e5]",
      "[0x10]",
      "[1_000]",
      "[0e0]",
      "[-0.0]",
      "[1a]",
      "1a",
      "[1.0]",
      "[12.0]",
      "[1e0]",
      "[2147483647]",
      "[2147483648]",
      "[-2147483648]",
      "[-2147483649]",
      "[4294967295]",
      "[4294967296]",
      "[9223372036854775807]",
      "[9223372036854775808]",
      "[-9223372036854775808]",
      "[-9223372036854775809]",
      "[18446744073709551615]",
      "[18446744073709551616]",
      "[12345678901234567890]",
      "[99999999999999999999]",
      "[-99999999999999999999]",
      "[1e308]",
      "[1e309]",
      "[-1e309]",
      "[1e400]",
      "[0e309]",
      "[0e99999999999]",
      "[1.5e308]",
      "[1.7976931348623157e308]",
      "[1e-400]",
      "[1e-99999999999]",
      "[0.1e309]",
      "[0.01e310]",
      "[0.01e311]",
      "[" + times(308, "9") + "]",
      "[" + times(309, "9") + "]",
      "[" + times(310, "1") + "]",
      "[-" + times(400, "1") + "]",
      "[0." + times(5000, "3") + "]",
      "[" + times(300, "1") + "." + times(5000, "3") + "]",
      "[" + times(309, "0") + "]",
      "NaN",
      "Infinity",
      "-Infinity",
      "Inf",
      "-Inf",
      "nan",
      "[NaN]",
      "[-NaN]",
      "{\"a\":Infinity}",
      // Strings.
      "\"",
      "\"a",
      "\"\\\"",
      "\"\\",
      "\"\\\\\"",
      "\"\\/\\b\\f\\n\\r\\t\\\"\"",
      "\"\\a\"",
      "\"\\0\"",
      "\"\\x41\"",
      "\"\\'\"",
      "\"\\u\"",
      "\"\\u004\"",
      "\"\\u0041\"",
      "\"\\U0041\"",
      "\"\\u00g1\"",
      "\"\\u00E9\"",
      "\"\\u00e9\"",
      "\"\\u0000\"",
      "\"a\\u0000b\"",
      "{\"a\\u0000b\":1,\"a\":2}",
      "\"\\ud83c\\udfac\"",
      "\"\\uD83C\\uDFAC\"",
      "\"\\ud83c\"",
      "\"\\ud83c\\u0041\"",
      "\"\\ud83cx\"",
      "\"\\ud83c\\n\"",
      "\"\\udfac\"",
      "\"\\udfac\\ud83c\"",
      "\"\\ud83c\\ud83c\"",
      "\"\\uffff\"",
      "\"\\udbff\\udfff\"",
      "\"\x7F\"",
      "\"\x80\"",
      "\"\xFF\xFE\"",
      "\"\xC3\xA9\"",
      "\"\xC3\"",
      "\"\xED\xA0\x80\"",
      "\"\xF4\x90\x80\x80\"",
      "\"\xC0\x80\"",
      "'a'",
      "\"a\nb\"",
      "\"a\tb\"",
      "\"1234567\x01\"",
      "\"12345678\x1F\"",
      "\"123456789\x1A\"",
      "\"\xEF\xBB\xBF\"",
      // The byte-order mark.
      "\xEF\xBB\xBF{}",
      "\xEF\xBB\xBF {}",
      " \xEF\xBB\xBF{}",
      "\xEF\xBB\xBF",
      "\xEF{}",
      "\xEF\xBB{}",
      "\xBB{}",
      "\xBF{}",
      "\xBB\xBF{}",
      "\xEF\xBF{}",
      "\xBF\xBB{}",
      "\xBB\xEF{}",
      "\xBF\xBB\xEF{}",
      "\xEF\xBB\xBF\xEF\xBB\xBF{}",
      "\xEF\xEF{}",
      "\xFE\xFF{}",
      "\xFF\xFE{}",
      "{}\xEF\xBB\xBF",
      "\xEF\xBB\xBF/**/{}",
      "\xEF\xBB\xBF"
      "1",
      // Zero bytes, and what stands behind one.
      std::string("\0", 1),
      std::string("{}\0", 3),
      std::string("{}\0x", 4),
      std::string("\0{}", 3),
      std::string("{\0}", 3),
      std::string("{\"a\":1\0}", 8),
      std::string("\"a\0b\"", 5),
      std::string("[1\0]", 4),
      std::string("1\0", 2),
      std::string("1\0002", 3),
      std::string("/*\0*/{}", 7),
      std::string("//\0\n{}", 6),
      std::string("{}//\0\n", 6),
      std::string("tru\0e", 5),
      std::string("{}\0\0\0{}", 7),
      std::string("\xEF\xBB\xBF\0{}", 6),
      std::string("\"\\\0\"", 4),
      std::string("\"\\u00\0", 6),
      std::string("[\"a\",\0\"b\"]", 10),
      // Other white space is none.
      "\x0B{}",
      "\x0C{}",
      "\xC2\xA0{}",
      "{\x0B}",
      "[1\x0C]",
      "{}\x0B",
      "\x7F",
      "\x01{}",
  };
  Comparison comparison;
  for (const std::string& text : texts) comparison.compare(text);
  EXPECT_EQ(comparison.different, 0);
}

// Whatever byte stands where a value, a name, an escape or white space may.
TEST(JsonAgreement, OnEachByteInEachPlace) {
  const std::vector<std::pair<std::string, std::string>> places = {
      {"", ""},         {"", "{}"},     {"{", "}"},     {"[", "]"},         {"[1", "]"},
      {"[1", "2]"},     {"[1.", "]"},   {"[1e", "]"},   {"[-", "]"},        {"{\"a\"", ":1}"},
      {"{\"a\":", "}"}, {"\"", "\""},   {"\"\\", "\""}, {"\"\\u00", "0\""}, {"\"1234567", "9\""},
      {"{}", ""},       {"{}", "\"\""}, {"[tru", "]"},  {"[\"a\"", "]"},    {"[", ",1]"},
      {"/", "/{}"},     {"/*", "*/{}"}, {"//", "\n{}"}, {"\xEF", "{}"},     {"\xEF\xBB", "{}"},
  };
  Comparison comparison;
  for (const auto& [before, behind] : places) {
    for (int byte = 0; byte < 256; ++byte) {
      comparison.compare(before + static_cast<char>(byte) + behind);
    }
  }
  EXPECT_EQ(comparison.different, 0);
  EXPECT_GT(comparison.accepted, 500);
  EXPECT_GT(comparison.refused, 500);
}

TEST(JsonAgreement, OnRandomRowsOfTokens) {
  const std::vector<std::string> tokens = {
      "{",
      "}",
      "[",
      "]",
      ",",
      ":",
      "{",
      "}",
      "[",
      "]",
      ",",
      ":",
      "{",
      "}",
      "[",
      "]",
      ",",
      ":",
      "\"a\"",
      "\"b\"",
      "\"\"",
      "\"a\":",
      "\"a\":1",
      "1",
      "0",
      "-1",
      "2.5",
      "1e5",
      "true",
      "null",
      "false",
      " ",
      "\n",
      "/**/",
      "//\n",
      "//",
      "/*",
      "*/",
      "/",
      "*",
      "-",
      "+",
      ".",
      "e",
      "\"",
      "\\",
      "\\u0041",
      "\\ud83c",
      "\\udfac",
      "NaN",
      "Infinity",
      "9223372036854775808",
      "1e400",
      "\xEF",
      "\xBB",
      "\xBF",
      "\xEF\xBB\xBF",
      "\x80",
      "\xFF",
      "\x01",
      "\x1F",
      "\x7F",
      "'a'",
      std::string("\0", 1),
  };
  Dice dice(20180412);
  Comparison comparison;
  for (int i = 0; i < 6000; ++i) {
    std::string text;
    if (dice.one(2)) text += dice.from<std::string>({"{", "["});
    for (std::size_t length = 1 + dice.below(8); length > 0; --length) text += dice.from(tokens);
    if (dice.one(2)) text += dice.from<std::string>({"}", "]"});
    comparison.compare(text);
  }
  EXPECT_EQ(comparison.different, 0);
  EXPECT_GT(comparison.accepted, 1000);
  EXPECT_GT(comparison.refused, 1000);
}

TEST(JsonAgreement, OnRandomValuesWithAllThatIsTolerated) {
  Dice dice(7);
  Comparison comparison;
  std::set<std::string> shapes;
  for (int i = 0; i < 1500; ++i) {
    const Json value = anyValue(dice, 4);
    const std::string plain = compact(value);
    const std::string text = noise(dice) + noisy(value, dice) + noise(dice);
    comparison.compare(plain);
    comparison.compare(text);
    const std::string read = shapeByLibrary(text, {true, true});
    EXPECT_NE(read, "refused") << escaped(text);
    EXPECT_EQ(read, shapeByLibrary(plain, {false, false})) << escaped(text);
    shapes.insert(read);
  }
  EXPECT_EQ(comparison.different, 0);
  EXPECT_GT(shapes.size(), 300u);
}

// A valid text with one byte gone, doubled, replaced or added.
TEST(JsonAgreement, OnTextsThatAreDamagedInOnePlace) {
  static const std::string kBytes("{}[],:\"\\/*-+.eE019 \nnta\x00\x01\x1F\x7F\x80\xEF\xFF", 31);
  Dice dice(99);
  Comparison comparison;
  for (int i = 0; i < 4000; ++i) {
    const Json value = anyValue(dice, 3);
    std::string text = dice.one(2) ? compact(value) : noisy(value, dice);
    const std::size_t place = dice.below(text.size());
    const char byte = kBytes[dice.below(kBytes.size())];
    switch (dice.below(4)) {
      case 0:
        text.erase(place, 1);
        break;
      case 1:
        text.insert(place, 1, text[place]);
        break;
      case 2:
        text[place] = byte;
        break;
      default:
        text.insert(place, 1, byte);
        break;
    }
    comparison.compare(text);
  }
  EXPECT_EQ(comparison.different, 0);
  EXPECT_GT(comparison.accepted, 1000);
  EXPECT_GT(comparison.refused, 1000);
}

}  // namespace
