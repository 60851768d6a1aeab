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

#include <array>
#include <initializer_list>
#include <vector>

#include "cutscript/cut_scripts.h"
#include "cutscript/records.h"
#include "cutscript/wrap.h"
#include "frame/batch.h"
#include "frame/shared_text.h"
#include "json/document.h"
#include "lists/made_lists.h"

namespace ZOL {
namespace {

using json::Value;

// {"start_time": 0, "end_time": 900, "text": ..., "broll": {...}}
struct TextMembers {
  enum : std::size_t { kStartTime, kEndTime, kText, kBroll };
  enum : std::size_t { kBrollFileName, kBrollStartTime, kBrollEndTime };
  static constexpr auto kMembers = json::namesOf("start_time", "end_time", "text", "broll");
  static constexpr auto kBrollMembers = json::namesOf("file_name", "start_time", "end_time");

  explicit TextMembers(Value item)
      : in(json::sortIn(kMembers, item)), broll(json::sortIn(kBrollMembers, in[kBroll])) {}

  std::array<Value, 4> in;
  std::array<Value, 3> broll;
};

Handle<ZolTextInfo> readText(const TextMembers& members, Batch& batch) {
  const auto& in = members.in;
  const auto& broll = members.broll;
  Handle<ZolTextInfo> text = batch.make<ZolTextInfo>();
  if (const auto start = in[TextMembers::kStartTime].integer64()) text->setStart(*start);
  if (const auto end = in[TextMembers::kEndTime].integer64()) text->setEnd(*end);
  // On purpose "text" must be an integer, and an integer has no text: whatever stands
  // here, the item's text is empty.
  if (in[TextMembers::kText].integer64()) text->setText(in[TextMembers::kText].text());
  text->setBrollFileName(batch.put(broll[TextMembers::kBrollFileName].bytes()));
  if (const auto start = broll[TextMembers::kBrollStartTime].integer64()) {
    text->setBrollStart(*start);
  }
  if (const auto end = broll[TextMembers::kBrollEndTime].integer64()) text->setBrollEnd(*end);
  return text;
}

// {"start_time": 0, "end_time": 900, "class": ...}
Handle<ZolHighlightInfo> readHighlight(Value item, Batch& batch) {
  enum : std::size_t { kStartTime, kEndTime, kClass };
  static constexpr auto kMembers = json::namesOf("start_time", "end_time", "class");

  const auto in = json::sortIn(kMembers, item);
  Handle<ZolHighlightInfo> highlight = batch.make<ZolHighlightInfo>();
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
    ScriptReader reader(music && !sameText(music, "t2m") ? 1 : 0, in[kScript].size());
    for (const Value item : in[kScript].elements()) reader.readItem(item);
    reader.closeMusic();
    if (reader.music_->size() == 0) reader.addWholeMusic(in[kOverallDescription]);
    out.append({SharedText(in[kTitle].bytes()), std::move(reader.rows_), std::move(reader.clips_),
                std::move(reader.music_)});
  }

 private:
  ScriptReader(int musicType, std::size_t items) : musicType_(musicType) {
    rows_->elements().reserve(items);
    clips_->elements().reserve(items);
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
    texts_.clear();
    for (const Value text : in[kText].elements()) texts_.emplace_back(text);
    Batch batch(roomOfItem(in[kText], in[kHighlight],
                           {in[kTitle], in[kSubtitle], in[kDescription], in[kFileName]}));

    Handle<ZolSmartCutClipInfo> clip = batch.make<ZolSmartCutClipInfo>();
    Handle<ZolStoryboardInfo> row = batch.make<ZolStoryboardInfo>();
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
    const SharedText title = batch.put(in[kTitle].bytes());
    row->setTitle(title);
    clip->setTitle(title);
    const SharedText subtitle = batch.put(in[kSubtitle].bytes());
    row->setSubtitle(subtitle);
    clip->setSubtitle(subtitle);
    const SharedText description = batch.put(in[kDescription].bytes());
    row->setDescription(description);
    if (opensMusic && in[kDescription].isString()) openMusic_->setDescription(description);
    clip->setFileName(batch.put(in[kFileName].bytes()));
    if (in[kText].isArray()) {
      auto texts = batch.make<ObjectList<IZolTextInfoList>>();
      texts->elements().reserve(texts_.size());
      for (const TextMembers& text : texts_) texts->elements().push_back(readText(text, batch));
      clip->setTextInfoList(std::move(texts));
    }
    if (in[kHighlight].isArray()) {
      auto highlights = batch.make<ObjectList<IZolHighlightInfoList>>();
      highlights->elements().reserve(in[kHighlight].size());
      for (const Value highlight : in[kHighlight].elements()) {
        highlights->elements().push_back(readHighlight(highlight, batch));
      }
      clip->setHighlightInfoList(std::move(highlights));
    }
    if (row->scriptClass() != kTitleRow) musicEnd_ = row->end();  // a title has no music
    offset_ = plus(minus(offset_, row->start()), row->end());
    rows_->elements().push_back(std::move(row));
    clips_->elements().push_back(std::move(clip));
  }

  // What all objects and texts that come of an item take together.
  std::size_t roomOfItem(Value texts, Value highlights,
                         std::initializer_list<Value> itemTexts) const {
    std::size_t room = Batch::room<ZolSmartCutClipInfo>() + Batch::room<ZolStoryboardInfo>();
    if (texts.isArray()) {
      room +=
          Batch::room<ObjectList<IZolTextInfoList>>() + texts_.size() * Batch::room<ZolTextInfo>();
    }
    if (highlights.isArray()) {
      room += Batch::room<ObjectList<IZolHighlightInfoList>>() +
              highlights.size() * Batch::room<ZolHighlightInfo>();
    }
    for (const Value text : itemTexts) room += SharedText::room(text.bytes());
    for (const TextMembers& text : texts_) {
      room += SharedText::room(text.broll[TextMembers::kBrollFileName].bytes());
    }
    return room;
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
      openMusic_ = makeHandle<ZolMusicInfo>();
      openMusic_->setMusicType(musicType_);
    }
    row.setScriptClass(scriptClass);
    clip.setScriptClass(scriptClass);
  }

  void closeMusic() {
    if (!openMusic_) return;
    openMusic_->setEnd(musicEnd_);
    music_->elements().push_back(std::move(openMusic_));
  }

  // The one section of a script without chapters.
  void addWholeMusic(Value description) {
    Handle<ZolMusicInfo> music = makeHandle<ZolMusicInfo>();
    music->setMusicType(musicType_);
    music->setEnd(musicEnd_);
    music->setDescription(SharedText(description.bytes()));
    music_->elements().push_back(std::move(music));
  }

  Handle<ObjectList<IZolStoryboardInfoList>> rows_ =
      makeHandle<ObjectList<IZolStoryboardInfoList>>();
  Handle<ObjectList<IZolSmartCutClipInfoList>> clips_ =
      makeHandle<ObjectList<IZolSmartCutClipInfoList>>();
  Handle<ObjectList<IZolMusicInfoList>> music_ = makeHandle<ObjectList<IZolMusicInfoList>>();
  std::vector<TextMembers> texts_;  // of the item that is being read
  int musicType_;
  long long offset_ = 0;  // where the finished timeline has got to
  long long musicEnd_ = 0;
  Handle<ZolMusicInfo> openMusic_;
};

// Reads each script as soon as it is parsed.
class ScriptsReader final : public json::RootWatcher {
 public:
  void begin() override { scripts_ = makeHandle<ZolCutScripts>(); }
  bool takes(const json::Node* key, Value script) override {
    if (!key) ScriptReader::read(script, *scripts_.get());
    return true;
  }

  IZolCutScripts* giveScripts() { return scripts_.give(); }

 private:
  Handle<ZolCutScripts> scripts_;
};

}  // namespace
}  // namespace ZOL

ZOL::IZolCutScripts* createCutScripts(const char* text) {
  if (!text) return nullptr;
  ZOL::ScriptsReader reader;
  const ZOL::json::Document document(text, reader);
  return document.root().isArray() ? reader.giveScripts() : nullptr;
}
