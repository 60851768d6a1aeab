// The text of a storyboard, with all its bytes.

#include <KyDataStructure/cutscript.h>

#include <string>

#include "bare_json.h"
#include "storyboard_rows.h"
#include "target.h"

namespace {

// As the reader takes a text: the first member of that name counts.
bool hasRows(const std::string& text) {
  rapidjson::Document document;
  bare::parseBehindMark<bare::kTolerant>(document, text);
  if (document.HasParseError() || !document.IsObject()) return false;
  const auto rows = document.FindMember("storyboard_infos");
  return rows != document.MemberEnd() && rows->value.IsArray();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string text = textOf(bytes, size);
  const Held<ZOL::IZolString> source = zolString(text);
  const Held<ZOL::IZolStoryboardInfoList> rows(createIZolStoryboardInfoList());
  const bool taken = jsonBufferToStoryboardInfoList(source.get(), rows.get()) == ZOL::kSuccess;
  require(taken == hasRows(bytesIn(*source)), "a text with an array of rows is read");
  require(taken || rows->size() == 0, "a text that is not read leaves the list alone");
  for (long long i = 0; i < rows->size(); ++i) {
    require(rows->at(i)->refCount() == 1, "a row that was read has one reference");
  }
  requireTheSameRewritten(*rows);
  return 0;
}
