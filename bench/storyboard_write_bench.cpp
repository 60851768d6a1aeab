// What does it cost to write a storyboard as text, next to RapidJSON's indenting writer
// with the same values?

#include <KyDataStructure/cutscript.h>

#include <string>
#include <vector>

#include "inputs/storyboard.h"
#include "support/owned.h"
#include "support/ratio.h"
#include "support/require.h"

int main(int argc, char** argv) {
  const std::vector<bench::StoryboardRow> rows = bench::storyboardRows(12000);
  const auto list = bench::storyboardList(rows);
  const auto out = bench::owned(createZolString());
  rapidjson::StringBuffer expected;
  bench::writeBare(expected, rows);
  bench::require(storyboardInfoListToJsonBuffer(list.get(), out.get()) == ZOL::kSuccess,
                 "a storyboard is written");
  bench::require(out->equals(expected.GetString()), "both write the same text");

  bench::RatioTable table(bench::Heap::kept);
  table.measure("storyboard/written", [&](benchmark::State& state) {
    for (auto _ : state) storyboardInfoListToJsonBuffer(list.get(), out.get());
  });
  table.measure("storyboard/written bare", [&](benchmark::State& state) {
    for (auto _ : state) {
      rapidjson::StringBuffer buffer;
      bench::writeBare(buffer, rows);
      benchmark::DoNotOptimize(buffer.GetString());
    }
  });
  table.compare({"a storyboard of 12,000 rows, written", "bare indenting writer",
                 "storyboard/written", "storyboard/written bare", bench::atMost(1.2)});
  return table.run(argc, argv);
}
