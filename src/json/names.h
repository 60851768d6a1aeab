// A fixed set of names, made at compile time, in which a text is found by a look
// and a comparison.

#ifndef KYDATASTRUCTURE_JSON_NAMES_H_
#define KYDATASTRUCTURE_JSON_NAMES_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace ZOL::json {

template <std::size_t N>
class Names {
 public:
  // The names must differ. The multiplier that gives each of them a slot of its own
  // is searched for here, so a set that has none does not compile.
  constexpr explicit Names(const std::array<std::string_view, N>& names) : names_(names) {
    while (!fits()) multiplier_ = multiplier_ * 6364136223846793005U + 1442695040888963407U;
  }

  // The name's place in the array, or -1.
  int find(std::string_view text) const {
    const int place = slots_[slotOf(text)];
    return place >= 0 && same(names_[static_cast<std::size_t>(place)], text) ? place : -1;
  }

 private:
  // Names are short: a call that compares them would take longer than this, two looks
  // that meet or overlap.
  static bool same(std::string_view a, std::string_view b) {
    const std::size_t size = a.size();
    if (size != b.size()) return false;
    if (size > 16) return a == b;
    if (size >= 8) return sameEnds<std::uint64_t>(a.data(), b.data(), size);
    if (size >= 4) return sameEnds<std::uint32_t>(a.data(), b.data(), size);
    return a == b;
  }

  template <class Word>
  static bool sameEnds(const char* a, const char* b, std::size_t size) {
    return wordAt<Word>(a) == wordAt<Word>(b) &&
           wordAt<Word>(a + size - sizeof(Word)) == wordAt<Word>(b + size - sizeof(Word));
  }

  template <class Word>
  static Word wordAt(const char* text) {
    Word word = 0;
    std::memcpy(&word, text, sizeof(word));
    return word;
  }

  static_assert(N <= 64, "places are kept in a byte, and the search is short");
  static constexpr unsigned kBits = N <= 8 ? 6 : 9;

  // Made of the length and three characters from the rear half, where names differ
  // most. Names that are alike in all of these would need another look.
  constexpr std::size_t slotOf(std::string_view text) const {
    std::uint64_t word = text.size();
    if (!text.empty()) {
      word = (word << 8) ^ static_cast<unsigned char>(text[text.size() / 2]);
      word = (word << 8) ^ static_cast<unsigned char>(text[text.size() * 3 / 4]);
      word = (word << 8) ^ static_cast<unsigned char>(text[text.size() - 1]);
    }
    return static_cast<std::size_t>((word * multiplier_) >> (64 - kBits));
  }

  constexpr bool fits() {
    for (auto& slot : slots_) slot = -1;
    for (std::size_t place = 0; place < N; ++place) {
      signed char& slot = slots_[slotOf(names_[place])];
      if (slot >= 0) return false;
      slot = static_cast<signed char>(place);
    }
    return true;
  }

  std::array<std::string_view, N> names_;
  std::array<signed char, std::size_t{1} << kBits> slots_{};
  std::uint64_t multiplier_ = 0x9E3779B97F4A7C15U;
};

template <class... Texts>
constexpr auto namesOf(const Texts&... texts) {
  return Names<sizeof...(Texts)>({std::string_view(texts)...});
}

}  // namespace ZOL::json

#endif  // KYDATASTRUCTURE_JSON_NAMES_H_
