// A record's texts, each set and read through a pair of operations.

#ifndef KYDATASTRUCTURE_TESTS_OOM_TEXT_SETTER_H_
#define KYDATASTRUCTURE_TESTS_OOM_TEXT_SETTER_H_

#include <KyDataStructure/frame.h>

#include <string>
#include <vector>

#include "oom/sweep.h"
#include "support/held.h"
#include "support/show.h"

namespace oom {

template <class Reading, class Writing>
struct TextField {
  const char* name;
  const char* (Reading::*get)();
  int (Writing::*set)(const char*);
};

// Sets each text of a record that holds others, and one that holds none.
template <class Reading, class Writing>
void addTextCases(Reading* (*create)(), const std::vector<TextField<Reading, Writing>>& texts,
                  std::vector<Case>& cases) {
  using Texts = std::vector<TextField<Reading, Writing>>;
  const auto show = [texts](const Held<Reading>& record) {
    State state;
    for (const auto& text : texts) state.push_back(::show((record.get()->*text.get)()));
    return state;
  };
  const auto make = [create, texts](bool filled) {
    Held<Reading> record(create());
    for (const auto& text : filled ? texts : Texts()) {
      (ZOL::query<Writing>(record.get())->*text.set)(text.name);
    }
    return record;
  };
  for (const auto& text : texts) {
    const auto set = [text](Held<Reading>& record) {
      (ZOL::query<Writing>(record.get())->*text.set)("a text that stands nowhere but on the heap");
    };
    const std::string name = std::string(Reading::interfaceName) + "::" + text.name + " set";
    cases.push_back(onStage(
        name, [make] { return make(true); }, set, show));
    cases.push_back(onStage(
        name + " in a new one", [make] { return make(false); }, set, show));
  }
}

}  // namespace oom

#endif  // KYDATASTRUCTURE_TESTS_OOM_TEXT_SETTER_H_
