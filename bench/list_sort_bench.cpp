// Does sorting a list with the caller's function cost anything over std::sort with
// that function?

#include <KyDataStructure/lists.h>

#include <algorithm>
#include <vector>

#include "inputs/int_lists.h"
#include "inputs/numbers.h"
#include "support/ratio.h"
#include "support/require.h"
#include "yardsticks/sort.h"

namespace {

bool comesBefore(int a, int b) { return a < b; }

}  // namespace

int main(int argc, char** argv) {
  const std::vector<int> numbers = bench::someNumbers(200000, 1);
  const auto list = bench::listOf(numbers);

  const auto proof = bench::copyOf(list.get());
  std::vector<int> expected = numbers;
  std::sort(expected.begin(), expected.end());
  std::vector<int> yardstick = numbers;
  bench::sortFromAfar(yardstick, comesBefore);
  bench::require(proof->sort(comesBefore) == ZOL::kSuccess, "a list is sorted");
  bench::require(bench::holds(proof.get(), expected), "its elements are in ascending order");
  bench::require(yardstick == expected, "those of the vector are, too");

  bench::RatioTable table;
  table.measure("sort/list", [&](benchmark::State& state) {
    for (auto _ : state) {
      state.PauseTiming();
      auto sorted = bench::copyOf(list.get());
      state.ResumeTiming();
      sorted->sort(comesBefore);
      state.PauseTiming();
      sorted.reset();
      state.ResumeTiming();
    }
  });
  table.measure("sort/vector", [&](benchmark::State& state) {
    for (auto _ : state) {
      state.PauseTiming();
      {
        std::vector<int> sorted = numbers;
        state.ResumeTiming();
        bench::sortFromAfar(sorted, comesBefore);
        state.PauseTiming();
      }
      state.ResumeTiming();
    }
  });
  table.compare({"sort of 200,000 ints with the caller's function",
                 "std::sort with the same function", "sort/list", "sort/vector",
                 bench::atMost(1.05)});
  return table.run(argc, argv);
}
