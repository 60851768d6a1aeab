// Parameters and effect data.

#include <KyDataStructure/params.h>
#include <KyDataStructure/resource.h>

#include <string>

#include "oom/inputs.h"
#include "oom/sweep.h"
#include "support/held.h"
#include "support/show.h"
#include "support/zol_text.h"

namespace oom {
namespace {

constexpr const char* kLong = "a text that stands nowhere but on the heap";

// A store of parameters.

struct Store {
  Held<ZOL::IZolParam> param = Held<ZOL::IZolParam>(createZolParam());
  Held<ZOL::ZOLPCharList> keys = Held<ZOL::ZOLPCharList>(createZOLPCharList());

  Store() {
    param->setProperty("b", integer(1));
    param->setProperty("a key too long for any place but the heap", integer(2));
    keys->add("the caller's own text, which is to go");
  }

  static ZOL::_Property integer(long long value) {
    ZOL::_Property property{};
    property.present = 1;
    property.type = ZOL::kPropertyInteger;
    __builtin_memcpy(property.value, &value, sizeof value);
    return property;
  }

  State state() const {
    const Held<ZOL::ZOLPCharList> held(createZOLPCharList());
    param->getKeys(held.get());
    std::string values = "values";
    for (long long i = 0; i < held->size(); ++i) {
      ZOL::_Property property{};
      param->getProperty(held->at(i), &property);
      values += " " + show(property);
    }
    return {show(held), values, show(keys)};
  }
};

Case storeCase(const char* name, void (*run)(Store& store), Judge judge = unchanged) {
  return onStage(
      std::string("IZolParam::") + name, [] { return Store(); }, run,
      [](const Store& store) { return store.state(); }, judge);
}

// Effect data, whatever their class.

constexpr int kIds = 40;

struct Effect {
  Held<ZOL::IParamObjectData> data;
  Held<ZOL::IParamObjectData> other;
  Held<ZOL::IParamObjectData> clone{nullptr};

  static std::string shown(ZOL::IParamObjectData& of) {
    std::string text;
    for (int id = -1; id < kIds; ++id) {
      const std::string param = of.param(id);
      if (!param.empty()) text += std::to_string(id) + " " + param + "; ";
    }
    return text;
  }

  // The parameters by themselves, since they are stored one by one.
  State state() const {
    State parts;
    for (int id = -1; id < kIds; ++id) parts.push_back(data->param(id));
    parts.push_back(shown(*other));
    parts.push_back(clone.get() ? shown(*clone) : "no clone");
    return parts;
  }
};

struct EffectClass {
  const char* name;
  ZOL::IParamObjectData* (*create)();
};

const EffectClass kEffects[] = {
    {"IRelinkEffectData", []() -> ZOL::IParamObjectData* { return createRelinkEffectData(); }},
    {"IResourceMediaData", []() -> ZOL::IParamObjectData* { return createResourceMediaData(); }},
    {"IAiPortraitV2Data", []() -> ZOL::IParamObjectData* { return createIAiPortraitV2Data(); }},
    {"IRemoveBackgroundData",
     []() -> ZOL::IParamObjectData* { return createRemoveBackgroundData(); }},
    {"IAITemplateGenerateData",
     []() -> ZOL::IParamObjectData* { return createAITemplateGenerateData(); }},
    {"IImageStylizesData", []() -> ZOL::IParamObjectData* { return createImageStylizesData(); }},
};

// The old parameters go first, and those of the other come all or not at all.
bool emptiedFirst(const State& before, const State& after, const State& /*finished*/) {
  for (std::size_t i = 0; i + 2 < after.size(); ++i) {
    if (!after[i].empty()) return false;
  }
  return State(after.end() - 2, after.end()) == State(before.end() - 2, before.end());
}

void addEffectCases(const EffectClass& of, std::vector<Case>& cases) {
  const auto make = [of] {
    Effect effect{Held<ZOL::IParamObjectData>(of.create()),
                  Held<ZOL::IParamObjectData>(of.create())};
    for (int id = 3; id < 9; ++id) {
      effect.data->setParam(id, (std::string("old ") + kLong).c_str());
      effect.other->setParam(id + 2, kLong);
    }
    return effect;
  };
  const auto add = [&](const char* name, void (*run)(Effect & effect), Judge judge = unchanged) {
    cases.push_back(onStage(
        std::string(of.name) + "::" + name, make, run,
        [](const Effect& effect) { return effect.state(); }, judge));
  };
  add("setParam", [](Effect& on) { on.data->setParam(30, kLong); });
  add("setParam in the place of another", [](Effect& on) { on.data->setParam(3, kLong); });
  // The two classes that derive a slug store it first.
  add(
      "setParam of a description",
      [](Effect& on) {
        on.data->setParam(
            1, R"({"name": "a slug that is too long for a short string", "res_type": 3})");
      },
      stepByStep);
  add(
      "copyFrom", [](Effect& on) { on.data->copyFrom(on.other.get()); }, emptiedFirst);
  add(
      "clearParams", [](Effect& on) { on.data->clearParams(); }, stepByStep);
  add("deepClone",
      [](Effect& on) { on.clone = Held<ZOL::IParamObjectData>(on.data->deepClone()); });
}

// The text form of the parameters.

using Stylizes = ZOL::IImageStylizesData;

struct Texts {
  Held<Stylizes> data = Held<Stylizes>(createImageStylizesData());
  Held<ZOL::IZolString> text;
  int type = -2;

  explicit Texts(const std::string& bytes) : text(zolString(bytes)) {
    data->setParam(2, "the old text, which is too long for a short string, too");
    data->setParam(3, R"({"name": "a-slug", "res_type": 12})");
  }

  State state() const {
    State parts = {bytesIn(*text), "type " + std::to_string(type)};
    for (int id = 0; id < 60; ++id) parts.push_back(data->param(id));
    return parts;
  }
};

Case textCase(const std::string& name, const std::string& text, void (*run)(Texts& texts),
              Judge judge = unchanged) {
  return onStage(
      "IImageStylizesData::" + name, [text] { return Texts(text); }, run,
      [](const Texts& texts) { return texts.state(); }, judge);
}

}  // namespace

std::vector<Case> paramCases() {
  std::vector<Case> cases;
  cases.push_back(
      storeCase("setProperty", [](Store& on) { on.param->setProperty("c", Store::integer(3)); }));
  cases.push_back(storeCase("setProperty of a long key",
                            [](Store& on) { on.param->setProperty(kLong, Store::integer(3)); }));
  cases.push_back(storeCase("setProperty in the place of another",
                            [](Store& on) { on.param->setProperty("b", Store::integer(3)); }));
  cases.push_back(storeCase(
      "getKeys", [](Store& on) { on.param->getKeys(on.keys.get()); }, stepByStep));
  cases.push_back(onStage(
      "IZolParamInternal::setParamName", [] { return Held<ZOL::IZolParam>(createZolParam()); },
      [](Held<ZOL::IZolParam>& on) {
        ZOL::query<ZOL::IZolParamInternal>(on.get())->setParamName(kLong);
      },
      [](const Held<ZOL::IZolParam>& on) {
        return show(ZOL::query<ZOL::IZolParamInternal>(on.get())->paramName());
      }));
  for (const EffectClass& effect : kEffects) addEffectCases(effect, cases);
  for (const Input& input : parameterMaps()) {
    cases.push_back(textCase(
        "readDataMap of " + input.name, input.text,
        [](Texts& on) { on.data->readDataMap(on.text.get()); }, stepByStep));
  }
  cases.push_back(textCase("writeDataMap", "the old text, which is too long for a short string",
                           [](Texts& on) { on.data->writeDataMap(on.text.get()); }));
  cases.push_back(
      textCase("resourceType", "", [](Texts& on) { on.type = on.data->resourceType(); }));
  return cases;
}

}  // namespace oom
