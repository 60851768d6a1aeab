// Numbers that look random and are the same on every machine and in every run.

#ifndef KYDATASTRUCTURE_BENCH_INPUTS_NUMBERS_H_
#define KYDATASTRUCTURE_BENCH_INPUTS_NUMBERS_H_

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace bench {

class Numbers {
 public:
  explicit Numbers(std::uint32_t seed) : engine_(seed) {}

  // Both ends are among them. The standard's distributions are not used: they
  // differ from one library to the next.
  int between(int first, int last) {
    const auto span = static_cast<std::uint32_t>(last) - static_cast<std::uint32_t>(first) + 1;
    return static_cast<int>(static_cast<std::uint32_t>(first) + next() % span);
  }
  std::size_t below(std::size_t end) { return next() % end; }
  std::uint32_t next() { return static_cast<std::uint32_t>(engine_()); }

 private:
  std::mt19937 engine_;
};

inline std::vector<int> someNumbers(std::size_t count, std::uint32_t seed) {
  Numbers numbers(seed);
  std::vector<int> result;
  result.reserve(count);
  while (result.size() < count) result.push_back(numbers.between(-1000000000, 1000000000));
  return result;
}

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_INPUTS_NUMBERS_H_
