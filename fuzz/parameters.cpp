// The text of a parameter map, read into one that has parameters already.

#include <KyDataStructure/params.h>

#include <cstring>
#include <string>

#include "bare_json.h"
#include "support/held.h"
#include "support/zol_text.h"
#include "target.h"

namespace {

using Data = ZOL::IImageStylizesData;

// Strict JSON, and texts alone.
bool isMap(const std::string& text) {
  rapidjson::Document document;
  bare::parseBehindMark<bare::kStrict>(document, text);
  if (document.HasParseError() || !document.IsObject()) return false;
  const auto map = document.FindMember("dataMap");
  if (map == document.MemberEnd() || !map->value.IsObject()) return false;
  for (const auto& member : map->value.GetObject()) {
    if (!member.value.IsString()) return false;
  }
  return true;
}

std::string written(Data& data) {
  const Held<ZOL::IZolString> out(createZolString());
  require(data.writeDataMap(out.get()) == ZOL::kSuccess, "any map is written");
  return bytesIn(*out);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const Held<ZOL::IZolString> source = zolString(textOf(bytes, size));
  const Held<Data> data(createImageStylizesData());
  data->setParam(1, "old");
  data->setParam(2, "old, too");
  const std::string before = written(*data);
  const bool taken = data->readDataMap(source.get()) == ZOL::kSuccess;
  require(taken == isMap(bytesIn(*source)), "every map of texts is read");
  require(taken || written(*data) == before, "a text that is not read changes nothing");
  data->resourceType();  // reads a parameter as a description

  const std::string first = written(*data);
  const Held<Data> again(createImageStylizesData());
  require(again->readDataMap(zolString(first).get()) == ZOL::kSuccess, "what was written is read");
  require(written(*again) == first, "a map is written as before");
  const Held<ZOL::IParamObjectData> clone(data->deepClone());
  for (int id = -1; id <= 9; ++id) {
    require(std::strcmp(clone->param(id), data->param(id)) == 0, "a clone has the same texts");
  }
  return 0;
}
