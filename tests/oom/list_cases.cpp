// Every operation of every list type.

#include <KyDataStructure/lists.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "lists/elements.h"
#include "lists/letter_list.h"
#include "oom/sweep.h"
#include "support/held.h"
#include "support/show.h"

namespace oom {
namespace {

std::string lettersOf(LetterList& list) {
  std::string text = "[";
  for (long long i = 0; i < list.size(); ++i)
    text += (i > 0 ? ", " : "") + std::string(1, list.at(i));
  return text + "]";
}

// Two lists of one kind, and the elements of both.
struct Lists {
  std::unique_ptr<LetterKind> kind;
  std::unique_ptr<LetterList> list;
  std::unique_ptr<LetterList> other;
  long long found = -2;

  Lists(const ListKind& of, const std::string& first, const std::string& second)
      : kind(of.createKind()), list(kind->create()), other(kind->create()) {
    for (const char letter : first) list->add(letter);
    for (const char letter : second) other->add(letter);
  }

  State state() const {
    const std::string lists = lettersOf(*list) + lettersOf(*other);
    // What the lists hold beyond their elements: what stands in the slot behind them.
    std::string beyond = "beyond:";
    for (const char* letter = "abcdefghi"; *letter; ++letter) {
      const auto held = std::count(lists.begin(), lists.end(), *letter);
      const auto references = kind->references(*letter);
      if (references != 0 && references != held) beyond += " " + std::string(1, *letter);
    }
    return {lettersOf(*list), lettersOf(*other), beyond, "found " + std::to_string(found)};
  }
};

struct Operation {
  const char* name;
  void (*run)(Lists& lists);
  Judge judge = unchanged;
  bool movesValues = false;  // as a vector of ZolValue moves them, which are copied
};

const Operation kOperations[] = {
    {"at", [](Lists& lists) { lists.list->at(0); }},
    {"add", [](Lists& lists) { lists.list->add('i'); }},
    {"removeAt", [](Lists& lists) { lists.list->removeAt(0); }, unchanged, true},
    {"insertAt the front", [](Lists& lists) { lists.list->insertAt(0, 'i'); }, unchanged, true},
    {"insertAt the end", [](Lists& lists) { lists.list->insertAt(lists.list->size(), 'i'); }},
    {"setAt the first", [](Lists& lists) { lists.list->setAt(0, 'i'); }, unchanged, true},
    {"setAt behind the last", [](Lists& lists) { lists.list->setAt(lists.list->size(), 'i'); }},
    {"clear", [](Lists& lists) { lists.list->clear(); }},
    {"assign", [](Lists& lists) { lists.list->assign(lists.other.get()); }, stepByStep},
    {"assign itself", [](Lists& lists) { lists.list->assign(lists.list.get()); }, stepByStep},
    {"insertListAt the front", [](Lists& lists) { lists.list->insertListAt(0, lists.other.get()); },
     unchanged, true},
    {"insertListAt the end",
     [](Lists& lists) { lists.list->insertListAt(lists.list->size(), lists.other.get()); },
     unchanged, true},
    {"insertListAt itself", [](Lists& lists) { lists.list->insertListAt(1, lists.list.get()); },
     unchanged, true},
    {"sort", [](Lists& lists) { lists.list->sort(Order::kDescending); }, unchanged, true},
    {"find", [](Lists& lists) { lists.found = lists.list->find('d', Match::kEqual); }},
};

// A vector whose elements are copied where others move leaves some of them where they
// have got to, and of those that could not be copied an empty text: '?'.
bool someMoved(const State& before, const State& after, const State& finished) {
  const auto size = [](const std::string& list) { return list.size(); };
  if (State(after.begin() + 1, after.end()) != State(before.begin() + 1, before.end()))
    return false;
  const std::string known = before[0] + finished[0] + "?, ";
  return size(after[0]) >= std::min(size(before[0]), size(finished[0])) &&
         size(after[0]) <= std::max(size(before[0]), size(finished[0])) &&
         after[0].find_first_not_of(known) == std::string::npos;
}

// As many letters as asked for, in no order.
std::string letters(std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += "fbhdagec"[i * 5 % 8];
  return text;
}

void addCases(const ListKind& kind, const std::string& first, const std::string& second,
              std::vector<Case>& cases) {
  const bool copiesToMove = kind.name == "ZolValueList";
  for (const Operation& operation : kOperations) {
    cases.push_back(onStage(
        kind.name + "::" + operation.name + " of " + std::to_string(first.size()) + " and " +
            std::to_string(second.size()),
        [=] { return Lists(kind, first, second); }, operation.run,
        [](const Lists& lists) { return lists.state(); },
        copiesToMove && operation.movesValues ? someMoved : operation.judge));
  }
}

// The list of raw memory. Its state is told with what it has freed: a block that it could
// not take, it has freed all the same.
struct MemoryLists {
  using List = ZOL::ZOLAutoVoidPtrList;
  std::unique_ptr<Elements<List>> elements = std::make_unique<Elements<List>>();
  Held<List> list = Held<List>(createZOLAutoVoidPtrList());
  Held<List> other = Held<List>(createZOLAutoVoidPtrList());

  MemoryLists() {
    for (const char letter : {'a', 'b', 'c', 'd'}) list->add(elements->of(letter));
    for (const char letter : {'e', 'f', 'g'}) other->add(elements->of(letter));
  }

  State state() const {
    std::string freed = "freed:";
    for (const char* letter = "abcdefghi"; *letter; ++letter) {
      const int times = elements->timesFreed(*letter);
      if (times > 0) freed += " " + std::string(1, *letter) + std::to_string(times);
    }
    const auto shown = [](List& memory) {
      return showBy(memory,
                    [](void* element) { return std::string(1, Elements<List>::letter(element)); });
    };
    return {shown(*list), shown(*other), freed};
  }
};

// The element 'i' was not taken, and is freed.
bool freedInstead(const State& before, const State& after, const State& /*finished*/) {
  return after == State{before[0], before[1], "freed: i1"};
}

// Of the elements e, f and g, those from some place on were taken, the last one first, and
// freed with what had taken them.
bool freedFromTheLast(const State& before, const State& after, const State& /*finished*/) {
  if (after[0] != before[0] || after[1] != before[1]) return false;
  for (const char* freed : {"freed:", "freed: g1", "freed: f1 g1", "freed: e1 f1 g1"}) {
    if (after[2] == freed) return true;
  }
  return false;
}

// The elements are taken first to last; the one that was not taken is freed, too.
bool clearedAndBegun(const State& /*before*/, const State& after, const State& finished) {
  const State allowed[] = {{"[]", "freed: a1 b1 c1 d1"},
                           {"[]", "freed: a1 b1 c1 d1 e1"},
                           {"[e]", "freed: a1 b1 c1 d1 f1"},
                           {"[e, f]", "freed: a1 b1 c1 d1 g1"}};
  return after[1] == finished[1] && std::find(std::begin(allowed), std::end(allowed),
                                              State{after[0], after[2]}) != std::end(allowed);
}

Case memoryCase(const char* name, void (*run)(MemoryLists& lists), Judge judge) {
  return onStage(
      std::string("ZOLAutoVoidPtrList::") + name, [] { return MemoryLists(); }, run,
      [](const MemoryLists& lists) { return lists.state(); }, judge);
}

void addMemoryCases(std::vector<Case>& cases) {
  cases.push_back(memoryCase(
      "add", [](MemoryLists& on) { on.list->add(on.elements->of('i')); }, freedInstead));
  cases.push_back(memoryCase(
      "insertAt", [](MemoryLists& on) { on.list->insertAt(1, on.elements->of('i')); },
      freedInstead));
  cases.push_back(memoryCase(
      "setAt", [](MemoryLists& on) { on.list->setAt(1, on.elements->of('i')); }, freedInstead));
  cases.push_back(memoryCase(
      "setAt behind the last", [](MemoryLists& on) { on.list->setAt(4, on.elements->of('i')); },
      freedInstead));
  cases.push_back(memoryCase(
      "insertListAt", [](MemoryLists& on) { on.list->insertListAt(1, on.other.get()); },
      freedFromTheLast));
  cases.push_back(memoryCase(
      "assign", [](MemoryLists& on) { on.list->assign(on.other.get()); }, clearedAndBegun));
  cases.push_back(memoryCase(
      "removeAt", [](MemoryLists& on) { on.list->removeAt(0); }, unchanged));
  cases.push_back(memoryCase(
      "clear", [](MemoryLists& on) { on.list->clear(); }, unchanged));
}

}  // namespace

std::vector<Case> listCases() {
  std::vector<Case> cases;
  for (auto* const table : {&valueLists, &recordLists, &mediaLists, &cutLists}) {
    for (const ListKind& kind : table()) {
      if (kind.name == ZOL::ZOLAutoVoidPtrList::interfaceName) continue;
      // An array with room for one more, and one without.
      addCases(kind, letters(3), letters(5), cases);
      addCases(kind, letters(4), letters(0), cases);
      if (!full()) continue;
      addCases(kind, letters(0), letters(1), cases);
      addCases(kind, letters(1), letters(8), cases);
      addCases(kind, letters(40), letters(70), cases);
      // The one list whose every element takes memory of its own.
      if (kind.name != ZOL::ZOLPCharList::interfaceName) continue;
      for (std::size_t size = 10; size <= 200; size += 10) {
        addCases(kind, letters(size), letters(size + 1), cases);
      }
    }
  }
  addMemoryCases(cases);
  return cases;
}

}  // namespace oom
