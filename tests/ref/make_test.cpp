// The makers: every factory gives its result to a Ref.

#include <KyDataStructure/ref.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <type_traits>

#include "ref/every_list.h"

namespace {

// Interfaces whose one factory takes no argument.
TEST(Make, GivesTheOnlyReferenceToANewObjectOfEveryInterface) {
  int made = 0;
  visitEveryMade(
      [&made](auto tag) {
        using Interface = typename decltype(tag)::Type;
        if constexpr (ZOL::refDetail::Factories::rowsOf<Interface> == 1) {
          if constexpr (std::is_invocable_v<decltype(ZOL::make<Interface>)>) {
            const ZOL::Ref<Interface> object = ZOL::make<Interface>();
            ASSERT_TRUE(object) << Interface::interfaceName;
            EXPECT_EQ(object->refCount(), 1) << Interface::interfaceName;
            EXPECT_EQ(ZOL::query<Interface>(object.get()), object.get());
            ++made;
          }
        }
      },
      ZOL::refDetail::Factories());
  EXPECT_EQ(made, 85);
}

TEST(Make, PassesTheArgumentsOfMediaOn) {
  const unsigned char bytes[] = {1, 2, 3, 4, 5, 6, 7, 8};
  const auto blue = ZOL::make<ZOL::IZolBGRData>(2, 1, bytes, 6, 30);
  const auto clear = ZOL::make<ZOL::IZolBGRAData>(1, 2, bytes, 8, 40);
  EXPECT_EQ(blue->refCount(), 1);
  EXPECT_EQ(blue->width(), 2U);
  EXPECT_EQ(blue->data()[5], 6);
  EXPECT_EQ(clear->refCount(), 1);
  EXPECT_EQ(clear->height(), 2U);
  EXPECT_EQ(clear->tag(), 40);
}

TEST(Make, ReadsTextsAndIsEmptyForOneThatIsNotTaken) {
  const auto scripts = ZOL::make<ZOL::IZolCutScripts>("[]");
  ASSERT_TRUE(scripts);
  EXPECT_EQ(scripts->refCount(), 1);
  EXPECT_FALSE(ZOL::make<ZOL::IZolCutScripts>("{}"));
  EXPECT_FALSE(ZOL::make<ZOL::IZolCutScripts>(nullptr));
  const auto report = ZOL::make<ZOL::IZolKeyMatrixInfo>("{}");
  ASSERT_TRUE(report);
  EXPECT_EQ(report->refCount(), 1);
  EXPECT_FALSE(ZOL::make<ZOL::IZolKeyMatrixInfo>("[]"));
}

TEST(Make, PassesTheArgumentsOfAStageReportOn) {
  const auto report = ZOL::make<ZOL::IZolStageReportData>(1, "name", 2, 3, "message", nullptr);
  EXPECT_EQ(report->refCount(), 1);
  EXPECT_STREQ(report->stageName(), "name");
  EXPECT_EQ(report->stageCode(), 3);
  EXPECT_STREQ(report->stageDetail(), "");
}

TEST(Make, HasAMakerForEachFactoryOfAnInterfaceWithSeveral) {
  EXPECT_EQ(ZOL::makeEmptyMediaData()->data(), nullptr);
  EXPECT_EQ(ZOL::makeMediaData(2, 1, nullptr, 8, 9)->tag(), 9);
  EXPECT_TRUE(ZOL::makeZolResSerializeInfo()->isEmpty());
  const auto read = ZOL::makeZolResSerializeInfoFromBuffer(R"({"name": "a", "res_type": 2})");
  ASSERT_TRUE(read);
  EXPECT_EQ(read->refCount(), 1);
  EXPECT_FALSE(ZOL::makeZolResSerializeInfoFromBuffer(""));
  const auto photo = ZOL::makeZolResSerializeInfoFromCompletResInfo(R"({"id": 42})", 101);
  ASSERT_TRUE(photo);
  EXPECT_TRUE(photo->isValid());
}

}  // namespace
