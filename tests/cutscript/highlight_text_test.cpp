// The text form of a highlight.

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "cutscript/script_state.h"
#include "support/foreign_string.h"
#include "support/heap_watch.h"
#include "support/held.h"
#include "support/zol_text.h"

namespace {

Held<ZOL::IZolHighlightInfo> highlight(int type, long long trimIn, long long trimOut) {
  Held<ZOL::IZolHighlightInfo> made(createHighlightInfo());
  made->setHLType(type);
  made->setTrimIn(trimIn);
  made->setTrimOut(trimOut);
  return made;
}

std::string written(ZOL::IZolHighlightInfo& from) {
  const auto out = zolString("old");
  EXPECT_EQ(from.toJson(out.get()), 0);
  return bytesIn(*out);
}

// What a highlight of 8..9 and type 7 becomes by that text, and the result.
std::string read(const char* text) {
  const auto into = highlight(7, 8, 9);
  const int result = into->fromJson(text);
  return std::to_string(result) + ": " + show(*into);
}

TEST(HighlightText, IsCompact) {
  EXPECT_EQ(written(*Held<ZOL::IZolHighlightInfo>(createHighlightInfo())),
            "{\"HLType\":0,\"trimIn\":0,\"trimOut\":0}");
  EXPECT_EQ(written(*highlight(-2147483647 - 1, LLONG_MIN, LLONG_MAX)),
            "{\"HLType\":-2147483648,\"trimIn\":-9223372036854775808,"
            "\"trimOut\":9223372036854775807}");
}

TEST(HighlightText, NeedsAString) {
  EXPECT_EQ(highlight(1, 2, 3)->toJson(nullptr), 1001);
}

TEST(HighlightText, AnswersWhatTheStringAnswers) {
  ForeignString out("old");
  out.result = ZOL::kRefused;
  EXPECT_EQ(highlight(1, 2, 3)->toJson(&out), 1001);
  out.result = 77;
  EXPECT_EQ(highlight(1, 2, 3)->toJson(&out), 77);
  EXPECT_EQ(out.bytes(), "old");
  out.result = ZOL::kSuccess;
  EXPECT_EQ(highlight(1, 2, 3)->toJson(&out), 0);
  const std::string written = R"({"HLType":1,"trimIn":2,"trimOut":3})";
  EXPECT_EQ(out.bytes(), written);
  const std::string call = "setText(" + written + ", -1)";
  EXPECT_EQ(out.calls, call + call + call);
}

TEST(HighlightText, ComesBackWhole) {
  for (const int type : {0, 1, -1, INT_MAX, INT_MIN}) {
    for (const long long time :
         {0LL, 1LL, -1LL, 4294967296LL, -2147483649LL, LLONG_MAX, LLONG_MIN}) {
      const auto from = highlight(type, time, -(time / 2) + 3);
      const std::string text = written(*from);
      EXPECT_EQ(read(text.c_str()), "0: " + show(*from)) << text;
    }
  }
}

TEST(HighlightText, UpdatesTheFieldsItNames) {
  EXPECT_EQ(read("{\"trimIn\":5}"), "0: 5..9 type 7");
  EXPECT_EQ(read("{\"trimOut\":5}"), "0: 8..5 type 7");
  EXPECT_EQ(read("{\"HLType\":5}"), "0: 8..9 type 5");
  EXPECT_EQ(read("{\"trimOut\":-3,\"more\":{\"HLType\":4},\"HLType\":2}"), "0: 8..-3 type 2");
  EXPECT_EQ(read("{}"), "0: 8..9 type 7");
}

TEST(HighlightText, LeavesAFieldWhoseMemberIsOfAnotherType) {
  for (const char* const value :
       {"\"x\"", "\"5\"", "null", "true", "1.0", "1e1", "-0.0", "[5]", "{}", "9223372036854775808",
        "-9223372036854775809", "99999999999999999999"}) {
    for (const char* const name : {"HLType", "trimIn", "trimOut"}) {
      const std::string text = "{\"" + std::string(name) + "\":" + value + "}";
      EXPECT_EQ(read(text.c_str()), "0: 8..9 type 7") << text;
    }
  }
  EXPECT_EQ(read("{\"HLType\":\"x\",\"trimIn\":1,\"trimOut\":\"y\"}"), "0: 1..9 type 7")
      << "each member stands by itself";
}

TEST(HighlightText, TakesATypeOf32BitsAndTimesOf64) {
  EXPECT_EQ(read("{\"HLType\":2147483648,\"trimIn\":2147483648}"), "0: 2147483648..9 type 7");
  EXPECT_EQ(read("{\"HLType\":-2147483649,\"trimOut\":-2147483649}"), "0: 8..-2147483649 type 7");
  EXPECT_EQ(read("{\"HLType\":2147483647}"), "0: 8..9 type 2147483647");
  EXPECT_EQ(read("{\"HLType\":-2147483648}"), "0: 8..9 type -2147483648");
  EXPECT_EQ(read("{\"HLType\":4294967303}"), "0: 8..9 type 7");
}

TEST(HighlightText, KnowsItsNamesLetterForLetter) {
  EXPECT_EQ(read("{\"hlType\":1,\"HLtype\":1,\"trimin\":1,\"TrimOut\":1,\"trim_in\":1,"
                 "\"start_time\":1,\"end_time\":1,\"class\":1}"),
            "0: 8..9 type 7");
}

TEST(HighlightText, CountsTheFirstOfMembersWithOneName) {
  EXPECT_EQ(read("{\"trimIn\":1,\"trimIn\":2,\"HLType\":\"x\",\"HLType\":3}"), "0: 1..9 type 7");
}

TEST(HighlightText, MayHaveCommentsATrailingCommaAndMoreBehindIt) {
  EXPECT_EQ(read("/* a */ {\"trimIn\" /**/ : 1, // b\n \"trimOut\":2,} // c"), "0: 1..2 type 7");
  EXPECT_EQ(read("{\"trimIn\":1}}"), "0: 1..9 type 7");
  EXPECT_EQ(read(" \n\t{\"trimIn\":1} and more"), "0: 1..9 type 7");
}

TEST(HighlightText, IsRefusedWhenItIsNone) {
  EXPECT_EQ(read(nullptr), "1001: 8..9 type 7");
  for (const char* const text :
       {"", " ", "[]", "[{\"trimIn\":1}]", "null", "1", "\"{}\"", "{", "{\"trimIn\":1",
        "{\"trimIn\":1,,}", "{\"trimIn\":}", "{\"trimIn\" 1}", "{trimIn:1}", "{'trimIn':1}",
        "{\"trimIn\":01}", "{\"trimIn\":+1}", "{\"trimIn\":1 \"trimOut\":2}", "{\"trimIn\":NaN}",
        "{\"trimIn\":Infinity}", "{\"trimIn\":1, \"a\":\"\n\"}", "//{}", "}"}) {
    EXPECT_EQ(read(text), "1001: 8..9 type 7") << text;
  }
}

TEST(HighlightText, MustNotBeginWithAByteOrderMark) {
  // On purpose: every other text of the library may.
  EXPECT_EQ(read("\xEF\xBB\xBF{\"trimIn\":1}"), "1001: 8..9 type 7");
  EXPECT_EQ(read("\xEF{\"trimIn\":1}"), "1001: 8..9 type 7");
}

TEST(HighlightText, GivesAllItsMemoryBack) {
  const auto readAndDrop = [] {
    EXPECT_EQ(read("{\"trimIn\":1,\"more\":[[],{}]}"), "0: 1..9 type 7");
    EXPECT_EQ(read("{\"trimIn\":1,\"more\":[[],{}"), "1001: 8..9 type 7");
    EXPECT_EQ(written(*highlight(1, 2, 3)), "{\"HLType\":1,\"trimIn\":2,\"trimOut\":3}");
  };
  readAndDrop();
  const long long before = liveBlocks();
  readAndDrop();
  EXPECT_EQ(liveBlocks(), before);
}

}  // namespace
