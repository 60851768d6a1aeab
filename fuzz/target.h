// What every target has in common. A target is one source file with one function, which
// is given bytes and does with them whatever a caller might:
//
//   extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
//     const std::string text = textOf(bytes, size);
//     ...
//     require(again == written, "what was read is written as it was");
//     return 0;
//   }
//
// libFuzzer calls it with what it makes up; replay.cpp, in the tests, with each text of
// the target's corpus.

#ifndef KYDATASTRUCTURE_FUZZ_TARGET_H_
#define KYDATASTRUCTURE_FUZZ_TARGET_H_

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

inline std::string textOf(const std::uint8_t* bytes, std::size_t size) {
  return std::string(reinterpret_cast<const char*>(bytes), size);
}

// Ends the program, with the rule that does not hold.
inline void require(bool holds, const char* rule) {
  if (holds) return;
  std::fprintf(stderr, "broken rule: %s\n", rule);
  std::abort();
}

#endif  // KYDATASTRUCTURE_FUZZ_TARGET_H_
