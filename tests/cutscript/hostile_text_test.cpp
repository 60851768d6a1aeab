// Texts that mean harm: nested a million levels deep and read on a thread with little
// stack, with numbers that upset parsers, cut off or damaged anywhere.

#include <gtest/gtest.h>

#include <KyDataStructure/cutscript.h>

#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "cutscript/report_state.h"
#include "cutscript/script_state.h"
#include "support/held.h"
#include "support/small_stack.h"
#include "support/zol_text.h"

namespace {

std::string showAnalysis(const std::string& text) {
  try {
    return showReport(text);
  } catch (const std::invalid_argument& error) {
    return error.what();
  } catch (const std::out_of_range& error) {
    return error.what();
  }
}

std::string showStoryboard(const std::string& text) {
  const Held<ZOL::IZolStoryboardInfoList> rows(createIZolStoryboardInfoList());
  const auto buffer = zolString(text);
  if (jsonBufferToStoryboardInfoList(buffer.get(), rows.get()) == 0) return show(*rows);
  return rows->size() == 0 ? "null" : "refused with rows";
}

std::string showHighlight(const std::string& text) {
  const Held<ZOL::IZolHighlightInfo> highlight(createHighlightInfo());
  highlight->setTrimIn(8);
  const std::string before = show(*highlight);
  if (highlight->fromJson(text.c_str()) == 0) return show(*highlight);
  return show(*highlight) == before ? "null" : "refused and changed";
}

// A reader, with texts for it that have an @ where any value may stand, and others
// where a number is read.
struct Reader {
  const char* name;
  std::string (*show)(const std::string& text);  // "null" for a text that is refused
  std::vector<std::string> anywhere;
  std::vector<std::string> numbers;
  std::string whole;
};

const std::vector<Reader> kReaders = {
    {"cut",
     showCut,
     {"@", "[@]", "[{\"script\": @}]", "[{\"script\": [@]}]", "[{\"title\": @, \"script\": [{}]}]",
      "[{\"music\": @, \"overall_description\": @, \"script\": [{}]}]",
      "[{\"script\": [{\"script_class\": @, \"start_time\": @, \"end_time\": @}]}]",
      "[{\"script\": [{\"title\": @, \"subtitle\": @, \"description\": @, \"file_name\": @}]}]",
      "[{\"script\": [{\"text\": @}]}]", "[{\"script\": [{\"text\": [@]}]}]",
      "[{\"script\": [{\"text\": [{\"start_time\": @, \"text\": @, \"broll\": @}]}]}]",
      "[{\"script\": [{\"text\": [{\"broll\": {\"file_name\": @, \"end_time\": @}}]}]}]",
      "[{\"script\": [{\"highlight\": @}]}]", "[{\"script\": [{\"highlight\": [@]}]}]",
      "[{\"script\": [{\"highlight\": [{\"start_time\": @, \"class\": @}]}]}]",
      "[{\"more\": @, \"script\": [{\"more\": @, \"text\": [{\"more\": @}]}]}, @]"},
     {"[{\"script\": [{\"start_time\": @}, {\"end_time\": 5}]}]",
      "[{\"script\": [{\"end_time\": @}, {\"end_time\": 5}]}]",
      "[{\"script\": [{\"text\": [{\"start_time\": @, \"end_time\": @, \"text\": @}]}]}]",
      "[{\"script\": [{\"text\": [{\"broll\": {\"start_time\": @, \"end_time\": @}}]}]}]",
      "[{\"script\": [{\"highlight\": [{\"start_time\": @, \"end_time\": @, \"class\": @}]}]}]"},
     R"([{"title":"a\u00e9\n","music":"t2m","overall_description":"o","script":[
        {"script_class":"chapter","start_time":0,"end_time":10,"title":"t","description":"d"},
        {"start_time":-2,"end_time":9223372036854775807,"file_name":"f","text":[{"start_time":1,
         "text":"x","broll":{"file_name":"b","end_time":3}}],"highlight":[{"class":1}]}]}])"},
    {"report",
     showAnalysis,
     {"@", "{\"a\": @}", "{\"camera\": @, \"stt\": @, \"keywords\": @, \"face_image_map\": @}",
      "{\"camera\": {\"labels\": @, \"scores\": @, \"dimensions\": @}}",
      "{\"camera\": {\"labels\": {\"a\": @}}}", "{\"camera\": {\"labels\": {\"a\": [@, \"-\"]}}}",
      "{\"total\": {\"labels\": {\"1\": [@, \"-\"]}, \"scores\": [@]}}",
      "{\"camera\": {\"dimensions\": [@, {\"score\": @, \"time\": @, \"more\": @}]}}",
      "{\"face_cluster\": @}", "{\"face_cluster\": {\"a\": [\"-\", @]}}",
      "{\"face_cluster\": {\"a\": [\"-\"], \"b\": @}, \"face_image_map\": {\"a\": @, \"b\": @}}",
      "{\"face_cluster\": {\"a\": [\"-\"]}, \"face_image_map\": {\"a\": "
      "{\"width\": 1, \"height\": @, \"base64\": @}}}",
      "{\"stt\": [@, {\"begin_time\": @, \"end_time\": @, \"text\": @}]}",
      "{\"keywords\": [\"a\", @]}"},
     {"{\"stt\": [{\"begin_time\": @, \"end_time\": 2, \"text\": \"a\"}]}",
      "{\"stt\": [{\"begin_time\": 1, \"end_time\": @, \"text\": \"a\"}]}",
      "{\"face_cluster\": {\"a\": [\"-\"]}, \"face_image_map\": {\"a\": "
      "{\"width\": @, \"height\": 1, \"base64\": \"YWJj\"}}}",
      "{\"face_cluster\": {\"a\": [\"-\"]}, \"face_image_map\": {\"a\": "
      "{\"width\": 1, \"height\": @, \"base64\": \"YWJj\"}}}"},
     R"({"keywords":["k"],"face_image_map":{"a":{"width":1,"height":1,"base64":"YWJj\nYQ=="}},
        "stt":[{"begin_time":1,"end_time":2,"text":"t"}],
        "camera":{"labels":{"pan":["0:0:1Z-0:0:2Z"],"\u0041":["0:1:4Z-1193:2:48Z"]},"scores":[1]},
        "total":{"labels":{"90":["0:0:1Z-0:0:2Z"]},"dimensions":[{"score":1,"time":"-"}]},
        "face_cluster":{"b":["0:0:3Z-0:0:4Z"],"a":["0:0:1Z-0:0:2Z"]}})"},
    {"storyboard",
     showStoryboard,
     {"@", "{\"a\": @, \"storyboard_infos\": []}", "{\"storyboard_infos\": @}",
      "{\"storyboard_infos\": [@]}",
      "{\"storyboard_infos\": [{\"script_class\": @, \"start\": @, \"title\": @}]}",
      "{\"storyboard_infos\": [{\"more\": @, \"script_class\": 1, \"start\": 2, \"end\": 3, "
      "\"title\": \"t\", \"subtitle\": \"s\", \"description\": \"d\"}]}"},
     {"{\"storyboard_infos\": [{\"script_class\": @, \"start\": 2, \"end\": 3, "
      "\"title\": \"t\", \"subtitle\": \"s\", \"description\": \"d\"}]}",
      "{\"storyboard_infos\": [{\"script_class\": 1, \"start\": @, \"end\": 3, "
      "\"title\": \"t\", \"subtitle\": \"s\", \"description\": \"d\"}]}",
      "{\"storyboard_infos\": [{\"script_class\": 1, \"start\": 2, \"end\": @, "
      "\"title\": \"t\", \"subtitle\": \"s\", \"description\": \"d\"}]}"},
     R"({"storyboard_infos": [{"script_class": 1, "start": 2, "end": -3, "title": "t\"\u00e9",
         "subtitle": "s", "description": "d"}, {"script_class": 77, "start": 0, "end": 0,
         "title": "", "subtitle": "", "description": ""}]})"},
    {"highlight",
     showHighlight,
     {"@", "{\"a\": @, \"trimIn\": 5}", "{\"HLType\": @, \"trimIn\": @, \"trimOut\": @}"},
     {"{\"HLType\": @, \"trimOut\": 5}", "{\"HLType\": 5, \"trimIn\": @}",
      "{\"HLType\": 5, \"trimOut\": @}"},
     R"({"HLType": 1, "trimIn": -22, "trimOut": 9223372036854775807, "a": ["\u00e9", {}]})"},
};

void PrintTo(const Reader& reader, std::ostream* out) { *out << reader.name; }

class HostileText : public testing::TestWithParam<Reader> {};

std::string nameOf(const testing::TestParamInfo<Reader>& reader) { return reader.param.name; }
INSTANTIATE_TEST_SUITE_P(Of, HostileText, testing::ValuesIn(kReaders), nameOf);

std::string filled(const std::string& text, const std::string& value) {
  std::string whole;
  for (const char c : text) whole += c == '@' ? value : std::string(1, c);
  return whole;
}

std::string arrays(std::size_t levels) { return times(levels, "[") + times(levels, "]"); }

std::string objects(std::size_t levels) {
  return times(levels, "{\"a\":") + "[]" + times(levels, "}");
}

TEST_P(HostileText, MayBeNestedAMillionLevelsAnywhere) {
  for (auto* const nest : {arrays, objects}) {
    const std::string deep = nest(kManyLevels);
    for (const std::string& text : GetParam().anywhere) {
      std::string found;
      onSmallStack([&] { found = GetParam().show(filled(text, deep)); });
      EXPECT_EQ(found, GetParam().show(filled(text, nest(2)))) << text;
    }
  }
}

TEST_P(HostileText, IsRefusedWhenItsMillionLevelsStayOpen) {
  for (const char* const opening : {"[", "[1,{\"a\":/**/"}) {
    const std::string deep = times(kManyLevels / 2, opening) + times(kManyLevels / 2, "[");
    for (const std::string& text : GetParam().anywhere) {
      const std::string open = filled(text.substr(0, text.find('@') + 1), deep);
      std::string found;
      onSmallStack([&] { found = GetParam().show(open); });
      EXPECT_EQ(found, "null") << text << " with " << opening;
    }
  }
}

TEST_P(HostileText, HasNoNumberWhereItDoesNotFit) {
  for (const char* const number :
       {"1.0000000000e-2147483639", "1.7976931348623159e308", "-1.7976931348623159e308",
        "1234567890123456789012345678901234567890", "-1234567890123456789012345678901234567890",
        "9999999999999999999999999999999999999999", "9223372036854775808", "18446744073709551616",
        "-9223372036854775809", "0.00000000000000000000000000000000000000000000001", "1e-99999"}) {
    for (const std::string& text : GetParam().numbers) {
      std::string found;
      onSmallStack([&] { found = GetParam().show(filled(text, number)); });
      EXPECT_EQ(found, GetParam().show(filled(text, "null"))) << text << " with " << number;
      EXPECT_NE(found, "null") << text << " with " << number;
      EXPECT_NE(found, GetParam().show(filled(text, "7"))) << "a number is read here";
    }
  }
}

TEST_P(HostileText, IsRefusedCutOffAnywhere) {
  const std::string& whole = GetParam().whole;
  EXPECT_NE(GetParam().show(whole), "null");
  for (std::size_t size = 0; size < whole.size(); ++size) {
    // In a place of its own, so that a step beyond it is seen.
    const std::string part = whole.substr(0, size);
    ASSERT_EQ(GetParam().show(part), "null") << part;
  }
}

TEST_P(HostileText, MayBeDamagedAnywhere) {
  // Whatever comes of it, the same does each time, and the reader lives on.
  const std::string& whole = GetParam().whole;
  const std::string before = GetParam().show(whole);
  int taken = 0;
  for (std::size_t place = 0; place < whole.size(); ++place) {
    for (const char byte : std::string("\"\\{}[],:/*-09eu \xFF\x01\0", 19)) {
      std::string damaged = whole;
      damaged[place] = byte;
      const std::string once = GetParam().show(damaged);
      ASSERT_EQ(GetParam().show(damaged), once) << damaged;
      if (once != "null") ++taken;
      damaged = whole;
      damaged.insert(place, 1, byte);
      const std::string more = GetParam().show(damaged);
      ASSERT_EQ(GetParam().show(damaged), more) << damaged;
    }
    std::string shorter = whole;
    shorter.erase(place, 1 + place % 3);
    const std::string less = GetParam().show(shorter);
    ASSERT_EQ(GetParam().show(shorter), less) << shorter;
  }
  EXPECT_GT(taken, 0);
  EXPECT_EQ(GetParam().show(whole), before);
}

}  // namespace
