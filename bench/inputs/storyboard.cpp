#include "inputs/storyboard.h"

#include <rapidjson/prettywriter.h>

#include <cstddef>

#include "inputs/numbers.h"
#include "inputs/words.h"

namespace bench {

std::vector<StoryboardRow> storyboardRows(int count) {
  Numbers numbers(41);
  std::vector<StoryboardRow> rows;
  long long time = 0;
  for (int i = 0; i < count; ++i) {
    const long long start = time;
    time += numbers.between(800, 20000);
    rows.push_back({numbers.between(0, 3), start, time, someSentence(numbers, 24),
                    someSentence(numbers, 36), someSentence(numbers, 120)});
  }
  return rows;
}

Owned<ZOL::IZolStoryboardInfoList> storyboardList(const std::vector<StoryboardRow>& rows) {
  auto list = owned(createIZolStoryboardInfoList());
  for (const StoryboardRow& row : rows) {
    const auto info = owned(createStoryboardInfo());
    auto* const inside = ZOL::query<ZOL::IZolStoryboardInfoInternal>(info.get());
    inside->setScriptClass(row.scriptClass);
    inside->setStart(row.start);
    inside->setEnd(row.end);
    inside->setTitle(row.title.c_str());
    inside->setSubtitle(row.subtitle.c_str());
    inside->setDescription(row.description.c_str());
    list->add(info.get());
  }
  return list;
}

bool holds(ZOL::IZolStoryboardInfoList* list, const std::vector<StoryboardRow>& rows) {
  if (list->size() != static_cast<long long>(rows.size())) return false;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const StoryboardRow& row = rows[i];
    auto* const info = list->at(static_cast<long long>(i));
    if (info->scriptClass() != row.scriptClass || info->start() != row.start ||
        info->end() != row.end || info->title() != row.title || info->subtitle() != row.subtitle ||
        info->description() != row.description) {
      return false;
    }
  }
  return true;
}

void writeBare(rapidjson::StringBuffer& buffer, const std::vector<StoryboardRow>& rows) {
  rapidjson::PrettyWriter<rapidjson::StringBuffer> writer(buffer);
  const auto text = [&writer](const std::string& content) {
    writer.String(content.data(), static_cast<rapidjson::SizeType>(content.size()));
  };
  writer.StartObject();
  writer.Key("storyboard_infos");
  writer.StartArray();
  for (const StoryboardRow& row : rows) {
    writer.StartObject();
    writer.Key("script_class");
    writer.Int(row.scriptClass);
    writer.Key("start");
    writer.Int64(row.start);
    writer.Key("end");
    writer.Int64(row.end);
    writer.Key("title");
    text(row.title);
    writer.Key("subtitle");
    text(row.subtitle);
    writer.Key("description");
    text(row.description);
    writer.EndObject();
  }
  writer.EndArray();
  writer.EndObject();
}

}  // namespace bench
