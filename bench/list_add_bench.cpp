// What does a list's `add` cost through the interface, next to a plain push_back?

#include <KyDataStructure/lists.h>

#include <vector>

#include "inputs/int_lists.h"
#include "inputs/numbers.h"
#include "support/owned.h"
#include "support/ratio.h"
#include "support/require.h"

namespace {

void addAll(ZOL::ZOLIntList* list, const std::vector<int>& numbers) {
  for (const int number : numbers) list->add(number);
}

void addAll(std::vector<int>& vector, const std::vector<int>& numbers) {
  for (const int number : numbers) vector.push_back(number);
  benchmark::DoNotOptimize(vector.data());
  benchmark::ClobberMemory();
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<int> numbers = bench::someNumbers(1000000, 1);
  const auto list = bench::owned(createZOLIntList());
  for (int round = 0; round < 2; ++round) {
    list->clear();
    addAll(list.get(), numbers);
    bench::require(bench::holds(list.get(), numbers), "a list holds what was added, in its order");
  }
  std::vector<int> vector = numbers;

  bench::RatioTable table;
  table.measure("add/list", [&](benchmark::State& state) {
    for (auto _ : state) addAll(bench::owned(createZOLIntList()).get(), numbers);
  });
  table.measure("add/vector", [&](benchmark::State& state) {
    for (auto _ : state) {
      std::vector<int> fresh;
      addAll(fresh, numbers);
    }
  });
  table.measure("add/list again", [&](benchmark::State& state) {
    for (auto _ : state) {
      list->clear();
      addAll(list.get(), numbers);
    }
  });
  table.measure("add/vector again", [&](benchmark::State& state) {
    for (auto _ : state) {
      vector.clear();
      addAll(vector, numbers);
    }
  });
  table.compare({"add of 1,000,000 ints through the interface, and the list",
                 "push_back of the same, and the vector", "add/list", "add/vector",
                 bench::atMost(2)});
  table.compare({"the same into a list that has the room", "into a vector that has it",
                 "add/list again", "add/vector again", bench::noAim()});
  return table.run(argc, argv);
}
