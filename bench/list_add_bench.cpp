// What does a list's `add` cost through the interface, next to a plain push_back?

#include <KyDataStructure/lists.h>

#include <vector>

#include "inputs/int_lists.h"
#include "inputs/numbers.h"
#include "support/owned.h"
#include "support/ratio.h"
#include "support/require.h"

int main(int argc, char** argv) {
  const std::vector<int> numbers = bench::someNumbers(1000000, 1);
  bench::require(bench::holds(bench::listOf(numbers).get(), numbers),
                 "the list holds what was added, in its order");

  bench::RatioTable table;
  table.measure("add/list", [&](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(bench::listOf(numbers).get());
  });
  table.measure("add/vector", [&](benchmark::State& state) {
    for (auto _ : state) {
      std::vector<int> vector;
      for (const int number : numbers) vector.push_back(number);
      benchmark::DoNotOptimize(vector.data());
      benchmark::ClobberMemory();
    }
  });
  table.compare({"add of 1,000,000 ints through the interface", "push_back of the same", "add/list",
                 "add/vector", bench::atMost(2)});
  return table.run(argc, argv);
}
