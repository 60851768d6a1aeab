// The records of a cut: what each is made with, and its two sides, one that reads and
// one that writes.

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "cutscript/script_state.h"
#include "support/counted_note.h"
#include "support/held.h"

namespace {

using ZOL::query;

// Every name of the family that a record could mistake for its own.
const std::vector<std::string> kNames = {"IDmBaseObj",
                                         "IZolCutScripts",
                                         "IZolStoryboardInfo",
                                         "IZolStoryboardInfoInternal",
                                         "IZolSmartCutClipInfo",
                                         "IZolSmartCutClipInfoInternal",
                                         "IZolTextInfo",
                                         "IZolTextInfoInternal",
                                         "IZolTargetScreenInfo",
                                         "IZolTargetScreenInfoInternal",
                                         "IZolHighlightInfo",
                                         "IZolHighlightInfoInternal",
                                         "IZolMusicInfo",
                                         "IZolMusicInfoInternal",
                                         "IZolSliceItem",
                                         "IZolSliceItemInternal",
                                         "IZolDemensionsItem",
                                         "IZolDemensionsItemInternal",
                                         "IZolKeyMatrixInfo",
                                         "IZolKeyMatrixInfoInternal",
                                         "ZolCutScripts",
                                         "ZolStoryboardInfo",
                                         "ZolSmartCutClipInfo",
                                         "ZolTextInfo",
                                         "ZolTargetScreenInfo",
                                         "ZolHighlightInfo",
                                         "ZolMusicInfo",
                                         "ZolSliceItem",
                                         "ZolDemensionsItem",
                                         "ZolKeyMatrixInfo",
                                         "IZolCutScriptsInternal",
                                         "iZolTextInfo",
                                         "IZolTextInfo ",
                                         "IDmDeepClonableObj",
                                         "listData",
                                         ""};

// The names that an object answers, in the order of the list above. Asking adds no
// reference.
std::string answered(ZOL::IDmBaseObj* object) {
  std::string names;
  for (const std::string& name : kNames) {
    if (object->queryInterface(name.c_str())) names += (names.empty() ? "" : " ") + name;
  }
  EXPECT_EQ(object->refCount(), 1);
  return names;
}

template <class Interface>
void expectOwnViews(Interface* object) {
  EXPECT_EQ(query<Interface>(object), object);
  EXPECT_EQ(query<ZOL::IDmBaseObj>(object), static_cast<ZOL::IDmBaseObj*>(object));
}

TEST(CutRecords, AnswerTheirReadingSideTheirWritingSideAndTheRoot) {
  const Held<ZOL::IZolStoryboardInfo> row(createStoryboardInfo());
  EXPECT_EQ(answered(row.get()), "IDmBaseObj IZolStoryboardInfo IZolStoryboardInfoInternal");
  expectOwnViews(row.get());
  const Held<ZOL::IZolSmartCutClipInfo> clip(createSmartCutClipInfo());
  EXPECT_EQ(answered(clip.get()), "IDmBaseObj IZolSmartCutClipInfo IZolSmartCutClipInfoInternal");
  expectOwnViews(clip.get());
  const Held<ZOL::IZolTextInfo> text(createTextInfo());
  EXPECT_EQ(answered(text.get()), "IDmBaseObj IZolTextInfo IZolTextInfoInternal");
  expectOwnViews(text.get());
  const Held<ZOL::IZolTargetScreenInfo> screen(createTargetScreenInfo());
  EXPECT_EQ(answered(screen.get()),
            "IDmBaseObj IZolTargetScreenInfo IZolTargetScreenInfoInternal");
  expectOwnViews(screen.get());
  const Held<ZOL::IZolHighlightInfo> highlight(createHighlightInfo());
  EXPECT_EQ(answered(highlight.get()), "IDmBaseObj IZolHighlightInfo IZolHighlightInfoInternal");
  expectOwnViews(highlight.get());
  const Held<ZOL::IZolMusicInfo> music(createMusicInfo());
  EXPECT_EQ(answered(music.get()), "IDmBaseObj IZolMusicInfo IZolMusicInfoInternal");
  expectOwnViews(music.get());
}

TEST(CutScripts, HaveNoWritingSide) {
  const Held<ZOL::IZolCutScripts> scripts(createCutScripts("[]"));
  EXPECT_EQ(answered(scripts.get()), "IDmBaseObj IZolCutScripts");
  expectOwnViews(scripts.get());
}

TEST(ReportRecords, AnswerTheirReadingSideTheirWritingSideAndTheRoot) {
  const Held<ZOL::IZolSliceItem> slice(createSliceItem());
  EXPECT_EQ(answered(slice.get()), "IDmBaseObj IZolSliceItem IZolSliceItemInternal");
  expectOwnViews(slice.get());
  const Held<ZOL::IZolDemensionsItem> item(createDemensionsItem());
  EXPECT_EQ(answered(item.get()), "IDmBaseObj IZolDemensionsItem IZolDemensionsItemInternal");
  expectOwnViews(item.get());
  const Held<ZOL::IZolKeyMatrixInfo> report(createKeyMatrixInfo("{}"));
  EXPECT_EQ(answered(report.get()), "IDmBaseObj IZolKeyMatrixInfo IZolKeyMatrixInfoInternal");
  expectOwnViews(report.get());
}

TEST(CutRecords, AreCountedOnceWhicheverSideIsAsked) {
  const Held<ZOL::IZolStoryboardInfo> row(createStoryboardInfo());
  auto* const writeRow = query<ZOL::IZolStoryboardInfoInternal>(row.get());
  EXPECT_EQ(writeRow->addRef(), 2);
  EXPECT_EQ(row->refCount(), 2);
  EXPECT_EQ(writeRow->queryInterface("IZolStoryboardInfo"), row.get());
  EXPECT_EQ(static_cast<ZOL::IDmBaseObj*>(writeRow), static_cast<ZOL::IDmBaseObj*>(row.get()));
  EXPECT_EQ(row->release(), 1);
  EXPECT_EQ(writeRow->refCount(), 1);

  const Held<ZOL::IZolMusicInfo> music(createMusicInfo());
  auto* const writeMusic = query<ZOL::IZolMusicInfoInternal>(music.get());
  EXPECT_EQ(writeMusic->addRef(), 2);
  EXPECT_EQ(music->refCount(), 2);
  EXPECT_EQ(writeMusic->queryInterface("IZolMusicInfo"), music.get());
  EXPECT_EQ(static_cast<ZOL::IDmBaseObj*>(writeMusic), static_cast<ZOL::IDmBaseObj*>(music.get()));
  EXPECT_EQ(music->release(), 1);
  EXPECT_EQ(writeMusic->refCount(), 1);
}

TEST(CutRecords, EndWithTheLastReferenceAndTellTheHookOnce) {
  CountingHook hook;
  std::vector<ZOL::IDmBaseObj*> objects = {
      createStoryboardInfo(), createSmartCutClipInfo(), createTextInfo(), createTargetScreenInfo(),
      createHighlightInfo(),  createMusicInfo(),        createSliceItem(), createDemensionsItem(),
      createCutScripts("[]"), createKeyMatrixInfo("{}")};
  for (ZOL::IDmBaseObj* const object : objects) {
    EXPECT_EQ(object->refCount(), 1);
    EXPECT_EQ(object->releaseHook(), nullptr);
    object->setReleaseHook(&hook);
    EXPECT_EQ(object->addRef(), 2);
    EXPECT_EQ(object->release(), 1);
    const int before = hook.calls;
    EXPECT_EQ(object->release(), 0);
    EXPECT_EQ(hook.calls, before + 1);
  }
}

TEST(CutRecords, AreMadeBlank) {
  const Held<ZOL::IZolStoryboardInfo> row(createStoryboardInfo());
  EXPECT_EQ(show(*row), "row 0..0 plain");
  // The script class of a blank clip says nothing; everything else does.
  const Held<ZOL::IZolSmartCutClipInfo> clip(createSmartCutClipInfo());
  query<ZOL::IZolSmartCutClipInfoInternal>(clip.get())->setScriptClass(3);
  EXPECT_EQ(show(*clip), "clip 0..0 frame");
  const Held<ZOL::IZolTextInfo> text(createTextInfo());
  EXPECT_EQ(show(*text), "0..0");
  const Held<ZOL::IZolHighlightInfo> highlight(createHighlightInfo());
  EXPECT_EQ(show(*highlight), "0..0 type 0");
  const Held<ZOL::IZolMusicInfo> music(createMusicInfo());
  EXPECT_EQ(show(*music), "music 0..0 type 0");
}

TEST(StoryboardInfo, ReadsWhatItsWritingSideWrites) {
  const Held<ZOL::IZolStoryboardInfo> row(createStoryboardInfo());
  auto* const writing = query<ZOL::IZolStoryboardInfoInternal>(row.get());
  EXPECT_EQ(writing->setScriptClass(2), 0);
  EXPECT_EQ(writing->setTitle("one"), 0);
  EXPECT_EQ(writing->setSubtitle("two"), 0);
  EXPECT_EQ(writing->setDescription("three"), 0);
  EXPECT_EQ(writing->setStart(4), 0);
  EXPECT_EQ(writing->setEnd(5), 0);
  EXPECT_EQ(show(*row),
            "row 4..5 chapter, title \"one\", subtitle \"two\", description \"three\"");
  EXPECT_EQ(row->refCount(), 1);
}

TEST(StoryboardInfo, TakesAnyNumber) {
  const Held<ZOL::IZolStoryboardInfo> row(createStoryboardInfo());
  auto* const writing = query<ZOL::IZolStoryboardInfoInternal>(row.get());
  writing->setScriptClass(INT_MIN);
  writing->setStart(LLONG_MAX);
  writing->setEnd(LLONG_MIN);
  EXPECT_EQ(show(*row), "row 9223372036854775807..-9223372036854775808 class -2147483648");
}

TEST(StoryboardInfo, TakesANullTextAsTheEmptyOne) {
  const Held<ZOL::IZolStoryboardInfo> row(createStoryboardInfo());
  auto* const writing = query<ZOL::IZolStoryboardInfoInternal>(row.get());
  writing->setTitle("one");
  writing->setSubtitle("two");
  writing->setDescription("three");
  EXPECT_EQ(writing->setTitle(nullptr), 0);
  EXPECT_STREQ(row->title(), "");
  EXPECT_EQ(writing->setSubtitle(nullptr), 0);
  EXPECT_STREQ(row->subtitle(), "");
  EXPECT_EQ(writing->setDescription(nullptr), 0);
  EXPECT_STREQ(row->description(), "");
}

TEST(StoryboardInfo, CopiesTheTextItIsGiven) {
  const Held<ZOL::IZolStoryboardInfo> row(createStoryboardInfo());
  auto* const writing = query<ZOL::IZolStoryboardInfoInternal>(row.get());
  char title[] = "a title that is longer than any short place for it";
  writing->setTitle(title);
  title[0] = '!';
  EXPECT_STREQ(row->title(), "a title that is longer than any short place for it");
  writing->setTitle(row->title() + 2);
  EXPECT_STREQ(row->title(), "title that is longer than any short place for it");
}

TEST(SmartCutClipInfo, ReadsWhatItsWritingSideWrites) {
  const Held<ZOL::IZolSmartCutClipInfo> clip(createSmartCutClipInfo());
  auto* const writing = query<ZOL::IZolSmartCutClipInfoInternal>(clip.get());
  EXPECT_EQ(writing->setScriptClass(1), 0);
  EXPECT_EQ(writing->setTitle("one"), 0);
  EXPECT_EQ(writing->setSubtitle("two"), 0);
  EXPECT_EQ(writing->setFileName("three"), 0);
  EXPECT_EQ(writing->setStart(LLONG_MIN), 0);
  EXPECT_EQ(writing->setEnd(LLONG_MAX), 0);
  EXPECT_EQ(show(*clip),
            "clip -9223372036854775808..9223372036854775807 title, title \"one\", "
            "subtitle \"two\", file \"three\"");
}

TEST(SmartCutClipInfo, TakesANullTextAsTheEmptyOne) {
  const Held<ZOL::IZolSmartCutClipInfo> clip(createSmartCutClipInfo());
  auto* const writing = query<ZOL::IZolSmartCutClipInfoInternal>(clip.get());
  writing->setTitle("one");
  writing->setSubtitle("two");
  writing->setFileName("three");
  EXPECT_EQ(writing->setTitle(nullptr), 0);
  EXPECT_STREQ(clip->title(), "");
  EXPECT_EQ(writing->setSubtitle(nullptr), 0);
  EXPECT_STREQ(clip->subtitle(), "");
  EXPECT_EQ(writing->setFileName(nullptr), 0);
  EXPECT_STREQ(clip->fileName(), "");
}

TEST(SmartCutClipInfo, KeepsTheVeryListsItIsGiven) {
  const Held<ZOL::IZolSmartCutClipInfo> clip(createSmartCutClipInfo());
  auto* const writing = query<ZOL::IZolSmartCutClipInfoInternal>(clip.get());
  const Held<ZOL::IZolTextInfoList> texts(createIZolTextInfoList());
  const Held<ZOL::IZolHighlightInfoList> highlights(createIZolHighlightInfoList());
  EXPECT_EQ(writing->setTextInfoList(texts.get()), 0);
  EXPECT_EQ(writing->setHighlightInfoList(highlights.get()), 0);
  EXPECT_EQ(clip->textInfoList(), texts.get());
  EXPECT_EQ(clip->highlightInfoList(), highlights.get());
  EXPECT_EQ(texts->refCount(), 2) << "the getter lends";
  EXPECT_EQ(highlights->refCount(), 2);
}

TEST(SmartCutClipInfo, ShowsLaterChangesToItsLists) {
  const Held<ZOL::IZolSmartCutClipInfo> clip(createSmartCutClipInfo());
  auto* const writing = query<ZOL::IZolSmartCutClipInfoInternal>(clip.get());
  const Held<ZOL::IZolTextInfoList> texts(createIZolTextInfoList());
  const Held<ZOL::IZolHighlightInfoList> highlights(createIZolHighlightInfoList());
  writing->setScriptClass(0);
  writing->setTextInfoList(texts.get());
  writing->setHighlightInfoList(highlights.get());
  EXPECT_EQ(show(*clip), "clip 0..0 plain, texts [], highlights []");
  texts->add(Held<ZOL::IZolTextInfo>(createTextInfo()).get());
  highlights->add(Held<ZOL::IZolHighlightInfo>(createHighlightInfo()).get());
  EXPECT_EQ(show(*clip), "clip 0..0 plain, texts [0..0], highlights [0..0 type 0]");
}

TEST(SmartCutClipInfo, GivesUpAListForAnotherAndForNull) {
  const Held<ZOL::IZolSmartCutClipInfo> clip(createSmartCutClipInfo());
  auto* const writing = query<ZOL::IZolSmartCutClipInfoInternal>(clip.get());
  const Held<ZOL::IZolTextInfoList> first(createIZolTextInfoList());
  const Held<ZOL::IZolTextInfoList> second(createIZolTextInfoList());
  writing->setTextInfoList(first.get());
  writing->setTextInfoList(first.get());
  EXPECT_EQ(first->refCount(), 2) << "the same list again is still kept once";
  writing->setTextInfoList(second.get());
  EXPECT_EQ(first->refCount(), 1);
  EXPECT_EQ(second->refCount(), 2);
  EXPECT_EQ(writing->setTextInfoList(nullptr), 0);
  EXPECT_EQ(clip->textInfoList(), nullptr);
  EXPECT_EQ(second->refCount(), 1);

  const Held<ZOL::IZolHighlightInfoList> third(createIZolHighlightInfoList());
  const Held<ZOL::IZolHighlightInfoList> fourth(createIZolHighlightInfoList());
  writing->setHighlightInfoList(third.get());
  writing->setHighlightInfoList(third.get());
  EXPECT_EQ(third->refCount(), 2);
  writing->setHighlightInfoList(fourth.get());
  EXPECT_EQ(third->refCount(), 1);
  EXPECT_EQ(fourth->refCount(), 2);
  EXPECT_EQ(writing->setHighlightInfoList(nullptr), 0);
  EXPECT_EQ(clip->highlightInfoList(), nullptr);
  EXPECT_EQ(fourth->refCount(), 1);
}

TEST(SmartCutClipInfo, KeepsAListThatItAloneHolds) {
  const Held<ZOL::IZolSmartCutClipInfo> clip(createSmartCutClipInfo());
  auto* const writing = query<ZOL::IZolSmartCutClipInfoInternal>(clip.get());
  writing->setTextInfoList(Held<ZOL::IZolTextInfoList>(createIZolTextInfoList()).get());
  EXPECT_EQ(clip->textInfoList()->refCount(), 1);
  writing->setTextInfoList(clip->textInfoList());
  EXPECT_EQ(clip->textInfoList()->refCount(), 1);
  EXPECT_EQ(clip->textInfoList()->size(), 0);
}

// What the clip holds at the moment when its old list ends.
class LookingHook final : public ZOL::IReleaseHook {
 public:
  explicit LookingHook(ZOL::IZolSmartCutClipInfo* clip) : clip_(clip) {}
  void onLastRelease() override {
    texts = clip_->textInfoList();
    highlights = clip_->highlightInfoList();
    ++calls;
  }
  ZOL::IZolTextInfoList* texts = nullptr;
  ZOL::IZolHighlightInfoList* highlights = nullptr;
  int calls = 0;

 private:
  ZOL::IZolSmartCutClipInfo* const clip_;
};

TEST(SmartCutClipInfo, StoresTheNewListBeforeItGivesUpTheOld) {
  const Held<ZOL::IZolSmartCutClipInfo> clip(createSmartCutClipInfo());
  auto* const writing = query<ZOL::IZolSmartCutClipInfoInternal>(clip.get());
  LookingHook hook(clip.get());
  Held<ZOL::IZolTextInfoList> oldTexts(createIZolTextInfoList());
  oldTexts->setReleaseHook(&hook);
  writing->setTextInfoList(oldTexts.get());
  oldTexts.reset();
  const Held<ZOL::IZolTextInfoList> newTexts(createIZolTextInfoList());
  writing->setTextInfoList(newTexts.get());
  EXPECT_EQ(hook.calls, 1);
  EXPECT_EQ(hook.texts, newTexts.get());

  Held<ZOL::IZolHighlightInfoList> oldHighlights(createIZolHighlightInfoList());
  oldHighlights->setReleaseHook(&hook);
  writing->setHighlightInfoList(oldHighlights.get());
  oldHighlights.reset();
  const Held<ZOL::IZolHighlightInfoList> newHighlights(createIZolHighlightInfoList());
  writing->setHighlightInfoList(newHighlights.get());
  EXPECT_EQ(hook.calls, 2);
  EXPECT_EQ(hook.highlights, newHighlights.get());
}

TEST(SmartCutClipInfo, GivesUpItsListsWhenItEnds) {
  const Held<ZOL::IZolTextInfoList> texts(createIZolTextInfoList());
  const Held<ZOL::IZolHighlightInfoList> highlights(createIZolHighlightInfoList());
  Held<ZOL::IZolSmartCutClipInfo> clip(createSmartCutClipInfo());
  query<ZOL::IZolSmartCutClipInfoInternal>(clip.get())->setTextInfoList(texts.get());
  query<ZOL::IZolSmartCutClipInfoInternal>(clip.get())->setHighlightInfoList(highlights.get());
  clip.reset();
  EXPECT_EQ(texts->refCount(), 1);
  EXPECT_EQ(highlights->refCount(), 1);
}

TEST(TextInfo, ReadsWhatItsWritingSideWrites) {
  const Held<ZOL::IZolTextInfo> text(createTextInfo());
  auto* const writing = query<ZOL::IZolTextInfoInternal>(text.get());
  EXPECT_EQ(writing->setStart(1), 0);
  EXPECT_EQ(writing->setEnd(2), 0);
  EXPECT_EQ(writing->setText("three"), 0);
  EXPECT_EQ(writing->setBrollFileName("four"), 0);
  EXPECT_EQ(writing->setBrollStart(5), 0);
  EXPECT_EQ(writing->setBrollEnd(LLONG_MIN), 0);
  EXPECT_EQ(show(*text), "1..2 \"three\" over \"four\" from 5..-9223372036854775808");
}

TEST(TextInfo, TakesANullTextAsTheEmptyOne) {
  const Held<ZOL::IZolTextInfo> text(createTextInfo());
  auto* const writing = query<ZOL::IZolTextInfoInternal>(text.get());
  writing->setText("one");
  writing->setBrollFileName("two");
  EXPECT_EQ(writing->setText(nullptr), 0);
  EXPECT_STREQ(text->text(), "");
  EXPECT_EQ(writing->setBrollFileName(nullptr), 0);
  EXPECT_STREQ(text->brollFileName(), "");
  EXPECT_FALSE(text->hasBroll());
}

TEST(TextInfo, HasABrollExactlyWhenThereIsAFileName) {
  const Held<ZOL::IZolTextInfo> text(createTextInfo());
  auto* const writing = query<ZOL::IZolTextInfoInternal>(text.get());
  EXPECT_FALSE(text->hasBroll());
  writing->setBrollStart(100);
  writing->setBrollEnd(900);
  EXPECT_FALSE(text->hasBroll()) << "times alone make none";
  writing->setBrollFileName("b.mp4");
  EXPECT_TRUE(text->hasBroll());
  writing->setBrollStart(0);
  writing->setBrollEnd(0);
  EXPECT_TRUE(text->hasBroll()) << "no time takes it away";
  writing->setBrollFileName("");
  EXPECT_FALSE(text->hasBroll());
}

TEST(TargetScreenInfo, HasNineTextsOfTheirOwn) {
  using Reading = ZOL::IZolTargetScreenInfo;
  using Writing = ZOL::IZolTargetScreenInfoInternal;
  const struct {
    const char* (Reading::*read)();
    int (Writing::*write)(const char*);
  } fields[] = {
      {&Reading::screenText1, &Writing::setScreenText1},
      {&Reading::screenText2, &Writing::setScreenText2},
      {&Reading::screenText3, &Writing::setScreenText3},
      {&Reading::screenText4, &Writing::setScreenText4},
      {&Reading::screenText5, &Writing::setScreenText5},
      {&Reading::screenText6, &Writing::setScreenText6},
      {&Reading::screenText7, &Writing::setScreenText7},
      {&Reading::screenText8, &Writing::setScreenText8},
      {&Reading::screenText9, &Writing::setScreenText9},
  };
  const Held<Reading> screen(createTargetScreenInfo());
  auto* const writing = query<Writing>(screen.get());
  const auto texts = [&] {
    std::string text;
    for (const auto& field : fields) text += std::string((screen.get()->*field.read)()) + "|";
    return text;
  };
  EXPECT_EQ(texts(), "|||||||||");
  char name[] = "text 1";
  for (const auto& field : fields) {
    EXPECT_EQ((writing->*field.write)(name), 0);
    ++name[5];
  }
  EXPECT_EQ(texts(),
            "text 1|text 2|text 3|text 4|text 5|text 6|text 7|text 8|text 9|");
  EXPECT_EQ(writing->setScreenText5(nullptr), 0);
  EXPECT_EQ(writing->setScreenText9(""), 0);
  EXPECT_EQ(texts(), "text 1|text 2|text 3|text 4||text 6|text 7|text 8||");
}

TEST(HighlightInfo, IsWrittenFromBothSides) {
  const Held<ZOL::IZolHighlightInfo> highlight(createHighlightInfo());
  auto* const writing = query<ZOL::IZolHighlightInfoInternal>(highlight.get());
  EXPECT_EQ(highlight->setHLType(1), 0);
  EXPECT_EQ(highlight->setTrimIn(2), 0);
  EXPECT_EQ(highlight->setTrimOut(3), 0);
  EXPECT_EQ(show(*highlight), "2..3 type 1");
  EXPECT_EQ(writing->setHLType(INT_MIN), 0);
  EXPECT_EQ(writing->setTrimIn(LLONG_MIN), 0);
  EXPECT_EQ(writing->setTrimOut(LLONG_MAX), 0);
  EXPECT_EQ(show(*highlight),
            "-9223372036854775808..9223372036854775807 type -2147483648");
}

TEST(MusicInfo, ReadsWhatItsWritingSideWrites) {
  const Held<ZOL::IZolMusicInfo> music(createMusicInfo());
  auto* const writing = query<ZOL::IZolMusicInfoInternal>(music.get());
  EXPECT_EQ(writing->setMusicType(INT_MAX), 0);
  EXPECT_EQ(writing->setStart(LLONG_MAX), 0);
  EXPECT_EQ(writing->setEnd(LLONG_MIN), 0);
  EXPECT_EQ(writing->setDescription("drums"), 0);
  EXPECT_EQ(writing->setNote("loud"), 0);
  EXPECT_EQ(show(*music),
            "music 9223372036854775807..-9223372036854775808 type 2147483647, "
            "description \"drums\", note \"loud\"");
  EXPECT_EQ(writing->setDescription(nullptr), 0);
  EXPECT_STREQ(music->description(), "");
  EXPECT_EQ(writing->setNote(nullptr), 0);
  EXPECT_STREQ(music->note(), "");
}

}  // namespace
