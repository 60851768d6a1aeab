// The alternative scripts of one cut.

#ifndef KYDATASTRUCTURE_CUTSCRIPT_CUT_SCRIPTS_H_
#define KYDATASTRUCTURE_CUTSCRIPT_CUT_SCRIPTS_H_

#include <KyDataStructure/cutscript.h>

#include <vector>

#include "frame/counted.h"
#include "frame/handle.h"
#include "frame/shared_text.h"

namespace ZOL {

// Rows and clips are filled in step: index i of one is index i of the other.
struct CutScriptEntry {
  SharedText title;
  Handle<IZolStoryboardInfoList> storyboards;
  Handle<IZolSmartCutClipInfoList> clips;
  Handle<IZolMusicInfoList> music;
};

class ZolCutScripts final : public Counted<IZolCutScripts, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IZolCutScripts, IDmBaseObj>(this, name);
  }

  long long scriptCount() override;
  const char* scriptTitle(int index) override;
  IZolStoryboardInfoList* storyboardInfoList(int index) override;
  IZolSmartCutClipInfoList* smartCutClipInfoList(int index) override;
  long long scriptDuration(int index) override;
  int getMusicInfoList(int index, IZolMusicInfoList* out) override;

  void append(CutScriptEntry entry) { entries_.push_back(std::move(entry)); }

 private:
  // Null out of range.
  const CutScriptEntry* entryAt(int index) const;

  std::vector<CutScriptEntry> entries_;
};

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_CUTSCRIPT_CUT_SCRIPTS_H_
