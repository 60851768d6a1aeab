// The counted pointer: what each operation does to the count. A note writes down every
// addRef() and release() that reaches it.

#include <KyDataStructure/ref.h>
#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <unordered_set>
#include <utility>

#include "support/counted_note.h"

namespace {

class Refs : public testing::Test {
 protected:
  // A new note, owned by the caller.
  Note* note(const char* name) { return new Note(name, &diary_); }

  // What was written since this was last asked.
  std::string diary() { return std::exchange(diary_, std::string()); }

 private:
  std::string diary_;
};

TEST_F(Refs, AreAsLargeAsAPointerAndMoveWithoutThrowing) {
  using Text = ZOL::Ref<ZOL::IZolString>;
  static_assert(sizeof(Text) == sizeof(void*), "nothing but the pointer");
  static_assert(std::is_nothrow_move_constructible_v<Text>, "so that containers move it");
  static_assert(std::is_nothrow_swappable_v<Text>, "");
  static_assert(!std::is_convertible_v<ZOL::IZolString*, Text>, "the makers alone take one");
  static_assert(!std::is_convertible_v<Text, ZOL::IZolString*>, "get() alone gives one");
  static_assert(!std::is_convertible_v<Text, bool>, "a test is not a number");
  EXPECT_FALSE(Text());
  EXPECT_FALSE(Text(nullptr));
}

TEST_F(Refs, AdoptTakesTheReferenceOver) {
  { const auto held = ZOL::adopt(note("a")); }
  EXPECT_EQ(diary(), "a- a!");
}

TEST_F(Refs, ShareAddsAReference) {
  Note* const lent = note("a");
  { const auto held = ZOL::share(lent); }
  EXPECT_EQ(diary(), "a+ a-");
  lent->release();
}

TEST_F(Refs, OfNullAreEmpty) {
  EXPECT_FALSE(ZOL::Ref<Note>::adopt(nullptr));
  EXPECT_FALSE(ZOL::Ref<Note>::share(nullptr));
  EXPECT_EQ(ZOL::Ref<Note>().get(), nullptr);
}

TEST_F(Refs, CopyAddsAReference) {
  const auto held = ZOL::adopt(note("a"));
  {
    const auto copy = held;  // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(copy.get(), held.get());
    EXPECT_EQ(diary(), "a+");
  }
  EXPECT_EQ(diary(), "a-");
}

TEST_F(Refs, MoveTouchesNoCountAndLeavesTheSourceEmpty) {
  auto held = ZOL::adopt(note("a"));
  auto moved = std::move(held);
  EXPECT_FALSE(held);
  ZOL::Ref<Note> assigned;
  assigned = std::move(moved);
  EXPECT_FALSE(moved);
  EXPECT_EQ(diary(), "");
  EXPECT_EQ(assigned->refCount(), 1);
}

TEST_F(Refs, AssignmentTakesTheNewBeforeItReleasesTheOld) {
  auto held = ZOL::adopt(note("a"));
  const auto other = ZOL::adopt(note("b"));
  held = other;
  EXPECT_EQ(diary(), "b+ a- a!");
  EXPECT_EQ(held, other);
}

TEST_F(Refs, AssignedToThemselvesKeepTheirObject) {
  auto held = ZOL::adopt(note("a"));
  auto& same = held;
  held = same;
  EXPECT_EQ(diary(), "a+ a-");
  held = std::move(same);
  EXPECT_EQ(diary(), "");
  held.swap(same);
  ASSERT_TRUE(held);
  EXPECT_EQ(held->refCount(), 1);
}

// A release may call back, and then finds the Ref as it will be.
TEST_F(Refs, HaveTheNewObjectInPlaceWhileTheOldOneEnds) {
  class Looker final : public ZOL::IReleaseHook {
   public:
    explicit Looker(const ZOL::Ref<Note>& ref) : ref_(ref) {}
    void onLastRelease() override { seen = ref_.get(); }
    Note* seen = nullptr;

   private:
    const ZOL::Ref<Note>& ref_;
  };
  auto held = ZOL::adopt(note("a"));
  const auto other = ZOL::adopt(note("b"));
  Looker looker(held);
  held->setReleaseHook(&looker);
  held = other;
  EXPECT_EQ(looker.seen, other.get());
  EXPECT_EQ(diary(), "b+ a- a!");
}

// An object that ends takes no reference, so nothing can hold it beyond its end.
TEST_F(Refs, OfAnObjectThatIsEndingAreEmpty) {
  class Saver final : public ZOL::IReleaseHook {
   public:
    void onLastRelease() override { saved = ZOL::share(object); }
    ZOL::IZolString* object = nullptr;
    ZOL::Ref<ZOL::IZolString> saved;
  };
  Saver saver;
  auto text = ZOL::make<ZOL::IZolString>();
  saver.saved = text;
  saver.object = text.get();
  text->setReleaseHook(&saver);
  text.reset();
  ASSERT_TRUE(saver.saved) << "this one came in time";
  saver.saved.reset();
  EXPECT_FALSE(saver.saved);
}

TEST_F(Refs, ResetReleasesAndEmpties) {
  auto held = ZOL::adopt(note("a"));
  held.reset();
  EXPECT_FALSE(held);
  EXPECT_EQ(diary(), "a- a!");
  held.reset();
  EXPECT_EQ(diary(), "");
  held = ZOL::adopt(note("b"));
  held = nullptr;
  EXPECT_EQ(diary(), "b- b!");
}

TEST_F(Refs, GiveTheirReferenceAway) {
  auto held = ZOL::adopt(note("a"));
  Note* const given = held.give();
  EXPECT_FALSE(held);
  EXPECT_EQ(held.give(), nullptr);
  EXPECT_EQ(diary(), "");
  EXPECT_EQ(given->release(), 0);
}

TEST_F(Refs, SwapWithoutTouchingACount) {
  auto a = ZOL::adopt(note("a"));
  auto b = ZOL::adopt(note("b"));
  swap(a, b);
  EXPECT_EQ(a->name() + b->name(), "ba");
  a.swap(b);
  EXPECT_EQ(a->name() + b->name(), "ab");
  EXPECT_EQ(diary(), "");
}

TEST_F(Refs, AreGivenUpWhenAnExceptionPasses) {
  const auto kept = ZOL::adopt(note("kept"));
  try {
    const auto copy = kept;  // NOLINT(performance-unnecessary-copy-initialization)
    const auto own = ZOL::adopt(note("own"));
    throw std::runtime_error("halfway");
  } catch (const std::runtime_error&) {
    EXPECT_EQ(diary(), "kept+ own- own! kept-");
  }
  EXPECT_EQ(kept->refCount(), 1);
}

TEST_F(Refs, ConvertToABaseByCopyAndByMove) {
  auto media = ZOL::make<ZOL::IZolBGRData>(1, 1, nullptr, 4, 7);
  const ZOL::Ref<ZOL::IZolMediaData> copy = media;
  EXPECT_EQ(media->refCount(), 2);
  const ZOL::Ref<ZOL::IDmBaseObj> moved = std::move(media);
  EXPECT_FALSE(media);
  EXPECT_EQ(moved->refCount(), 2);
  EXPECT_EQ(copy->tag(), 7);
  static_assert(!std::is_constructible_v<ZOL::Ref<ZOL::IZolBGRData>, ZOL::Ref<ZOL::IZolMediaData>>,
                "down goes by as() alone");
}

TEST_F(Refs, OfNothingConvertToNothing) {
  ZOL::Ref<ZOL::IZolBGRData> none;
  EXPECT_FALSE(ZOL::Ref<ZOL::IDmBaseObj>(none));
  EXPECT_FALSE(ZOL::Ref<ZOL::IDmBaseObj>(std::move(none)));
  EXPECT_FALSE(none.as<ZOL::IZolMediaData>());
  EXPECT_FALSE(none.as<ZOL::IZolString>());
  EXPECT_FALSE(none.as<ZOL::IZolTextInfoInternal>());
}

TEST_F(Refs, CompareByTheObject) {
  const auto media = ZOL::make<ZOL::IZolBGRData>(1, 1, nullptr, 4, 0);
  const auto other = ZOL::make<ZOL::IZolBGRData>(1, 1, nullptr, 4, 0);
  const ZOL::Ref<ZOL::IDmBaseObj> root = media;
  const ZOL::Ref<ZOL::IZolBGRData> none;
  EXPECT_TRUE(media == root);
  EXPECT_TRUE(root == media);
  EXPECT_TRUE(media != other);
  EXPECT_FALSE(media == other);
  EXPECT_TRUE(none == nullptr);
  EXPECT_TRUE(nullptr == none);
  EXPECT_TRUE(media != nullptr);
  EXPECT_TRUE(nullptr != media);
  EXPECT_TRUE(none == ZOL::Ref<ZOL::IDmBaseObj>());
  EXPECT_NE(media < other, other < media);
  EXPECT_FALSE(media < media);
}

TEST_F(Refs, AreKeysOfOrderedAndOfHashedContainers) {
  const auto a = ZOL::make<ZOL::IZolString>();
  const auto b = ZOL::make<ZOL::IZolString>();
  const std::set<ZOL::Ref<ZOL::IZolString>> ordered = {a, b, a};
  const std::unordered_set<ZOL::Ref<ZOL::IZolString>> hashed = {a, b, a};
  EXPECT_EQ(ordered.size(), 2U);
  EXPECT_EQ(hashed.count(b), 1U);
  EXPECT_EQ(a->refCount(), 3);
}

TEST_F(Refs, AsAsksTheObjectAndKeepsIt) {
  auto data = ZOL::Ref<ZOL::IParamObjectData>(ZOL::make<ZOL::IRemoveBackgroundData>());
  auto relinking = data.as<ZOL::IRelinkEffectData>();
  ASSERT_TRUE(relinking);
  static_assert(std::is_same_v<decltype(relinking), ZOL::Ref<ZOL::IRelinkEffectData>>, "");
  EXPECT_EQ(data->refCount(), 2);
  data.reset();
  EXPECT_EQ(relinking->refCount(), 1);
  EXPECT_EQ(relinking->setParam(1, "still here"), ZOL::kSuccess);
}

TEST_F(Refs, AsIsEmptyForAnInterfaceThatIsNotAnswered) {
  const auto text = ZOL::make<ZOL::IZolString>();
  EXPECT_FALSE(text.as<ZOL::IZolPChar>());
  EXPECT_FALSE(text.as<ZOL::IZolTextInfoInternal>());
  EXPECT_EQ(text->refCount(), 1);
}

TEST_F(Refs, AsOfABaseIsAnsweredWithoutAsking) {
  const auto list = ZOL::make<ZOL::ZOLIntList>();
  ASSERT_EQ(ZOL::query<ZOL::IDmBaseObj>(list.get()), nullptr);
  const auto root = list.as<ZOL::IDmBaseObj>();
  EXPECT_EQ(root, list);
  EXPECT_EQ(list->refCount(), 2);
  EXPECT_EQ(root.as<ZOL::ZOLIntList>(), list);
}

TEST_F(Refs, HoldWhatACloneGives) {
  const auto effect = ZOL::make<ZOL::IRelinkEffectData>();
  const auto clone = ZOL::adopt(effect->deepClone());
  EXPECT_NE(clone, effect);
  EXPECT_EQ(clone->refCount(), 1);
}

TEST(Sides, KeepTheirObjectAlive) {
  auto slice = ZOL::make<ZOL::IZolSliceItem>();
  auto side = slice.as<ZOL::IZolSliceItemInternal>();
  static_assert(std::is_same_v<decltype(side), ZOL::Side<ZOL::IZolSliceItemInternal>>, "");
  ASSERT_TRUE(side);
  EXPECT_EQ(side.object(), slice);
  EXPECT_EQ(slice->refCount(), 2);
  slice.reset();
  EXPECT_EQ(side->setLabel("door"), ZOL::kSuccess);
  EXPECT_STREQ(side.as<ZOL::IZolSliceItem>()->label(), "door");
}

TEST(Sides, CopyMoveAndSwapLikeRefs) {
  const auto a = ZOL::make<ZOL::IZolSliceItem>();
  const auto b = ZOL::make<ZOL::IZolSliceItem>();
  auto sideOfA = a.as<ZOL::IZolSliceItemInternal>();
  auto copy = sideOfA;
  EXPECT_EQ(a->refCount(), 3);
  EXPECT_EQ(copy, sideOfA);
  auto moved = std::move(copy);
  EXPECT_EQ(a->refCount(), 3);
  EXPECT_FALSE(copy);
  EXPECT_FALSE(copy.object());
  auto sideOfB = b.as<ZOL::IZolSliceItemInternal>();
  EXPECT_NE(sideOfA, sideOfB);
  swap(sideOfA, sideOfB);
  EXPECT_EQ(sideOfA.object(), b);
  moved = sideOfA;
  EXPECT_EQ(b->refCount(), 3);
  EXPECT_EQ(a->refCount(), 2);
  auto& same = moved;
  moved = same;
  moved = std::move(same);
  EXPECT_EQ(b->refCount(), 3);
  moved = nullptr;
  sideOfA.reset();
  EXPECT_EQ(b->refCount(), 1);
  EXPECT_FALSE(sideOfA);
}

}  // namespace
