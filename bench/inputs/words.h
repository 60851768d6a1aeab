// Words, and sentences made of them.

#ifndef KYDATASTRUCTURE_BENCH_INPUTS_WORDS_H_
#define KYDATASTRUCTURE_BENCH_INPUTS_WORDS_H_

#include <cstddef>
#include <string>

#include "inputs/numbers.h"

namespace bench {

inline const char* someWord(Numbers& numbers) {
  static const char* const words[] = {
      "harbour", "lamp",  "the",   "morning", "over",  "boat",    "slowly",      "wind",
      "street",  "crowd", "and",   "light",   "close", "hands",   "caf\xC3\xA9", "roof",
      "market",  "train", "under", "window",  "rain",  "walking", "child",       "green",
      "bridge",  "dusk",  "with",  "camera",  "turns", "quiet",   "sea",         "again"};
  return words[numbers.below(sizeof(words) / sizeof(*words))];
}

// A sentence of about that many bytes. One in sixteen has a word in quotation marks.
inline std::string someSentence(Numbers& numbers, std::size_t size) {
  const bool quotes = numbers.below(16) == 0;
  std::string text = quotes ? std::string("\"") + someWord(numbers) + '"' : someWord(numbers);
  while (text.size() < size) {
    text += ' ';
    text += someWord(numbers);
  }
  return text;
}

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_INPUTS_WORDS_H_
