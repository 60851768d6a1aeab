#include "data_map_text.h"

#include <rapidjson/document.h>
#include <rapidjson/encodedstream.h>
#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>

#include <algorithm>
#include <string_view>

#include "input.h"
#include "refused_text.h"
#include "utf8.h"

namespace kydata {

namespace {

constexpr const char* kDataMap = "dataMap";

/// Strict JSON behind a byte-order mark, as the library reads this form alone. Nested
/// texts take no stack, however deep they go.
rapidjson::Document strictDocument(const std::string& text) {
  rapidjson::MemoryStream bytes(text.data(), text.size());
  rapidjson::EncodedInputStream<rapidjson::UTF8<>, rapidjson::MemoryStream> source(bytes);
  rapidjson::Document document;
  document.ParseStream<rapidjson::kParseIterativeFlag, rapidjson::UTF8<>>(source);
  return document;
}

/// "line 2, column 5".
std::string placeIn(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, offset);
  const auto line = 1 + std::count(before.begin(), before.end(), '\n');
  const std::size_t lineBegin = before.rfind('\n') + 1;  // 0 where there is none
  const std::size_t column = 1 + codePointCount(before.substr(lineBegin));
  return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

std::string whyNotStrict(const std::string& text, const rapidjson::Document& document) {
  const rapidjson::ParseErrorCode error = document.GetParseError();
  if (error == rapidjson::kParseErrorDocumentEmpty) return whyNoJson(text, '{');
  std::string reason = rapidjson::GetParseError_En(error);
  if (!reason.empty() && reason.back() == '.') reason.pop_back();
  return "is not strict JSON: " + placeIn(text, document.GetErrorOffset()) + ": " + reason;
}

}  // namespace

Owned<ZOL::IImageStylizesData> dataMapOf(const std::string& text) {
  Owned<ZOL::IImageStylizesData> map(createImageStylizesData());
  const bool isRead = map->readDataMap(zolString(text).get()) == ZOL::kSuccess;
  return isRead ? std::move(map) : Owned<ZOL::IImageStylizesData>(nullptr);
}

std::string whyNoDataMap(const std::string& text) {
  const rapidjson::Document document = strictDocument(text);
  if (document.HasParseError()) return whyNotStrict(text, document);
  if (!document.IsObject()) return whyNoJson(text, '{');
  const auto map = document.FindMember(kDataMap);
  if (map == document.MemberEnd()) return "is a JSON object without \"dataMap\"";
  if (!map->value.IsObject()) return "has a \"dataMap\" that is no object";
  for (const auto& member : map->value.GetObject()) {
    if (member.value.IsString()) continue;
    const std::string_view name(member.name.GetString(), member.name.GetStringLength());
    return "has a value in \"dataMap\" that is no text, under \"" + printable(name) + "\"";
  }
  return "is refused by the library, for a reason that cannot be told";
}

std::string normalText(ZOL::IImageStylizesData* map) {
  Owned<ZOL::IZolString> text(createZolString());
  map->writeDataMap(text.get());
  return text->text();
}

std::vector<int> idsOf(ZOL::IImageStylizesData* map) {
  // A map does not list its ids, but its text names them all.
  const rapidjson::Document document = strictDocument(normalText(map));
  std::vector<int> ids;
  for (const auto& member : document[kDataMap].GetObject()) {
    ids.push_back(std::stoi(member.name.GetString()));
  }
  return ids;
}

}  // namespace kydata
