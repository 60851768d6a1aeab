// Search results.

#include <KyDataStructure/search.h>

#include <string>

#include "oom/sweep.h"
#include "oom/text_setter.h"
#include "support/held.h"
#include "support/show.h"

namespace oom {
namespace {

using Result = ZOL::IZolSmartCutSearchResult;
using Item = ZOL::IZolSmartCutSearchDimensionsResultItem;
using Role = ZOL::IZolRoleSearchItemInfo;
using Dimension = ZOL::IZolSmartCutSearchDimensionsResult;

struct Results {
  Held<Result> result = Held<Result>(createSmartCutSearchResult());
  Held<Dimension> dimension = Held<Dimension>(createSmartCutSearchDimensionsResult());
  Held<ZOL::ZOLIntList> keys = Held<ZOL::ZOLIntList>(createZOLIntList());

  explicit Results(int count) {
    for (int key = 0; key < count; ++key) result->setDimensionResult(key, dimension.get());
    keys->add(-5);
  }

  State state() const {
    const Held<ZOL::ZOLIntList> held(createZOLIntList());
    result->getDimensionKeys(held.get());
    return {show(held), show(keys), "references " + std::to_string(dimension->refCount())};
  }
};

Case resultCase(const char* name, void (*run)(Results& results), Judge judge = unchanged) {
  const int count = full() ? 100 : 5;
  return onStage(
      std::string("IZolSmartCutSearchResult::") + name, [count] { return Results(count); }, run,
      [](const Results& results) { return results.state(); }, judge);
}

}  // namespace

std::vector<Case> searchCases() {
  std::vector<Case> cases;
  addTextCases<Result, Result>(&createSmartCutSearchResult,
                               {{"firstText", &Result::firstText, &Result::setFirstText},
                                {"secondText", &Result::secondText, &Result::setSecondText},
                                {"thirdText", &Result::thirdText, &Result::setThirdText}},
                               cases);
  addTextCases<Item, Item>(&createSmartCutSearchDimensionsResultItem,
                           {{"itemText", &Item::itemText, &Item::setItemText}}, cases);
  addTextCases<Role, Role>(&createRoleSearchItemInfo,
                           {{"roleText", &Role::roleText, &Role::setRoleText}}, cases);
  cases.push_back(resultCase("setDimensionResult", [](Results& on) {
    on.result->setDimensionResult(1000, on.dimension.get());
  }));
  cases.push_back(resultCase("setDimensionResult in the place of another", [](Results& on) {
    on.result->setDimensionResult(0, on.dimension.get());
  }));
  cases.push_back(resultCase("removeDimensionResult",
                             [](Results& on) { on.result->removeDimensionResult(0); }));
  cases.push_back(resultCase(
      "getDimensionKeys", [](Results& on) { on.result->getDimensionKeys(on.keys.get()); },
      stepByStep));
  return cases;
}

}  // namespace oom
