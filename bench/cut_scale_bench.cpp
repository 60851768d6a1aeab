// Does a byte of a cut reply cost as much in a text of 100 MB as in one of 1 MB?

#include <KyDataStructure/cutscript.h>

#include <string>

#include "inputs/cut_reply.h"
#include "support/building.h"
#include "support/cut.h"
#include "support/owned.h"
#include "support/ratio.h"
#include "support/require.h"

namespace {

bench::Owned<ZOL::IZolCutScripts> cutOf(const bench::CutReply& reply) {
  return bench::owned(createCutScripts(reply.text.c_str()));
}

}  // namespace

int main(int argc, char** argv) {
  const bench::CutReply small = bench::cutReply(1000000);
  const bench::CutReply large = bench::cutReply(100000000);
  bench::proveCut(cutOf(small).get(), small.text);
  bench::require(bench::rowsOf(cutOf(large).get()) == large.rows, "each row is in the graph");

  bench::RatioTable table(bench::Heap::kept);
  table.measure("cut/100 MB", bench::buildAlone([&large] { return cutOf(large); }))
      ->Repetitions(7)
      ->Iterations(1);
  table.measure("cut/1 MB", bench::buildAlone([&small] { return cutOf(small); }));
  table.compare({"createCutScripts of 100 MB, a byte", "of 1 MB, a byte", "cut/100 MB", "cut/1 MB",
                 bench::atMost(1.3),
                 static_cast<double>(small.text.size()) / static_cast<double>(large.text.size())});
  return table.run(argc, argv);
}
