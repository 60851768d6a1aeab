// What does it cost to make a resource description from its text, next to a bare
// parse of the same bytes?

#include <KyDataStructure/resource.h>

#include <string>

#include "inputs/resource_texts.h"
#include "support/bare_json.h"
#include "support/described.h"
#include "support/owned.h"
#include "support/ratio.h"

namespace {

struct Scenario {
  const char* name;
  const char* what;
  std::string text;
  double limit;
};

void add(bench::RatioTable& table, const Scenario& scenario) {
  const auto info = bench::owned(createZolResSerializeInfoFromBuffer(scenario.text.c_str()));
  bench::proveDescribed(info.get(), scenario.text);

  const std::string name = std::string("read/") + scenario.name;
  table.measure(name + "/library", [text = scenario.text](benchmark::State& state) {
    for (auto _ : state) {
      bench::owned(createZolResSerializeInfoFromBuffer(text.c_str()));
    }
  });
  table.measure(name + "/parse", [text = scenario.text](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(bench::bareDocument(text).get());
  });
  table.compare({scenario.what, "bare parse", name + "/library", name + "/parse",
                 bench::atMost(scenario.limit)});
}

}  // namespace

int main(int argc, char** argv) {
  bench::RatioTable table;
  add(table,
      {"1KB", "a description of 1 KB made from text and released", bench::plainResource(), 1.5});
  add(table, {"payload", "one of 100 KB, most of it unknown members",
              bench::resourceWithPayload(100000), 1.0});
  add(table, {"related", "one of 100 KB, most of it related entries",
              bench::resourceWithRelated(100000), 1.0});
  return table.run(argc, argv);
}
