// What does it cost to read a storyboard from its text, next to a bare parse of the
// same bytes?

#include <KyDataStructure/cutscript.h>

#include <string>
#include <vector>

#include "inputs/storyboard.h"
#include "support/bare_json.h"
#include "support/building.h"
#include "support/owned.h"
#include "support/ratio.h"
#include "support/require.h"

namespace {

bench::Owned<ZOL::IZolStoryboardInfoList> read(ZOL::IZolString* text) {
  auto list = bench::owned(createIZolStoryboardInfoList());
  bench::require(jsonBufferToStoryboardInfoList(text, list.get()) == ZOL::kSuccess,
                 "a storyboard is read");
  return list;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<bench::StoryboardRow> rows = bench::storyboardRows(12000);
  const auto buffer = bench::owned(createZolString());
  storyboardInfoListToJsonBuffer(bench::storyboardList(rows).get(), buffer.get());
  const std::string text = buffer->text();
  bench::require(bench::holds(read(buffer.get()).get(), rows), "each row has its values");

  bench::RatioTable table(bench::Heap::kept);
  const auto list = [&buffer] { return read(buffer.get()); };
  const auto document = [&text] { return bench::bareDocument(text); };
  table.measure("storyboard/read alone", bench::buildAlone(list));
  table.measure("storyboard/parse alone", bench::buildAlone(document));
  table.measure("storyboard/read", bench::buildAndEnd(list));
  table.measure("storyboard/parse", bench::buildAndEnd(document));
  table.compare({"a storyboard of 12,000 rows, read up to the complete list", "bare parse",
                 "storyboard/read alone", "storyboard/parse alone", bench::atMost(0.95)});
  table.compare({"the same with the end of the list", "bare parse with that of the document",
                 "storyboard/read", "storyboard/parse", bench::noAim()});
  return table.run(argc, argv);
}
