// The reader of a cut service's reply:
//
//   [{"title": "Weekend", "music": "t2m", "overall_description": "...",
//     "script": [{"script_class": "chapter", "start_time": 0, "end_time": 5000,
//                 "title": "...", "subtitle": "...", "description": "...",
//                 "file_name": "a.mp4",
//                 "text": [{"start_time": 0, "end_time": 900, "text": "...",
//                           "broll": {"file_name": "b.mp4", "start_time": 0,
//                                     "end_time": 900}}],
//                 "highlight": [{"start_time": 0, "end_time": 900,
//                                "class": "emotion"}]}]}]
//
// What is missing or of another type is passed over. An element of "script", "text"
// or "highlight" that is no object is taken as one without members.

#include "cutscript/cut_scripts.h"
#include "cutscript/records.h"
#include "cutscript/wrap.h"
#include "json/document.h"

namespace ZOL {
namespace {

using json::Value;

// {"start_time": 0, "end_time": 900, "text": ..., "broll": {...}}
Ref<ZolTextInfo> readText(Value item) {
  enum : std::size_t { kStartTime, kEndTime, kText, kBroll };
  static constexpr auto kMembers = json::namesOf("start_time", "end_time", "text", "broll");
  enum : std::size_t { kBrollFileName, kBrollStartTime, kBrollEndTime };
  static constexpr auto kBrollMembers = json::namesOf("file_name", "start_time", "end_time");

  const auto in = json::sortIn(kMembers, item);
  Ref<ZolTextInfo> text = makeRef<ZolTextInfo>();
  if (const auto start = in[kStartTime].integer64()) text->setStart(*start);
  if (const auto end = in[kEndTime].integer64()) text->setEnd(*end);
  // On purpose "text" must be an integer, and an integer has no text: whatever stands
  // here, the item's text is empty.
  if (in[kText].integer64()) text->setText(in[kText].text());
  const auto broll = json::sortIn(kBrollMembers, in[kBroll]);
  if (const char* const fileName = broll[kBrollFileName].text()) text->setBrollFileName(fileName);
  if (const auto start = broll[kBrollStartTime].integer64()) text->setBrollStart(*start);
  if (const auto end = broll[kBrollEndTime].integer64()) text->setBrollEnd(*end);
  return text;
}

// {"start_time": 0, "end_time": 900, "class": ...}
Ref<ZolHighlightInfo> readHighlight(Value item) {
  enum : std::size_t { kStartTime, kEndTime, kClass };
  static constexpr auto kMembers = json::namesOf("start_time", "end_time", "class");

  const auto in = json::sortIn(kMembers, item);
  Ref<ZolHighlightInfo> highlight = makeRef<ZolHighlightInfo>();
  if (const auto start = in[kStartTime].integer64()) highlight->setTrimIn(*start);
  if (const auto end = in[kEndTime].integer64()) highlight->setTrimOut(*end);
  // On purpose "class" must be an integer to be looked at, and an integer is never the
  // text "emotion" that would make it 0: a text leaves 0, a number gives 1.
  if (in[kClass].integer64()) highlight->setHLType(1);
  return highlight;
}

// One script, item after item, with what runs along: where the next row goes, and the
// music.
class ScriptReader {
 public:
  // {"title": ..., "music": ..., "overall_description": ..., "script": [...]}; nothing
  // is appended for a script without items.
  static void read(Value script, ZolCutScripts& out) {
    enum : std::size_t { kScript, kMusic, kTitle, kOverallDescription };
    static constexpr auto kMembers =
        json::namesOf("script", "music", "title", "overall_description");

    const auto in = json::sortIn(kMembers, script);
    if (!in[kScript].isArray() || in[kScript].size() == 0) return;
    const char* const music = in[kMusic].text();
    ScriptReader reader(music && !sameText(music, "t2m") ? 1 : 0);
    for (const Value item : in[kScript].elements()) reader.readItem(item);
    reader.closeMusic();
    if (reader.entry_.music->size() == 0) {
      reader.addWholeMusic(in[kOverallDescription].text());
    }
    if (const char* const title = in[kTitle].text()) reader.entry_.title = title;
    out.append(std::move(reader.entry_));
  }

 private:
  explicit ScriptReader(int musicType) : musicType_(musicType) {
    entry_.storyboards = Ref<IZolStoryboardInfoList>::adopt(createIZolStoryboardInfoList());
    entry_.clips = Ref<IZolSmartCutClipInfoList>::adopt(createIZolSmartCutClipInfoList());
    entry_.music = Ref<IZolMusicInfoList>::adopt(createIZolMusicInfoList());
  }

  void readItem(Value item) {
    enum : std::size_t {
      kScriptClass,
      kStartTime,
      kEndTime,
      kTitle,
      kSubtitle,
      kDescription,
      kFileName,
      kText,
      kHighlight
    };
    static constexpr auto kMembers =
        json::namesOf("script_class", "start_time", "end_time", "title", "subtitle", "description",
                      "file_name", "text", "highlight");

    const auto in = json::sortIn(kMembers, item);
    const Ref<ZolSmartCutClipInfo> clip = makeRef<ZolSmartCutClipInfo>();
    const Ref<ZolStoryboardInfo> row = makeRef<ZolStoryboardInfo>();
    if (const char* const name = in[kScriptClass].text()) readClass(name, *row.get(), *clip.get());
    const bool opensMusic = openMusic_ && row->scriptClass() == kChapterRow;

    if (const auto start = in[kStartTime].integer64()) {
      row->setStart(plus(offset_, *start));
      clip->setStart(*start);
      if (opensMusic) openMusic_->setStart(plus(offset_, *start));
    }
    // On purpose the clip's start comes off here and stays in the row's start: a row
    // whose clip starts behind 0 is shorter than its clip.
    if (const auto end = in[kEndTime].integer64()) {
      row->setEnd(minus(plus(offset_, *end), clip->start()));
      clip->setEnd(*end);
    }
    if (const char* const title = in[kTitle].text()) {
      row->setTitle(title);
      clip->setTitle(title);
    }
    if (const char* const subtitle = in[kSubtitle].text()) {
      row->setSubtitle(subtitle);
      clip->setSubtitle(subtitle);
    }
    if (const char* const description = in[kDescription].text()) {
      row->setDescription(description);
      if (opensMusic) openMusic_->setDescription(description);
    }
    if (const char* const fileName = in[kFileName].text()) clip->setFileName(fileName);
    if (in[kText].isArray()) {
      const auto texts = Ref<IZolTextInfoList>::adopt(createIZolTextInfoList());
      for (const Value text : in[kText].elements()) texts->add(readText(text).get());
      clip->setTextInfoList(texts.get());
    }
    if (in[kHighlight].isArray()) {
      const auto highlights = Ref<IZolHighlightInfoList>::adopt(createIZolHighlightInfoList());
      for (const Value highlight : in[kHighlight].elements()) {
        highlights->add(readHighlight(highlight).get());
      }
      clip->setHighlightInfoList(highlights.get());
    }
    entry_.storyboards->add(row.get());
    entry_.clips->add(clip.get());
    if (row->scriptClass() != kTitleRow) musicEnd_ = row->end();  // a title has no music
    offset_ = plus(minus(offset_, row->start()), row->end());
  }

  void readClass(const char* name, ZolStoryboardInfo& row, ZolSmartCutClipInfo& clip) {
    ScriptClass scriptClass = kPlainRow;
    if (sameText(name, "title")) {
      scriptClass = kTitleRow;
    } else if (sameText(name, "frame")) {
      scriptClass = kFrameRow;
    } else if (sameText(name, "chapter")) {
      scriptClass = kChapterRow;
      closeMusic();
      openMusic_ = makeRef<ZolMusicInfo>();
      openMusic_->setMusicType(musicType_);
    }
    row.setScriptClass(scriptClass);
    clip.setScriptClass(scriptClass);
  }

  void closeMusic() {
    if (!openMusic_) return;
    openMusic_->setEnd(musicEnd_);
    entry_.music->add(openMusic_.get());
    openMusic_ = nullptr;
  }

  // The one section of a script without chapters.
  void addWholeMusic(const char* description) {
    const Ref<ZolMusicInfo> music = makeRef<ZolMusicInfo>();
    music->setMusicType(musicType_);
    music->setEnd(musicEnd_);
    if (description) music->setDescription(description);
    entry_.music->add(music.get());
  }

  CutScriptEntry entry_;
  int musicType_;
  long long offset_ = 0;  // where the finished timeline has got to
  long long musicEnd_ = 0;
  Ref<ZolMusicInfo> openMusic_;
};

}  // namespace
}  // namespace ZOL

ZOL::IZolCutScripts* createCutScripts(const char* text) {
  if (!text) return nullptr;
  const ZOL::json::Document document(text);
  if (!document.root().isArray()) return nullptr;
  auto scripts = ZOL::makeRef<ZOL::ZolCutScripts>();
  for (const ZOL::json::Value script : document.root().elements()) {
    ZOL::ScriptReader::read(script, *scripts.get());
  }
  return scripts.give();
}
