// Does reading a list in place, through "listData", cost anything over reading a
// vector?

#include <KyDataStructure/lists.h>

#include <vector>

#include "inputs/int_lists.h"
#include "inputs/numbers.h"
#include "support/ratio.h"
#include "support/require.h"

namespace {

long long sum(const int* numbers, long long count) {
  long long total = 0;
  for (long long i = 0; i < count; ++i) total += numbers[i];
  return total;
}

long long sumOf(ZOL::ZOLIntList* list) {
  return sum(static_cast<const int*>(list->queryInterface(ZOL::kListData)), list->size());
}

long long sumOf(const std::vector<int>& vector) {
  return sum(vector.data(), static_cast<long long>(vector.size()));
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<int> numbers = bench::someNumbers(1000000, 1);
  const auto list = bench::listOf(numbers);
  const auto* const array = static_cast<const int*>(list->queryInterface(ZOL::kListData));
  bench::require(bench::holds(list.get(), numbers), "the list's array holds the ints");
  bench::require(array && array[999999] == list->at(999999), "the array is the list's own");
  bench::require(sumOf(list.get()) == sumOf(numbers), "both have the same sum");

  bench::RatioTable table;
  table.measure("read/list", [&](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(sumOf(list.get()));
  });
  table.measure("read/vector", [&](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(sumOf(numbers));
  });
  table.compare({"reading 1,000,000 ints through \"listData\"", "reading the vector", "read/list",
                 "read/vector", bench::equal()});
  return table.run(argc, argv);
}
