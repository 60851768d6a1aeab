#include "cutscript/base64.h"

#include <array>
#include <cstddef>
#include <cstdint>

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

class Decoder {
 public:
  explicit Decoder(std::string_view text) : text_(text), bytes_((text.size() / 4 + 1) * 3) {}

  std::vector<unsigned char> decode() {
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
    bytes_.resize(size_);
    return std::move(bytes_);
  }

 private:
  char at(std::size_t place) const { return place < text_.size() ? text_[place] : '\0'; }

  // Groups of four characters of the alphabet, as far as they go; answers how much they
  // count, which is how many characters they are.
  std::size_t takePlainGroups(std::size_t left) {
    const std::size_t begin = place_;
    const auto* from = reinterpret_cast<const unsigned char*>(text_.data()) + place_;
    unsigned char* to = bytes_.data() + size_;
    for (std::size_t groups = left / 4; groups > 0; --groups, from += 4, to += 3) {
      const std::uint32_t bits = kShares.of[0][from[0]] | kShares.of[1][from[1]] |
                                 kShares.of[2][from[2]] | kShares.of[3][from[3]];
      if (bits & kOutside) break;
      put(to, bits, 3);
    }
    place_ = static_cast<std::size_t>(from - reinterpret_cast<const unsigned char*>(text_.data()));
    size_ = static_cast<std::size_t>(to - bytes_.data());
    return place_ - begin;
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
    put(bytes_.data() + size_, bits, bytes);
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
  std::vector<unsigned char> bytes_;  // room for three bytes for each four that count
  std::size_t place_ = 0;
  std::size_t size_ = 0;
};

}  // namespace

std::vector<unsigned char> decodeBase64(std::string_view text) { return Decoder(text).decode(); }

}  // namespace ZOL
