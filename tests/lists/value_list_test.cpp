// What lists of plain values do beyond the common contract.

#include <KyDataStructure/lists.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "support/heap_watch.h"
#include "support/held.h"
#include "support/show.h"

namespace {

TEST(IntList, GoesThroughADayOfWork) {
  Held<ZOL::ZOLIntList> list(createZOLIntList());
  Held<ZOL::ZOLIntList> other(createZOLIntList());
  EXPECT_EQ(show(list), "[]");
  list->add(1);
  list->add(2);
  other->add(8);
  other->add(9);
  EXPECT_EQ(list->insertListAt(1, other.get()), 0);
  EXPECT_EQ(show(list), "[1, 8, 9, 2]");
  EXPECT_EQ(list->sort([](int a, int b) { return a > b; }), 0);
  EXPECT_EQ(show(list), "[9, 8, 2, 1]");
  EXPECT_EQ(list->find(4, [](int element, int key) { return element == 2 * key; }), 1);
  EXPECT_EQ(list->at(-1), 0);
  EXPECT_EQ(list->at(4), 0);
}

TEST(IntList, HoldsTheEndsOfItsRange) {
  Held<ZOL::ZOLIntList> list(createZOLIntList());
  list->add(std::numeric_limits<int>::min());
  list->add(std::numeric_limits<int>::max());
  EXPECT_EQ(show(list), "[-2147483648, 2147483647]");
}

TEST(IntList, LendsItsArrayInPlace) {
  Held<ZOL::ZOLIntList> list(createZOLIntList());
  for (const int number : {3, 1, 2}) list->add(number);
  const int* const array = static_cast<const int*>(list->queryInterface("listData"));
  list->sort([](int a, int b) { return a < b; });
  EXPECT_EQ(list->queryInterface("listData"), array) << "a sort moves elements, not the array";
  EXPECT_EQ(array[0], 1);
  EXPECT_EQ(array[1], 2);
  EXPECT_EQ(array[2], 3);
}

TEST(BoolList, StoresAnyIntegerAsItIs) {
  Held<ZOL::ZOLBoolList> list(createZOLBoolList());
  for (const int number : {2, 1, 0, -7}) list->add(number);
  EXPECT_EQ(list->at(0), 2);
  EXPECT_EQ(show(list), "[2, 1, 0, -7]");
}

TEST(BoolList, TakesAnIntListThatIsCastToIt) {
  Held<ZOL::ZOLIntList> ints(createZOLIntList());
  Held<ZOL::ZOLBoolList> bools(createZOLBoolList());
  ints->add(5);
  ints->add(0);
  EXPECT_EQ(bools->assign(reinterpret_cast<ZOL::ZOLBoolList*>(ints.get())), 0);
  EXPECT_EQ(show(bools), "[5, 0]");
  EXPECT_EQ(bools->insertListAt(1, reinterpret_cast<ZOL::ZOLBoolList*>(ints.get())), 0);
  EXPECT_EQ(show(bools), "[5, 5, 0, 0]");
}

TEST(BoolList, RefusesAFloatListThatIsCastToIt) {
  Held<ZOL::ZOLFLOATList> floats(createZOLFLOATList());
  Held<ZOL::ZOLBoolList> bools(createZOLBoolList());
  floats->add(1.0F);
  bools->add(3);
  EXPECT_EQ(bools->assign(reinterpret_cast<ZOL::ZOLBoolList*>(floats.get())), 1001);
  EXPECT_EQ(bools->insertListAt(0, reinterpret_cast<ZOL::ZOLBoolList*>(floats.get())), 1001);
  EXPECT_EQ(show(bools), "[3]");
}

TEST(IntPtrList, SharesItsStoreWithTheUnsignedLonglongList) {
  Held<ZOL::ZOLULonglongList> numbers(createZOLULonglongList());
  Held<ZOL::ZOLIntPtrList> pointers(createZOLIntPtrList());
  numbers->add(18446744073709551615ULL);
  EXPECT_EQ(pointers->assign(reinterpret_cast<ZOL::ZOLIntPtrList*>(numbers.get())), 0);
  EXPECT_EQ(show(pointers), "[18446744073709551615]");
}

TEST(FloatLists, KeepEveryBit) {
  Held<ZOL::ZOLFLOATList> floats(createZOLFLOATList());
  Held<ZOL::ZOLREALList> reals(createZOLREALList());
  floats->add(std::numeric_limits<float>::quiet_NaN());
  floats->add(-0.0F);
  reals->add(std::numeric_limits<double>::infinity());
  reals->add(0.1);
  EXPECT_TRUE(std::isnan(floats->at(0)));
  EXPECT_TRUE(std::signbit(floats->at(1)));
  EXPECT_TRUE(std::isinf(reals->at(0)));
  EXPECT_EQ(reals->at(1), 0.1);
}

// The memory is the caller's: it is there after everything that drops a pointer.
TEST(PointerLists, DoNotOwnWhatTheyPointTo) {
  WatchedBlock block;
  Held<ZOL::ZOLVoidPtrList> list(createZOLVoidPtrList());
  Held<ZOL::ZOLVoidPtrList> other(createZOLVoidPtrList());
  Held<ZOL::ZOLPByteList> bytes(createZOLPByteList());
  for (int i = 0; i < 4; ++i) list->add(block.memory());
  bytes->add(static_cast<unsigned char*>(block.memory()));
  EXPECT_EQ(other->assign(list.get()), 0);
  EXPECT_EQ(other->at(3), block.memory()) << "the pointer is copied";
  list->removeAt(0);
  list->setAt(0, nullptr);
  list->setAt(3, block.memory());
  list->clear();
  other.reset();
  bytes.reset();
  list.reset();
  EXPECT_EQ(block.timesFreed(), 0);
}

TEST(PointerLists, OfPlainAndOfOwnedMemoryDoNotMix) {
  Held<ZOL::ZOLVoidPtrList> plain(createZOLVoidPtrList());
  Held<ZOL::ZOLAutoVoidPtrList> owning(createZOLAutoVoidPtrList());
  EXPECT_EQ(plain->assign(reinterpret_cast<ZOL::ZOLVoidPtrList*>(owning.get())), 1001);
  EXPECT_EQ(owning->assign(reinterpret_cast<ZOL::ZOLAutoVoidPtrList*>(plain.get())), 1001);
}

constexpr char kLongText[] = "a text that is too long for any place but the heap";

TEST(ValueList, AnswersAnEmptyValueOutsideTheRange) {
  Held<ZOL::ZolValueList> list(createZolValueList());
  list->add(ZOL::ZolValue(7));
  EXPECT_EQ(show(list->at(1)), "none");
  EXPECT_EQ(show(list->at(-1)), "none");
}

TEST(ValueList, HoldsValuesOfEveryType) {
  Held<ZOL::ZolValueList> list(createZolValueList());
  list->add(ZOL::ZolValue());
  list->add(ZOL::ZolValue(true));
  list->add(ZOL::ZolValue(2.5));
  list->add(ZOL::ZolValue(0.5F));
  list->add(ZOL::ZolValue(-4LL));
  list->add(ZOL::ZolValue(-5));
  list->add(ZOL::ZolValue(6U));
  list->add(ZOL::ZolValue("seven"));
  EXPECT_EQ(show(list),
            "[none, bool true, double 2.5, float 0.5, longlong -4, int -5, uint 6, "
            "string \"seven\"]");
}

TEST(ValueList, CopiesTheTextOnTheWayInAndOut) {
  Held<ZOL::ZolValueList> list(createZolValueList());
  ZOL::ZolValue value(kLongText);
  list->add(value);
  value.setValue("changed");
  ZOL::ZolValue out = list->at(0);
  ZOL::ZolValue again = list->at(0);
  EXPECT_STREQ(out.charValue(), kLongText);
  EXPECT_NE(out.charValue(), again.charValue());
  out.setValue("changed");
  EXPECT_EQ(show(list), std::string("[string \"") + kLongText + "\"]");
}

TEST(ValueList, AssignedListsHaveTextsOfTheirOwn) {
  Held<ZOL::ZolValueList> list(createZolValueList());
  Held<ZOL::ZolValueList> other(createZolValueList());
  list->add(ZOL::ZolValue("first"));
  EXPECT_EQ(other->assign(list.get()), 0);
  list->setAt(0, ZOL::ZolValue("second"));
  EXPECT_EQ(show(other), "[string \"first\"]");
}

TEST(ValueList, FreesATextWithItsElement) {
  Held<ZOL::ZolValueList> list(createZolValueList());
  for (int i = 0; i < 3; ++i) list->add(ZOL::ZolValue(1));
  const long long withoutTexts = liveBlocks();
  for (int i = 0; i < 3; ++i) list->setAt(i, ZOL::ZolValue(kLongText));
  EXPECT_EQ(liveBlocks(), withoutTexts + 3);
  EXPECT_EQ(list->removeAt(0), 0);
  EXPECT_EQ(liveBlocks(), withoutTexts + 2);
  EXPECT_EQ(list->clear(), 0);
  EXPECT_EQ(liveBlocks(), withoutTexts);
}

TEST(ValueList, RemoveAtMovesTheLaterTextsDown) {
  Held<ZOL::ZolValueList> list(createZolValueList());
  for (const char* text : {"a", "", "c", kLongText}) list->add(ZOL::ZolValue(text));
  list->removeAt(0);
  EXPECT_EQ(show(list), std::string("[string \"\", string \"c\", string \"") + kLongText + "\"]");
}

// An element that was a text and becomes a number gives its text up at the latest
// when it goes.
TEST(ValueList, LeavesNothingWhenNumbersMoveOverTexts) {
  const long long before = liveBlocks();
  {
    Held<ZOL::ZolValueList> list(createZolValueList());
    for (int i = 0; i < 8; ++i) {
      list->add(i % 2 == 0 ? ZOL::ZolValue(kLongText) : ZOL::ZolValue(i));
    }
    list->removeAt(0);
    list->removeAt(1);
    list->insertAt(2, ZOL::ZolValue(kLongText));
    list->sort([](ZOL::ZolValue a, ZOL::ZolValue b) { return a.intValue() > b.intValue(); });
    EXPECT_EQ(list->at(0).intValue(), 7);
  }
  EXPECT_EQ(liveBlocks(), before);
}

TEST(ValueList, FindsWithCopiesOfElementAndKey) {
  Held<ZOL::ZolValueList> list(createZolValueList());
  list->add(ZOL::ZolValue());
  list->add(ZOL::ZolValue("key"));
  const auto equal = [](ZOL::ZolValue element, ZOL::ZolValue key) { return element == key; };
  EXPECT_EQ(list->find(ZOL::ZolValue("key"), equal), 1);
  EXPECT_EQ(list->find(ZOL::ZolValue(), equal), -1) << "an empty value equals nothing";
}

}  // namespace
