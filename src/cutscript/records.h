// The records of a cut. Each is read through one interface and written through
// another.

#ifndef KYDATASTRUCTURE_CUTSCRIPT_RECORDS_H_
#define KYDATASTRUCTURE_CUTSCRIPT_RECORDS_H_

#include <KyDataStructure/cutscript.h>

#include <utility>

#include "frame/counted.h"
#include "frame/fields.h"
#include "frame/handle.h"
#include "frame/shared_text.h"

namespace ZOL {

enum ScriptClass : int { kPlainRow = 0, kTitleRow = 1, kChapterRow = 2, kFrameRow = 3 };

class ZolStoryboardInfo final
    : public Counted<IZolStoryboardInfo, IZolStoryboardInfoInternal, RefCnt<void>> {
 public:
  using Counted::Counted;

  void* queryInterface(const char* name) override {
    return answer<IZolStoryboardInfo, IZolStoryboardInfoInternal, IDmBaseObj>(this, name);
  }

  int scriptClass() override { return scriptClass_.get(); }
  int setScriptClass(int scriptClass) override { return scriptClass_.set(scriptClass); }
  const char* title() override { return title_.get(); }
  int setTitle(const char* text) override { return title_.set(text); }
  const char* subtitle() override { return subtitle_.get(); }
  int setSubtitle(const char* text) override { return subtitle_.set(text); }
  const char* description() override { return description_.get(); }
  int setDescription(const char* text) override { return description_.set(text); }
  long long start() override { return start_.get(); }
  int setStart(long long start) override { return start_.set(start); }
  long long end() override { return end_.get(); }
  int setEnd(long long end) override { return end_.set(end); }

  // The same texts, shared.
  void setTitle(SharedText text) { title_.set(std::move(text)); }
  void setSubtitle(SharedText text) { subtitle_.set(std::move(text)); }
  void setDescription(SharedText text) { description_.set(std::move(text)); }

 private:
  Plain<int> scriptClass_;
  TextTakingNull title_;
  TextTakingNull subtitle_;
  TextTakingNull description_;
  Plain<long long> start_;
  Plain<long long> end_;
};

class ZolSmartCutClipInfo final
    : public Counted<IZolSmartCutClipInfo, IZolSmartCutClipInfoInternal, RefCnt<void>> {
 public:
  using Counted::Counted;

  void* queryInterface(const char* name) override {
    return answer<IZolSmartCutClipInfo, IZolSmartCutClipInfoInternal, IDmBaseObj>(this, name);
  }

  int scriptClass() override { return scriptClass_.get(); }
  int setScriptClass(int scriptClass) override { return scriptClass_.set(scriptClass); }
  const char* title() override { return title_.get(); }
  int setTitle(const char* text) override { return title_.set(text); }
  const char* subtitle() override { return subtitle_.get(); }
  int setSubtitle(const char* text) override { return subtitle_.set(text); }
  const char* fileName() override { return fileName_.get(); }
  int setFileName(const char* text) override { return fileName_.set(text); }
  long long start() override { return start_.get(); }
  int setStart(long long start) override { return start_.set(start); }
  long long end() override { return end_.get(); }
  int setEnd(long long end) override { return end_.set(end); }
  IZolTextInfoList* textInfoList() override { return textInfoList_.get(); }
  int setTextInfoList(IZolTextInfoList* list) override { return textInfoList_.set(list); }
  IZolHighlightInfoList* highlightInfoList() override { return highlightInfoList_.get(); }
  int setHighlightInfoList(IZolHighlightInfoList* list) override {
    return highlightInfoList_.set(list);
  }

  // The same texts, shared.
  void setTitle(SharedText text) { title_.set(std::move(text)); }
  void setSubtitle(SharedText text) { subtitle_.set(std::move(text)); }
  void setFileName(SharedText text) { fileName_.set(std::move(text)); }
  // The same lists, handed over.
  void setTextInfoList(Handle<IZolTextInfoList> list) { textInfoList_.set(std::move(list)); }
  void setHighlightInfoList(Handle<IZolHighlightInfoList> list) {
    highlightInfoList_.set(std::move(list));
  }

 private:
  Plain<int> scriptClass_;
  TextTakingNull title_;
  TextTakingNull subtitle_;
  TextTakingNull fileName_;
  Plain<long long> start_;
  Plain<long long> end_;
  Kept<IZolTextInfoList> textInfoList_;
  Kept<IZolHighlightInfoList> highlightInfoList_;
};

class ZolTextInfo final : public Counted<IZolTextInfo, IZolTextInfoInternal, RefCnt<void>> {
 public:
  using Counted::Counted;

  void* queryInterface(const char* name) override {
    return answer<IZolTextInfo, IZolTextInfoInternal, IDmBaseObj>(this, name);
  }

  long long start() override { return start_.get(); }
  int setStart(long long start) override { return start_.set(start); }
  long long end() override { return end_.get(); }
  int setEnd(long long end) override { return end_.set(end); }
  const char* text() override { return text_.get(); }
  int setText(const char* text) override { return text_.set(text); }
  bool hasBroll() override { return !brollFileName_.isEmpty(); }
  const char* brollFileName() override { return brollFileName_.get(); }
  int setBrollFileName(const char* text) override { return brollFileName_.set(text); }
  long long brollStart() override { return brollStart_.get(); }
  int setBrollStart(long long start) override { return brollStart_.set(start); }
  long long brollEnd() override { return brollEnd_.get(); }
  int setBrollEnd(long long end) override { return brollEnd_.set(end); }

  // The same text, shared.
  void setBrollFileName(SharedText text) { brollFileName_.set(std::move(text)); }

 private:
  Plain<long long> start_;
  Plain<long long> end_;
  TextTakingNull text_;
  TextTakingNull brollFileName_;
  Plain<long long> brollStart_;
  Plain<long long> brollEnd_;
};

class ZolHighlightInfo final
    : public Counted<IZolHighlightInfo, IZolHighlightInfoInternal, RefCnt<void>> {
 public:
  using Counted::Counted;

  void* queryInterface(const char* name) override {
    return answer<IZolHighlightInfo, IZolHighlightInfoInternal, IDmBaseObj>(this, name);
  }

  int hlType() override { return hlType_.get(); }
  int setHLType(int type) override { return hlType_.set(type); }
  long long trimIn() override { return trimIn_.get(); }
  int setTrimIn(long long trimIn) override { return trimIn_.set(trimIn); }
  long long trimOut() override { return trimOut_.get(); }
  int setTrimOut(long long trimOut) override { return trimOut_.set(trimOut); }
  int toJson(IZolString* out) override;
  int fromJson(const char* text) override;

 private:
  Plain<int> hlType_;
  Plain<long long> trimIn_;
  Plain<long long> trimOut_;
};

class ZolMusicInfo final : public Counted<IZolMusicInfo, IZolMusicInfoInternal, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IZolMusicInfo, IZolMusicInfoInternal, IDmBaseObj>(this, name);
  }

  int musicType() override { return musicType_.get(); }
  int setMusicType(int type) override { return musicType_.set(type); }
  long long start() override { return start_.get(); }
  int setStart(long long start) override { return start_.set(start); }
  long long end() override { return end_.get(); }
  int setEnd(long long end) override { return end_.set(end); }
  const char* description() override { return description_.get(); }
  int setDescription(const char* text) override { return description_.set(text); }
  const char* note() override { return note_.get(); }
  int setNote(const char* text) override { return note_.set(text); }

  // The same text, shared.
  void setDescription(SharedText text) { description_.set(std::move(text)); }

 private:
  Plain<int> musicType_;
  Plain<long long> start_;
  Plain<long long> end_;
  TextTakingNull description_;
  TextTakingNull note_;
};

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_CUTSCRIPT_RECORDS_H_
