// Does a text cost as much among 100,000 as among 10,000, when a list of texts is
// turned into a list of descriptions without doubles?

#include <KyDataStructure/resource.h>

#include <string>

#include "inputs/resource_texts.h"
#include "support/building.h"
#include "support/owned.h"
#include "support/ratio.h"
#include "support/require.h"

namespace {

bench::Owned<ZOL::ZOLPCharList> texts(int count) {
  auto list = bench::owned(createZOLPCharList());
  for (int i = 0; i < count; ++i) list->add(bench::shortResource(i).c_str());
  return list;
}

bench::Owned<ZOL::IZolResSerializeInfoList> described(ZOL::ZOLPCharList* texts) {
  auto list = bench::owned(createIZolResSerializeInfoList());
  resInfoStr2SerializeList(texts, list.get());
  return list;
}

// Each text once, in order, although the list that is read has every text twice.
void prove() {
  constexpr int kCount = 1000;
  const auto twice = texts(kCount);
  const auto again = texts(kCount);
  twice->insertListAt(kCount, again.get());
  const auto list = described(twice.get());
  bench::require(list->size() == kCount, "doubles are left out and nothing else");
  for (int i = 0; i < kCount; ++i) {
    const std::string key = "overlay-light-leak-" + std::to_string(i) + "_res_type_" +
                            std::to_string(i % 20 + 1) + "_info_type_7";
    bench::require(list->at(i)->uniqueKey() == key, "the order is that of the texts");
  }
}

}  // namespace

int main(int argc, char** argv) {
  prove();
  const auto few = texts(10000);
  const auto many = texts(100000);

  bench::RatioTable table(bench::Heap::kept);
  const auto measure = [&table](const char* name, ZOL::ZOLPCharList* list) {
    return table.measure(name, bench::buildAlone([list] { return described(list); }));
  };
  measure("list/100,000", many.get())->Iterations(1);
  measure("list/10,000", few.get())->Iterations(4);
  table.compare({"resInfoStr2SerializeList of 100,000 texts, a text", "of 10,000, a text",
                 "list/100,000", "list/10,000", bench::atMost(1.2), 0.1});
  return table.run(argc, argv);
}
