// What does it cost to insert a whole list into the middle of another, next to one
// insertion of a range into a vector?

#include <KyDataStructure/lists.h>

#include <vector>

#include "inputs/int_lists.h"
#include "inputs/numbers.h"
#include "support/ratio.h"
#include "support/require.h"

namespace {

constexpr int kCount = 100000;
constexpr int kMiddle = kCount / 2;

void insertInto(std::vector<int>& target, const std::vector<int>& numbers) {
  target.insert(target.begin() + kMiddle, numbers.begin(), numbers.end());
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<int> around = bench::someNumbers(kCount, 1);
  const std::vector<int> inserted = bench::someNumbers(kCount, 2);
  const auto aroundList = bench::listOf(around);
  const auto insertedList = bench::listOf(inserted);

  const auto proof = bench::copyOf(aroundList.get());
  std::vector<int> expected = around;
  insertInto(expected, inserted);
  bench::require(proof->insertListAt(kMiddle, insertedList.get()) == ZOL::kSuccess,
                 "a list is inserted into another");
  bench::require(bench::holds(proof.get(), expected), "list and vector end up alike");

  bench::RatioTable table;
  table.measure("insert/list", [&](benchmark::State& state) {
    for (auto _ : state) {
      state.PauseTiming();
      auto target = bench::copyOf(aroundList.get());
      state.ResumeTiming();
      target->insertListAt(kMiddle, insertedList.get());
      state.PauseTiming();
      target.reset();
      state.ResumeTiming();
    }
  });
  table.measure("insert/vector", [&](benchmark::State& state) {
    for (auto _ : state) {
      state.PauseTiming();
      {
        std::vector<int> target = around;
        state.ResumeTiming();
        insertInto(target, inserted);
        benchmark::DoNotOptimize(target.data());
        benchmark::ClobberMemory();
        state.PauseTiming();
      }
      state.ResumeTiming();
    }
  });
  table.compare({"insertListAt of 100,000 into the middle of 100,000",
                 "one vector::insert of the range", "insert/list", "insert/vector",
                 bench::atMost(2)});
  return table.run(argc, argv);
}
