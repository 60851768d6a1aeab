// Lengths that no int and no 32-bit number holds: kept, counted and given back whole, or
// refused. A test that finds too little memory free says so and is left out.

#include <KyDataStructure/KyDataStructure.h>
#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <limits>
#include <new>
#include <string>

#include "support/held.h"
#include "support/zol_text.h"

namespace {

constexpr std::size_t kGiB = std::size_t{1} << 30;
constexpr std::size_t kBeyondInt = 2 * kGiB + 5;
constexpr std::size_t kBeyond32Bits = 4 * kGiB + 5;

std::size_t freeMemory() {
  std::ifstream in("/proc/meminfo");
  for (std::string name; in >> name;) {
    std::size_t kibibytes = 0;
    if (name == "MemAvailable:" && in >> kibibytes) return kibibytes * 1024;
  }
  return 0;
}

#define NEEDS_MEMORY(gibibytes) \
  if (freeMemory() < ((gibibytes) + 2) * kGiB) GTEST_SKIP() << "needs " << (gibibytes) << " GiB"

// All of one letter but the last, so that a lost byte shows.
std::string longText(std::size_t size) {
  std::string text(size, 'a');
  text.back() = 'z';
  return text;
}

TEST(LongString, IsSetAndAppendedBeyond4GiB) {
  NEEDS_MEMORY(8);
  const std::string half = longText(kBeyondInt);
  const Held<ZOL::IZolString> string(createZolString());
  ASSERT_EQ(string->setText(half.data(), static_cast<long long>(half.size())), ZOL::kSuccess);
  EXPECT_EQ(string->length(), kBeyondInt);
  EXPECT_TRUE(string->equals(half.c_str()));
  ASSERT_EQ(string->appendText(half.c_str(), -1), ZOL::kSuccess);
  EXPECT_EQ(string->length(), 2 * kBeyondInt);
  EXPECT_EQ(std::strlen(string->text()), 2 * kBeyondInt);
  EXPECT_EQ(string->text()[kBeyondInt - 1], 'z');
  EXPECT_EQ(string->text()[2 * kBeyondInt - 1], 'z');
}

TEST(LongString, OfMoreThanAnyMemoryFailsAndLeavesTheOldText) {
  const Held<ZOL::IZolString> string = zolString("old");
  EXPECT_ANY_THROW(string->setText("x", LLONG_MAX));
  EXPECT_EQ(bytesIn(*string), "old");
}

TEST(LongBlock, OfCharactersHoldsTheLargestInt) {
  NEEDS_MEMORY(4);
  const std::string text = longText(INT_MAX);
  const Held<ZOL::IZolPChar> block(createZolPChar());
  ASSERT_EQ(block->setData(text.data(), INT_MAX), ZOL::kSuccess);
  EXPECT_EQ(block->size(), INT_MAX);
  EXPECT_EQ(std::memcmp(block->data(), text.data(), text.size()), 0);
}

TEST(LongBlock, OfBytesGoesBeyond32Bits) {
  NEEDS_MEMORY(5);
  const Held<ZOL::IDataSizeBuffer> block(createDataSizeBuffer());
  ASSERT_EQ(block->setData(nullptr, kBeyond32Bits), ZOL::kSuccess);
  EXPECT_EQ(block->size(), kBeyond32Bits);
  EXPECT_EQ(block->data()[kBeyond32Bits - 1], 0);
  EXPECT_EQ(block->data()[kBeyond32Bits], 0) << "the spare zero behind it";
}

TEST(LongBlock, OfMoreThanAnyMemoryFailsAndIsEmpty) {
  for (const unsigned long long size : {std::numeric_limits<unsigned long long>::max(),
                                        static_cast<unsigned long long>(PTRDIFF_MAX), 1ULL << 62}) {
    const Held<ZOL::IDataSizeBuffer> block(createDataSizeBuffer());
    EXPECT_THROW(block->setData(nullptr, size), std::bad_alloc) << size;
    EXPECT_EQ(block->size(), 0U);
    EXPECT_EQ(block->data(), nullptr);
  }
  const Held<ZOL::IZolPChar> characters(createZolPChar());
  EXPECT_THROW(characters->setData("x", INT_MIN), std::bad_alloc);
  EXPECT_EQ(characters->size(), 0);
}

TEST(LongMedia, IsFilledCopiedAndReplacedAtTheLargestSize) {
  NEEDS_MEMORY(6);
  const Held<ZOL::IZolMediaData> media(createMediaData(1, 1, nullptr, INT_MAX, 7));
  ASSERT_EQ(media->dataSize(), INT_MAX);
  media->data()[INT_MAX - 1] = 'z';
  const Held<ZOL::IZolMediaData> copy(createEmptyMediaData());
  ASSERT_EQ(copy->copyFrom(media.get()), ZOL::kSuccess);
  EXPECT_EQ(copy->dataSize(), INT_MAX);
  EXPECT_EQ(copy->data()[INT_MAX - 1], 'z');
  EXPECT_EQ(copy->data()[INT_MAX], 0) << "the spare zero behind it";
  copy->setData(INT_MAX, copy->data());
  EXPECT_EQ(copy->data()[INT_MAX - 1], 'z');
}

// Made by inserting a shorter list over and over. The array doubles as it grows, so their
// sizes are such that it ends full.
TEST(LongList, CountsItsElementsBeyondAnInt) {
  NEEDS_MEMORY(9);
  constexpr long long kPart = (1 << 20) + 1;
  constexpr long long kSize = kPart * (1 << 11);
  static_assert(kSize > INT_MAX, "no int holds it");
  const Held<ZOL::ZOLIntList> part(createZOLIntList());
  for (long long i = 0; i < kPart; ++i) part->add(0);
  const Held<ZOL::ZOLIntList> list(createZOLIntList());
  while (list->size() < kSize) {
    ASSERT_EQ(list->insertListAt(list->size(), part.get()), ZOL::kSuccess);
  }
  EXPECT_EQ(list->size(), kSize);
  ASSERT_EQ(list->setAt(kSize - 2, 7), ZOL::kSuccess);
  EXPECT_EQ(list->find(7, [](int element, int key) { return element == key; }), kSize - 2);
  ASSERT_EQ(list->removeAt(0), ZOL::kSuccess);
  EXPECT_EQ(list->at(kSize - 3), 7);
  EXPECT_EQ(list->size(), kSize - 1);
  ASSERT_EQ(list->insertAt(kSize - 3, 6), ZOL::kSuccess);
  EXPECT_EQ(list->at(kSize - 3), 6);
  EXPECT_EQ(list->at(kSize - 2), 7);
  EXPECT_EQ(list->removeAt(kSize), ZOL::kRefused);
}

TEST(LongText, OfACutHasATitleBeyondAnInt) {
  NEEDS_MEMORY(7);
  std::string reply = "[{\"script\":[{\"end_time\":9}],\"title\":\"";
  reply.reserve(kBeyondInt + 100);
  reply.append(kBeyondInt, 'a').append("z\"}]");
  const Held<ZOL::IZolCutScripts> scripts(createCutScripts(reply.c_str()));
  ASSERT_NE(scripts.get(), nullptr);
  ASSERT_EQ(scripts->scriptCount(), 1);
  EXPECT_EQ(std::strlen(scripts->scriptTitle(0)), kBeyondInt + 1);
  EXPECT_EQ(scripts->scriptTitle(0)[kBeyondInt], 'z');
  EXPECT_EQ(scripts->scriptDuration(0), 9);
}

TEST(LongText, OfMoreThan4GiBIsReadToItsEnd) {
  NEEDS_MEMORY(9);
  std::string reply = "[{\"x\":\"";
  reply.reserve(kBeyond32Bits + 200);
  reply.append(kBeyond32Bits, 'a').append("\",\"title\":\"b\",\"script\":[{\"end_time\":9}]}]");
  const Held<ZOL::IZolCutScripts> scripts(createCutScripts(reply.c_str()));
  ASSERT_NE(scripts.get(), nullptr);
  EXPECT_STREQ(scripts->scriptTitle(0), "b");
  EXPECT_EQ(scripts->scriptDuration(0), 9);

  reply.pop_back();
  reply.pop_back();
  EXPECT_EQ(createCutScripts(reply.c_str()), nullptr) << "an error behind 4 GiB is seen";
}

TEST(LongText, OfADescriptionIsWrittenWithWhatNobodyKnows) {
  NEEDS_MEMORY(9);
  const std::string begin = "{\"name\":\"a\",\"res_type\":3,\"infoType\":7,\"x\":\"";
  const std::string end = "\",\"user_string\":{}}";
  const Held<ZOL::IZolString> text(createZolString());
  {
    std::string bytes = begin;
    bytes.reserve(kBeyondInt + 100);
    bytes.append(kBeyondInt, 'a').append(end);
    text->setText(bytes.data(), static_cast<long long>(bytes.size()));
  }
  const Held<ZOL::IZolResSerializeInfo> info(createZolResSerializeInfo());
  ASSERT_EQ(info->setFromBuffer(text.get()), ZOL::kSuccess);
  ASSERT_EQ(info->toBuffer(text.get()), ZOL::kSuccess);
  EXPECT_EQ(text->length(), begin.size() + kBeyondInt + end.size());
  EXPECT_EQ(std::string(text->text(), begin.size()), begin);
  EXPECT_EQ(std::string(text->text() + begin.size() + kBeyondInt), end);
}

// An image's size is an int, so one beyond it is refused as any size below 1.
TEST(LongText, OfAFaceBeyondAnIntGivesAnEmptyImage) {
  NEEDS_MEMORY(9);
  constexpr std::size_t kLetters = 2863311532;  // 2^31 + 1 bytes
  static_assert(kLetters / 4 * 3 > INT_MAX, "four letters are three bytes");
  std::string report = R"({"face_cluster":{"a":["-"]},"face_image_map":{"a":)";
  report.reserve(kLetters + 200);
  report.append(R"({"width":1,"height":1,"base64":")").append(kLetters, 'a').append("\"}}}");
  const Held<ZOL::IZolKeyMatrixInfo> info(createKeyMatrixInfo(report.c_str()));
  ASSERT_NE(info.get(), nullptr);
  const Held<ZOL::IZolSliceItemList> slices(createIZolSliceItemList());
  ASSERT_EQ(info->dimensionItem(10)->getSliceItems(slices.get()), ZOL::kSuccess);
  ASSERT_EQ(slices->size(), 1);
  ASSERT_NE(slices->at(0)->faceImage(), nullptr);
  EXPECT_EQ(slices->at(0)->faceImage()->dataSize(), 0);
  EXPECT_EQ(slices->at(0)->faceImage()->width(), 0U);
}

}  // namespace
