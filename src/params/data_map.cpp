// The text form of a parameter map:
//
//   {
//       "dataMap": {
//           "1": "first text",
//           "3": "third text"
//       }
//   }

#include <cstdlib>

#include "json/document.h"
#include "json/writer.h"
#include "params/param_object_data.h"

namespace ZOL {
namespace {

constexpr const char* kDataMap = "dataMap";

// The id that a name stands for; 0 for one that does not begin with a number. Of a number
// beyond 32 bits the low ones count, whatever the platform's `long` holds; of one beyond 64
// those of the nearest that has 64.
int idOf(const char* name) { return static_cast<int>(std::strtoll(name, nullptr, 10)); }

}  // namespace

int ParamObjectData::writeParams(IZolString* target) {
  if (!target) return kRefused;
  json::PrettyWriter writer;
  writer.beginObject();
  writer.key(kDataMap);
  writer.beginObject();
  for (const auto& [id, text] : params_) writer.member(std::to_string(id), text);
  writer.endObject();
  writer.endObject();
  writer.giveWithLengthTo(target);
  return kSuccess;
}

// Merges: ids that the text does not name stay. Alone among the texts this one is
// strict JSON, and one value that is no string refuses the whole.
int ParamObjectData::readParams(IZolString* source) {
  if (!source) return kRefused;
  const json::Document document({source->text(), static_cast<std::size_t>(source->length())},
                                json::Grammar::strict);
  const json::Value map = document.root().member(kDataMap);
  if (!map.isObject()) return kRefused;
  for (const json::Member member : map.members()) {
    if (!member.value.isString()) return kRefused;
  }
  for (const json::Member member : map.members()) {
    params_.insert_or_assign(idOf(member.key->text), member.value.text());
  }
  return kSuccess;
}

}  // namespace ZOL
