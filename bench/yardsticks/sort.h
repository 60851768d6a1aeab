// std::sort in a shared library of its own: the caller's function is then as far away
// from it as from the library that is measured, which a processor notices.

#ifndef KYDATASTRUCTURE_BENCH_YARDSTICKS_SORT_H_
#define KYDATASTRUCTURE_BENCH_YARDSTICKS_SORT_H_

#include <vector>

namespace bench {

void sortFromAfar(std::vector<int>& numbers, bool (*comesBefore)(int, int));

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_YARDSTICKS_SORT_H_
