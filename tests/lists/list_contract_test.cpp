// The contract of the 17 operations, over all 51 lists.

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <string>
#include <vector>

#include "lists/letter_list.h"
#include "support/counted_note.h"
#include "support/heap_watch.h"
#include "support/show.h"

namespace {

constexpr char kLetters[] = "abcdefghi";
constexpr char kNone = '-';  // the zero of the element type
constexpr long long kFarBelow = LLONG_MIN;
constexpr long long kFarBeyond = LLONG_MAX;

std::vector<ListKind> everyList() {
  std::vector<ListKind> lists = valueLists();
  for (const auto& more : {recordLists(), mediaLists(), cutLists()}) {
    lists.insert(lists.end(), more.begin(), more.end());
  }
  return lists;
}

std::string show(LetterList& list) {
  return showBy(list, [](char letter) { return std::string(1, letter); });
}

void add(LetterList& list, const std::string& letters) {
  for (const char letter : letters) list.add(letter);
}

class ListContract : public testing::TestWithParam<ListKind> {
 protected:
  // Whatever a list took of an object, it has given back when it is gone.
  void TearDown() override {
    list.reset();
    for (const char letter : std::string(kLetters)) {
      EXPECT_EQ(kind->references(letter), 0) << letter;
    }
  }

  std::unique_ptr<LetterList> listOf(const std::string& letters) {
    std::unique_ptr<LetterList> made = kind->create();
    add(*made, letters);
    return made;
  }

  void* query(const char* name) { return list->object()->queryInterface(name); }

  std::unique_ptr<LetterKind> kind = GetParam().createKind();
  std::unique_ptr<LetterList> list = kind->create();
};

std::string nameOf(const testing::TestParamInfo<ListKind>& kind) { return kind.param.name; }
INSTANTIATE_TEST_SUITE_P(All, ListContract, testing::ValuesIn(everyList()), nameOf);

TEST(ListTypes, AreFiftyOne) { EXPECT_EQ(everyList().size(), 51U); }

TEST_P(ListContract, IsMadeEmptyWithOneReference) {
  EXPECT_EQ(list->object()->refCount(), 1);
  EXPECT_EQ(list->object()->releaseHook(), nullptr);
  EXPECT_EQ(list->size(), 0);
}

TEST_P(ListContract, AnswersItsOwnNameAndListDataAlone) {
  const std::string name = GetParam().name;
  EXPECT_EQ(query(name.c_str()), list->object());
  EXPECT_EQ(query(ZOL::kListData), nullptr) << "it never held an element";
  EXPECT_EQ(query("IDmBaseObj"), nullptr) << "on purpose";
  EXPECT_EQ(query(""), nullptr);
  EXPECT_EQ(query("listdata"), nullptr) << "names are case-sensitive";
  EXPECT_EQ(query(("_" + name).c_str()), nullptr);
  EXPECT_EQ(query((name + " ").c_str()), nullptr);
  for (const ListKind& other : everyList()) {
    EXPECT_EQ(query(other.name.c_str()), other.name == name ? list->object() : nullptr)
        << other.name;
  }
  EXPECT_EQ(list->object()->refCount(), 1) << "a query adds no reference";
}

TEST_P(ListContract, CountsItsReferencesAndTellsItsHookOnce) {
  CountingHook hook;
  ZOL::IDmBaseObj* const object = list->object();
  object->setReleaseHook(&hook);
  EXPECT_EQ(object->releaseHook(), &hook);
  EXPECT_EQ(object->addRef(), 2);
  EXPECT_EQ(object->release(), 1);
  EXPECT_EQ(hook.calls, 0);
  list.reset();
  EXPECT_EQ(hook.calls, 1);
}

TEST_P(ListContract, AddAppendsAndKeepsDoublesInTheirOrder) {
  for (const char letter : std::string("cabac")) EXPECT_EQ(list->add(letter), 0);
  EXPECT_EQ(list->size(), 5);
  EXPECT_EQ(show(*list), "[c, a, b, a, c]") << "nothing is sorted or unique by itself";
}

TEST_P(ListContract, AtAnswersTheZeroOutsideTheRange) {
  EXPECT_EQ(list->at(0), kNone);
  EXPECT_EQ(list->at(-1), kNone);
  add(*list, "ab");
  for (const long long index : {-1LL, 2LL, 3LL, kFarBelow, kFarBeyond}) {
    EXPECT_EQ(list->at(index), kNone) << index;
  }
  EXPECT_EQ(list->at(1), 'b');
}

TEST_P(ListContract, RemoveAtMovesTheLaterElementsDown) {
  add(*list, "abcde");
  EXPECT_EQ(list->removeAt(1), 0);
  EXPECT_EQ(show(*list), "[a, c, d, e]");
  EXPECT_EQ(list->removeAt(3), 0);
  EXPECT_EQ(show(*list), "[a, c, d]");
  EXPECT_EQ(list->removeAt(0), 0);
  EXPECT_EQ(show(*list), "[c, d]");
  EXPECT_EQ(list->removeAt(0), 0);
  EXPECT_EQ(list->removeAt(0), 0);
  EXPECT_EQ(show(*list), "[]");
}

TEST_P(ListContract, RemoveAtIsRefusedOutsideTheRange) {
  EXPECT_EQ(list->removeAt(0), 1001);
  add(*list, "ab");
  for (const long long index : {-1LL, 2LL, 3LL, kFarBelow, kFarBeyond}) {
    EXPECT_EQ(list->removeAt(index), 1001) << index;
  }
  EXPECT_EQ(show(*list), "[a, b]");
}

TEST_P(ListContract, InsertAtPutsTheElementBeforeTheIndex) {
  EXPECT_EQ(list->insertAt(0, 'b'), 0);
  EXPECT_EQ(list->insertAt(0, 'a'), 0);
  EXPECT_EQ(list->insertAt(1, 'c'), 0);
  EXPECT_EQ(show(*list), "[a, c, b]");
  EXPECT_EQ(list->insertAt(3, 'd'), 0) << "size() appends";
  EXPECT_EQ(show(*list), "[a, c, b, d]");
}

TEST_P(ListContract, InsertAtIsRefusedOutsideTheRange) {
  add(*list, "ab");
  for (const long long index : {-1LL, 3LL, kFarBelow, kFarBeyond}) {
    EXPECT_EQ(list->insertAt(index, 'c'), 1001) << index;
  }
  EXPECT_EQ(show(*list), "[a, b]");
  EXPECT_EQ(kind->references('c'), 0);
}

TEST_P(ListContract, SetAtReplacesAnElement) {
  add(*list, "abc");
  EXPECT_EQ(list->setAt(1, 'd'), 0);
  EXPECT_EQ(list->setAt(0, 'e'), 0);
  EXPECT_EQ(list->setAt(2, 'f'), 0);
  EXPECT_EQ(show(*list), "[e, d, f]");
  EXPECT_EQ(kind->references('a'), 0);
}

TEST_P(ListContract, SetAtIsRefusedBeyondTheIndexBehindTheLast) {
  EXPECT_EQ(list->setAt(1, 'c'), 1001);
  add(*list, "ab");
  for (const long long index : {-1LL, 3LL, kFarBelow, kFarBeyond}) {
    EXPECT_EQ(list->setAt(index, 'c'), 1001) << index;
  }
  EXPECT_EQ(show(*list), "[a, b]");
  EXPECT_EQ(kind->references('c'), 0);
}

// As the array grows with the list, size() is its capacity at some of these sizes
// and below it at others.
TEST_P(ListContract, SetAtAcceptsTheIndexBehindTheLast) {
  for (const std::string letters : {"", "a", "ab", "abc", "abcd", "abcde", "abcdef", "abcdefg"}) {
    list = listOf(letters);
    const std::string before = show(*list);
    const auto behind = static_cast<long long>(letters.size());
    EXPECT_EQ(list->setAt(behind, 'h'), 0) << before;
    EXPECT_EQ(list->size(), behind);
    EXPECT_EQ(list->at(behind), kNone);
    EXPECT_EQ(list->setAt(behind, 'i'), 0) << before;
    EXPECT_EQ(show(*list), before);
    EXPECT_EQ(list->setAt(behind + 1, 'h'), 1001);
    EXPECT_EQ(list->add('c'), 0);
    EXPECT_EQ(list->at(behind), 'c') << "the next add overwrites it";
    EXPECT_EQ(list->size(), behind + 1);
    EXPECT_EQ(kind->references('h'), 0);
    EXPECT_EQ(kind->references('i'), 0);
  }
}

TEST_P(ListContract, SetAtAcceptsTheIndexBehindTheLastOfAClearedList) {
  add(*list, "abc");
  list->clear();
  EXPECT_EQ(list->setAt(0, 'd'), 0);
  EXPECT_EQ(show(*list), "[]");
  EXPECT_EQ(list->setAt(1, 'd'), 1001);
}

// Whatever comes after it, what setAt() took behind the last element is given back.
TEST_P(ListContract, SetAtBehindTheLastLeavesNothingInMemory) {
  using Step = void (*)(LetterList&);
  const std::vector<Step> steps = {
      [](LetterList&) {},
      [](LetterList& filled) { filled.setAt(1, 'c'); },
      [](LetterList& filled) { filled.add('c'); },
      [](LetterList& filled) { filled.insertAt(0, 'c'); },
      [](LetterList& filled) { filled.removeAt(0); },
      [](LetterList& filled) { filled.clear(); },
      [](LetterList& filled) { filled.assign(&filled); },
      [](LetterList& filled) { filled.insertListAt(0, &filled); },
  };
  list.reset();
  for (std::size_t step = 0; step < steps.size(); ++step) {
    const long long before = liveBlocks();
    list = listOf("a");
    list->setAt(1, 'b');
    steps[step](*list);
    list.reset();
    const long long after = liveBlocks();
    EXPECT_EQ(after, before) << "step " << step;
  }
}

TEST_P(ListContract, SetAtBehindTheLastAgainTakesTheOldPlace) {
  add(*list, "a");
  list->setAt(1, 'b');
  const long long before = liveBlocks();
  for (int i = 0; i < 10; ++i) list->setAt(1, 'd');
  for (int i = 0; i < 10; ++i) list->setAt(1, 'b');
  EXPECT_EQ(liveBlocks(), before);
  EXPECT_EQ(kind->references('d'), 0);
}

TEST_P(ListContract, ClearDropsAllElementsAndKeepsTheArray) {
  EXPECT_EQ(list->clear(), 0);
  EXPECT_EQ(query(ZOL::kListData), nullptr);
  add(*list, "abc");
  void* const array = query(ZOL::kListData);
  EXPECT_NE(array, nullptr);
  EXPECT_EQ(list->clear(), 0);
  EXPECT_EQ(show(*list), "[]");
  EXPECT_EQ(kind->references('a'), 0);
  EXPECT_EQ(query(ZOL::kListData), array);
  add(*list, "def");
  EXPECT_EQ(query(ZOL::kListData), array);
  EXPECT_EQ(show(*list), "[d, e, f]");
}

TEST_P(ListContract, AssignReplacesTheContent) {
  const auto other = listOf("bcb");
  EXPECT_EQ(list->assign(other.get()), 0);
  EXPECT_EQ(show(*list), "[b, c, b]");
  EXPECT_EQ(show(*other), "[b, c, b]");
  list = listOf("defgh");
  EXPECT_EQ(list->assign(other.get()), 0);
  EXPECT_EQ(show(*list), "[b, c, b]");
  list->setAt(0, 'i');
  list->removeAt(2);
  EXPECT_EQ(show(*other), "[b, c, b]") << "each list has elements of its own";
}

TEST_P(ListContract, AssignOfAnEmptyListEmpties) {
  const auto other = listOf("");
  add(*list, "abc");
  EXPECT_EQ(list->assign(other.get()), 0);
  EXPECT_EQ(show(*list), "[]");
}

TEST_P(ListContract, AssignOfNullIsRefused) {
  add(*list, "abc");
  EXPECT_EQ(list->assign(nullptr), 1001);
  EXPECT_EQ(show(*list), "[a, b, c]");
}

TEST_P(ListContract, AssignOfAListToItselfEmptiesIt) {
  add(*list, "abc");
  EXPECT_EQ(list->assign(list.get()), 0);
  EXPECT_EQ(show(*list), "[]");
  EXPECT_EQ(kind->references('a'), 0);
}

TEST_P(ListContract, InsertListAtPutsTheElementsInTheirOrderBeforeTheIndex) {
  const auto other = listOf("de");
  const std::vector<std::string> expected = {"[d, e, a, b, c]", "[a, d, e, b, c]",
                                             "[a, b, d, e, c]", "[a, b, c, d, e]"};
  for (std::size_t index = 0; index < expected.size(); ++index) {
    list = listOf("abc");
    EXPECT_EQ(list->insertListAt(static_cast<long long>(index), other.get()), 0);
    EXPECT_EQ(show(*list), expected[index]);
  }
  EXPECT_EQ(show(*other), "[d, e]");
}

TEST_P(ListContract, InsertListAtOfAnEmptyListChangesNothing) {
  const auto other = listOf("");
  EXPECT_EQ(list->insertListAt(0, other.get()), 0);
  add(*list, "abc");
  EXPECT_EQ(list->insertListAt(1, other.get()), 0);
  EXPECT_EQ(list->insertListAt(3, other.get()), 0);
  EXPECT_EQ(show(*list), "[a, b, c]");
}

TEST_P(ListContract, InsertListAtIsRefusedForNullAndOutsideTheRange) {
  const auto other = listOf("de");
  add(*list, "abc");
  EXPECT_EQ(list->insertListAt(0, nullptr), 1001);
  for (const long long index : {-1LL, 4LL, kFarBelow, kFarBeyond}) {
    EXPECT_EQ(list->insertListAt(index, other.get()), 1001) << index;
    EXPECT_EQ(list->insertListAt(index, list.get()), 1001) << index;
  }
  EXPECT_EQ(show(*list), "[a, b, c]");
}

TEST_P(ListContract, InsertListAtOfTwoElementsIntoThemselves) {
  add(*list, "ab");
  EXPECT_EQ(list->insertListAt(0, list.get()), 0);
  EXPECT_EQ(show(*list), "[b, b, a, b]");
}

// The rule, done literally: last position first, always at the same index, reading
// a list that grows meanwhile.
TEST_P(ListContract, InsertListAtOfAListIntoItselfReadsItWhileItGrows) {
  for (std::size_t size = 0; size <= 6; ++size) {
    for (std::size_t index = 0; index <= size; ++index) {
      const std::string letters = std::string(kLetters).substr(0, size);
      std::string model = letters;
      for (std::size_t position = size; position-- > 0;) {
        model.insert(index, 1, model[position]);
      }
      list = listOf(letters);
      EXPECT_EQ(list->insertListAt(static_cast<long long>(index), list.get()), 0);
      EXPECT_EQ(show(*list), show(*listOf(model))) << letters << " at " << index;
    }
  }
}

// A caller may defeat the type of the parameter by a cast. Then the store decides.
TEST_P(ListContract, TakesTheElementsOfListsOfTheSameStoreAlone) {
  for (const ListKind& other : everyList()) {
    ZOL::IDmBaseObj* const cast = other.createObject();
    const bool taken = other.store == GetParam().store;
    list = listOf("abc");
    EXPECT_EQ(list->insertCastAt(1, cast), taken ? 0 : 1001) << other.name;
    EXPECT_EQ(show(*list), "[a, b, c]") << other.name;
    EXPECT_EQ(list->assignCast(cast), taken ? 0 : 1001) << other.name;
    EXPECT_EQ(show(*list), taken ? "[]" : "[a, b, c]") << other.name;
    cast->release();
  }
}

TEST_P(ListContract, RefusesAListThatIsNotTheLibrarys) {
  const auto foreign = kind->createForeign();
  add(*foreign, "de");
  ASSERT_EQ(show(*foreign), "[d, e]");
  add(*list, "abc");
  EXPECT_EQ(list->assign(foreign.get()), 1001);
  EXPECT_EQ(list->insertListAt(0, foreign.get()), 1001);
  EXPECT_EQ(show(*list), "[a, b, c]");
}

TEST_P(ListContract, RefusesAListThatForwardsToOneOfTheLibrarys) {
  const auto real = listOf("de");
  const auto forwarding = kind->createForwarding(real.get());
  ASSERT_EQ(show(*forwarding), "[d, e]");
  add(*list, "abc");
  EXPECT_EQ(list->assign(forwarding.get()), 1001);
  EXPECT_EQ(list->insertListAt(0, forwarding.get()), 1001);
  EXPECT_EQ(show(*list), "[a, b, c]");
  EXPECT_EQ(show(*real), "[d, e]");
}

TEST_P(ListContract, SortOrdersByTheCallersFunction) {
  EXPECT_EQ(list->sort(Order::kAscending), 0) << "nothing to sort";
  add(*list, "dbacabe");
  EXPECT_EQ(list->sort(Order::kAscending), 0);
  EXPECT_EQ(show(*list), "[a, a, b, b, c, d, e]");
  EXPECT_EQ(list->sort(Order::kDescending), 0);
  EXPECT_EQ(show(*list), "[e, d, c, b, b, a, a]");
}

// More elements than the few that a sort may treat in a way of its own.
TEST_P(ListContract, SortOrdersManyElements) {
  for (int round = 0; round < 5; ++round) add(*list, "hebgcfiad");
  EXPECT_EQ(list->sort(Order::kAscending), 0);
  EXPECT_EQ(show(*list),
            "[a, a, a, a, a, b, b, b, b, b, c, c, c, c, c, d, d, d, d, d, e, e, e, e, e, "
            "f, f, f, f, f, g, g, g, g, g, h, h, h, h, h, i, i, i, i, i]");
}

TEST_P(ListContract, SortWithoutAFunctionIsRefused) {
  add(*list, "cab");
  EXPECT_EQ(list->sort(Order::kNull), 1001);
  EXPECT_EQ(show(*list), "[c, a, b]");
}

TEST_P(ListContract, FindAnswersTheFirstMatch) {
  add(*list, "abcb");
  EXPECT_EQ(list->find('b', Match::kEqual), 1);
  EXPECT_EQ(kind->matchesAsked(), 2) << "from the front, and no further";
  EXPECT_EQ(list->find('a', Match::kEqual), 0);
  EXPECT_EQ(list->find('b', Match::kNext), 2) << "the element comes first, the key second";
  EXPECT_EQ(list->find('d', Match::kEqual), -1);
  EXPECT_EQ(list->find('a', Match::kNever), -1);
}

TEST_P(ListContract, FindWithoutAFunctionOrElementsAnswersNone) {
  EXPECT_EQ(list->find('a', Match::kEqual), -1);
  EXPECT_EQ(list->find('a', Match::kNull), -1);
  EXPECT_EQ(kind->matchesAsked(), 0);
  add(*list, "abc");
  EXPECT_EQ(list->find('a', Match::kNull), -1);
}

// Numbers, records and values stand in the array as they are, objects as plain
// pointers. What texts and memory look like there is the library's own business.
TEST_P(ListContract, ListDataIsTheArrayOfTheElements) {
  add(*list, "abc");
  EXPECT_NE(query(ZOL::kListData), nullptr);
  const bool own = GetParam().name == "ZOLPCharList" || GetParam().name == "ZOLAutoVoidPtrList";
  EXPECT_EQ(list->array(), own ? "" : "abc");
  EXPECT_EQ(list->object()->refCount(), 1);
}

}  // namespace
