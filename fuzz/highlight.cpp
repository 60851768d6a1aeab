// The text of a highlight.

#include <KyDataStructure/cutscript.h>

#include <string>

#include "bare_json.h"
#include "cutscript/script_state.h"
#include "support/held.h"
#include "support/zol_text.h"
#include "target.h"

namespace {

// Here a byte-order mark is an error.
bool isHighlight(const std::string& text) {
  rapidjson::Document document;
  bare::parse<bare::kTolerant>(document, text);
  return !document.HasParseError() && document.IsObject();
}

Held<ZOL::IZolHighlightInfo> highlightOf(int type, long long in, long long out) {
  Held<ZOL::IZolHighlightInfo> highlight(createHighlightInfo());
  highlight->setHLType(type);
  highlight->setTrimIn(in);
  highlight->setTrimOut(out);
  return highlight;
}

std::string written(ZOL::IZolHighlightInfo& highlight) {
  const Held<ZOL::IZolString> out(createZolString());
  require(highlight.toJson(out.get()) == ZOL::kSuccess, "any highlight is written");
  return bytesIn(*out);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string text = textOf(bytes, size).c_str();  // up to a zero byte
  const Held<ZOL::IZolHighlightInfo> highlight = highlightOf(7, -8, 9);
  const std::string before = show(*highlight);
  const bool taken = highlight->fromJson(text.c_str()) == ZOL::kSuccess;
  require(taken == isHighlight(text), "every object is a highlight");
  require(taken || show(*highlight) == before, "a text that is not read changes nothing");

  const std::string first = written(*highlight);
  const Held<ZOL::IZolHighlightInfo> again = highlightOf(1, 2, 3);
  require(again->fromJson(first.c_str()) == ZOL::kSuccess, "what was written is read");
  require(show(*again) == show(*highlight), "a highlight is the same again");
  require(written(*again) == first, "a highlight is written as before");
  return 0;
}
