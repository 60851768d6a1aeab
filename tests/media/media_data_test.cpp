// Byte blocks with dimensions.

#include <KyDataStructure/media.h>
#include <gtest/gtest.h>

#include <cstring>
#include <new>
#include <string>

#include "support/held.h"

namespace {

template <class Object>
Held<Object> hold(Object* object) {
  return Held<Object>(object);
}

const unsigned char* bytesOf(const char* text) {
  return reinterpret_cast<const unsigned char*>(text);
}

// "4x2 7 'bytes'", with the zero behind the last byte checked.
std::string show(ZOL::IZolMediaData& media) {
  std::string text = std::to_string(media.width()) + "x" + std::to_string(media.height()) + " " +
                     std::to_string(media.tag());
  if (!media.data()) return text + " none" + (media.dataSize() == 0 ? "" : "?");
  EXPECT_EQ(media.data()[media.dataSize()], 0);
  return text + " '" +
         std::string(reinterpret_cast<const char*>(media.data()),
                     static_cast<std::size_t>(media.dataSize())) +
         "'";
}

}  // namespace

TEST(MediaData, FillsWithZerosWithoutData) {
  const auto media = hold(createBGRData(4, 2, nullptr, 24, 7));
  EXPECT_EQ(show(*media), "4x2 7 '" + std::string(24, '\0') + "'");
}

TEST(MediaData, TakesASizeThatFitsNoDimensions) {
  const auto media = hold(createBGRAData(4, 2, bytesOf("0123456789"), 10, 0));
  EXPECT_EQ(show(*media), "4x2 0 '0123456789'");
}

TEST(MediaData, IsAnEmptyObjectWhenTheFactoryCannotFillIt) {
  EXPECT_EQ(show(*hold(createEmptyMediaData())), "0x0 0 none");
  EXPECT_EQ(show(*hold(createMediaData(0, 2, bytesOf("0123456789"), 10, 3))), "0x0 0 none");
  EXPECT_EQ(show(*hold(createMediaData(4, 0, bytesOf("0123456789"), 10, 3))), "0x0 0 none");
  EXPECT_EQ(show(*hold(createMediaData(4, 2, bytesOf("0123456789"), 0, 3))), "0x0 0 none");
  EXPECT_EQ(show(*hold(createMediaData(4, 2, bytesOf("0123456789"), -1, 3))), "0x0 0 none");
}

TEST(MediaData, HasACopyOfItsOwnThatCallersMayWriteIn) {
  char text[] = "abc";
  const auto media = hold(createMediaData(1, 1, bytesOf(text), 3, 0));
  text[0] = 'x';
  EXPECT_EQ(show(*media), "1x1 0 'abc'");
  media->data()[1] = 'B';
  EXPECT_EQ(show(*media), "1x1 0 'aBc'");
}

TEST(MediaData, ARefusedCopyKeepsTheTarget) {
  const auto empty = hold(createEmptyMediaData());
  const auto media = hold(createMediaData(1, 1, bytesOf("abc"), 3, 5));
  EXPECT_EQ(media->copyFrom(empty.get()), 1001);
  EXPECT_EQ(media->copyFrom(nullptr), 1001);
  EXPECT_EQ(show(*media), "1x1 5 'abc'");
}

TEST(MediaData, CopiesBetweenItsTypesAndSharesNothing) {
  const auto source = hold(createBGRAData(3, 2, bytesOf("abcd"), 4, 9));
  const auto target = hold(createBGRData(1, 1, bytesOf("x"), 1, 1));
  EXPECT_EQ(target->copyFrom(source.get()), 0);
  EXPECT_EQ(show(*target), "3x2 9 'abcd'");
  source->data()[0] = 'X';
  EXPECT_EQ(show(*target), "3x2 9 'abcd'");
}

TEST(MediaData, SettingDimensionsTouchesNothingElse) {
  const auto media = hold(createMediaData(1, 1, bytesOf("abc"), 3, 5));
  media->setDimensions(0, 0);
  EXPECT_EQ(show(*media), "0x0 5 'abc'");
  const auto target = hold(createEmptyMediaData());
  EXPECT_EQ(target->copyFrom(media.get()), 1001);
}

TEST(MediaData, SettingDataTouchesNothingElseAndRefusesNothing) {
  const auto media = hold(createEmptyMediaData());
  media->setData(3, bytesOf("abc"));
  EXPECT_EQ(show(*media), "0x0 0 'abc'");
  media->setTag(8);
  media->setData(2, nullptr);
  EXPECT_EQ(show(*media), "0x0 8 '" + std::string(2, '\0') + "'");
  media->setData(0, bytesOf("abc"));
  EXPECT_EQ(show(*media), "0x0 8 ''");
}

TEST(MediaData, ANegativeSizeIsAnAllocationThatFails) {
  const auto media = hold(createMediaData(1, 1, bytesOf("abc"), 3, 5));
  EXPECT_THROW(media->setData(-1, bytesOf("abc")), std::bad_alloc);
  EXPECT_EQ(show(*media), "1x1 5 'abc'");
}

TEST(MediaData, MayBeCopiedOntoItselfAndFromItsOwnBlock) {
  const auto media = hold(createMediaData(1, 1, bytesOf("abcdef"), 6, 5));
  EXPECT_EQ(media->copyFrom(media.get()), 0);
  EXPECT_EQ(show(*media), "1x1 5 'abcdef'");
  media->setData(3, media->data() + 2);
  EXPECT_EQ(show(*media), "1x1 5 'cde'");
}

TEST(MediaData, AnswersItsOwnTypeAndItsBase) {
  const auto media = hold(createBGRAData(4, 2, bytesOf("x"), 1, 6));
  EXPECT_EQ(media->queryInterface("IZolBGRData"), nullptr);
  ASSERT_NE(ZOL::query<ZOL::IZolMediaData>(media.get()), nullptr);
  EXPECT_EQ(ZOL::query<ZOL::IZolMediaData>(media.get())->tag(), 6);
  EXPECT_EQ(ZOL::query<ZOL::IZolBGRAData>(media.get())->width(), 4u);
  EXPECT_EQ(media->refCount(), 1);
}
