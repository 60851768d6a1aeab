// The text form of a storyboard list:
//
//   {
//       "storyboard_infos": [
//           {
//               "script_class": 2,
//               "start": 0,
//               "end": 5000,
//               "title": "Arrival",
//               "subtitle": "",
//               "description": "..."
//           }
//       ]
//   }

#include "cutscript/records.h"
#include "frame/handle.h"
#include "json/document.h"
#include "json/writer.h"

namespace ZOL {
namespace {

constexpr const char* kRows = "storyboard_infos";

enum : std::size_t { kScriptClass, kStart, kEnd, kTitle, kSubtitle, kDescription };
constexpr auto kRowMembers =
    json::namesOf("script_class", "start", "end", "title", "subtitle", "description");

// A row that is complete, or none.
Handle<ZolStoryboardInfo> readRow(json::Value element) {
  const auto in = json::sortIn(kRowMembers, element);
  const auto scriptClass = in[kScriptClass].integer32();
  const auto start = in[kStart].integer64();
  const auto end = in[kEnd].integer64();
  const char* const title = in[kTitle].text();
  const char* const subtitle = in[kSubtitle].text();
  const char* const description = in[kDescription].text();
  if (!scriptClass || !start || !end || !title || !subtitle || !description) return nullptr;

  Handle<ZolStoryboardInfo> row = makeHandle<ZolStoryboardInfo>();
  const bool known = *scriptClass >= kPlainRow && *scriptClass <= kFrameRow;
  row->setScriptClass(known ? *scriptClass : kPlainRow);
  row->setStart(*start);
  row->setEnd(*end);
  row->setTitle(title);
  row->setSubtitle(subtitle);
  row->setDescription(description);
  return row;
}

// On purpose the script class goes out as it stands, known to the reader or not.
void writeRow(json::PrettyWriter& writer, IZolStoryboardInfo& row) {
  writer.beginObject();
  writer.member("script_class", static_cast<long long>(row.scriptClass()));
  writer.member("start", row.start());
  writer.member("end", row.end());
  writer.member("title", row.title());
  writer.member("subtitle", row.subtitle());
  writer.member("description", row.description());
  writer.endObject();
}

}  // namespace
}  // namespace ZOL

int jsonBufferToStoryboardInfoList(ZOL::IZolString* buffer, ZOL::IZolStoryboardInfoList* list) {
  if (!buffer || !list || buffer->length() == 0) return ZOL::kRefused;
  const ZOL::json::Document document({buffer->text(), static_cast<std::size_t>(buffer->length())});
  const ZOL::json::Value rows = document.root().member(ZOL::kRows);
  if (!rows.isArray()) return ZOL::kRefused;
  for (const ZOL::json::Value element : rows.elements()) {
    if (const auto row = ZOL::readRow(element)) list->add(row.get());
  }
  return ZOL::kSuccess;
}

int storyboardInfoListToJsonBuffer(ZOL::IZolStoryboardInfoList* list, ZOL::IZolString* out) {
  if (!list || !out) return ZOL::kRefused;
  ZOL::json::PrettyWriter writer;
  writer.beginObject();
  writer.key(ZOL::kRows);
  writer.beginArray();
  for (long long i = 0; i < list->size(); ++i) {
    if (ZOL::IZolStoryboardInfo* const row = list->at(i)) ZOL::writeRow(writer, *row);
  }
  writer.endArray();
  writer.endObject();
  writer.giveTo(out);
  return ZOL::kSuccess;
}
