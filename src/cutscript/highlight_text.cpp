// {"HLType":0,"trimIn":0,"trimOut":0}

#include "cutscript/records.h"
#include "json/document.h"
#include "json/writer.h"

namespace ZOL {

int ZolHighlightInfo::toJson(IZolString* out) {
  if (!out) return kRefused;
  json::CompactWriter writer;
  writer.beginObject();
  writer.member("HLType", static_cast<long long>(hlType()));
  writer.member("trimIn", trimIn());
  writer.member("trimOut", trimOut());
  writer.endObject();
  return writer.giveTo(out);
}

// Each member stands by itself. On purpose a byte-order mark is an error here.
int ZolHighlightInfo::fromJson(const char* text) {
  if (!text) return kRefused;
  const json::Document document(text, json::Grammar::tolerant, json::ByteOrderMark::error);
  const json::Value highlight = document.root();
  if (!highlight.isObject()) return kRefused;
  if (const auto type = highlight.member("HLType").integer32()) setHLType(*type);
  if (const auto in = highlight.member("trimIn").integer64()) setTrimIn(*in);
  if (const auto out = highlight.member("trimOut").integer64()) setTrimOut(*out);
  return kSuccess;
}

}  // namespace ZOL
