// The texts of cuts, reports, storyboards and highlights.

#include <KyDataStructure/cutscript.h>

#include <stdexcept>
#include <string>

#include "cutscript/report_state.h"
#include "cutscript/script_state.h"
#include "oom/inputs.h"
#include "oom/sweep.h"
#include "support/held.h"
#include "support/show.h"
#include "support/zol_text.h"

namespace oom {
namespace {

constexpr const char* kOldText = "the old text, which is too long for a short string";

// What a reader made of a text: an object, or nothing, or words of its own.
template <class Object>
struct Reading {
  Held<Object> object{nullptr};
  std::string words;
};

template <class Object>
Case readerCase(const std::string& name, const Input& input, Object* (*read)(const char*)) {
  return onStage(
      name + " of " + input.name, [] { return Reading<Object>(); },
      [text = input.text, read](Reading<Object>& reading) {
        try {
          reading.object = Held<Object>(read(text.c_str()));
        } catch (const std::logic_error& refusal) {
          reading.words = refusal.what();
        }
      },
      [](const Reading<Object>& reading) {
        return reading.words + ": " + (reading.object.get() ? ::show(*reading.object) : "none");
      });
}

// Rows and their text.

using Rows = ZOL::IZolStoryboardInfoList;

struct Storyboard {
  Held<ZOL::IZolString> text;
  Held<Rows> rows = Held<Rows>(createIZolStoryboardInfoList());
  int result = -1;

  explicit Storyboard(const std::string& bytes) : text(zolString(bytes)) {
    rows->add(Held<ZOL::IZolStoryboardInfo>(createStoryboardInfo()).get());
  }

  State state() const {
    const auto shown = [](ZOL::IZolStoryboardInfo* row) { return ::show(*row); };
    return {showBy(*rows, shown), bytesIn(*text), "result " + std::to_string(result)};
  }
};

void addStoryboardCases(std::vector<Case>& cases) {
  const auto show = [](const Storyboard& storyboard) { return storyboard.state(); };
  for (const Input& input : storyboards()) {
    cases.push_back(onStage(
        "jsonBufferToStoryboardInfoList of " + input.name,
        [text = input.text] { return Storyboard(text); },
        [](Storyboard& on) {
          on.result = jsonBufferToStoryboardInfoList(on.text.get(), on.rows.get());
        },
        show, stepByStep));
    cases.push_back(onStage(
        "storyboardInfoListToJsonBuffer of " + input.name,
        [text = input.text] {
          Storyboard storyboard(text);
          jsonBufferToStoryboardInfoList(storyboard.text.get(), storyboard.rows.get());
          storyboard.text->setText(kOldText, -1);
          return storyboard;
        },
        [](Storyboard& on) {
          on.result = storyboardInfoListToJsonBuffer(on.rows.get(), on.text.get());
        },
        show));
  }
}

struct Highlight {
  Held<ZOL::IZolHighlightInfo> highlight = Held<ZOL::IZolHighlightInfo>(createHighlightInfo());
  Held<ZOL::IZolString> text = zolString(kOldText);
};

void addHighlightCases(std::vector<Case>& cases) {
  const auto make = [] { return Highlight(); };
  const auto show = [](const Highlight& on) -> State {
    return {::show(*on.highlight), bytesIn(*on.text)};
  };
  cases.push_back(onStage(
      "IZolHighlightInfo::toJson", make, [](Highlight& on) { on.highlight->toJson(on.text.get()); },
      show));
  cases.push_back(onStage(
      "IZolHighlightInfo::fromJson", make,
      [](Highlight& on) {
        on.highlight->fromJson(R"({"HLType": 1, "trimIn": 4200, "trimOut": 9750})");
      },
      show));
}

}  // namespace

std::vector<Case> cutTextCases() {
  std::vector<Case> cases;
  for (const Input& input : cutReplies()) {
    cases.push_back(readerCase("createCutScripts", input, &createCutScripts));
  }
  for (const Input& input : reports()) {
    cases.push_back(readerCase("createKeyMatrixInfo", input, &createKeyMatrixInfo));
  }
  addStoryboardCases(cases);
  addHighlightCases(cases);
  return cases;
}

}  // namespace oom
