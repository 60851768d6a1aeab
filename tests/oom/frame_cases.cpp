// Values and the holders of text and bytes.

#include <KyDataStructure/frame.h>

#include <string>
#include <utility>

#include "oom/sweep.h"
#include "support/held.h"
#include "support/show.h"
#include "support/zol_text.h"

namespace oom {
namespace {

constexpr const char* kOld = "the old text, too long for any place but the heap";
constexpr const char* kNew =
    "the new text, which is even longer than the old one was, and on the heap";

// A value that takes a text has dropped its old one by then, and holds the empty text if
// the copy fails.
bool emptied(const State& before, const State& after, const State& /*finished*/) {
  State expected = before;
  expected[0] = "string \"\"";
  return after == expected;
}

struct Values {
  ZOL::ZolValue value{kOld};
  ZOL::ZolValue other{kNew};

  State state() const { return {show(value), show(other)}; }
};

Case valueCase(const char* name, void (*run)(Values& values), Judge judge) {
  return onStage(
      std::string("ZolValue::") + name, [] { return Values(); }, run,
      [](const Values& values) { return values.state(); }, judge);
}

void addValueCases(std::vector<Case>& cases) {
  cases.push_back(valueCase(
      "setValue", [](Values& on) { on.value.setValue(kNew); }, emptied));
  cases.push_back(valueCase(
      "operator=", [](Values& on) { on.value = on.other; }, emptied));
  cases.push_back(valueCase(
      "operator= of a number",
      [](Values& on) {
        on.value.setValue(5);
        on.value = on.other;
      },
      emptied));
  cases.push_back(valueCase(
      "operator= by moving", [](Values& on) { on.value = std::move(on.other); }, emptied));
  cases.push_back(valueCase(
      "a copy", [](Values& on) { const ZOL::ZolValue copy(on.other); }, unchanged));
  cases.push_back(valueCase(
      "a moved copy", [](Values& on) { const ZOL::ZolValue copy(std::move(on.other)); },
      unchanged));
  cases.push_back(valueCase(
      "of a text", [](Values&) { const ZOL::ZolValue made(kNew); }, unchanged));
  cases.push_back(valueCase(
      "of a type and a union",
      [](Values&) {
        ZOL::_ZolValueUnion payload;
        payload.text = kNew;
        const ZOL::ZolValue made(ZOL::kStringValue, payload);
      },
      unchanged));
  cases.push_back(valueCase(
      "read from a text", [](Values& on) { ZOLStringToZolValue(kNew, &on.value); }, emptied));
}

void addHolderCases(std::vector<Case>& cases) {
  const auto text = [] { return zolString(kOld); };
  const auto showText = [](const Held<ZOL::IZolString>& on) {
    return show(on->text()) + ", length " + std::to_string(on->length());
  };
  cases.push_back(onStage(
      "IZolString::setText", text, [](Held<ZOL::IZolString>& on) { on->setText(kNew, -1); },
      showText));
  cases.push_back(onStage(
      "IZolString::appendText", text, [](Held<ZOL::IZolString>& on) { on->appendText(kNew, 50); },
      showText));
  cases.push_back(onStage(
      "ZOLValueToString", text,
      [](Held<ZOL::IZolString>& on) {
        ZOL::ZolValue value(kNew);
        ZOLValueToString(&value, on.get());
      },
      showText));
  cases.push_back(onStage(
      "ZOLValueToString of a number", text,
      [](Held<ZOL::IZolString>& on) {
        ZOL::ZolValue value(1e300);
        ZOLValueToString(&value, on.get());
      },
      showText));

  // The old content of these two goes in every case.
  const auto goes = [](const State&, const State& after, const State&) {
    return after == State{"null, 0"};
  };
  cases.push_back(onStage(
      "IZolPChar::setData",
      [] {
        Held<ZOL::IZolPChar> holder(createZolPChar());
        holder->setData("old", 3);
        return holder;
      },
      [](Held<ZOL::IZolPChar>& on) { on->setData(kNew, 20); },
      [](const Held<ZOL::IZolPChar>& on) {
        return (on->data() ? std::string(on->data(), static_cast<std::size_t>(on->size()))
                           : "null") +
               ", " + std::to_string(on->size());
      },
      goes));
  cases.push_back(onStage(
      "IDataSizeBuffer::setData",
      [] {
        Held<ZOL::IDataSizeBuffer> holder(createDataSizeBuffer());
        holder->setData("old", 3);
        return holder;
      },
      [](Held<ZOL::IDataSizeBuffer>& on) { on->setData(kNew, 20); },
      [](const Held<ZOL::IDataSizeBuffer>& on) {
        return (on->data() ? reinterpret_cast<const char*>(on->data()) : std::string("null")) +
               ", " + std::to_string(on->size());
      },
      goes));
}

}  // namespace

std::vector<Case> frameCases() {
  std::vector<Case> cases;
  addValueCases(cases);
  addHolderCases(cases);
  return cases;
}

}  // namespace oom
