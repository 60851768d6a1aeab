// How much memory does it take at most to read a cut reply, for each byte of its text?

#include <KyDataStructure/cutscript.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstddef>
#include <cstdlib>

#include "inputs/cut_reply.h"
#include "support/cut.h"
#include "support/owned.h"
#include "support/ratio.h"
#include "support/require.h"

namespace {

double peakBytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) * 1024;
}

// How far reading the reply raises the highest level of a process that has the text
// already: a new process, whose level is that of the moment when it begins.
double peakOfReading(const bench::CutReply& reply) {
  int ends[2];
  bench::require(pipe(ends) == 0, "there is a pipe");
  const pid_t child = fork();
  bench::require(child >= 0, "there is a second process");
  if (child == 0) {
    const double before = peakBytes();
    const auto cut = bench::owned(createCutScripts(reply.text.c_str()));
    const double raised = peakBytes() - before;
    const bool right = cut && bench::rowsOf(cut.get()) == reply.rows &&
                       write(ends[1], &raised, sizeof(raised)) == sizeof(raised);
    _exit(right ? 0 : 1);
  }
  int status = 0;
  double raised = 0;
  bench::require(waitpid(child, &status, 0) == child && WIFEXITED(status) &&
                     WEXITSTATUS(status) == 0 &&
                     read(ends[0], &raised, sizeof(raised)) == sizeof(raised),
                 "each row is in the graph");
  return raised;
}

}  // namespace

int main(int argc, char** argv) {
  // First, while the heap has nothing to spare that would not count.
  const bench::CutReply reply = bench::cutReply(100000000);
  const double peak = peakOfReading(reply);
  const bench::CutReply proof = bench::cutReply(1000000);
  bench::proveCut(bench::owned(createCutScripts(proof.text.c_str())).get(), proof.text);

  bench::RatioTable table;
  table.state("peak memory of createCutScripts of 100 MB", "bytes of the text",
              peak / static_cast<double>(reply.text.size()), bench::atMost(3.5));
  return table.run(argc, argv);
}
