// The bytes of a face's image, against the rule said once more, character by character.

#include "cutscript/base64.h"

#include <cstring>
#include <string>

#include "target.h"

namespace {

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
      bytes += static_cast<char>(first << 2 | second >> 4);
      if (next() != '=') {
        const unsigned third = takeDigit();
        bytes += static_cast<char>(second << 4 | third >> 2);
        if (next() != '=') bytes += static_cast<char>(third << 6 | takeDigit());
      }
      count += 4;
    }
    return bytes;
  }

 private:
  char next() const { return place_ < text_.size() ? text_[place_] : '\0'; }

  unsigned takeDigit() {
    static constexpr char kDigits[] =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    const char* const digit = next() == '\0' ? nullptr : std::strchr(kDigits, next());
    ++place_;
    return digit ? static_cast<unsigned>(digit - kDigits) : 0;
  }

  const std::string& text_;
  std::size_t place_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string text = textOf(bytes, size);
  const ZOL::DecodedBytes decoded = ZOL::decodeBase64(text);
  const std::string expected = PlainDecoder(text).decode();
  require(decoded.size == expected.size(), "as many bytes as the rule gives");
  require(std::memcmp(decoded.bytes.get(), expected.data(), expected.size()) == 0,
          "the bytes that the rule gives");
  return 0;
}
