// A cut service's reply: read, walked over, its rows written as a storyboard, and its
// parts kept beyond the end of the whole.

#include <KyDataStructure/cutscript.h>

#include <string>

#include "bare_json.h"
#include "cutscript/script_state.h"
#include "outlive.h"
#include "storyboard_rows.h"
#include "support/held.h"
#include "target.h"

namespace {

void requireReferencesToEach(ZOL::IZolMusicInfoList& list, int references) {
  for (long long i = 0; i < list.size(); ++i) {
    require(list.at(i)->refCount() == references, "a copied list shares its elements");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string text = textOf(bytes, size).c_str();  // up to a zero byte
  Held<ZOL::IZolCutScripts> scripts(createCutScripts(text.c_str()));
  require(bare::isArray(text) == (scripts.get() != nullptr), "every array is a reply");
  if (!scripts.get()) return 0;

  const std::string said = show(*scripts);
  Kept<ZOL::IZolStoryboardInfo> rows;
  Kept<ZOL::IZolSmartCutClipInfo> clips;
  Kept<ZOL::IZolTextInfo> texts;
  Kept<ZOL::IZolHighlightInfo> highlights;
  const Held<ZOL::IZolMusicInfoList> music(createIZolMusicInfoList());
  for (int i = 0; i < scripts->scriptCount(); ++i) {
    requireTheSameRewritten(*scripts->storyboardInfoList(i));
    rows.keepAll(scripts->storyboardInfoList(i));
    clips.keepAll(scripts->smartCutClipInfoList(i));
    for (long long c = 0; c < scripts->smartCutClipInfoList(i)->size(); ++c) {
      ZOL::IZolSmartCutClipInfo& clip = *scripts->smartCutClipInfoList(i)->at(c);
      if (clip.textInfoList()) texts.keepAll(clip.textInfoList());
      if (clip.highlightInfoList()) highlights.keepAll(clip.highlightInfoList());
    }
    require(scripts->getMusicInfoList(i, music.get()) == ZOL::kSuccess,
            "each script gives its music");
    requireReferencesToEach(*music, 2);
  }
  require(show(*scripts) == said, "looking changes nothing");
  require(scripts.reset() == 0, "the reply had one reference");

  // What shares memory with what goes here stays whole.
  requireReferencesToEach(*music, 1);
  clips.letGo();
  texts.letGo();
  highlights.letGo();
  rows.letGo();
  return 0;
}
