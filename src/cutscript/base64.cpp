#include "cutscript/base64.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

namespace ZOL {
namespace {

constexpr std::uint32_t kOutside = 1U << 31;  // no character of the alphabet

// What a character adds to the 24 bits of its group, by its place in the group.
struct Shares {
  std::array<std::array<std::uint32_t, 256>, 4> of{};

  constexpr Shares() {
    constexpr std::string_view kAlphabet =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    for (std::size_t place = 0; place < 4; ++place) {
      for (auto& share : of[place]) share = kOutside;
      for (std::uint32_t value = 0; value < 64; ++value) {
        of[place][static_cast<unsigned char>(kAlphabet[value])] = value << (18 - 6 * place);
      }
    }
  }
};
constexpr Shares kShares;

// Where there are registers for it, and a language for them: sixteen characters at once.
#if defined(__GNUC__) && (defined(__SSE2__) || defined(__ARM_NEON)) && \
    __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__

using Sixteen8 __attribute__((vector_size(16))) = std::uint8_t;
using Eight16 __attribute__((vector_size(16))) = std::uint16_t;
using Four32 __attribute__((vector_size(16))) = std::uint32_t;
using Two64 __attribute__((vector_size(16))) = std::uint64_t;

// The same bits in lanes of another width.
template <class To, class From>
To lanesOf(const From& from) {
  To to;
  std::memcpy(&to, &from, sizeof(to));
  return to;
}

// Writes twelve bytes and four more of no meaning; false, with nothing written, unless
// all sixteen characters are of the alphabet.
bool takeSixteen(const unsigned char* from, unsigned char* to) {
  Sixteen8 text;
  std::memcpy(&text, from, sizeof(text));
  const auto upper = lanesOf<Sixteen8>(text - 'A' < 26);
  const auto lower = lanesOf<Sixteen8>(text - 'a' < 26);
  const auto digit = lanesOf<Sixteen8>(text - '0' < 10);
  const auto plus = lanesOf<Sixteen8>(text == '+');
  const auto slash = lanesOf<Sixteen8>(text == '/');
  const auto inside = lanesOf<Two64>(upper | lower | digit | plus | slash);
  if ((inside[0] & inside[1]) != ~std::uint64_t{0}) return false;
  const Sixteen8 sixes = ((text - 'A') & upper) | ((text - ('a' - 26)) & lower) |
                         ((text + (52 - '0')) & digit) | (62 & plus) | (63 & slash);
  // Two, four and eight values to one, the first of them highest.
  const auto pairs = lanesOf<Eight16>(sixes);
  const auto twelves = lanesOf<Four32>(((pairs & 0xFF) << 6) | (pairs >> 8));
  const auto groups = lanesOf<Two64>(((twelves & 0xFFFF) << 12) | (twelves >> 16));
  for (int half = 0; half < 2; ++half) {
    const std::uint64_t bits = ((groups[half] & 0xFFFFFFFF) << 24) | (groups[half] >> 32);
    const std::uint64_t bytes = __builtin_bswap64(bits << 16);
    std::memcpy(to + 6 * half, &bytes, sizeof(bytes));
  }
  return true;
}

#else

bool takeSixteen(const unsigned char*, unsigned char*) { return false; }

#endif

class Decoder {
 public:
  // Room for three bytes for each four that count, and for what sixteen at once spill.
  explicit Decoder(std::string_view text)
      : text_(text), bytes_(new unsigned char[(text.size() / 4 + 1) * 3 + 4]) {}

  DecodedBytes decode() {
    std::size_t count = 0;
    while (count < text_.size()) {
      count += takePlainGroups(text_.size() - count);
      if (count >= text_.size()) break;
      if (at(place_) == '\r' || at(place_) == '\n') {
        ++place_;
        ++count;
      } else {
        takeGroup();
        count += 4;
      }
    }
    return {std::move(bytes_), size_};
  }

 private:
  char at(std::size_t place) const { return place < text_.size() ? text_[place] : '\0'; }

  // Groups of four characters of the alphabet, as far as they go; answers how much they
  // count, which is how many characters they are.
  std::size_t takePlainGroups(std::size_t left) {
    const auto* from = reinterpret_cast<const unsigned char*>(text_.data()) + place_;
    const unsigned char* const begin = from;
    unsigned char* to = bytes_.get() + size_;
    for (; left >= 16 && takeSixteen(from, to); left -= 16) {
      from += 16;
      to += 12;
    }
    for (; left >= 4; left -= 4) {
      const std::uint32_t bits = kShares.of[0][from[0]] | kShares.of[1][from[1]] |
                                 kShares.of[2][from[2]] | kShares.of[3][from[3]];
      if (bits & kOutside) break;
      put(to, bits, 3);
      from += 4;
      to += 3;
    }
    const auto taken = static_cast<std::size_t>(from - begin);
    place_ += taken;
    size_ = static_cast<std::size_t>(to - bytes_.get());
    return taken;
  }

  // A group with anything else in it.
  void takeGroup() {
    std::uint32_t bits = take(0) | take(1);
    std::size_t bytes = 1;
    if (at(place_) != '=') {
      bits |= take(2);
      ++bytes;
      if (at(place_) != '=') {
        bits |= take(3);
        ++bytes;
      }
    }
    put(bytes_.get() + size_, bits, bytes);
    size_ += bytes;
  }

  std::uint32_t take(std::size_t placeInGroup) {
    const std::uint32_t share = kShares.of[placeInGroup][static_cast<unsigned char>(at(place_))];
    ++place_;
    return share & kOutside ? 0 : share;
  }

  static void put(unsigned char* to, std::uint32_t bits, std::size_t bytes) {
    for (std::size_t i = 0; i < bytes; ++i)
      to[i] = static_cast<unsigned char>(bits >> (16 - 8 * i));
  }

  std::string_view text_;
  Bytes<unsigned char> bytes_;
  std::size_t place_ = 0;
  std::size_t size_ = 0;
};

}  // namespace

DecodedBytes decodeBase64(std::string_view text) { return Decoder(text).decode(); }

}  // namespace ZOL
