// Measuring how something large is built, with its end and without.
//
// A heap may put off the work of taking back many small blocks until somebody asks for
// a large one. So that nobody pays for another's blocks, this is done at the end of
// each round: outside the measured time if the end is not measured, and else inside.

#ifndef KYDATASTRUCTURE_BENCH_SUPPORT_BUILDING_H_
#define KYDATASTRUCTURE_BENCH_SUPPORT_BUILDING_H_

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>

namespace bench {

// Asks for a block that is large and gives it back.
inline void settleHeap() {
  std::unique_ptr<char[]> block(new char[100000]);
  benchmark::DoNotOptimize(block.get());
}

// `build` answers an owning pointer. Measured up to there.
template <class Build>
std::function<void(benchmark::State&)> buildAlone(Build build) {
  return [build](benchmark::State& state) {
    for (auto _ : state) {
      auto built = build();
      benchmark::DoNotOptimize(built.get());
      state.PauseTiming();
      built.reset();
      settleHeap();
      state.ResumeTiming();
    }
  };
}

// Measured until all of it is gone.
template <class Build>
std::function<void(benchmark::State&)> buildAndEnd(Build build) {
  return [build](benchmark::State& state) {
    for (auto _ : state) {
      benchmark::DoNotOptimize(build().get());
      settleHeap();
    }
  };
}

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_SUPPORT_BUILDING_H_
