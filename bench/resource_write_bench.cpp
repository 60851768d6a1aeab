// What does it cost to write a resource description on top of the text that it was
// read from, next to a bare parse and a compact write of that text?

#include <KyDataStructure/resource.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <memory>
#include <string>

#include "inputs/resource_texts.h"
#include "support/bare_json.h"
#include "support/described.h"
#include "support/owned.h"
#include "support/ratio.h"
#include "support/require.h"

namespace {

struct Scenario {
  const char* name;
  const char* what;
  std::string text;
};

// What was written reads back as the same description and has each member of the
// text, known or not.
void prove(ZOL::IZolResSerializeInfo* info, const std::string& text) {
  const auto out = bench::owned(createZolString());
  bench::require(info->toBuffer(out.get()) == ZOL::kSuccess, "a description is written");
  const std::string written = out->text();
  const auto again = bench::owned(createZolResSerializeInfoFromBuffer(written.c_str()));
  bench::proveDescribed(again.get(), text);

  rapidjson::Document before;
  rapidjson::Document after;
  bench::bareParse(before, text);
  bench::bareParse(after, written);
  bench::require(before == after, "all members of the text are in what is written");
}

void add(bench::RatioTable& table, const Scenario& scenario) {
  const std::shared_ptr<ZOL::IZolResSerializeInfo> info(
      createZolResSerializeInfoFromBuffer(scenario.text.c_str()), bench::Release());
  prove(info.get(), scenario.text);

  const std::string name = std::string("write/") + scenario.name;
  table.measure(name + "/library", [info](benchmark::State& state) {
    const auto out = bench::owned(createZolString());
    for (auto _ : state) info->toBuffer(out.get());
  });
  table.measure(name + "/parse and write", [text = scenario.text](benchmark::State& state) {
    for (auto _ : state) {
      rapidjson::Document document;
      bench::bareParse(document, text);
      rapidjson::StringBuffer buffer;
      rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
      document.Accept(writer);
      benchmark::DoNotOptimize(buffer.GetString());
    }
  });
  table.compare({scenario.what, "bare parse and compact write", name + "/library",
                 name + "/parse and write", bench::atMost(1.3)});
}

}  // namespace

int main(int argc, char** argv) {
  bench::RatioTable table;
  add(table, {"1KB", "toBuffer of a description read from 1 KB", bench::plainResource()});
  add(table,
      {"payload", "from 100 KB, most of it unknown members", bench::resourceWithPayload(100000)});
  add(table,
      {"related", "from 100 KB, most of it related entries", bench::resourceWithRelated(100000)});
  return table.run(argc, argv);
}
