// What a benchmark proves before it measures.

#ifndef KYDATASTRUCTURE_BENCH_SUPPORT_REQUIRE_H_
#define KYDATASTRUCTURE_BENCH_SUPPORT_REQUIRE_H_

#include <cstdio>
#include <cstdlib>

namespace bench {

// Ends the program when a claim does not hold: a wrong answer has no speed.
inline void require(bool holds, const char* claim) {
  if (holds) return;
  std::fprintf(stderr, "wrong answer: it does not hold that %s\n", claim);
  std::exit(1);
}

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_SUPPORT_REQUIRE_H_
