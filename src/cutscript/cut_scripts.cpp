#include "cutscript/cut_scripts.h"

#include "cutscript/wrap.h"

namespace ZOL {

const CutScriptEntry* ZolCutScripts::entryAt(int index) const {
  if (index < 0 || static_cast<std::size_t>(index) >= entries_.size()) return nullptr;
  return &entries_[static_cast<std::size_t>(index)];
}

long long ZolCutScripts::scriptCount() { return static_cast<long long>(entries_.size()); }

const char* ZolCutScripts::scriptTitle(int index) {
  const CutScriptEntry* const entry = entryAt(index);
  return entry ? entry->title.get() : "";
}

IZolStoryboardInfoList* ZolCutScripts::storyboardInfoList(int index) {
  const CutScriptEntry* const entry = entryAt(index);
  return entry ? entry->storyboards.get() : nullptr;
}

IZolSmartCutClipInfoList* ZolCutScripts::smartCutClipInfoList(int index) {
  const CutScriptEntry* const entry = entryAt(index);
  return entry ? entry->clips.get() : nullptr;
}

// Not clamped: rows that end before they start count backwards.
long long ZolCutScripts::scriptDuration(int index) {
  const CutScriptEntry* const entry = entryAt(index);
  if (!entry) return 0;
  const Handle<IZolStoryboardInfoList> rows = entry->storyboards;
  long long duration = 0;
  for (long long i = 0; i < rows->size(); ++i) {
    IZolStoryboardInfo* const row = rows->at(i);
    if (row) duration = plus(duration, minus(row->end(), row->start()));
  }
  return duration;
}

int ZolCutScripts::getMusicInfoList(int index, IZolMusicInfoList* out) {
  const CutScriptEntry* const entry = entryAt(index);
  if (!entry || !out) return kRefused;
  out->clear();
  out->assign(entry->music.get());
  return kSuccess;
}

}  // namespace ZOL
