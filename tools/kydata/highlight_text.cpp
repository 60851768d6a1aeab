#include "highlight_text.h"

#include <KyDataStructure/cutscript.h>

#include "cut_model.h"
#include "owned.h"
#include "text_table.h"
#include "times.h"
#include "utf8.h"

namespace kydata {

namespace {

/// A highlight whose fields all hold `before`, but for what the text then says. Without
/// an object where the text is refused.
Owned<ZOL::IZolHighlightInfo> readOver(int before, const std::string& text) {
  Owned<ZOL::IZolHighlightInfo> highlight(createHighlightInfo());
  highlight->setHLType(before);
  highlight->setTrimIn(before);
  highlight->setTrimOut(before);
  const bool isRead = highlight->fromJson(text.c_str()) == ZOL::kSuccess;
  return isRead ? std::move(highlight) : Owned<ZOL::IZolHighlightInfo>(nullptr);
}

}  // namespace

bool isHighlight(const std::string& text) {
  // The reader takes every JSON object. What a text does not hold still differs
  // afterwards between two highlights that differed before.
  const auto one = readOver(0, text);
  const auto other = readOver(1, text);
  return one && other &&
         (one->hlType() == other->hlType() || one->trimIn() == other->trimIn() ||
          one->trimOut() == other->trimOut());
}

void showHighlight(const Input& input, Output& out) {
  const auto highlight = readOver(0, input.text);
  if (!highlight) throw Fault("is no highlight text");
  TextTable table({{"type"}, {"trim in"}, {"trim out"}});
  const int type = highlight->hlType();
  table.add({typeText(type, highlightTypeName(type)), timeText(highlight->trimIn()),
             timeText(highlight->trimOut())});
  out.text() << out.heading(printable(input.name))
             << "\n  highlight, times taken as milliseconds\n";
  table.print(out);
}

}  // namespace kydata
