// What does it cost to turn a cut reply into the graph of its objects, next to a bare
// parse of the same bytes?

#include <KyDataStructure/cutscript.h>

#include <memory>
#include <string>

#include "inputs/cut_reply.h"
#include "support/bare_json.h"
#include "support/building.h"
#include "support/cut.h"
#include "support/owned.h"
#include "support/ratio.h"

namespace {

void add(bench::RatioTable& table, const std::string& size, std::size_t bytes) {
  const auto text = std::make_shared<const std::string>(bench::cutReply(bytes).text);
  bench::proveCut(bench::owned(createCutScripts(text->c_str())).get(), *text);

  const std::string name = "cut/" + size;
  const auto graph = [text] { return bench::owned(createCutScripts(text->c_str())); };
  const auto document = [text] { return bench::bareDocument(*text); };
  table.measure(name + "/graph alone", bench::buildAlone(graph));
  table.measure(name + "/parse alone", bench::buildAlone(document));
  table.measure(name + "/graph", bench::buildAndEnd(graph));
  table.measure(name + "/parse", bench::buildAndEnd(document));
  table.compare({"createCutScripts of " + size + ", up to the complete graph", "bare parse",
                 name + "/graph alone", name + "/parse alone", bench::atMost(0.95)});
  table.compare({"the same with the end of the graph", "bare parse with that of the document",
                 name + "/graph", name + "/parse", bench::atMost(1.1)});
}

}  // namespace

int main(int argc, char** argv) {
  bench::RatioTable table(bench::Heap::kept);
  add(table, "1 MB", 1000000);
  add(table, "10 MB", 10000000);
  return table.run(argc, argv);
}
