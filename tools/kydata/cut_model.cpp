#include "cut_model.h"

#include <algorithm>

#include "input.h"
#include "refused_text.h"

namespace kydata {

namespace {

using ZOL::IZolSmartCutClipInfo;

/// row start + (time - clip start), kept within the row.
Span onTimeline(const CutRow& row, const Span& source) {
  const auto [low, high] = std::minmax(row.timeline.start, row.timeline.end);
  const auto place = [&row, low = low, high = high](long long time) {
    return std::clamp(plus(row.timeline.start, minus(time, row.source.start)), low, high);
  };
  return {place(source.start), place(source.end)};
}

CutRow rowOf(ZOL::IZolStoryboardInfo* row, IZolSmartCutClipInfo* clip) {
  return {row->scriptClass(),          row->title(),     row->subtitle(),
          row->description(),          clip->fileName(), {row->start(), row->end()},
          {clip->start(), clip->end()}};
}

void addTexts(IZolSmartCutClipInfo* clip, CutScript& script) {
  ZOL::IZolTextInfoList* texts = clip->textInfoList();
  const CutRow& row = script.rows.back();
  for (long long i = 0; texts && i < texts->size(); ++i) {
    ZOL::IZolTextInfo* text = texts->at(i);
    const Span source{text->start(), text->end()};
    script.texts.push_back({{script.rows.size(), source, onTimeline(row, source)},
                            text->text(),
                            text->hasBroll(),
                            text->brollFileName(),
                            {text->brollStart(), text->brollEnd()}});
  }
}

void addHighlights(IZolSmartCutClipInfo* clip, CutScript& script) {
  ZOL::IZolHighlightInfoList* highlights = clip->highlightInfoList();
  const CutRow& row = script.rows.back();
  for (long long i = 0; highlights && i < highlights->size(); ++i) {
    ZOL::IZolHighlightInfo* highlight = highlights->at(i);
    const Span source{highlight->trimIn(), highlight->trimOut()};
    script.highlights.push_back(
        {{script.rows.size(), source, onTimeline(row, source)}, highlight->hlType()});
  }
}

void addMusic(ZOL::IZolCutScripts* scripts, CutScript& script) {
  Owned<ZOL::IZolMusicInfoList> sections(createIZolMusicInfoList());
  scripts->getMusicInfoList(script.number - 1, sections.get());
  for (long long i = 0; i < sections->size(); ++i) {
    ZOL::IZolMusicInfo* section = sections->at(i);
    script.music.push_back({section->musicType(),
                            {section->start(), section->end()},
                            section->description(),
                            section->note()});
  }
}

}  // namespace

Owned<ZOL::IZolCutScripts> readCutReply(const std::string& text) {
  Owned<ZOL::IZolCutScripts> scripts(createCutScripts(text.c_str()));
  if (scripts) return scripts;
  if (isJsonObject(text)) throw Fault("is a JSON object, and a cut reply is an array of scripts");
  throw Fault(whyNoJson(text, '['));
}

void requireScript(ZOL::IZolCutScripts* scripts, int number) {
  const long long count = scripts->scriptCount();
  if (number <= count) return;
  throw Fault("has no script " + std::to_string(number) + "; it holds " + std::to_string(count));
}

CutScript scriptOf(ZOL::IZolCutScripts* scripts, int number) {
  requireScript(scripts, number);
  const int index = number - 1;
  CutScript script{number,
                   scripts->scriptCount(),
                   scripts->scriptTitle(index),
                   scripts->scriptDuration(index),
                   {},
                   {},
                   {},
                   {}};
  ZOL::IZolStoryboardInfoList* rows = scripts->storyboardInfoList(index);
  ZOL::IZolSmartCutClipInfoList* clips = scripts->smartCutClipInfoList(index);
  for (long long i = 0; i < rows->size(); ++i) {
    script.rows.push_back(rowOf(rows->at(i), clips->at(i)));
    addTexts(clips->at(i), script);
    addHighlights(clips->at(i), script);
  }
  addMusic(scripts, script);
  return script;
}

const char* scriptClassName(int scriptClass) {
  switch (scriptClass) {
    case 0:
      return "plain";
    case 1:
      return "title";
    case 2:
      return "chapter";
    case 3:
      return "frame";
    default:
      return "unknown";
  }
}

const char* musicTypeName(int type) { return type == 0 ? "t2m" : "other"; }

const char* highlightTypeName(int type) { return type == 0 ? "emotion" : "other"; }

std::string typeText(int type, const char* name) {
  return std::to_string(type) + " (" + name + ")";
}

}  // namespace kydata
