#include <KyDataStructure/cutscript.h>

#include "commands.h"
#include "cut_model.h"
#include "input.h"
#include "owned.h"
#include "refused_text.h"

namespace kydata {

namespace {

using ZOL::IZolStoryboardInfoList;

Owned<ZOL::IZolString> storyboardText(IZolStoryboardInfoList* rows) {
  Owned<ZOL::IZolString> text(createZolString());
  storyboardInfoListToJsonBuffer(rows, text.get());
  return text;
}

Owned<ZOL::IZolString> storyboardOf(const std::string& text, int script) {
  Owned<IZolStoryboardInfoList> rows(createIZolStoryboardInfoList());
  if (jsonBufferToStoryboardInfoList(zolString(text).get(), rows.get()) == ZOL::kSuccess) {
    return storyboardText(rows.get());
  }
  if (isJsonObject(text)) {
    throw Fault("is a JSON object without an array \"storyboard_infos\"");
  }
  if (beginsAs(text, '{')) throw Fault(whyNoJson(text, '{'));
  const auto scripts = readCutReply(text);
  requireScript(scripts.get(), script);
  return storyboardText(scripts->storyboardInfoList(script - 1));
}

}  // namespace

void showStoryboard(const Input& input, int script, Output& out) {
  out.text() << storyboardOf(input.text, script)->text() << '\n';
}

bool runStoryboard(const StoryboardOptions& options, Output& out) {
  return reportingFaults(inputName(options.file),
                         [&] { showStoryboard(readInput(options.file), options.script, out); });
}

}  // namespace kydata
