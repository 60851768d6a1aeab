// The bytes of a face's image, against the rule said once more, character by character.

#include "cutscript/base64.h"

#include <cstring>
#include <string>

#include "support/plain_base64.h"
#include "target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string text = textOf(bytes, size);
  const ZOL::DecodedBytes decoded = ZOL::decodeBase64(text);
  const std::string expected = PlainDecoder(text).decode();
  require(decoded.size == expected.size(), "as many bytes as the rule gives");
  require(std::memcmp(decoded.bytes.get(), expected.data(), expected.size()) == 0,
          "the bytes that the rule gives");
  return 0;
}
