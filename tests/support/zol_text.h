// Bytes in and out of the library's string objects, and how a test prints them.

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_ZOL_TEXT_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_ZOL_TEXT_H_

#include <KyDataStructure/frame.h>

#include <cstddef>
#include <string>

#include "support/held.h"

// A string object with exactly these bytes, zero bytes among them.
inline Held<ZOL::IZolString> zolString(const std::string& bytes) {
  Held<ZOL::IZolString> string(createZolString());
  string->setText(bytes.data(), static_cast<long long>(bytes.size()));
  return string;
}

inline std::string bytesIn(ZOL::IZolString& string) {
  return std::string(string.text(), static_cast<std::size_t>(string.length()));
}

// Bytes that have no letter as \xHH.
inline std::string escaped(const std::string& bytes) {
  static const char digits[] = "0123456789abcdef";
  std::string text;
  for (const char byte : bytes) {
    const unsigned code = static_cast<unsigned char>(byte);
    if (code >= 0x20 && code < 0x7F) {
      text += byte;
    } else {
      text += "\\x";
      text += digits[code >> 4];
      text += digits[code & 15];
    }
  }
  return text;
}

inline std::string times(std::size_t count, const std::string& part) {
  std::string text;
  text.reserve(count * part.size());
  for (std::size_t i = 0; i < count; ++i) text += part;
  return text;
}

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_ZOL_TEXT_H_
