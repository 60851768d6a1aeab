// A table of ratios that were measured in one run.
//
//   int main(int argc, char** argv) {
//     proveThatBothSumUpAlike();
//     bench::RatioTable table;
//     table.measure("add", [](benchmark::State& state) { ... });
//     table.measure("push_back", [](benchmark::State& state) { ... });
//     table.compare({"adding", "push_back", "add", "push_back", bench::atMost(2)});
//     return table.run(argc, argv);
//   }
//
// A measurement is a benchmark. It runs several times, and all runs of a program are
// in random order, so what else the machine does meanwhile falls on both sides of a
// ratio. The ratio is that of the medians of the CPU times.
//
// --full prints the raw figures as well, and so does each flag of the benchmark
// library, as in --benchmark_filter=add. A row that was not measured is left out.

#ifndef KYDATASTRUCTURE_BENCH_SUPPORT_RATIO_H_
#define KYDATASTRUCTURE_BENCH_SUPPORT_RATIO_H_

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace bench {

// What a ratio should be.
struct Aim {
  double limit;  // a ratio above it misses the aim
  std::string text;
};
Aim atMost(double limit);
// Equal, but for a tenth that the machine may add.
Aim equal();
// Reported for its own sake.
Aim noAim();

// What becomes of memory that is given back while a program measures.
enum class Heap {
  asItComes,
  // It stays in the process, as in one that has been running for a while. For what
  // takes much memory at once: whose turn it is to get fresh pages from the system
  // would else be the greater part of a ratio.
  kept,
};

class RatioTable {
 public:
  using Body = std::function<void(benchmark::State&)>;

  struct Row {
    std::string what;
    std::string yardstick;
    std::string subject;  // the names of two measurements
    std::string measuredYardstick;
    Aim aim;
    double scale = 1;  // what the ratio of the two medians is multiplied by
  };

  explicit RatioTable(Heap heap = Heap::asItComes) : heap_(heap) {}

  // Counts the CPU time of the thread that runs the body. What comes back takes
  // further settings, such as the number of repetitions.
  benchmark::internal::Benchmark* measure(const std::string& name, const Body& body);
  // The body says itself how long each iteration took.
  benchmark::internal::Benchmark* measureByHand(const std::string& name, const Body& body);

  void compare(const Row& row) { rows_.push_back({row, false, 0}); }
  // A row that was not timed.
  void state(const std::string& what, const std::string& yardstick, double value, const Aim& aim);

  // Measures and prints; what main() answers. On purpose a missed aim is no failure
  // of the program: a busy machine is no reason for one.
  int run(int argc, char** argv);

 private:
  struct Line {
    Row row;
    bool stated;
    double value;
  };
  class Reporter;

  bool worksOut(const Line& line, double& ratio) const;
  void print() const;

  const Heap heap_;
  std::vector<Line> rows_;
  std::map<std::string, bool> byHand_;                  // measurement -> who keeps its time
  std::map<std::string, std::vector<double>> seconds_;  // measurement -> time of each run
};

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_SUPPORT_RATIO_H_
