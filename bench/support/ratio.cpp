#include "support/ratio.h"

#if defined(__GLIBC__)
#include <malloc.h>
#endif

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <limits>

namespace bench {
namespace {

std::string inShort(double number) {
  char text[32];
  std::snprintf(text, sizeof(text), "%g", number);
  return text;
}

// With the places that tell ratios apart.
std::string asRatio(double number) {
  char text[32];
  std::snprintf(text, sizeof(text), number < 10 ? "%.2f" : "%.1f", number);
  return text;
}

double median(std::vector<double> values) {
  const std::size_t half = values.size() / 2;
  std::sort(values.begin(), values.end());
  return values.size() % 2 == 1 ? values[half] : (values[half - 1] + values[half]) / 2;
}

void keepTheHeap() {
#if defined(__GLIBC__)
  mallopt(M_MMAP_MAX, 0);
  mallopt(M_TRIM_THRESHOLD, -1);
#endif
}

struct Cells {
  std::string what, yardstick, ratio, aim;
};

void printTable(const std::vector<Cells>& lines) {
  Cells head{"what", "yardstick", "ratio", "aim"};
  std::size_t what = head.what.size();
  std::size_t yardstick = head.yardstick.size();
  for (const Cells& line : lines) {
    what = std::max(what, line.what.size());
    yardstick = std::max(yardstick, line.yardstick.size());
  }
  const auto print = [&](const Cells& line) {
    std::printf("%-*s | %-*s | %6s | %s\n", static_cast<int>(what), line.what.c_str(),
                static_cast<int>(yardstick), line.yardstick.c_str(), line.ratio.c_str(),
                line.aim.c_str());
  };
  print(head);
  for (const Cells& line : lines) print(line);
}

}  // namespace

Aim atMost(double limit) { return {limit, "at most " + inShort(limit)}; }
Aim equal() { return {1.1, "1"}; }
Aim noAim() { return {std::numeric_limits<double>::infinity(), "-"}; }

// Keeps the time of each run, and hands the figures on when they are to be seen.
class RatioTable::Reporter final : public benchmark::ConsoleReporter {
 public:
  Reporter(RatioTable& table, bool full)
      : benchmark::ConsoleReporter(OO_None), table_(table), full_(full) {}

  bool ReportContext(const Context& context) override {
    return !full_ || benchmark::ConsoleReporter::ReportContext(context);
  }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      const std::string& name = run.run_name.function_name;
      const double accumulated =
          table_.byHand_.at(name) ? run.real_accumulated_time : run.cpu_accumulated_time;
      table_.seconds_[name].push_back(accumulated / static_cast<double>(run.iterations));
    }
    if (full_) benchmark::ConsoleReporter::ReportRuns(runs);
  }

 private:
  RatioTable& table_;
  const bool full_;
};

benchmark::internal::Benchmark* RatioTable::measure(const std::string& name, const Body& body) {
  byHand_[name] = false;
  return benchmark::RegisterBenchmark(name.c_str(), body);
}

benchmark::internal::Benchmark* RatioTable::measureByHand(const std::string& name,
                                                          const Body& body) {
  byHand_[name] = true;
  return benchmark::RegisterBenchmark(name.c_str(), body)->UseManualTime();
}

void RatioTable::state(const std::string& what, const std::string& yardstick, double value,
                       const Aim& aim) {
  rows_.push_back({{what, yardstick, "", "", aim}, true, value});
}

int RatioTable::run(int argc, char** argv) {
  // The caller's flags come last, so they have the last word.
  std::vector<std::string> flags = {argv[0], "--benchmark_enable_random_interleaving=true",
                                    "--benchmark_repetitions=15", "--benchmark_min_time=0.03"};
  bool full = false;
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--full") == 0) {
      full = true;
      continue;
    }
    if (std::strncmp(argv[i], "--benchmark_", 12) == 0) full = true;
    flags.push_back(argv[i]);
  }
  std::vector<char*> pointers;
  for (std::string& flag : flags) pointers.push_back(flag.data());
  pointers.push_back(nullptr);
  int count = static_cast<int>(flags.size());
  benchmark::Initialize(&count, pointers.data());
  if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) return 2;

  if (!byHand_.empty()) {
    if (heap_ == Heap::kept) keepTheHeap();
    Reporter reporter(*this, full);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
  }
  print();
  return 0;
}

bool RatioTable::worksOut(const Line& line, double& ratio) const {
  ratio = line.value;
  if (line.stated) return true;
  const auto subject = seconds_.find(line.row.subject);
  const auto yardstick = seconds_.find(line.row.measuredYardstick);
  if (subject == seconds_.end() || yardstick == seconds_.end()) return false;
  ratio = median(subject->second) / median(yardstick->second) * line.row.scale;
  return true;
}

void RatioTable::print() const {
  std::vector<Cells> lines;
  for (const Line& line : rows_) {
    double ratio = 0;
    if (!worksOut(line, ratio)) continue;
    const Aim& aim = line.row.aim;
    lines.push_back({line.row.what, line.row.yardstick, asRatio(ratio),
                     ratio > aim.limit ? aim.text + " (missed)" : aim.text});
  }
  if (!lines.empty()) printTable(lines);
}

}  // namespace bench
