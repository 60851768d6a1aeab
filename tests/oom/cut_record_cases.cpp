// The records of cuts and reports.

#include <KyDataStructure/cutscript.h>

#include <string>

#include "cutscript/report_state.h"
#include "cutscript/script_state.h"
#include "oom/sweep.h"
#include "oom/text_setter.h"
#include "support/held.h"
#include "support/show.h"

namespace oom {
namespace {

using ZOL::IZolDemensionsItem;
using ZOL::IZolDemensionsItemInternal;
using ZOL::IZolKeyMatrixInfo;
using ZOL::IZolKeyMatrixInfoInternal;
using ZOL::IZolSliceItem;
using ZOL::IZolSliceItemInternal;
using Texts = ZOL::ZOLPCharList;
using Slices = ZOL::IZolSliceItemList;

void addTexts(std::vector<Case>& cases) {
  using Row = ZOL::IZolStoryboardInfo;
  using RowIn = ZOL::IZolStoryboardInfoInternal;
  addTextCases<Row, RowIn>(&createStoryboardInfo,
                           {{"title", &Row::title, &RowIn::setTitle},
                            {"subtitle", &Row::subtitle, &RowIn::setSubtitle},
                            {"description", &Row::description, &RowIn::setDescription}},
                           cases);
  using Clip = ZOL::IZolSmartCutClipInfo;
  using ClipIn = ZOL::IZolSmartCutClipInfoInternal;
  addTextCases<Clip, ClipIn>(&createSmartCutClipInfo,
                             {{"title", &Clip::title, &ClipIn::setTitle},
                              {"subtitle", &Clip::subtitle, &ClipIn::setSubtitle},
                              {"fileName", &Clip::fileName, &ClipIn::setFileName}},
                             cases);
  using Text = ZOL::IZolTextInfo;
  using TextIn = ZOL::IZolTextInfoInternal;
  addTextCases<Text, TextIn>(&createTextInfo,
                             {{"text", &Text::text, &TextIn::setText},
                              {"brollFileName", &Text::brollFileName, &TextIn::setBrollFileName}},
                             cases);
  using Music = ZOL::IZolMusicInfo;
  using MusicIn = ZOL::IZolMusicInfoInternal;
  addTextCases<Music, MusicIn>(&createMusicInfo,
                               {{"description", &Music::description, &MusicIn::setDescription},
                                {"note", &Music::note, &MusicIn::setNote}},
                               cases);
  using Screen = ZOL::IZolTargetScreenInfo;
  using ScreenIn = ZOL::IZolTargetScreenInfoInternal;
  addTextCases<Screen, ScreenIn>(&createTargetScreenInfo,
                                 {{"screenText1", &Screen::screenText1, &ScreenIn::setScreenText1},
                                  {"screenText2", &Screen::screenText2, &ScreenIn::setScreenText2},
                                  {"screenText3", &Screen::screenText3, &ScreenIn::setScreenText3},
                                  {"screenText4", &Screen::screenText4, &ScreenIn::setScreenText4},
                                  {"screenText5", &Screen::screenText5, &ScreenIn::setScreenText5},
                                  {"screenText6", &Screen::screenText6, &ScreenIn::setScreenText6},
                                  {"screenText7", &Screen::screenText7, &ScreenIn::setScreenText7},
                                  {"screenText8", &Screen::screenText8, &ScreenIn::setScreenText8},
                                  {"screenText9", &Screen::screenText9, &ScreenIn::setScreenText9}},
                                 cases);
  addTextCases<IZolSliceItem, IZolSliceItemInternal>(
      &createSliceItem, {{"label", &IZolSliceItem::label, &IZolSliceItemInternal::setLabel}},
      cases);
  addTextCases<IZolKeyMatrixInfo, IZolKeyMatrixInfoInternal>(
      []() -> IZolKeyMatrixInfo* { return createKeyMatrixInfo("{}"); },
      {{"matrixName", &IZolKeyMatrixInfo::matrixName, &IZolKeyMatrixInfoInternal::setMatrixName}},
      cases);
}

int length() { return full() ? 60 : 4; }

Held<Texts> texts(const std::string& stem, int count = length()) {
  Held<Texts> list(createZOLPCharList());
  for (int i = 0; i < count; ++i) {
    list->add((stem + ", long enough for the heap, " + std::to_string(i)).c_str());
  }
  return list;
}

// A slice with names and values, and the caller's lists.
struct Slice {
  Held<IZolSliceItem> slice = Held<IZolSliceItem>(createSliceItem());
  Held<Texts> keys = texts("another key");
  Held<Texts> values = texts("another value");

  explicit Slice(int count) {
    if (count > 0) in().setKeyValues(texts("key", count).get(), texts("value", count).get());
  }

  IZolSliceItemInternal& in() { return *ZOL::query<IZolSliceItemInternal>(slice.get()); }

  State state() const {
    const Held<Texts> heldKeys(createZOLPCharList());
    const Held<Texts> heldValues(createZOLPCharList());
    slice->getKeyValues(heldKeys.get(), heldValues.get());
    return {::show(*heldKeys) + " to " + ::show(*heldValues), ::show(*keys), ::show(*values)};
  }
};

void addSliceCases(std::vector<Case>& cases) {
  const auto show = [](const Slice& on) { return on.state(); };
  const auto set = [](Slice& on) { on.in().setKeyValues(on.keys.get(), on.values.get()); };
  const std::string name = "IZolSliceItem::";
  cases.push_back(onStage(
      name + "setKeyValues", [] { return Slice(0); }, set, show));
  cases.push_back(onStage(
      name + "setKeyValues in the place of fewer", [] { return Slice(2); }, set, show));
  cases.push_back(onStage(
      name + "getKeyValues", [] { return Slice(2); },
      [](Slice& on) { on.slice->getKeyValues(on.keys.get(), on.values.get()); }, show, stepByStep));
}

Held<Slices> slices(const std::string& label, int count = length()) {
  Held<Slices> list(createIZolSliceItemList());
  for (int i = 0; i < count; ++i) {
    const Held<IZolSliceItem> slice(createSliceItem());
    ZOL::query<IZolSliceItemInternal>(slice.get())->setLabel((label + std::to_string(i)).c_str());
    list->add(slice.get());
  }
  return list;
}

// A dimension with slices of all kinds, and the caller's lists.
struct Dimension {
  Held<IZolDemensionsItem> item = Held<IZolDemensionsItem>(createDemensionsItem());
  Held<Slices> list = slices("another slice");
  Held<Texts> labels = texts("of the caller's");
  Held<ZOL::ZOLLonglongList> times = Held<ZOL::ZOLLonglongList>(createZOLLonglongList());
  Held<ZOL::ZOLIntList> scores = Held<ZOL::ZOLIntList>(createZOLIntList());

  explicit Dimension(bool filled) {
    for (int i = 0; i < length(); ++i) {
      times->add(i * 1000);
      scores->add(i);
    }
    if (!filled) return;
    in().setLabelSliceItems("a label that is long enough for the heap", slices("first", 2).get());
    in().setLabelSliceItems("b", slices("second", 3).get());
    in().setScores(Held<ZOL::ZOLLonglongList>(createZOLLonglongList()).get(),
                   Held<ZOL::ZOLIntList>(createZOLIntList()).get());
  }

  IZolDemensionsItemInternal& in() { return *ZOL::query<IZolDemensionsItemInternal>(item.get()); }

  State state() const {
    const Held<ZOL::ZOLLonglongList> heldTimes(createZOLLonglongList());
    const Held<ZOL::ZOLIntList> heldScores(createZOLIntList());
    item->getScores(heldTimes.get(), heldScores.get());
    return {::show(*item),
            item->hasScores() ? "scores" : "no scores",
            ::show(heldTimes) + ::show(heldScores),
            ::show(*list),
            ::show(*labels),
            "references " + std::to_string(list->size() > 0 ? list->at(0)->refCount() : 0)};
  }
};

Case dimensionCase(const std::string& name, bool filled, void (*run)(Dimension& on),
                   Judge judge = unchanged) {
  return onStage(
      "IZolDemensionsItem::" + name + (filled ? "" : " in a new one"),
      [filled] { return Dimension(filled); }, run, [](const Dimension& on) { return on.state(); },
      judge);
}

// What a getter gives is not told by the references to what it has dropped.
bool listStepByStep(const State& before, const State& after, const State& finished) {
  const auto lists = [](const State& state) { return State(state.begin(), state.end() - 1); };
  return stepByStep(lists(before), lists(after), lists(finished));
}

void addDimensionCases(std::vector<Case>& cases) {
  for (const bool filled : {false, true}) {
    cases.push_back(dimensionCase("setSliceItems", filled,
                                  [](Dimension& on) { on.in().setSliceItems(on.list.get()); }));
    cases.push_back(dimensionCase(
        "setSliceItems twice", filled,
        [](Dimension& on) {
          on.in().setSliceItems(on.list.get());
          on.in().setSliceItems(on.list.get());
        },
        listStepByStep));
    cases.push_back(dimensionCase("setLabelSliceItems", filled, [](Dimension& on) {
      on.in().setLabelSliceItems("c, a label that is long enough for the heap", on.list.get());
    }));
    cases.push_back(
        dimensionCase("setLabelSliceItems in the place of others", filled,
                      [](Dimension& on) { on.in().setLabelSliceItems("b", on.list.get()); }));
    cases.push_back(dimensionCase("setScores", filled, [](Dimension& on) {
      on.in().setScores(on.times.get(), on.scores.get());
    }));
    cases.push_back(dimensionCase(
        "getSliceItems", filled, [](Dimension& on) { on.item->getSliceItems(on.list.get()); },
        listStepByStep));
    cases.push_back(dimensionCase(
        "getLabels", filled, [](Dimension& on) { on.item->getLabels(on.labels.get()); },
        listStepByStep));
    cases.push_back(dimensionCase(
        "getLabelSliceItems", filled,
        [](Dimension& on) { on.item->getLabelSliceItems("b", on.list.get()); }, listStepByStep));
  }
}

// A report with keywords, and the caller's.
struct Report {
  Held<IZolKeyMatrixInfo> report = Held<IZolKeyMatrixInfo>(createKeyMatrixInfo("{}"));
  Held<IZolDemensionsItem> item = Held<IZolDemensionsItem>(createDemensionsItem());
  Held<Texts> words = texts("another keyword");

  Report() { in().setKeywords(texts("keyword", 3).get()); }

  IZolKeyMatrixInfoInternal& in() { return *ZOL::query<IZolKeyMatrixInfoInternal>(report.get()); }

  State state() const {
    const Held<Texts> held(createZOLPCharList());
    report->getKeywords(held.get());
    return {::show(*report), ::show(*held), ::show(*words),
            "references " + std::to_string(item->refCount())};
  }
};

Case reportCase(const char* name, void (*run)(Report& on), Judge judge = unchanged) {
  return onStage(
      std::string("IZolKeyMatrixInfo::") + name, [] { return Report(); }, run,
      [](const Report& on) { return on.state(); }, judge);
}

void addReportCases(std::vector<Case>& cases) {
  cases.push_back(reportCase("setDimensionItem",
                             [](Report& on) { on.in().setDimensionItem(5, on.item.get()); }));
  cases.push_back(
      reportCase("setKeywords", [](Report& on) { on.in().setKeywords(on.words.get()); }));
  cases.push_back(reportCase(
      "getKeywords", [](Report& on) { on.report->getKeywords(on.words.get()); }, stepByStep));
}

// A cut and a list of the caller's.
struct Cut {
  Held<ZOL::IZolCutScripts> scripts = Held<ZOL::IZolCutScripts>(createCutScripts(
      R"([{"script": [{"script_class": "chapter"}, {"script_class": "chapter"}]}])"));
  Held<ZOL::IZolMusicInfoList> music = Held<ZOL::IZolMusicInfoList>(createIZolMusicInfoList());
};

void addCutCases(std::vector<Case>& cases) {
  cases.push_back(onStage(
      "IZolCutScripts::getMusicInfoList", [] { return Cut(); },
      [](Cut& on) { on.scripts->getMusicInfoList(0, on.music.get()); },
      [](const Cut& on) -> State {
        return {::show(*on.scripts), ::show(*on.music)};
      }));
}

}  // namespace

std::vector<Case> cutRecordCases() {
  std::vector<Case> cases;
  addTexts(cases);
  addSliceCases(cases);
  addDimensionCases(cases);
  addReportCases(cases);
  addCutCases(cases);
  return cases;
}

}  // namespace oom
