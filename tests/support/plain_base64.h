// Base64 as the face images have it, said once more, character by character.

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_PLAIN_BASE64_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_PLAIN_BASE64_H_

#include <cstddef>
#include <string>

// A running count, and not the place in the text, ends the walk.
class PlainDecoder {
 public:
  explicit PlainDecoder(const std::string& text) : text_(text) {}

  std::string decode() {
    std::string bytes;
    for (std::size_t count = 0; count < text_.size();) {
      if (next() == '\r' || next() == '\n') {
        ++place_;
        ++count;
        continue;
      }
      const unsigned first = takeDigit();
      const unsigned second = takeDigit();
      bytes += static_cast<char>(first * 4 + second / 16);
      if (next() != '=') {
        const unsigned third = takeDigit();
        bytes += static_cast<char>(second % 16 * 16 + third / 4);
        if (next() != '=') bytes += static_cast<char>(third % 4 * 64 + takeDigit());
      }
      count += 4;
    }
    return bytes;
  }

 private:
  // Behind its end the text reads as zeros.
  char next() const { return place_ < text_.size() ? text_[place_] : '\0'; }

  unsigned takeDigit() {
    const char c = next();
    ++place_;
    if (c >= 'A' && c <= 'Z') return static_cast<unsigned>(c - 'A');
    if (c >= 'a' && c <= 'z') return static_cast<unsigned>(c - 'a') + 26;
    if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0') + 52;
    if (c == '+') return 62;
    if (c == '/') return 63;
    return 0;
  }

  const std::string& text_;
  std::size_t place_ = 0;
};

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_PLAIN_BASE64_H_
