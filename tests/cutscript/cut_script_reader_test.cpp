// What comes of a cut reply.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cutscript/script_state.h"
#include "support/held.h"

namespace {

// The rows of a script with these items, and what follows from them.
std::string showItems(const std::string& items) {
  return showCut("[{\"script\": [" + items + "]}]");
}

// The only clip of a script with one item.
std::string showClip(const std::string& item) {
  const Held<ZOL::IZolCutScripts> scripts(
      createCutScripts(("[{\"script\": [" + item + "]}]").c_str()));
  return scripts.get() ? show(*scripts->smartCutClipInfoList(0)->at(0)) : "null";
}

TEST(CutReply, ThatIsNoArrayGivesNothing) {
  EXPECT_EQ(createCutScripts(nullptr), nullptr);
  for (const char* const text :
       {"{}", "", " ", "null", "true", "0", "1.5", "\"[]\"", "{\"script\": [{}]}", "[", "]", "[}",
        "[,]", "[1 2]", "[nan]", "[NaN]", "[Infinity]", "[-Inf]", "['a']", "[01]", "[1.]", "[.5]",
        "[+1]", "[\"\\x\"]", "[\"\t\"]", "//", "/*[]", "nul", "// []"}) {
    EXPECT_EQ(createCutScripts(text), nullptr) << text;
  }
}

TEST(CutReply, ThatIsAnEmptyArrayGivesNoScripts) {
  const Held<ZOL::IZolCutScripts> scripts(createCutScripts("[]"));
  ASSERT_NE(scripts.get(), nullptr);
  EXPECT_EQ(scripts->scriptCount(), 0);
  EXPECT_EQ(scripts->refCount(), 1);
}

TEST(CutReply, MayHaveCommentsATrailingCommaAMarkAndMoreBehindIt) {
  const std::string expected = showCut(R"([{"title":"a","script":[{"end_time":5}]}])");
  EXPECT_EQ(expected,
            "script \"a\", lasts 5\n"
            "  row 0..5 plain\n"
            "  clip 0..5 plain\n"
            "  music 0..5 type 0\n");
  for (const char* const text :
       {R"(/* a */ [ // b
         {"title" /**/ : "a", "script" : [ {"end_time":5, /* c */ } , ] , } , ] // end)",
        "\xEF\xBB\xBF[{\"title\":\"a\",\"script\":[{\"end_time\":5}]}]",
        R"([{"title":"a","script":[{"end_time":5}]}]]]] and {more)"}) {
    EXPECT_EQ(showCut(text), expected) << text;
  }
}

TEST(CutReply, HasAScriptForEachElementWithItems) {
  const std::string text = R"([
    {"title": "no items"},
    {"title": "none in it", "script": []},
    {"title": "one", "script": [{}]},
    {"title": "an object", "script": {"0": {}}},
    {"title": "a text", "script": "[{}]"},
    [{"script": [{}]}], "script", 12, null, true,
    {"title": "another", "script": [{}, {}]}])";
  EXPECT_EQ(showCut(text),
            "script \"one\", lasts 0\n"
            "  row 0..0 plain\n"
            "  clip 0..0 plain\n"
            "  music 0..0 type 0\n"
            "script \"another\", lasts 0\n"
            "  row 0..0 plain\n"
            "  clip 0..0 plain\n"
            "  row 0..0 plain\n"
            "  clip 0..0 plain\n"
            "  music 0..0 type 0\n");
}

TEST(CutReply, GivesTheTitleOfAScript) {
  const auto title = [](const std::string& member) {
    const Held<ZOL::IZolCutScripts> scripts(
        createCutScripts(("[{" + member + "\"script\": [{}]}]").c_str()));
    return std::string(scripts->scriptTitle(0));
  };
  EXPECT_EQ(title("\"title\": \"Weekend\","), "Weekend");
  EXPECT_EQ(title("\"title\": \"\","), "");
  EXPECT_EQ(title(""), "");
  EXPECT_EQ(title("\"title\": 7,"), "");
  EXPECT_EQ(title("\"title\": [\"a\"],"), "");
  EXPECT_EQ(title("\"Title\": \"a\","), "");
  EXPECT_EQ(title("\"title\": \"caf\\u00e9 \\\"x\\\"\","), "caf\xC3\xA9 \"x\"");
  EXPECT_EQ(title("\"title\": \"a\\u0000b\","), "a") << "a text ends at its first zero";
}

TEST(CutReply, CountsTheFirstOfMembersWithOneName) {
  EXPECT_EQ(showCut(R"([{"title": "a", "title": "b", "music": 1, "music": "x",
                         "script": [{"end_time": 1, "end_time": 2, "title": 3, "title": "c",
                                     "script_class": "frame", "script_class": "chapter"}],
                         "script": [{}, {}]}])"),
            "script \"a\", lasts 1\n"
            "  row 0..1 frame\n"
            "  clip 0..1 frame\n"
            "  music 0..1 type 0\n");
  EXPECT_EQ(showCut(R"([{"script": [], "script": [{}]}])"), "");
}

TEST(CutRow, StandsBehindTheRowBeforeIt) {
  // On purpose the second row keeps its 2000 in front and is 4000 - 2000 long.
  EXPECT_EQ(showItems(R"({"start_time": 0, "end_time": 5000},
                         {"start_time": 2000, "end_time": 6000})"),
            "script \"\", lasts 7000\n"
            "  row 0..5000 plain\n"
            "  clip 0..5000 plain\n"
            "  row 7000..9000 plain\n"
            "  clip 2000..6000 plain\n"
            "  music 0..9000 type 0\n");
}

TEST(CutRow, IsShorterThanAClipThatStartsBehindZero) {
  // The end is offset + end - start, and the start keeps what it has.
  EXPECT_EQ(showItems(R"({"start_time": 300, "end_time": 1000},
                         {"start_time": 10, "end_time": 100})"),
            "script \"\", lasts 480\n"
            "  row 300..700 plain\n"
            "  clip 300..1000 plain\n"
            "  row 410..490 plain\n"
            "  clip 10..100 plain\n"
            "  music 0..490 type 0\n");
}

TEST(CutRow, WithoutAStartTakesItsEndAsItStands) {
  EXPECT_EQ(showItems(R"({"end_time": 100}, {"end_time": 50})"),
            "script \"\", lasts 250\n"
            "  row 0..100 plain\n"
            "  clip 0..100 plain\n"
            "  row 0..150 plain\n"
            "  clip 0..50 plain\n"
            "  music 0..150 type 0\n");
}

TEST(CutRow, WithoutAnEndMovesTheNextOneBack) {
  // A field that was not set counts with its 0.
  EXPECT_EQ(showItems(R"({"end_time": 100}, {"start_time": 30}, {"end_time": 7})"),
            "script \"\", lasts -53\n"
            "  row 0..100 plain\n"
            "  clip 0..100 plain\n"
            "  row 130..0 plain\n"
            "  clip 30..0 plain\n"
            "  row 0..-23 plain\n"
            "  clip 0..7 plain\n"
            "  music 0..-23 type 0\n");
}

TEST(CutRow, WithoutTimesStaysAtZeroAndMovesNothing) {
  EXPECT_EQ(showItems(R"({"end_time": 100}, {}, {"start_time": 0, "end_time": 7})"),
            "script \"\", lasts 107\n"
            "  row 0..100 plain\n"
            "  clip 0..100 plain\n"
            "  row 0..0 plain\n"
            "  clip 0..0 plain\n"
            "  row 100..107 plain\n"
            "  clip 0..7 plain\n"
            "  music 0..107 type 0\n");
}

TEST(CutRow, MayHaveNegativeTimes) {
  EXPECT_EQ(showItems(R"({"start_time": -50, "end_time": -20}, {"start_time": 0, "end_time": 1})"),
            "script \"\", lasts 81\n"
            "  row -50..30 plain\n"
            "  clip -50..-20 plain\n"
            "  row 80..81 plain\n"
            "  clip 0..1 plain\n"
            "  music 0..81 type 0\n");
}

TEST(CutRow, WrapsTimesAroundWhereTheyDoNotFit) {
  EXPECT_EQ(showItems(R"({"start_time": -9223372036854775808, "end_time": 9223372036854775807},
                         {"start_time": 9223372036854775807, "end_time": -9223372036854775808})"),
            "script \"\", lasts 1\n"
            "  row -9223372036854775808..-1 plain\n"
            "  clip -9223372036854775808..9223372036854775807 plain\n"
            "  row -2..-9223372036854775808 plain\n"
            "  clip 9223372036854775807..-9223372036854775808 plain\n"
            "  music 0..-9223372036854775808 type 0\n");
}

TEST(CutRow, PassesOverATimeThatIsNoInteger) {
  for (const char* const time :
       {"1.0", "1e3", "9223372036854775808", "-9223372036854775809", "18446744073709551615",
        "\"5\"", "null", "true", "[5]", "{\"a\":5}", "-0.0"}) {
    const std::string items =
        "{\"start_time\":" + std::string(time) + ",\"end_time\":" + time + "},{\"end_time\":9}";
    EXPECT_EQ(showItems(items), showItems("{},{\"end_time\":9}")) << time;
  }
}

TEST(CutRow, HasTheClassThatItsTextNames) {
  const struct {
    const char* text;
    const char* name;
  } rows[] = {
      {"\"title\"", "title"},      {"\"chapter\"", "chapter"}, {"\"frame\"", "frame"},
      {"\"plain\"", "plain"},      {"\"\"", "plain"},          {"\"Chapter\"", "plain"},
      {"\"TITLE\"", "plain"},      {"\"frames\"", "plain"},    {"\" title\"", "plain"},
      {"\"chap\"", "plain"},       {"\"titl\\u0065\"", "title"}, {"\"2\"", "plain"},
  };
  for (const auto& row : rows) {
    const std::string name = row.name;
    EXPECT_EQ(showItems("{\"script_class\":" + std::string(row.text) + "}"),
              "script \"\", lasts 0\n  row 0..0 " + name + "\n  clip 0..0 " + name +
                  "\n  music 0..0 type 0\n")
        << row.text;
  }
}

TEST(CutRow, WithoutAClassIsPlainAndOpensNoMusic) {
  // A number is no class, whatever it says. The clip's class, which nothing has set
  // here, starts at 0.
  for (const char* const member : {"", "\"script_class\": 2,", "\"script_class\": null,",
                                   "\"script_class\": [\"chapter\"],"}) {
    EXPECT_EQ(showItems("{" + std::string(member) + "\"start_time\": 5, \"end_time\": 9}"),
              "script \"\", lasts -1\n"
              "  row 5..4 plain\n"
              "  clip 5..9 plain\n"
              "  music 0..4 type 0\n")
        << member;
  }
}

TEST(CutRow, TakesItsTextsAndGivesSomeToTheClip) {
  EXPECT_EQ(showItems(R"({"title": "t", "subtitle": "s", "description": "d", "file_name": "f"})"),
            "script \"\", lasts 0\n"
            "  row 0..0 plain, title \"t\", subtitle \"s\", description \"d\"\n"
            "  clip 0..0 plain, title \"t\", subtitle \"s\", file \"f\"\n"
            "  music 0..0 type 0\n");
}

TEST(CutRow, PassesOverATextThatIsNone) {
  for (const char* const value : {"1", "null", "[\"t\"]", "{\"t\":\"t\"}", "false"}) {
    const std::string v = value;
    EXPECT_EQ(showItems("{\"title\":" + v + ",\"subtitle\":" + v + ",\"description\":" + v +
                        ",\"file_name\":" + v + "}"),
              showItems("{}"))
        << value;
  }
}

TEST(CutRow, DoesNotReadTheMembersOfAnotherFormOrPlace) {
  EXPECT_EQ(showItems(R"({"start": 1, "end": 2, "Start_time": 3, "music": "x", "fileName": "f",
                          "start_time ": 4, "overall_description": "o", "script": [{}]})"),
            showItems("{}"));
}

TEST(CutRow, IsBlankForAnItemThatIsNoObject) {
  const std::string blank = showItems("{}, {\"end_time\": 3}");
  for (const char* const item : {"null", "true", "12", "\"script_class\"", "[]",
                                 "[{\"end_time\": 7, \"script_class\": \"chapter\"}]"}) {
    EXPECT_EQ(showItems(std::string(item) + ", {\"end_time\": 3}"), blank) << item;
  }
}

TEST(CutMusic, IsOneSectionForAScriptWithoutChapters) {
  EXPECT_EQ(showCut(R"([{"overall_description": "calm", "music": "loud", "script": [
                        {"script_class": "frame", "end_time": 4},
                        {"script_class": "x", "start_time": 0, "end_time": 6}]}])"),
            "script \"\", lasts 10\n"
            "  row 0..4 frame\n"
            "  clip 0..4 frame\n"
            "  row 4..10 plain\n"
            "  clip 0..6 plain\n"
            "  music 0..10 type 1, description \"calm\"\n");
}

TEST(CutMusic, IsNotStretchedByTitleRows) {
  EXPECT_EQ(showItems(R"({"script_class": "title", "start_time": 0, "end_time": 3},
                         {"start_time": 0, "end_time": 4},
                         {"script_class": "title", "start_time": 0, "end_time": 5})"),
            "script \"\", lasts 12\n"
            "  row 0..3 title\n"
            "  clip 0..3 title\n"
            "  row 3..7 plain\n"
            "  clip 0..4 plain\n"
            "  row 7..12 title\n"
            "  clip 0..5 title\n"
            "  music 0..7 type 0\n");
  EXPECT_EQ(showItems(R"({"script_class": "title", "start_time": 0, "end_time": 3})"),
            "script \"\", lasts 3\n"
            "  row 0..3 title\n"
            "  clip 0..3 title\n"
            "  music 0..0 type 0\n");
}

TEST(CutMusic, HasASectionForEachChapter) {
  EXPECT_EQ(showItems(R"({"script_class": "chapter", "start_time": 0, "end_time": 10,
                          "description": "one"},
                         {"start_time": 0, "end_time": 5, "description": "not the music's"},
                         {"script_class": "chapter", "start_time": 2, "end_time": 10,
                          "description": "two"},
                         {"script_class": "frame", "start_time": 0, "end_time": 3})"),
            "script \"\", lasts 24\n"
            "  row 0..10 chapter, description \"one\"\n"
            "  clip 0..10 chapter\n"
            "  row 10..15 plain, description \"not the music's\"\n"
            "  clip 0..5 plain\n"
            "  row 17..23 chapter, description \"two\"\n"
            "  clip 2..10 chapter\n"
            "  row 21..24 frame\n"
            "  clip 0..3 frame\n"
            "  music 0..15 type 0, description \"one\"\n"
            "  music 17..24 type 0, description \"two\"\n");
}

TEST(CutMusic, StartsWithTheFirstChapterAndNotBefore) {
  EXPECT_EQ(showItems(R"({"start_time": 0, "end_time": 10},
                         {"script_class": "chapter", "start_time": 0, "end_time": 7})"),
            "script \"\", lasts 17\n"
            "  row 0..10 plain\n"
            "  clip 0..10 plain\n"
            "  row 10..17 chapter\n"
            "  clip 0..7 chapter\n"
            "  music 10..17 type 0\n");
}

TEST(CutMusic, OfAChapterBeforeAnotherEndsWithItsLastRowThatIsNoTitle) {
  EXPECT_EQ(showItems(R"({"script_class": "chapter", "start_time": 0, "end_time": 10},
                         {"script_class": "title", "start_time": 0, "end_time": 100},
                         {"script_class": "chapter", "start_time": 0, "end_time": 1},
                         {"script_class": "title", "start_time": 0, "end_time": 1000})"),
            "script \"\", lasts 1111\n"
            "  row 0..10 chapter\n"
            "  clip 0..10 chapter\n"
            "  row 10..110 title\n"
            "  clip 0..100 title\n"
            "  row 110..111 chapter\n"
            "  clip 0..1 chapter\n"
            "  row 111..1111 title\n"
            "  clip 0..1000 title\n"
            "  music 0..10 type 0\n"
            "  music 110..111 type 0\n");
}

TEST(CutMusic, OfAChapterWithoutAStartStartsAtZero) {
  EXPECT_EQ(showItems(R"({"start_time": 0, "end_time": 10},
                         {"script_class": "chapter", "end_time": 5})"),
            "script \"\", lasts 25\n"
            "  row 0..10 plain\n"
            "  clip 0..10 plain\n"
            "  row 0..15 chapter\n"
            "  clip 0..5 chapter\n"
            "  music 0..15 type 0\n");
}

TEST(CutMusic, OfAChapterWithoutADescriptionHasNone) {
  EXPECT_EQ(showCut(R"([{"overall_description": "of the script", "script": [
                        {"script_class": "chapter"},
                        {"description": "of a row", "start_time": 4}]}])"),
            "script \"\", lasts -4\n"
            "  row 0..0 chapter\n"
            "  clip 0..0 chapter\n"
            "  row 4..0 plain, description \"of a row\"\n"
            "  clip 4..0 plain\n"
            "  music 0..0 type 0\n")
      << "the script's description is for a script without chapters alone";
}

TEST(CutMusic, OfAChapterWithoutRowsBehindItEndsWithTheChapter) {
  EXPECT_EQ(showItems(R"({"script_class": "chapter", "start_time": 0, "end_time": 10},
                         {"script_class": "chapter"})"),
            "script \"\", lasts 10\n"
            "  row 0..10 chapter\n"
            "  clip 0..10 chapter\n"
            "  row 0..0 chapter\n"
            "  clip 0..0 chapter\n"
            "  music 0..10 type 0\n"
            "  music 0..0 type 0\n");
}

TEST(CutMusic, HasTheTypeOfTheScriptInAllSections) {
  const std::string chapters =
      R"("script": [{"script_class": "chapter"}, {"script_class": "chapter"}])";
  const auto types = [](const std::string& script) {
    const Held<ZOL::IZolCutScripts> scripts(createCutScripts(("[{" + script + "}]").c_str()));
    const Held<ZOL::IZolMusicInfoList> music(createIZolMusicInfoList());
    scripts->getMusicInfoList(0, music.get());
    std::string text;
    for (long long i = 0; i < music->size(); ++i) {
      text += std::to_string(music->at(i)->musicType()) + " ";
    }
    return text;
  };
  EXPECT_EQ(types("\"music\": \"t2m\"," + chapters), "0 0 ");
  EXPECT_EQ(types("\"music\": \"abc\"," + chapters), "1 1 ");
  EXPECT_EQ(types("\"music\": \"\"," + chapters), "1 1 ");
  EXPECT_EQ(types("\"music\": \"T2M\"," + chapters), "1 1 ");
  EXPECT_EQ(types("\"music\": \"t2m \"," + chapters), "1 1 ");
  EXPECT_EQ(types("\"music\": 1," + chapters), "0 0 ");
  EXPECT_EQ(types("\"music\": [\"abc\"]," + chapters), "0 0 ");
  EXPECT_EQ(types(chapters), "0 0 ");
  EXPECT_EQ(types(chapters + ", \"music\": \"abc\""), "1 1 ") << "behind the items as well";
  EXPECT_EQ(types("\"music\": \"abc\", \"script\": [{}]"), "1 ");
  EXPECT_EQ(types("\"music\": \"t2m\", \"script\": [{}]"), "0 ");
}

TEST(CutMusic, TakesAnOverallDescriptionThatIsAText) {
  const auto music = [](const std::string& member) {
    const Held<ZOL::IZolCutScripts> scripts(
        createCutScripts(("[{\"script\": [{}]" + member + "}]").c_str()));
    const Held<ZOL::IZolMusicInfoList> sections(createIZolMusicInfoList());
    scripts->getMusicInfoList(0, sections.get());
    return show(*sections);
  };
  EXPECT_EQ(music(", \"overall_description\": \"calm\""),
            "music 0..0 type 0, description \"calm\"\n");
  EXPECT_EQ(music(", \"overall_description\": 5"), "music 0..0 type 0\n");
  EXPECT_EQ(music(", \"description\": \"calm\""), "music 0..0 type 0\n");
}

TEST(CutMusic, NeverHasANote) {
  const std::string shown =
      showCut(R"([{"note": "a", "script": [{"script_class": "chapter", "note": "b"}]},
                  {"note": "c", "script": [{"note": "d"}]}])");
  EXPECT_EQ(shown.find("note"), std::string::npos) << shown;
}

TEST(CutMusic, StartsAnewInEachScript) {
  const std::string text = R"([
    {"music": "x", "script": [{"script_class": "chapter", "start_time": 0, "end_time": 9}]},
    {"script": [{"start_time": 0, "end_time": 4}]}])";
  EXPECT_EQ(showCut(text),
            "script \"\", lasts 9\n"
            "  row 0..9 chapter\n"
            "  clip 0..9 chapter\n"
            "  music 0..9 type 1\n"
            "script \"\", lasts 4\n"
            "  row 0..4 plain\n"
            "  clip 0..4 plain\n"
            "  music 0..4 type 0\n");
}

TEST(CutTexts, AreNotThereWithoutAnArrayAndEmptyWithAnEmptyOne) {
  EXPECT_EQ(showClip("{}"), "clip 0..0 plain");
  EXPECT_EQ(showClip(R"({"text": [], "highlight": []})"),
            "clip 0..0 plain, texts [], highlights []");
  EXPECT_EQ(showClip(R"({"text": {}, "highlight": "a"})"), "clip 0..0 plain");
}

TEST(CutTexts, KeepTheirTimesAndThoseOfTheirBroll) {
  EXPECT_EQ(showItems(R"({"end_time": 1000},
                         {"text": [{"start_time": 1, "end_time": 2,
                                    "broll": {"file_name": "b", "start_time": 3, "end_time": 4}},
                                   {"end_time": -9223372036854775808}]})"),
            "script \"\", lasts 1000\n"
            "  row 0..1000 plain\n"
            "  clip 0..1000 plain\n"
            "  row 0..0 plain\n"
            "  clip 0..0 plain, texts [1..2 over \"b\" from 3..4, 0..-9223372036854775808]\n"
            "  music 0..0 type 0\n")
      << "no offset moves them";
}

TEST(CutTexts, HaveNoTextWhateverTheReplySays) {
  // On purpose: "text" is looked at only when it is an integer, and that has no text.
  for (const char* const text : {"\"hello\"", "\"\"", "12", "0", "-9223372036854775808", "1.5",
                                 "null", "[\"hello\"]", "{\"text\": \"hello\"}"}) {
    EXPECT_EQ(showClip("{\"text\": [{\"start_time\": 3, \"text\": " + std::string(text) + "}]}"),
              "clip 0..0 plain, texts [3..0]")
        << text;
  }
}

TEST(CutTexts, HaveABrollOnlyWithAFileName) {
  EXPECT_EQ(showClip(R"({"text": [{"broll": {"file_name": "b"}},
                                  {"broll": {"start_time": 1, "end_time": 2}},
                                  {"broll": {"file_name": ""}},
                                  {"broll": {"file_name": 5, "start_time": "1", "end_time": 2.0}},
                                  {"broll": [{"file_name": "b"}]},
                                  {"broll": "b"},
                                  {"file_name": "b"},
                                  {"broll": {}}]})"),
            "clip 0..0 plain, texts [0..0 over \"b\", 0..0 from 1..2, 0..0, 0..0, 0..0, 0..0, "
            "0..0, 0..0]");
}

TEST(CutTexts, HaveAnItemForEveryElement) {
  EXPECT_EQ(showClip(R"({"text": [{}, null, 12, "text", [], [{"start_time": 1}], true,
                                  {"start_time": 1.5, "end_time": "2"}, {"end_time": 2}]})"),
            "clip 0..0 plain, texts [0..0, 0..0, 0..0, 0..0, 0..0, 0..0, 0..0, 0..0, 0..2]");
}

TEST(CutHighlights, KeepTheirTimes) {
  EXPECT_EQ(showClip(R"({"start_time": 7, "end_time": 9, "highlight": [
                         {"start_time": 1, "end_time": 2, "class": "emotion"},
                         {"start_time": 9223372036854775807, "end_time": -9223372036854775808}]})"),
            "clip 7..9 plain, highlights [1..2 type 0, "
            "9223372036854775807..-9223372036854775808 type 0]");
}

TEST(CutHighlights, HaveTypeZeroForEveryClassThatIsAText) {
  // On purpose: "class" is looked at only when it is an integer.
  for (const char* const name : {"\"emotion\"", "\"other\"", "\"\"", "\"1\"", "null", "1.5", "true",
                                 "[1]", "{}", "9223372036854775808"}) {
    EXPECT_EQ(showClip("{\"highlight\": [{\"start_time\": 1, \"end_time\": 2, \"class\": " +
                       std::string(name) + "}]}"),
              "clip 0..0 plain, highlights [1..2 type 0]")
        << name;
  }
}

TEST(CutHighlights, HaveTypeOneForAClassThatIsAnInteger) {
  // It is not the text "emotion", which alone would give 0.
  for (const char* const name : {"0", "1", "-5", "9223372036854775807"}) {
    EXPECT_EQ(showClip("{\"highlight\": [{\"class\": " + std::string(name) + "}]}"),
              "clip 0..0 plain, highlights [0..0 type 1]")
        << name;
  }
}

TEST(CutHighlights, HaveAnItemForEveryElement) {
  EXPECT_EQ(showClip(R"({"highlight": [{}, null, 12, "class", [], [{"class": 1}], true,
                                       {"start_time": 1.5}, {"end_time": 2}]})"),
            "clip 0..0 plain, highlights [0..0 type 0, 0..0 type 0, 0..0 type 0, 0..0 type 0, "
            "0..0 type 0, 0..0 type 0, 0..0 type 0, 0..0 type 0, 0..2 type 0]");
}

TEST(CutReply, IsReadAsAWhole) {
  EXPECT_EQ(showCut(R"([{
    "title": "Harbour", "music": "t2m", "overall_description": "not read here",
    "script": [
      {"script_class": "title", "start_time": 0, "end_time": 4000, "title": "Harbour",
       "subtitle": "One morning", "description": "Still water", "file_name": "still.mp4"},
      {"script_class": "chapter", "start_time": 0, "end_time": 3000, "title": "Before the sun",
       "description": "A few piano notes", "file_name": "pier.mp4"},
      {"script_class": "plain", "start_time": 700, "end_time": 11700, "title": "Nets",
       "file_name": "nets.mp4",
       "text": [{"start_time": 1500, "end_time": 6400, "text": "Folded by hand.",
                 "broll": {"file_name": "hands.mp4", "start_time": 0, "end_time": 4900}},
                {"start_time": 6500, "end_time": 6600}],
       "highlight": [{"start_time": 2000, "end_time": 3600, "class": "action"},
                     {"start_time": 7400, "end_time": 9800, "class": "emotion"}]},
      {"script_class": "chapter", "start_time": 0, "end_time": 3000, "title": "Out",
       "description": "The drums"},
      {"script_class": "title", "start_time": 0, "end_time": 5000, "title": "Thanks"}]}])"),
            R"(script "Harbour", lasts 25300
  row 0..4000 title, title "Harbour", subtitle "One morning", description "Still water"
  clip 0..4000 title, title "Harbour", subtitle "One morning", file "still.mp4"
  row 4000..7000 chapter, title "Before the sun", description "A few piano notes"
  clip 0..3000 chapter, title "Before the sun", file "pier.mp4"
  row 7700..18000 plain, title "Nets"
  clip 700..11700 plain, title "Nets", file "nets.mp4", )"
            R"(texts [1500..6400 over "hands.mp4" from 0..4900, 6500..6600], )"
            R"(highlights [2000..3600 type 0, 7400..9800 type 0]
  row 17300..20300 chapter, title "Out", description "The drums"
  clip 0..3000 chapter, title "Out"
  row 20300..25300 title, title "Thanks"
  clip 0..5000 title, title "Thanks"
  music 4000..18000 type 0, description "A few piano notes"
  music 17300..20300 type 0, description "The drums"
)");
}

TEST(CutReply, IsNotPointedIntoAfterwards) {
  std::string text = R"([{"title": "a", "script": [{"title": "b", "file_name": "c"}]}])";
  const Held<ZOL::IZolCutScripts> scripts(createCutScripts(text.c_str()));
  text.assign(text.size(), '#');
  EXPECT_EQ(show(*scripts),
            "script \"a\", lasts 0\n"
            "  row 0..0 plain, title \"b\"\n"
            "  clip 0..0 plain, title \"b\", file \"c\"\n"
            "  music 0..0 type 0\n");
}

}  // namespace
