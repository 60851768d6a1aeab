// The holders of text and bytes.

#include <KyDataStructure/frame.h>
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <new>
#include <string>

#include "support/held.h"
#include "support/show.h"

namespace {

// The content with its zero bytes, and its length by its own word.
std::string contentOf(ZOL::IZolString& text) {
  return std::string(text.text(), static_cast<std::size_t>(text.length()));
}

class ZolString : public testing::Test {
 protected:
  Held<ZOL::IZolString> text{createZolString()};
};

TEST_F(ZolString, IsMadeWithTheEmptyText) {
  EXPECT_NE(text->text(), nullptr);
  EXPECT_STREQ(text->text(), "");
  EXPECT_EQ(text->length(), 0U);
}

TEST_F(ZolString, TakesAsManyBytesAsAsked) {
  EXPECT_EQ(text->setText("abc", 2), 0);
  EXPECT_STREQ(text->text(), "ab");
  EXPECT_EQ(text->length(), 2U);
}

TEST_F(ZolString, TakesTheWholeTextForALengthOfZeroOrBelow) {
  for (const long long length : {0LL, -1LL, -100LL}) {
    EXPECT_EQ(text->setText("x", -1), 0);
    EXPECT_EQ(text->setText("abc", length), 0);
    EXPECT_STREQ(text->text(), "abc") << length;
    EXPECT_EQ(text->length(), 3U);
  }
}

TEST_F(ZolString, RefusesNull) {
  text->setText("abc", -1);
  EXPECT_EQ(text->setText(nullptr, 5), 1001);
  EXPECT_EQ(text->setText(nullptr, 0), 1001);
  EXPECT_EQ(text->appendText(nullptr, 5), 1001);
  EXPECT_EQ(text->appendText(nullptr, -1), 1001);
  EXPECT_STREQ(text->text(), "abc");
}

TEST_F(ZolString, Appends) {
  EXPECT_EQ(text->appendText("abc", -1), 0);
  EXPECT_EQ(text->appendText("de", 0), 0);
  EXPECT_STREQ(text->text(), "abcde");
  EXPECT_EQ(text->appendText("fgh", 1), 0);
  EXPECT_EQ(text->appendText("", -1), 0);
  EXPECT_STREQ(text->text(), "abcdef");
  EXPECT_EQ(text->length(), 6U);
}

TEST_F(ZolString, KeepsZeroBytes) {
  EXPECT_EQ(text->setText("ab\0cd", 5), 0);
  EXPECT_EQ(text->length(), 5U);
  EXPECT_STREQ(text->text(), "ab") << "for a reader that stops at a zero";
  EXPECT_EQ(contentOf(*text), std::string("ab\0cd", 5));
  EXPECT_EQ(text->appendText("\0e", 2), 0);
  EXPECT_EQ(contentOf(*text), std::string("ab\0cd\0e", 7));
  EXPECT_EQ(text->text()[7], '\0');
}

TEST_F(ZolString, ReplacesTheWholeContent) {
  text->setText("a long content that goes altogether", -1);
  EXPECT_EQ(text->setText("", -1), 0);
  EXPECT_EQ(text->length(), 0U);
}

TEST_F(ZolString, EqualsTheSameBytes) {
  EXPECT_TRUE(text->equals(""));
  text->setText("abc", -1);
  EXPECT_TRUE(text->equals("abc"));
  EXPECT_FALSE(text->equals("abcd"));
  EXPECT_FALSE(text->equals("ab"));
  EXPECT_FALSE(text->equals("Abc"));
  EXPECT_FALSE(text->equals(""));
}

TEST_F(ZolString, EqualsNoNull) {
  EXPECT_FALSE(text->equals(nullptr)) << "not even when it is empty";
  text->setText("abc", -1);
  EXPECT_FALSE(text->equals(nullptr));
}

TEST_F(ZolString, EqualsUpToTheFirstZero) {
  text->setText("ab\0cd", 5);
  EXPECT_TRUE(text->equals("ab"));
}

TEST_F(ZolString, TakesNoLengthBeyondMemoryForAShortOne) {
  text->setText("kept", -1);
  // Where a size has 32 bits, the first of these would be 1 without its upper half.
  for (const long long length : {(1LL << 32) + 1, LLONG_MAX}) {
    if (sizeof(std::size_t) == 8 && length != LLONG_MAX) continue;
    EXPECT_ANY_THROW(text->setText("abc", length)) << length;
    EXPECT_ANY_THROW(text->appendText("abc", length)) << length;
  }
  EXPECT_STREQ(text->text(), "kept");
}

TEST_F(ZolString, CopiesWhatItTakes) {
  char bytes[] = "abc";
  text->setText(bytes, -1);
  bytes[0] = 'x';
  EXPECT_STREQ(text->text(), "abc");
}

std::string bytesOf(ZOL::IZolPChar& holder) {
  if (!holder.data()) return "null " + show(holder.size());
  return std::string(holder.data(), static_cast<std::size_t>(holder.size()));
}

class ZolPChar : public testing::Test {
 protected:
  Held<ZOL::IZolPChar> holder{createZolPChar()};
};

TEST_F(ZolPChar, IsMadeEmpty) { EXPECT_EQ(bytesOf(*holder), "null 0"); }

TEST_F(ZolPChar, CopiesTheBytes) {
  char bytes[] = {'a', '\0', 'b'};
  EXPECT_EQ(holder->setData(bytes, 3), 0);
  bytes[0] = 'x';
  EXPECT_EQ(bytesOf(*holder), std::string("a\0b", 3));
  EXPECT_EQ(holder->size(), 3);
  EXPECT_EQ(holder->setData("longer than before", 18), 0);
  EXPECT_EQ(bytesOf(*holder), "longer than before");
}

TEST_F(ZolPChar, NullClears) {
  EXPECT_EQ(holder->setData(nullptr, 5), 0);
  EXPECT_EQ(bytesOf(*holder), "null 0");
  holder->setData("abc", 3);
  EXPECT_EQ(holder->setData(nullptr, 5), 0);
  EXPECT_EQ(bytesOf(*holder), "null 0");
  holder->setData("abc", 3);
  EXPECT_EQ(holder->setData(nullptr, 0), 0);
  EXPECT_EQ(bytesOf(*holder), "null 0");
}

// On purpose: null with 0 clears, data with 0 is refused, and the content goes.
TEST_F(ZolPChar, RefusesDataWithoutASizeAndIsEmptyAllTheSame) {
  holder->setData("abc", 3);
  EXPECT_EQ(holder->setData("x", 0), 1001);
  EXPECT_EQ(bytesOf(*holder), "null 0");
}

TEST_F(ZolPChar, ANegativeSizeIsMoreThanAnyMemory) {
  holder->setData("abc", 3);
  EXPECT_THROW(holder->setData("x", -1), std::bad_alloc);
  EXPECT_EQ(bytesOf(*holder), "null 0") << "the old content goes in every case";
  EXPECT_EQ(holder->setData("de", 2), 0);
  EXPECT_EQ(bytesOf(*holder), "de");
}

class DataSizeBuffer : public testing::Test {
 protected:
  Held<ZOL::IDataSizeBuffer> buffer{createDataSizeBuffer()};
};

TEST_F(DataSizeBuffer, IsMadeEmpty) {
  EXPECT_EQ(buffer->data(), nullptr);
  EXPECT_EQ(buffer->size(), 0U);
}

TEST_F(DataSizeBuffer, PutsAZeroBehindTheBytes) {
  EXPECT_EQ(buffer->setData("ab", 2), 0);
  EXPECT_EQ(buffer->size(), 2U);
  EXPECT_EQ(std::memcmp(buffer->data(), "ab\0", 3), 0);
}

TEST_F(DataSizeBuffer, OfSizeZeroHasOneZeroByte) {
  EXPECT_EQ(buffer->setData("ab", 0), 0);
  ASSERT_NE(buffer->data(), nullptr);
  EXPECT_EQ(buffer->data()[0], 0);
  EXPECT_EQ(buffer->size(), 0U);
  EXPECT_EQ(buffer->setData(nullptr, 0), 0);
  ASSERT_NE(buffer->data(), nullptr);
  EXPECT_EQ(buffer->data()[0], 0);
}

TEST_F(DataSizeBuffer, TakesNullAsZeros) {
  EXPECT_EQ(buffer->setData(nullptr, 3), 0);
  EXPECT_EQ(buffer->size(), 3U);
  EXPECT_EQ(std::memcmp(buffer->data(), "\0\0\0\0", 4), 0);
}

TEST_F(DataSizeBuffer, CopiesTheBytesAndLendsThemToBeWrittenIn) {
  char bytes[] = "abc";
  EXPECT_EQ(buffer->setData(bytes, 3), 0);
  bytes[0] = 'x';
  EXPECT_STREQ(reinterpret_cast<const char*>(buffer->data()), "abc");
  buffer->data()[1] = 'y';
  EXPECT_STREQ(reinterpret_cast<const char*>(buffer->data()), "ayc");
}

TEST_F(DataSizeBuffer, ReplacesTheContent) {
  buffer->setData("abc", 3);
  EXPECT_EQ(buffer->setData("de\0f", 4), 0);
  EXPECT_EQ(buffer->size(), 4U);
  EXPECT_EQ(std::memcmp(buffer->data(), "de\0f\0", 5), 0);
}

}  // namespace
