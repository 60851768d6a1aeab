// Generated replies: what the library makes of them, and what a second reading says
// that works the other way round. It goes by what each row and section is, and not by
// what runs along while rows are read.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cutscript/script_state.h"
#include "support/json_tree.h"

namespace {

// Times wrap around.
class Time {
 public:
  Time(long long time = 0) : bits_(static_cast<unsigned long long>(time)) {}
  Time operator+(Time other) const { return Time(bits_ + other.bits_); }
  Time operator-(Time other) const { return Time(bits_ - other.bits_); }
  long long value() const { return static_cast<long long>(bits_); }

 private:
  explicit Time(unsigned long long bits) : bits_(bits) {}
  unsigned long long bits_;
};

bool isArray(const Json* value) { return value && value->kind == Json::Kind::array; }

long long integerOr0(const Json& object, const char* name) {
  return integerOf(memberOf(object, name)).value_or(0);
}

std::string textOrNone(const Json& object, const char* name) {
  return textOf(memberOf(object, name)).value_or("");
}

int classOf(const Json& item) {
  const std::string name = textOrNone(item, "script_class");
  return name == "title" ? 1 : name == "chapter" ? 2 : name == "frame" ? 3 : 0;
}

TextState textState(const Json& item) {
  TextState text;
  text.start = integerOr0(item, "start_time");
  text.end = integerOr0(item, "end_time");
  if (const Json* const broll = memberOf(item, "broll")) {
    text.brollFileName = textOrNone(*broll, "file_name");
    text.brollStart = integerOr0(*broll, "start_time");
    text.brollEnd = integerOr0(*broll, "end_time");
  }
  text.hasBroll = !text.brollFileName.empty();
  return text;
}

HighlightState highlightState(const Json& item) {
  return {integerOf(memberOf(item, "class")) ? 1 : 0, integerOr0(item, "start_time"),
          integerOr0(item, "end_time")};
}

ClipState clipState(const Json& item) {
  ClipState clip;
  clip.scriptClass = classOf(item);
  clip.title = textOrNone(item, "title");
  clip.subtitle = textOrNone(item, "subtitle");
  clip.fileName = textOrNone(item, "file_name");
  clip.start = integerOr0(item, "start_time");
  clip.end = integerOr0(item, "end_time");
  const Json* const texts = memberOf(item, "text");
  if (isArray(texts)) {
    clip.texts.emplace();
    for (const Json& text : texts->values) clip.texts->push_back(textState(text));
  }
  const Json* const highlights = memberOf(item, "highlight");
  if (isArray(highlights)) {
    clip.highlights.emplace();
    for (const Json& highlight : highlights->values) {
      clip.highlights->push_back(highlightState(highlight));
    }
  }
  return clip;
}

// The rows in front of one are as long as what stands in front of it on the timeline.
Time lengthOf(const std::vector<RowState>& rows) {
  Time length;
  for (const RowState& row : rows) length = length + Time(row.end) - Time(row.start);
  return length;
}

RowState rowState(const Json& item, const std::vector<RowState>& before) {
  RowState row;
  row.scriptClass = classOf(item);
  row.title = textOrNone(item, "title");
  row.subtitle = textOrNone(item, "subtitle");
  row.description = textOrNone(item, "description");
  const Time offset = lengthOf(before);
  const auto start = integerOf(memberOf(item, "start_time"));
  const auto end = integerOf(memberOf(item, "end_time"));
  if (start) row.start = (offset + Time(*start)).value();
  if (end) row.end = (offset + Time(*end) - Time(start.value_or(0))).value();
  return row;
}

// Where the last row in front of `place` ends that is no title; 0 without one.
long long musicEndAt(const std::vector<RowState>& rows, std::size_t place) {
  while (place-- > 0) {
    if (rows[place].scriptClass != 1) return rows[place].end;
  }
  return 0;
}

std::vector<MusicState> musicStates(const Json& script, const std::vector<RowState>& rows) {
  const auto kind = textOf(memberOf(script, "music"));
  const int type = kind && *kind != "t2m" ? 1 : 0;
  std::vector<MusicState> sections;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].scriptClass != 2) continue;
    std::size_t next = i + 1;
    while (next < rows.size() && rows[next].scriptClass != 2) ++next;
    sections.push_back(
        {type, rows[i].start, musicEndAt(rows, next), rows[i].description, ""});
  }
  if (sections.empty()) {
    sections.push_back({type, 0, musicEndAt(rows, rows.size()),
                        textOrNone(script, "overall_description"), ""});
  }
  return sections;
}

std::vector<ScriptState> scriptStates(const Json& reply) {
  std::vector<ScriptState> states;
  for (const Json& script : reply.values) {
    const Json* const items = memberOf(script, "script");
    if (!isArray(items) || items->values.empty()) continue;
    ScriptState state;
    state.title = textOrNone(script, "title");
    for (const Json& item : items->values) {
      state.rows.push_back(rowState(item, state.rows));
      state.clips.push_back(clipState(item));
    }
    state.duration = lengthOf(state.rows).value();
    state.music = musicStates(script, state.rows);
    states.push_back(state);
  }
  return states;
}

// Replies of all kinds, with times that are small, negative, huge, or no times at all.
class Replies {
 public:
  explicit Replies(unsigned seed) : dice_(seed) {}

  Json reply() {
    Json reply = Json::array();
    for (std::size_t i = 1 + dice_.below(3); i > 0; --i) {
      reply.values.push_back(dice_.one(12) ? anyValue(dice_, 2) : script());
    }
    return reply;
  }

  std::string written(const Json& reply) {
    return dice_.one(2) ? compact(reply) : noisy(reply, dice_);
  }

 private:
  Json script() {
    Json script = Json::object();
    if (dice_.one(2)) maybe(script, "music", dice_.one(2) ? Json::string("t2m") : text());
    if (dice_.one(2)) maybe(script, "title", text());
    if (dice_.one(2)) maybe(script, "overall_description", text());
    Json items = Json::array();
    for (std::size_t i = dice_.below(9); i > 0; --i) items.values.push_back(item());
    maybe(script, "script", items);
    if (dice_.one(4)) maybe(script, "title", text());
    if (dice_.one(4)) maybe(script, "music", text());
    return script;
  }

  Json item() {
    static const std::vector<std::string> classes = {"title", "chapter", "frame", "plain",
                                                     "Chapter", ""};
    if (dice_.one(20)) return anyValue(dice_, 1);
    Json item = Json::object();
    if (!dice_.one(6)) maybe(item, "script_class", Json::string(dice_.from(classes)));
    if (!dice_.one(5)) maybe(item, "start_time", time());
    if (!dice_.one(5)) maybe(item, "end_time", time());
    for (const char* const name : {"title", "subtitle", "description", "file_name"}) {
      if (dice_.one(3)) maybe(item, name, text());
    }
    if (dice_.one(4)) maybe(item, "text", list(&Replies::textItem));
    if (dice_.one(4)) maybe(item, "highlight", list(&Replies::highlightItem));
    if (dice_.one(6)) maybe(item, "start_time", time());
    if (dice_.one(6)) item.with("more", anyValue(dice_, 2));
    return item;
  }

  Json textItem() {
    Json item = Json::object();
    if (dice_.one(2)) maybe(item, "start_time", time());
    if (dice_.one(2)) maybe(item, "end_time", time());
    if (dice_.one(2)) maybe(item, "text", dice_.one(2) ? text() : time());
    if (dice_.one(2)) {
      Json broll = Json::object();
      if (dice_.one(2)) maybe(broll, "file_name", text());
      if (dice_.one(2)) maybe(broll, "start_time", time());
      if (dice_.one(2)) maybe(broll, "end_time", time());
      maybe(item, "broll", broll);
    }
    return item;
  }

  Json highlightItem() {
    Json item = Json::object();
    if (dice_.one(2)) maybe(item, "start_time", time());
    if (dice_.one(2)) maybe(item, "end_time", time());
    if (dice_.one(2)) maybe(item, "class", dice_.one(2) ? Json::string("emotion") : time());
    return item;
  }

  Json list(Json (Replies::*element)()) {
    Json array = Json::array();
    for (std::size_t i = dice_.below(4); i > 0; --i) {
      array.values.push_back(dice_.one(8) ? anyValue(dice_, 1) : (this->*element)());
    }
    return array;
  }

  // The member, or now and then one of any type in its place.
  void maybe(Json& object, const char* name, const Json& value) {
    object.with(name, dice_.one(10) ? anyValue(dice_, 1) : value);
  }

  Json text() {
    static const std::vector<std::string> texts = {
        "",  "a", "two words", "caf\xC3\xA9", "\"q\" \\", "line\nbreak", std::string("cut\0off", 7),
        "a text that is longer than any short place for it"};
    return Json::string(dice_.from(texts));
  }

  Json time() {
    static const std::vector<std::string> huge = {
        "9223372036854775807", "-9223372036854775808", "9223372036854775806", "4611686018427387904",
        "-4611686018427387905", "9223372036854775808", "2147483648",          "-4294967297"};
    static const std::vector<std::string> none = {"1.5", "1e3", "-0.0", "18446744073709551615"};
    if (dice_.one(8)) return Json::number(dice_.from(huge));
    if (dice_.one(16)) return Json::number(dice_.from(none));
    const long long size = static_cast<long long>(dice_.below(10000));
    return Json::number(dice_.one(6) ? -size : size);
  }

  Dice dice_;
};

TEST(CutReply, IsReadAsASecondReadingSays) {
  int scripts = 0;
  int rows = 0;
  int sections = 0;
  for (unsigned seed = 1; seed <= 1500; ++seed) {
    Replies replies(seed);
    const Json reply = replies.reply();
    const std::string text = replies.written(reply);
    const std::vector<ScriptState> expected = scriptStates(reply);
    ASSERT_EQ(showCut(text), show(expected)) << "seed " << seed << ": " << text;
    scripts += static_cast<int>(expected.size());
    for (const ScriptState& script : expected) {
      rows += static_cast<int>(script.rows.size());
      sections += static_cast<int>(script.music.size());
    }
  }
  // The replies say something.
  EXPECT_GT(scripts, 1500);
  EXPECT_GT(rows, 6000);
  EXPECT_GT(sections, 2000);
}

}  // namespace
