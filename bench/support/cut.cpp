#include "support/cut.h"

#include <cstring>

#include "support/bare_json.h"
#include "support/owned.h"
#include "support/require.h"

namespace bench {
namespace {

using Json = rapidjson::Value;

bool same(const char* text, const Json& json) { return std::strcmp(text, json.GetString()) == 0; }

long long startOf(const Json& json) { return json["start_time"].GetInt64(); }
long long endOf(const Json& json) { return json["end_time"].GetInt64(); }

int scriptClassOf(const Json& row) {
  const std::string text = row["script_class"].GetString();
  if (text == "title") return 1;
  if (text == "chapter") return 2;
  return text == "frame" ? 3 : 0;
}

void proveTexts(ZOL::IZolTextInfoList* texts, const Json& json) {
  require(texts && texts->size() == json.Size(), "a clip has its texts");
  for (rapidjson::SizeType i = 0; i < json.Size(); ++i) {
    auto* const text = texts->at(i);
    const Json& broll = json[i]["broll"];
    require(text->start() == startOf(json[i]) && text->end() == endOf(json[i]),
            "a text has its times");
    // On purpose the library reads no text of a text.
    require(*text->text() == '\0', "a text is empty");
    require(text->hasBroll() && same(text->brollFileName(), broll["file_name"]) &&
                text->brollStart() == startOf(broll) && text->brollEnd() == endOf(broll),
            "a text has its b-roll");
  }
}

void proveHighlights(ZOL::IZolHighlightInfoList* highlights, const Json& json) {
  require(highlights && highlights->size() == json.Size(), "a clip has its highlights");
  for (rapidjson::SizeType i = 0; i < json.Size(); ++i) {
    auto* const highlight = highlights->at(i);
    require(highlight->trimIn() == startOf(json[i]) && highlight->trimOut() == endOf(json[i]) &&
                highlight->hlType() == 0,
            "a highlight has its times");
  }
}

void proveScript(ZOL::IZolCutScripts* cut, int index, const Json& script) {
  auto* const rows = cut->storyboardInfoList(index);
  auto* const clips = cut->smartCutClipInfoList(index);
  const Json& json = script["script"];
  require(same(cut->scriptTitle(index), script["title"]), "a script has its title");
  require(rows->size() == json.Size() && clips->size() == json.Size(),
          "a script has a row and a clip for each item");
  long long offset = 0;
  long long sections = 0;
  for (rapidjson::SizeType i = 0; i < json.Size(); ++i) {
    const Json& item = json[i];
    auto* const row = rows->at(i);
    auto* const clip = clips->at(i);
    const int scriptClass = scriptClassOf(item);
    if (scriptClass == 2) ++sections;
    require(row->scriptClass() == scriptClass && clip->scriptClass() == scriptClass,
            "row and clip have their class");
    require(same(row->title(), item["title"]) && same(clip->title(), item["title"]) &&
                same(row->subtitle(), item["subtitle"]) &&
                same(clip->subtitle(), item["subtitle"]) &&
                same(row->description(), item["description"]) &&
                same(clip->fileName(), item["file_name"]),
            "row and clip have their texts");
    // On purpose a row starts as far behind the one before as its clip starts in its
    // source.
    require(row->start() == offset + startOf(item) &&
                row->end() == offset + endOf(item) - startOf(item) &&
                clip->start() == startOf(item) && clip->end() == endOf(item),
            "row and clip have their times");
    offset += row->end() - row->start();
    proveTexts(clip->textInfoList(), item["text"]);
    proveHighlights(clip->highlightInfoList(), item["highlight"]);
  }
  const auto music = owned(createIZolMusicInfoList());
  require(cut->getMusicInfoList(index, music.get()) == ZOL::kSuccess &&
              music->size() == (sections > 0 ? sections : 1),
          "a script has a music section for each chapter");
}

}  // namespace

void proveCut(ZOL::IZolCutScripts* cut, const std::string& reply) {
  rapidjson::Document document;
  bareParse(document, reply);
  require(cut && cut->scriptCount() == document.Size(), "a cut has all scripts");
  for (rapidjson::SizeType i = 0; i < document.Size(); ++i) {
    proveScript(cut, static_cast<int>(i), document[i]);
  }
}

std::size_t rowsOf(ZOL::IZolCutScripts* cut) {
  long long rows = 0;
  for (int i = 0; i < cut->scriptCount(); ++i) rows += cut->storyboardInfoList(i)->size();
  return static_cast<std::size_t>(rows);
}

}  // namespace bench
