#include "check/made.h"

#include <KyDataStructure/cutscript.h>
#include <KyDataStructure/resource.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include "cut_model.h"
#include "data_map_text.h"
#include "description_text.h"
#include "input.h"
#include "owned.h"

#include "refused_text.h"
#include "report_model.h"
#include "resource_table.h"
#include "utf8.h"

namespace kydata::check {

namespace {

struct Count {
  const char* one;   ///< "row"
  const char* many;  ///< "rows"
  long long count;
};

/// "2 scripts, 11 rows".
Made told(const std::vector<Count>& counts) {
  Made made;
  for (const Count& count : counts) {
    made.counts.emplace_back(count.many, count.count);
    if (!made.text.empty()) made.text += ", ";
    made.text += std::to_string(count.count) + " " + (count.count == 1 ? count.one : count.many);
  }
  return made;
}

std::string jsonText(const std::string& text) {
  rapidjson::StringBuffer buffer;
  rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
  writer.String(text.c_str());
  return buffer.GetString();
}

template <class List>
long long sizeOf(List* list) {
  return list ? list->size() : 0;
}

}  // namespace

Made makeCut(const std::string& text, std::optional<int>) {
  const auto scripts = readCutReply(text);
  const auto count = scripts->scriptCount();
  long long rows = 0;
  long long texts = 0;
  long long highlights = 0;
  long long sections = 0;
  for (int script = 0; script < count; ++script) {
    auto* const clips = scripts->smartCutClipInfoList(script);
    rows += scripts->storyboardInfoList(script)->size();
    Owned<ZOL::IZolMusicInfoList> music(createIZolMusicInfoList());
    scripts->getMusicInfoList(script, music.get());
    sections += music->size();
    for (long long i = 0; i < clips->size(); ++i) {
      texts += sizeOf(clips->at(i)->textInfoList());
      highlights += sizeOf(clips->at(i)->highlightInfoList());
    }
  }
  return told({{"script", "scripts", count},
               {"row", "rows", rows},
               {"text", "texts", texts},
               {"highlight", "highlights", highlights},
               {"section of music", "sections of music", sections}});
}

Made makeDataMap(const std::string& text, std::optional<int>) {
  const auto map = dataMapOf(text);
  if (!map) throw Fault(whyNoDataMap(text));
  return told({{"text", "texts", static_cast<long long>(idsOf(map.get()).size())}});
}

Made makeStoryboard(const std::string& text, std::optional<int>) {
  Owned<ZOL::IZolStoryboardInfoList> rows(createIZolStoryboardInfoList());
  if (jsonBufferToStoryboardInfoList(zolString(text).get(), rows.get()) != ZOL::kSuccess) {
    throw Fault(isJsonObject(text) ? "is a JSON object without an array \"storyboard_infos\""
                                   : whyNoJson(text, '{'));
  }
  return told({{"row", "rows", rows->size()}});
}

Made makeResource(const std::string& text, std::optional<int> completeType) {
  const auto info = readDescription(text, completeType);
  const Held held = heldBy(info.get());
  Made made = told({{"property", "properties", held.properties},
                    {"user string", "user strings", held.userStrings},
                    {"related description", "related descriptions", held.related}});
  made.text = "\"" + printable(info->uniqueKey()) + "\" with " + made.text;
  return made;
}

Made makeReport(const std::string& text, std::optional<int>) {
  const Report report = readReport(text);
  long long slices = 0;
  for (const Dimension& dimension : report.dimensions) {
    for (const SliceGroup& group : dimension.groups) {
      slices += static_cast<long long>(group.slices.size());
    }
  }
  return told({{"dimension", "dimensions", static_cast<long long>(report.dimensions.size())},
               {"slice", "slices", slices},
               {"keyword", "keywords", static_cast<long long>(report.keywords.size())}});
}

Made makeHighlight(const std::string& text, std::optional<int>) {
  Owned<ZOL::IZolHighlightInfo> highlight(createHighlightInfo());
  if (highlight->fromJson(text.c_str()) != ZOL::kSuccess) throw Fault(whyNoJson(text, '{'));
  Made made;
  made.text = "a highlight of type " + std::to_string(highlight->hlType()) + " from " +
              std::to_string(highlight->trimIn()) + " to " + std::to_string(highlight->trimOut());
  made.counts = {{"HLType", highlight->hlType()},
                 {"trimIn", highlight->trimIn()},
                 {"trimOut", highlight->trimOut()}};
  return made;
}

std::pair<long long, long long> spanMadeOf(const std::string& text) {
  const Report report = readReport("{\"object\":{\"labels\":{\"\":[" + jsonText(text) + "]}}}");
  const Span time = report.dimensions.at(0).groups.at(0).slices.at(0).time;
  return {time.start, time.end};
}

int idMadeOf(const std::string& name) {
  const auto map = dataMapOf("{\"dataMap\":{" + jsonText(name) + ":\"\"}}");
  return idsOf(map.get()).at(0);
}

}  // namespace kydata::check
