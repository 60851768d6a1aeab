// The text form of a storyboard list.

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>
#include <vector>

#include "cutscript/script_state.h"
#include "lists/foreign_list.h"
#include "support/foreign_string.h"
#include "support/heap_watch.h"
#include "support/held.h"
#include "support/json_tree.h"
#include "support/zol_text.h"

namespace {

using Rows = ZOL::IZolStoryboardInfoList;

Held<Rows> noRows() { return Held<Rows>(createIZolStoryboardInfoList()); }

Held<ZOL::IZolStoryboardInfo> row(const RowState& state) {
  Held<ZOL::IZolStoryboardInfo> made(createStoryboardInfo());
  auto* const writing = ZOL::query<ZOL::IZolStoryboardInfoInternal>(made.get());
  writing->setScriptClass(state.scriptClass);
  writing->setTitle(state.title.c_str());
  writing->setSubtitle(state.subtitle.c_str());
  writing->setDescription(state.description.c_str());
  writing->setStart(state.start);
  writing->setEnd(state.end);
  return made;
}

Held<Rows> rowsOf(const std::vector<RowState>& states) {
  Held<Rows> rows = noRows();
  for (const RowState& state : states) rows->add(row(state).get());
  return rows;
}

std::string written(Rows& rows) {
  const auto out = zolString("old");
  EXPECT_EQ(storyboardInfoListToJsonBuffer(&rows, out.get()), 0);
  return bytesIn(*out);
}

// The result and the rows behind one that the list held before.
std::string read(const std::string& text) {
  const auto rows = rowsOf({{3, "kept", "", "", 1, 2}});
  const auto buffer = zolString(text);
  const int result = jsonBufferToStoryboardInfoList(buffer.get(), rows.get());
  const std::string shown = show(*rows);
  const std::string before = "row 1..2 frame, title \"kept\"\n";
  EXPECT_EQ(shown.substr(0, before.size()), before) << text;
  return std::to_string(result) + "\n" + shown.substr(before.size());
}

std::string inArray(const std::string& rows) { return "{\"storyboard_infos\": [" + rows + "]}"; }

// A row with this in the place of one of its members.
std::string rowWith(const std::string& name, const std::string& value) {
  const std::vector<std::pair<std::string, std::string>> members = {
      {"script_class", "2"}, {"start", "3"},         {"end", "4"},
      {"title", "\"t\""},    {"subtitle", "\"s\""}, {"description", "\"d\""}};
  std::string text;
  for (const auto& member : members) {
    const std::string& given = member.first == name ? value : member.second;
    if (!given.empty()) text += (text.empty() ? "" : ", ") + quoted(member.first) + ": " + given;
  }
  return "{" + text + "}";
}

constexpr char kWhole[] =
    "row 3..4 chapter, title \"t\", subtitle \"s\", description \"d\"\n";

TEST(StoryboardText, OfAnEmptyListHasBothBracketsTogether) {
  EXPECT_EQ(written(*noRows()), "{\n    \"storyboard_infos\": []\n}");
}

TEST(StoryboardText, OfARowIsIndentedByFourBlanks) {
  EXPECT_EQ(written(*rowsOf({{2, "Arrival", "By boat", "Calm, a few notes", 0, 5000}})), R"({
    "storyboard_infos": [
        {
            "script_class": 2,
            "start": 0,
            "end": 5000,
            "title": "Arrival",
            "subtitle": "By boat",
            "description": "Calm, a few notes"
        }
    ]
})");
}

TEST(StoryboardText, HasTheRowsInListOrderAndNumbersAsTheyAre) {
  EXPECT_EQ(written(*rowsOf({{-2147483647 - 1, "", "", "", LLONG_MIN, LLONG_MAX},
                             {2147483647, "", "", "", -1, 0}})),
            R"({
    "storyboard_infos": [
        {
            "script_class": -2147483648,
            "start": -9223372036854775808,
            "end": 9223372036854775807,
            "title": "",
            "subtitle": "",
            "description": ""
        },
        {
            "script_class": 2147483647,
            "start": -1,
            "end": 0,
            "title": "",
            "subtitle": "",
            "description": ""
        }
    ]
})");
}

TEST(StoryboardText, EscapesWhatJsonMustAndNothingElse) {
  EXPECT_EQ(written(*rowsOf({{0, "\"quoted\" \\ / 'plain'", "\b\f\n\r\t \x01\x1F\x7F",
                              "caf\xC3\xA9 \xF0\x9F\x8E\xAC <b>&\xFF", 0, 0}})),
            "{\n"
            "    \"storyboard_infos\": [\n"
            "        {\n"
            "            \"script_class\": 0,\n"
            "            \"start\": 0,\n"
            "            \"end\": 0,\n"
            "            \"title\": \"\\\"quoted\\\" \\\\ / 'plain'\",\n"
            "            \"subtitle\": \"\\b\\f\\n\\r\\t \\u0001\\u001F\x7F\",\n"
            "            \"description\": \"caf\xC3\xA9 \xF0\x9F\x8E\xAC <b>&\xFF\"\n"
            "        }\n"
            "    ]\n"
            "}");
}

TEST(StoryboardText, SkipsANullRow) {
  const auto rows = rowsOf({{1, "a", "", "", 0, 1}, {1, "b", "", "", 1, 2}});
  const std::string text = written(*rows);
  rows->insertAt(0, nullptr);
  rows->insertAt(2, nullptr);
  rows->add(nullptr);
  EXPECT_EQ(written(*rows), text);
  const auto nulls = noRows();
  nulls->add(nullptr);
  EXPECT_EQ(written(*nulls), "{\n    \"storyboard_infos\": []\n}");
}

TEST(StoryboardText, RefusesNullAndChangesNothing) {
  const auto rows = rowsOf({{1, "a", "", "", 0, 1}});
  const auto text = zolString(inArray(rowWith("", "")));
  const std::string before = bytesIn(*text);
  EXPECT_EQ(storyboardInfoListToJsonBuffer(nullptr, text.get()), 1001);
  EXPECT_EQ(storyboardInfoListToJsonBuffer(rows.get(), nullptr), 1001);
  EXPECT_EQ(storyboardInfoListToJsonBuffer(nullptr, nullptr), 1001);
  EXPECT_EQ(jsonBufferToStoryboardInfoList(nullptr, rows.get()), 1001);
  EXPECT_EQ(jsonBufferToStoryboardInfoList(text.get(), nullptr), 1001);
  EXPECT_EQ(jsonBufferToStoryboardInfoList(nullptr, nullptr), 1001);
  EXPECT_EQ(bytesIn(*text), before);
  EXPECT_EQ(show(*rows), "row 0..1 title, title \"a\"\n");
}

TEST(StoryboardText, IsWrittenWhateverTheStringAnswers) {
  ForeignString out("old");
  out.result = ZOL::kRefused;
  EXPECT_EQ(storyboardInfoListToJsonBuffer(noRows().get(), &out), 0);
  EXPECT_EQ(out.bytes(), "old");
  const std::string written = "{\n    \"storyboard_infos\": []\n}";
  EXPECT_EQ(out.calls, "setText(" + written + ", -1)");
  out.result = ZOL::kSuccess;
  EXPECT_EQ(storyboardInfoListToJsonBuffer(noRows().get(), &out), 0);
  EXPECT_EQ(out.bytes(), written);
}

TEST(StoryboardText, TakesACallersOwnListAndRows) {
  class OwnRow final : public ZOL::IZolStoryboardInfo {
   public:
    virtual ~OwnRow() = default;
    int addRef() override { return 1; }
    int release() override { return 1; }
    int refCount() override { return 1; }
    ZOL::IReleaseHook* releaseHook() override { return nullptr; }
    void setReleaseHook(ZOL::IReleaseHook*) override {}
    void* queryInterface(const char*) override { return nullptr; }
    int scriptClass() override { return 9; }
    const char* title() override { return "my"; }
    const char* subtitle() override { return "own"; }
    const char* description() override { return "row"; }
    long long start() override { return 7; }
    long long end() override { return 8; }
  };
  OwnRow mine;
  ForeignList<Rows> rows;
  rows.add(&mine);
  EXPECT_EQ(written(rows), written(*rowsOf({{9, "my", "own", "row", 7, 8}})));
}

TEST(StoryboardText, ComesBackForEveryClassItKnows) {
  const auto rows = noRows();
  for (int scriptClass = 0; scriptClass <= 3; ++scriptClass) {
    const std::string title = "t" + std::to_string(scriptClass);
    rows->add(row({scriptClass, title, "s", "d", scriptClass, 10}).get());
  }
  EXPECT_EQ(read(written(*rows)), "0\n" + show(*rows));
}

TEST(StoryboardText, ComesBackWithClassZeroForOneItDoesNotKnow) {
  // On purpose: the writer writes it as it stands, the reader makes 0 of it.
  for (const int scriptClass : {4, 5, 256, INT_MAX, -1, -2, INT_MIN}) {
    const auto rows = rowsOf({{scriptClass, "t", "", "", 1, 2}});
    const std::string text = written(*rows);
    EXPECT_NE(text.find("\"script_class\": " + std::to_string(scriptClass) + ","),
              std::string::npos);
    EXPECT_EQ(read(text), "0\nrow 1..2 plain, title \"t\"\n") << scriptClass;
  }
}

TEST(StoryboardText, ComesBackWhateverItsTextsAndTimes) {
  static const std::vector<std::string> texts = {
      "", "a", "\"quotation\" marks", "line\nbreaks\r\n", "\\", "\\u0041", "/* no comment */",
      "caf\xC3\xA9", "\xF0\x9F\x8E\xAC", "\xFF\x80", "\x01\x02\x1A\x1F\x7F", "],}",
      "a text that is longer than any short place for it, and \"more\"\t\b\f"};
  static const std::vector<long long> numbers = {
      0, 1, -1, 5000, 2147483648, -2147483649, LLONG_MAX, LLONG_MIN, LLONG_MIN + 1};
  for (unsigned seed = 1; seed <= 300; ++seed) {
    Dice dice(seed);
    const auto rows = noRows();
    for (std::size_t i = dice.below(6); i > 0; --i) {
      rows->add(row({static_cast<int>(dice.below(4)), dice.from(texts), dice.from(texts),
                     dice.from(texts), dice.from(numbers), dice.from(numbers)})
                    .get());
    }
    ASSERT_EQ(read(written(*rows)), "0\n" + show(*rows)) << written(*rows);
  }
}

TEST(StoryboardText, OfNoRowsReadsBackAsNone) {
  EXPECT_EQ(read(written(*noRows())), "0\n");
  EXPECT_EQ(read("{\"storyboard_infos\":[]}"), "0\n");
}

TEST(StoryboardText, ReadTwiceDoublesTheRows) {
  const auto text = zolString(inArray(rowWith("", "") + "," + rowWith("title", "\"u\"")));
  const auto rows = noRows();
  EXPECT_EQ(jsonBufferToStoryboardInfoList(text.get(), rows.get()), 0);
  const std::string once = show(*rows);
  EXPECT_EQ(jsonBufferToStoryboardInfoList(text.get(), rows.get()), 0);
  EXPECT_EQ(show(*rows), once + once);
  EXPECT_NE(rows->at(0), rows->at(2)) << "rows of their own";
}

TEST(StoryboardText, LeavesItsRowsToTheList) {
  const auto text = zolString(inArray(rowWith("", "")));
  const auto rows = noRows();
  jsonBufferToStoryboardInfoList(text.get(), rows.get());
  EXPECT_EQ(rows->at(0)->refCount(), 1);
  EXPECT_EQ(rows->refCount(), 1);
  EXPECT_EQ(text->refCount(), 1);
}

TEST(StoryboardText, MayStandOnOneLine) {
  EXPECT_EQ(read("{\"storyboard_infos\":[{\"script_class\":2,\"start\":3,\"end\":4,"
                 "\"title\":\"t\",\"subtitle\":\"s\",\"description\":\"d\"}]}"),
            std::string("0\n") + kWhole);
}

TEST(StoryboardText, MayHaveItsMembersInAnyOrderAndMoreOfThem) {
  EXPECT_EQ(read("{\"version\": 3, \"storyboard_infos\":[{\"more\": {\"start\": 9}, "
                 "\"description\":\"d\",\"subtitle\":\"s\",\"title\":\"t\",\"end\":4,"
                 "\"note\":[1,{}],\"start\":3,\"script_class\":2}], \"rows\": [{}]}"),
            std::string("0\n") + kWhole);
}

TEST(StoryboardText, MayHaveCommentsATrailingCommaAMarkAndMoreBehindIt) {
  const std::string whole = inArray(rowWith("", ""));
  const std::string expected = std::string("0\n") + kWhole;
  EXPECT_EQ(read("// one line\n" + whole + " // end"), expected);
  EXPECT_EQ(read("/* a */{/* b */\"storyboard_infos\"/**/:/*c*/[" + rowWith("", "") +
                 "/* d */,/* e */],// f\n}"),
            expected);
  EXPECT_EQ(read("\xEF\xBB\xBF" + whole), expected);
  EXPECT_EQ(read(whole + "}]{not json"), expected);
  EXPECT_EQ(read(whole + std::string("\0more", 5)), expected);
  EXPECT_EQ(read(" \n\t\r" + whole), expected);
}

TEST(StoryboardText, DropsARowThatIsNotWhole) {
  for (const char* const name :
       {"script_class", "start", "end", "title", "subtitle", "description"}) {
    const std::string rows = rowWith("title", "\"first\"") + "," + rowWith(name, "") + "," +
                             rowWith("title", "\"last\"");
    EXPECT_EQ(read(inArray(rows)),
              "0\n"
              "row 3..4 chapter, title \"first\", subtitle \"s\", description \"d\"\n"
              "row 3..4 chapter, title \"last\", subtitle \"s\", description \"d\"\n")
        << name;
  }
}

TEST(StoryboardText, DropsARowWithAMemberOfAnotherType) {
  for (const char* const name : {"script_class", "start", "end"}) {
    for (const char* const value :
         {"1.5", "1.0", "1e0", "-0.0", "\"1\"", "null", "true", "[1]", "{}", "9223372036854775808",
          "-9223372036854775809", "99999999999999999999"}) {
      EXPECT_EQ(read(inArray(rowWith(name, value))), "0\n") << name << " " << value;
    }
  }
  for (const char* const name : {"title", "subtitle", "description"}) {
    for (const char* const value : {"1", "null", "true", "[\"t\"]", "{}"}) {
      EXPECT_EQ(read(inArray(rowWith(name, value))), "0\n") << name << " " << value;
    }
  }
  for (const char* const value : {"2147483648", "-2147483649", "4294967298"}) {
    EXPECT_EQ(read(inArray(rowWith("script_class", value))), "0\n") << value;
    EXPECT_EQ(read(inArray(rowWith("start", value))),
              "0\nrow " + std::string(value) +
                  "..4 chapter, title \"t\", subtitle \"s\", description \"d\"\n");
  }
}

TEST(StoryboardText, DropsAnElementThatIsNoObject) {
  EXPECT_EQ(read(inArray("null, 1, \"a\", true, [], [" + rowWith("", "") + "], {}, " +
                         rowWith("", ""))),
            std::string("0\n") + kWhole);
}

TEST(StoryboardText, TakesAnyRelationOfStartAndEnd) {
  EXPECT_EQ(read(inArray(rowWith("start", "9") + "," + rowWith("end", "-9223372036854775808"))),
            "0\n"
            "row 9..4 chapter, title \"t\", subtitle \"s\", description \"d\"\n"
            "row 3..-9223372036854775808 chapter, title \"t\", subtitle \"s\", "
            "description \"d\"\n");
}

TEST(StoryboardText, CountsTheFirstOfMembersWithOneName) {
  EXPECT_EQ(read(inArray(rowWith("start", "3, \"start\": 7, \"title\": \"first\""))),
            "0\nrow 3..4 chapter, title \"first\", subtitle \"s\", description \"d\"\n");
  EXPECT_EQ(read(inArray(rowWith("start", "\"3\", \"start\": 3"))), "0\n");
  EXPECT_EQ(read("{\"storyboard_infos\": [], \"storyboard_infos\": [" + rowWith("", "") + "]}"),
            "0\n");
  EXPECT_EQ(read("{\"storyboard_infos\": 1, \"storyboard_infos\": []}"), "1001\n");
}

TEST(StoryboardText, IsRefusedWhenItIsNone) {
  for (const char* const text :
       {"", " ", "[]", "null", "1", "\"storyboard_infos\"", "{}", "{\"storyboard_infos\": {}}",
        "{\"storyboard_infos\": null}", "{\"storyboard_infos\": \"[]\"}",
        "{\"Storyboard_infos\": []}", "{\"storyboard_infos \": []}", "{\"storyboard_infos\": [}",
        "{\"storyboard_infos\": []", "{\"storyboard_infos\": [,]}", "{\"storyboard_infos\" []}",
        "[{\"storyboard_infos\": []}]", "{\"a\": {\"storyboard_infos\": []}}",
        "{\"storyboard_infos\": [nan]}", "{\"storyboard_infos\": [Infinity]}",
        "{\"storyboard_infos\": ['']}", "/* {\"storyboard_infos\": []}"}) {
    EXPECT_EQ(read(text), "1001\n") << text;
  }
  EXPECT_EQ(read(std::string("{\"storyboard_infos\": [\0]}", 25)), "1001\n");
  EXPECT_EQ(read(std::string("\0{\"storyboard_infos\": []}", 25)), "1001\n");
  // Whole rows ahead of the fault don't arrive.
  EXPECT_EQ(read("{\"storyboard_infos\": [" + rowWith("", "") + ", {]}"), "1001\n");
}

TEST(StoryboardText, IsReadAsFarAsItsLengthSays) {
  // No byte behind the length is looked at.
  const std::string whole = inArray(rowWith("", ""));
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    ForeignString buffer(whole.substr(0, length));
    const auto rows = noRows();
    EXPECT_EQ(jsonBufferToStoryboardInfoList(&buffer, rows.get()),
              length == whole.size() ? 0 : 1001)
        << length;
    EXPECT_EQ(rows->size(), length == whole.size() ? 1 : 0) << length;
  }
}

TEST(StoryboardText, GivesAllItsMemoryBack) {
  const auto readAndDrop = [] {
    EXPECT_EQ(read(inArray(rowWith("", "") + "," + rowWith("end", ""))),
              std::string("0\n") + kWhole);
    EXPECT_EQ(read("{\"storyboard_infos\": [{}"), "1001\n");
    EXPECT_EQ(written(*noRows()).size(), 30U);
  };
  readAndDrop();
  const long long before = liveBlocks();
  readAndDrop();
  EXPECT_EQ(liveBlocks(), before);
}

}  // namespace
