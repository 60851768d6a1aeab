// How the text of a face image is decoded. An image is seen only through a slice of
// the last face cluster.

#include <gtest/gtest.h>

#include <KyDataStructure/cutscript.h>

#include <cctype>
#include <string>
#include <vector>

#include "support/held.h"
#include "support/json_tree.h"
#include "support/plain_base64.h"
#include "support/zol_text.h"

namespace {

std::string decoded(const std::string& text) {
  const std::string report = "{\"face_image_map\":{\"a\":{\"width\":1,\"height\":1,\"base64\":" +
                             quoted(text) + "}},\"face_cluster\":{\"a\":[\"-\"]}}";
  const Held<ZOL::IZolKeyMatrixInfo> info(createKeyMatrixInfo(report.c_str()));
  const Held<ZOL::IZolSliceItemList> slices(createIZolSliceItemList());
  if (!info.get() || !info->dimensionItem(10)) return "no item";
  info->dimensionItem(10)->getSliceItems(slices.get());
  if (slices->size() != 1 || !slices->at(0)->faceImage()) return "no image";
  ZOL::IZolBGRData& image = *slices->at(0)->faceImage();
  if (image.dataSize() == 0) return "";
  return std::string(reinterpret_cast<const char*>(image.data()),
                     static_cast<std::size_t>(image.dataSize()));
}

std::string encoded(const std::string& bytes) {
  static const char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const std::size_t count = bytes.size() - i < 3 ? bytes.size() - i : 3;
    unsigned bits = 0;
    for (std::size_t j = 0; j < 3; ++j) {
      bits = bits * 256 + (j < count ? static_cast<unsigned char>(bytes[i + j]) : 0);
    }
    for (std::size_t j = 0; j < 4; ++j) {
      text += j <= count ? digits[bits >> (18 - 6 * j) & 63] : '=';
    }
  }
  return text;
}

std::string broken(const std::string& text, std::size_t width, const std::string& lineBreak) {
  std::string lines;
  for (std::size_t i = 0; i < text.size(); i += width) {
    if (i > 0) lines += lineBreak;
    lines += text.substr(i, width);
  }
  return lines;
}

std::string randomBytes(Dice& dice, std::size_t size) {
  std::string bytes;
  for (std::size_t i = 0; i < size; ++i) bytes += static_cast<char>(dice.below(256));
  return bytes;
}

TEST(Base64, DecodesTheStandardsExamples) {
  const struct {
    const char* text;
    const char* bytes;
  } rows[] = {
      {"", ""},         {"Zg==", "f"},        {"Zm8=", "fo"},        {"Zm9v", "foo"},
      {"Zm9vYg==", "foob"}, {"Zm9vYmE=", "fooba"}, {"Zm9vYmFy", "foobar"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(decoded(row.text), row.bytes) << row.text;
    EXPECT_EQ(encoded(row.bytes), row.text);
  }
}

TEST(Base64, HasPlusAndSlashInItsAlphabetAndNotTheirStandIns) {
  EXPECT_EQ(escaped(decoded("+/+/")), "\\xfb\\xff\\xbf");
  EXPECT_EQ(escaped(decoded("-_-_")), "\\x00\\x00\\x00");
}

TEST(Base64, DecodesEveryByte) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  EXPECT_EQ(decoded(encoded(bytes)), bytes);
  Dice dice(64);
  for (std::size_t size = 0; size < 200; ++size) {
    const std::string some = randomBytes(dice, size);
    ASSERT_EQ(decoded(encoded(some)), some) << encoded(some);
  }
}

TEST(Base64, TakesAnyOtherCharacterForZero) {
  for (int code = 1; code < 256; ++code) {
    const char c = static_cast<char>(code);
    const bool inAlphabet = code < 0x80 && (std::isalnum(code) || c == '+' || c == '/');
    if (inAlphabet || c == '=' || c == '\r' || c == '\n') continue;
    // As the first, second, third and fourth of a group.
    ASSERT_EQ(decoded(std::string(1, c) + "m9v"), decoded("Am9v")) << code;
    ASSERT_EQ(decoded(std::string("Z") + c + "9v"), decoded("ZA9v")) << code;
    ASSERT_EQ(decoded(std::string("Zm") + c + "v"), decoded("ZmAv")) << code;
    ASSERT_EQ(decoded(std::string("Zm9") + c), decoded("Zm9A")) << code;
  }
  EXPECT_EQ(decoded(std::string("Zm\0v", 4)), decoded("ZmAv")) << "a zero byte counts as well";
}

TEST(Base64, StepsOverLineBreaksBetweenGroups) {
  Dice dice(76);
  for (const std::size_t size : {3u, 57u, 58u, 59u, 60u, 114u, 1000u, 20000u}) {
    const std::string bytes = randomBytes(dice, size);
    const std::string text = encoded(bytes);
    for (const char* const lineBreak : {"\n", "\r\n", "\r", "\n\n\r"}) {
      EXPECT_EQ(decoded(broken(text, 76, lineBreak)), bytes) << size;
      EXPECT_EQ(decoded(broken(text, 4, lineBreak)), bytes) << size;
      EXPECT_EQ(decoded(lineBreak + broken(text, 64, lineBreak)), bytes) << size;
    }
  }
  EXPECT_EQ(decoded("Zm9v\r\n"), "foo");
  EXPECT_EQ(decoded("\n\r\n"), "");
}

TEST(Base64, TakesALineBreakInsideAGroupForZero) {
  EXPECT_EQ(escaped(decoded("Zm9\nYmFy")), escaped(decoded("Zm9AYmFy")));
  EXPECT_EQ(escaped(decoded("Z\r9v")), escaped(decoded("ZA9v")));
}

TEST(Base64, LooksAtAnEqualsSignWithoutSteppingOverIt) {
  // One that stands early is the first character of the next group, too.
  EXPECT_EQ(escaped(decoded("Zg==Zm9v")), escaped("f" + decoded("AAZm")));
  EXPECT_EQ(escaped(decoded("Zm8=Zm9v")), escaped("fo" + decoded("AZm9")));
  EXPECT_EQ(escaped(decoded("====")), "\\x00");
  EXPECT_EQ(escaped(decoded("=")), "\\x00\\x00\\x00");
  EXPECT_EQ(escaped(decoded("A===")), "\\x00");
  // The count runs on: it is at the end after two groups, the text is not.
  EXPECT_EQ(escaped(decoded("AA==BBBB")), escaped(decoded("AA==") + decoded("AABB")));
}

TEST(Base64, ReadsZerosWhereALineBreakFollowsThePadding) {
  EXPECT_EQ(escaped(decoded("Zg==\n")), "f\\x00\\x00\\x00");
}

TEST(Base64, ReadsZerosBehindItsEnd) {
  EXPECT_EQ(escaped(decoded("Z")), escaped(decoded("ZAAA")));
  EXPECT_EQ(escaped(decoded("Zm")), escaped(decoded("ZmAA")));
  EXPECT_EQ(escaped(decoded("Zm9")), escaped(decoded("Zm9A")));
  EXPECT_EQ(escaped(decoded("Zm9vY")), escaped(decoded("Zm9vYAAA")));
  EXPECT_EQ(escaped(decoded("Zm8")), "fo\\x00");
}

TEST(Base64, DecodesEveryShortTextByItsRule) {
  static const std::string letters("A/=\n\rz{\xFF\0+", 10);
  for (std::size_t size = 0; size <= 5; ++size) {
    std::vector<std::size_t> places(size);
    for (bool more = true; more;) {
      std::string text;
      for (const std::size_t place : places) text += letters[place];
      ASSERT_EQ(escaped(decoded(text)), escaped(PlainDecoder(text).decode())) << escaped(text);
      more = false;
      for (std::size_t& place : places) {
        if (++place < letters.size()) {
          more = true;
          break;
        }
        place = 0;
      }
    }
  }
}

TEST(Base64, DecodesLongTextsByItsRule) {
  static const std::string strange("=\n\r{\xFF\0- ~", 9);
  for (unsigned seed = 1; seed <= 3000; ++seed) {
    Dice dice(seed);
    std::string text = encoded(randomBytes(dice, dice.below(226)));
    if (dice.one(2)) text = broken(text, 1 + dice.below(90), dice.one(2) ? "\n" : "\r\n");
    for (std::size_t i = dice.below(5); i > 0 && !text.empty(); --i) {
      text[dice.below(text.size())] = strange[dice.below(strange.size())];
    }
    if (dice.one(3)) text.resize(dice.below(text.size() + 1));
    if (text.size() > 300) text.resize(300);
    ASSERT_EQ(escaped(decoded(text)), escaped(PlainDecoder(text).decode())) << escaped(text);
  }
}

}  // namespace
