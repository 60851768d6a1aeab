// What lists of counted objects do with their references. The objects are callers'
// own and write a diary: "a+" for each reference added, "a-" for each given up, "a!"
// for the end.

#include <KyDataStructure/lists.h>
#include <gtest/gtest.h>

#include <string>

#include "support/calling_hook.h"
#include "support/counted_note.h"
#include "support/held.h"
#include "support/show.h"

namespace {

class ObjectList : public testing::Test {
 protected:
  // The diary since it was last read.
  std::string read() {
    std::string days;
    days.swap(diary);
    return days;
  }
  static std::string show(const Held<ZOL::ZOLBaseObjectList>& shown) {
    return showBy(*shown, [](ZOL::IDmBaseObj* object) {
      return object ? static_cast<Note*>(object)->name() : "null";
    });
  }

  std::string diary;
  Held<Note> a{new Note("a", &diary)};
  Held<Note> b{new Note("b", &diary)};
  Held<Note> c{new Note("c", &diary)};
  Held<ZOL::ZOLBaseObjectList> list{createZOLBaseObjectList()};
};

TEST_F(ObjectList, AddTakesOneReferenceForEachPosition) {
  EXPECT_EQ(list->add(a.get()), 0);
  EXPECT_EQ(a->refCount(), 2);
  EXPECT_EQ(list->add(a.get()), 0);
  EXPECT_EQ(list->insertAt(0, a.get()), 0);
  EXPECT_EQ(a->refCount(), 4);
  EXPECT_EQ(show(list), "[a, a, a]");
  EXPECT_EQ(read(), "a+ a+ a+");
}

TEST_F(ObjectList, RemoveAtReleasesThatElementAndTouchesNoOther) {
  for (auto* note : {a.get(), b.get(), c.get()}) list->add(note);
  read();
  EXPECT_EQ(list->removeAt(0), 0);
  EXPECT_EQ(read(), "a-");
  EXPECT_EQ(a->refCount(), 1);
  EXPECT_EQ(show(list), "[b, c]");
}

TEST_F(ObjectList, InsertAtMovesTheLaterElementsWithoutTouchingThem) {
  list->add(a.get());
  list->add(b.get());
  read();
  EXPECT_EQ(list->insertAt(1, c.get()), 0);
  EXPECT_EQ(read(), "c+");
  EXPECT_EQ(show(list), "[a, c, b]");
}

TEST_F(ObjectList, GrowsWithoutTouchingItsElements) {
  list->add(a.get());
  read();
  for (int i = 0; i < 100; ++i) list->add(nullptr);
  EXPECT_EQ(read(), "");
}

TEST_F(ObjectList, AtAndFindAndSizeLeaveTheCountsAlone) {
  list->add(a.get());
  list->add(b.get());
  read();
  EXPECT_EQ(list->at(0), a.get());
  EXPECT_EQ(list->at(2), nullptr);
  EXPECT_EQ(list->find(b.get(), [](ZOL::IDmBaseObj* x, ZOL::IDmBaseObj* y) { return x == y; }), 1);
  EXPECT_EQ(list->size(), 2);
  EXPECT_EQ(read(), "");
}

TEST_F(ObjectList, FindTakesAnyKeyThatItsFunctionUnderstands) {
  list->add(a.get());
  list->add(nullptr);
  EXPECT_EQ(list->find(nullptr, [](ZOL::IDmBaseObj* x, ZOL::IDmBaseObj* y) { return x == y; }), 1);
}

TEST_F(ObjectList, SetAtTakesTheNewElementBeforeItReleasesTheOld) {
  list->add(a.get());
  read();
  EXPECT_EQ(list->setAt(0, b.get()), 0);
  EXPECT_EQ(read(), "b+ a-");
}

TEST_F(ObjectList, SetAtOfTheElementThatStandsThereKeepsItsCount) {
  list->add(a.get());
  Note* const last = a.get();
  a.reset();  // the list's reference is the only one
  read();
  EXPECT_EQ(list->setAt(0, last), 0);
  EXPECT_EQ(read(), "a+ a-");
  EXPECT_EQ(last->refCount(), 1);
}

TEST_F(ObjectList, SetAtOfNullReleasesTheOld) {
  list->add(a.get());
  read();
  EXPECT_EQ(list->setAt(0, nullptr), 0);
  EXPECT_EQ(list->setAt(0, nullptr), 0);
  EXPECT_EQ(read(), "a-");
  EXPECT_EQ(show(list), "[null]");
}

TEST_F(ObjectList, NullIsAnElement) {
  EXPECT_EQ(list->add(nullptr), 0);
  EXPECT_EQ(list->insertAt(1, nullptr), 0);
  EXPECT_EQ(list->size(), 2);
  EXPECT_EQ(list->at(0), nullptr);
  EXPECT_EQ(show(list), "[null, null]");
  Held<ZOL::ZOLBaseObjectList> other(createZOLBaseObjectList());
  EXPECT_EQ(other->assign(list.get()), 0);
  EXPECT_EQ(show(other), "[null, null]");
  EXPECT_EQ(list->removeAt(0), 0);
  EXPECT_EQ(list->clear(), 0);
}

TEST_F(ObjectList, ClearReleasesTheElementsFromFirstToLast) {
  for (auto* note : {c.get(), a.get(), c.get(), b.get()}) list->add(note);
  read();
  EXPECT_EQ(list->clear(), 0);
  EXPECT_EQ(read(), "c- a- c- b-");
  EXPECT_EQ(c->refCount(), 1);
}

TEST_F(ObjectList, ReleasesItsElementsWhenItEnds) {
  for (auto* note : {a.get(), b.get(), a.get()}) list->add(note);
  read();
  list.reset();
  EXPECT_EQ(a->refCount(), 1);
  EXPECT_EQ(b->refCount(), 1);
}

TEST_F(ObjectList, EndsAnObjectThatItAloneHeld) {
  list->add(a.get());
  a.reset();
  read();
  list.reset();
  EXPECT_EQ(read(), "a- a!");
}

TEST_F(ObjectList, AssignSharesTheObjects) {
  list->add(a.get());
  list->add(b.get());
  Held<ZOL::ZOLBaseObjectList> other(createZOLBaseObjectList());
  other->add(c.get());
  read();
  EXPECT_EQ(other->assign(list.get()), 0);
  EXPECT_EQ(read(), "c- a+ b+");
  EXPECT_EQ(show(other), "[a, b]");
  list->clear();
  EXPECT_EQ(show(other), "[a, b]");
}

TEST_F(ObjectList, AssignToItselfReleasesItsElements) {
  list->add(a.get());
  list->add(b.get());
  read();
  EXPECT_EQ(list->assign(list.get()), 0);
  EXPECT_EQ(read(), "a- b-");
  EXPECT_EQ(show(list), "[]");
}

TEST_F(ObjectList, InsertListAtTakesAReferenceForEachElementFromLastToFirst) {
  Held<ZOL::ZOLBaseObjectList> other(createZOLBaseObjectList());
  for (ZOL::IDmBaseObj* object : {a.get(), a.get(), c.get()}) other->add(object);
  other->add(nullptr);
  list->add(b.get());
  read();
  EXPECT_EQ(list->insertListAt(0, other.get()), 0);
  EXPECT_EQ(read(), "c+ a+ a+");
  EXPECT_EQ(show(list), "[a, a, c, null, b]");
}

TEST_F(ObjectList, InsertListAtOfItselfTakesAReferenceForEachNewPosition) {
  list->add(a.get());
  list->add(b.get());
  read();
  EXPECT_EQ(list->insertListAt(0, list.get()), 0);
  EXPECT_EQ(show(list), "[b, b, a, b]");
  EXPECT_EQ(read(), "b+ b+");
  EXPECT_EQ(a->refCount(), 2);
  EXPECT_EQ(b->refCount(), 4);
}

TEST_F(ObjectList, SortLeavesTheCountsAsTheyWere) {
  for (auto* note : {c.get(), a.get(), b.get(), a.get()}) list->add(note);
  EXPECT_EQ(list->sort([](ZOL::IDmBaseObj* x, ZOL::IDmBaseObj* y) {
    return static_cast<Note*>(x)->name() < static_cast<Note*>(y)->name();
  }),
            0);
  EXPECT_EQ(show(list), "[a, a, b, c]");
  EXPECT_EQ(a->refCount(), 3);
  EXPECT_EQ(b->refCount(), 2);
  EXPECT_EQ(c->refCount(), 2);
}

TEST_F(ObjectList, RefusalsTouchNoReference) {
  list->add(a.get());
  read();
  EXPECT_EQ(list->insertAt(-1, b.get()), 1001);
  EXPECT_EQ(list->insertAt(2, b.get()), 1001);
  EXPECT_EQ(list->setAt(-1, b.get()), 1001);
  EXPECT_EQ(list->setAt(2, b.get()), 1001);
  EXPECT_EQ(list->removeAt(1), 1001);
  EXPECT_EQ(list->assign(nullptr), 1001);
  EXPECT_EQ(list->insertListAt(2, list.get()), 1001);
  EXPECT_EQ(read(), "");
}

// The slot behind the last element, which setAt() alone writes.

TEST_F(ObjectList, SetAtBehindTheLastTakesAReference) {
  list->add(a.get());
  read();
  EXPECT_EQ(list->setAt(1, b.get()), 0);
  EXPECT_EQ(read(), "b+");
  EXPECT_EQ(show(list), "[a]");
}

TEST_F(ObjectList, SetAtBehindTheLastReleasesWhatStoodThere) {
  list->setAt(0, a.get());
  read();
  EXPECT_EQ(list->setAt(0, b.get()), 0);
  EXPECT_EQ(read(), "b+ a-");
  EXPECT_EQ(list->setAt(0, b.get()), 0);
  EXPECT_EQ(read(), "b+ b-");
  EXPECT_EQ(list->setAt(0, nullptr), 0);
  EXPECT_EQ(read(), "b-");
}

TEST_F(ObjectList, GivesUpWhatStoodBehindTheLastWhenItNextChanges) {
  using Change = void (*)(ZOL::ZOLBaseObjectList*, Note*);
  const Change changes[] = {
      [](ZOL::ZOLBaseObjectList* changed, Note* note) { changed->add(note); },
      [](ZOL::ZOLBaseObjectList* changed, Note* note) { changed->insertAt(0, note); },
      [](ZOL::ZOLBaseObjectList* changed, Note*) { changed->removeAt(0); },
      [](ZOL::ZOLBaseObjectList* changed, Note*) { changed->clear(); },
      [](ZOL::ZOLBaseObjectList* changed, Note*) { changed->assign(changed); },
      [](ZOL::ZOLBaseObjectList* changed, Note*) { changed->insertListAt(1, changed); },
  };
  for (const Change change : changes) {
    list = Held<ZOL::ZOLBaseObjectList>(createZOLBaseObjectList());
    list->add(a.get());
    list->setAt(1, b.get());
    ASSERT_EQ(b->refCount(), 2);
    change(list.get(), c.get());
    EXPECT_EQ(b->refCount(), 1) << "change " << &change - changes;
  }
}

TEST_F(ObjectList, GivesUpWhatStoodBehindTheLastWhenItEnds) {
  list->setAt(0, a.get());
  list.reset();
  EXPECT_EQ(a->refCount(), 1);
}

// One kind of element, one store: a cast does not make one list of the other.
TEST_F(ObjectList, TakesNoListOfOtherObjects) {
  Held<ZOL::IGpuInfoList> gpus(createIGpuInfoList());
  list->add(a.get());
  EXPECT_EQ(list->assign(reinterpret_cast<ZOL::ZOLBaseObjectList*>(gpus.get())), 1001);
  EXPECT_EQ(list->insertListAt(0, reinterpret_cast<ZOL::ZOLBaseObjectList*>(gpus.get())), 1001);
  EXPECT_EQ(show(list), "[a]");
}

TEST(BaseObjectList, HoldsAnyObjectWithoutAskingIt) {
  Held<ZOL::ZOLBaseObjectList> list(createZOLBaseObjectList());
  Held<ZOL::ZOLIntList> ints(createZOLIntList());  // does not answer "IDmBaseObj"
  Held<ZOL::IZolString> text(createZolString());
  EXPECT_EQ(list->add(ints.get()), 0);
  EXPECT_EQ(list->add(text.get()), 0);
  EXPECT_EQ(list->add(list.get()), 0) << "itself among them";
  EXPECT_EQ(list->refCount(), 2);
  EXPECT_EQ(ints->refCount(), 2);
  list->clear();
  EXPECT_EQ(list->refCount(), 1);
}

TEST(GpuInfoList, CountsTheObjectsOfItsCallers) {
  std::string diary;
  auto* const gpu = new GpuNote("gpu", &diary);
  Held<ZOL::IGpuInfoList> list(createIGpuInfoList());
  EXPECT_EQ(list->add(gpu), 0);
  EXPECT_EQ(gpu->release(), 1);
  EXPECT_EQ(list->at(0), gpu);
  list.reset();
  EXPECT_EQ(diary, "gpu+ gpu- gpu- gpu!");
}

// An element may look at its list while it goes.
TEST(BaseObjectList, HasLetGoOfAnElementBeforeTheElementEnds) {
  Held<ZOL::ZOLBaseObjectList> list(createZOLBaseObjectList());
  std::string sizes;
  CallingHook watcher([&] { sizes += show(list->size()) + ' '; });
  for (int i = 0; i < 4; ++i) {
    Held<ZOL::IZolString> text(createZolString());
    text->setReleaseHook(&watcher);
    list->add(text.get());
  }
  list->removeAt(0);
  list->setAt(0, nullptr);
  list->clear();
  EXPECT_EQ(sizes, "3 3 0 0 ");
}

// And may put something into it.
TEST(BaseObjectList, KeepsWhatAnElementAddsWhileItIsCleared) {
  Held<ZOL::ZOLBaseObjectList> list(createZOLBaseObjectList());
  Held<ZOL::IZolString> last(createZolString());
  CallingHook filler([filled = list.get(), added = last.get()] { filled->add(added); });
  for (int i = 0; i < 2; ++i) {
    Held<ZOL::IZolString> text(createZolString());
    text->setReleaseHook(&filler);
    list->add(text.get());
  }
  EXPECT_EQ(list->clear(), 0);
  EXPECT_EQ(list->size(), 2) << "one for each that went";
  EXPECT_EQ(list->at(0), last.get());
  EXPECT_EQ(last->refCount(), 3);
  EXPECT_EQ(list->clear(), 0);
  EXPECT_EQ(list->size(), 0);
  EXPECT_EQ(last->refCount(), 1);
}

TEST(BaseObjectList, LetsGoOfWhatAnElementAddsWhileItEnds) {
  Held<ZOL::ZOLBaseObjectList> list(createZOLBaseObjectList());
  Held<ZOL::IZolString> last(createZolString());
  CallingHook filler([filled = list.get(), added = last.get()] { filled->add(added); });
  for (int i = 0; i < 9; ++i) {
    Held<ZOL::IZolString> text(createZolString());
    text->setReleaseHook(&filler);
    list->add(text.get());
  }
  list.reset();
  EXPECT_EQ(last->refCount(), 1);
}

}  // namespace
