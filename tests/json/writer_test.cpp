#include "json/writer.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "json/reference_json.h"
#include "support/json_tree.h"
#include "support/small_stack.h"
#include "support/zol_text.h"

namespace {

using ZOL::json::CompactWriter;
using ZOL::json::Document;
using ZOL::json::PrettyWriter;

template <class Writer>
std::string textOf(Writer& writer) {
  const Held<ZOL::IZolString> out = zolString("what was here");
  EXPECT_EQ(writer.giveTo(out.get()), ZOL::kSuccess);
  return bytesIn(*out);
}

template <class Writer>
std::string copied(const std::string& text) {
  const Document document(text);
  if (!document.root()) return "refused";
  Writer writer;
  writer.copy(document.root());
  return textOf(writer);
}

TEST(JsonWriter, CopiesACompactTextAsItIs) {
  for (const char* const text :
       {"{}", "[]", "null", "true", "false", "\"\"", "0", "-0", "1.50", "1e5", "1E+05",
        "12345678901234567890", "[[],{},[[]],[{}],{\"a\":[]}]", "{\"a\":{\"b\":{\"c\":[1,2,{}]}}}",
        "{\"a\":1,\"a\":2}", "[\"\\u0000\",\"a\\u0000b\"]", "{\"\\u0000\":1,\"\":2}",
        "\"\\b\\f\\n\\r\\t\\\"\\\\/\\u0001\\u001F\x7F\xC3\xA9\xFF\""}) {
    EXPECT_EQ(copied<CompactWriter>(text), text);
  }
}

TEST(JsonWriter, CopiesRandomValuesAsTheyAre) {
  Dice dice(31);
  for (int i = 0; i < 2000; ++i) {
    const Json value = anyValue(dice, 5);
    const std::string plain = compact(value);
    EXPECT_EQ(copied<CompactWriter>(plain), plain);
    EXPECT_EQ(copied<CompactWriter>(noisy(value, dice)), plain);
  }
}

TEST(JsonWriter, CopiesAPartOfADocument) {
  const Document document("{\"a\":[1,{\"b\":[]},2],\"c\":{\"d\":\"e\"},\"f\":3.50}");
  CompactWriter writer;
  writer.beginArray();
  for (const char* const name : {"f", "c", "a"}) writer.copy(document.root().member(name));
  writer.endArray();
  EXPECT_EQ(textOf(writer), "[3.50,{\"d\":\"e\"},[1,{\"b\":[]},2]]");
}

// Only numbers that RapidJSON's document keeps as they are.
Json withPlainNumbers(Json value) {
  if (value.kind == Json::Kind::number && (!integerOf(&value) || value.text == "-0")) {
    value.text = "5000000000";
  }
  for (Json& inner : value.values) inner = withPlainNumbers(inner);
  return value;
}

TEST(JsonWriter, WritesCompactAndPrettyAsRapidJsonDoes) {
  Dice dice(32);
  for (int i = 0; i < 1500; ++i) {
    const std::string text = compact(withPlainNumbers(anyValue(dice, 5)));
    EXPECT_EQ(copied<CompactWriter>(text), compactByReference(text));
    EXPECT_EQ(copied<PrettyWriter>(text), prettyByReference(text));
  }
}

TEST(JsonWriter, IndentsByFourBlanks) {
  EXPECT_EQ(copied<PrettyWriter>("{\"a\":[1,{}],\"b\":[],\"c\":{\"d\":\"e\"}}"),
            "{\n"
            "    \"a\": [\n"
            "        1,\n"
            "        {}\n"
            "    ],\n"
            "    \"b\": [],\n"
            "    \"c\": {\n"
            "        \"d\": \"e\"\n"
            "    }\n"
            "}");
}

TEST(JsonWriter, EscapesEachByteAsRapidJsonDoes) {
  for (int byte = 1; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    CompactWriter writer;
    writer.beginObject();
    writer.member("a" + text, "b" + text);
    writer.endObject();
    const std::string written = textOf(writer);
    EXPECT_EQ(written, "{" + quoted("a" + text) + ":" + quoted("b" + text) + "}") << byte;
    EXPECT_EQ(written, compactByReference(written)) << byte;
  }
}

TEST(JsonWriter, WritesMembersOfEachKind) {
  CompactWriter writer;
  writer.beginObject();
  writer.member("lowest", std::numeric_limits<long long>::min());
  writer.member("highest", std::numeric_limits<long long>::max());
  writer.member("zero", 0LL);
  writer.member("text", std::string_view("a\0b", 3));
  const char pointer[] = "a\0b";
  writer.member("up to the zero", static_cast<const char*>(pointer));
  writer.key("array");
  writer.beginArray();
  writer.integer(-7);
  writer.text("seven");
  writer.endArray();
  writer.endObject();
  EXPECT_EQ(textOf(writer),
            "{\"lowest\":-9223372036854775808,\"highest\":9223372036854775807,\"zero\":0,"
            "\"text\":\"a\\u0000b\",\"up to the zero\":\"a\",\"array\":[-7,\"seven\"]}");
}

TEST(JsonWriter, CopiesAMillionLevelsOnASmallStack) {
  onSmallStack([] {
    const std::string arrays = times(kManyLevels, "[") + times(kManyLevels, "]");
    EXPECT_TRUE(copied<CompactWriter>(arrays) == arrays);
    const std::string objects = times(kManyLevels, "{\"a\":") + "null" + times(kManyLevels, "}");
    EXPECT_TRUE(copied<CompactWriter>(objects) == objects);
    const std::string both =
        times(kManyLevels, "[0,{\"a\":") + "[]" + times(kManyLevels, "},1.50]");
    EXPECT_TRUE(copied<CompactWriter>(both) == both);
  });
}

}  // namespace
