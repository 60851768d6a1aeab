// Any list of the library's, with its elements written as the letters 'a' to 'i'
// (elements.h). A test of the contract is written, and compiled, once for all of
// them: a list of numbers, of texts and of objects all show as "[a, b, c]".

#ifndef KYDATASTRUCTURE_TESTS_LISTS_LETTER_LIST_H_
#define KYDATASTRUCTURE_TESTS_LISTS_LETTER_LIST_H_

#include <KyDataStructure/frame.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

// What a caller's own functions may be.
enum class Order { kAscending, kDescending, kNull };
enum class Match {
  kEqual,
  kNext,  // the element is the letter that follows the key
  kNever,
  kNull,
};

// One list. Stands for a reference to it and gives that up at its end.
class LetterList {
 public:
  virtual ~LetterList() = default;

  virtual ZOL::IDmBaseObj* object() = 0;
  virtual long long size() = 0;
  virtual char at(long long index) = 0;
  virtual int add(char letter) = 0;
  virtual int removeAt(long long index) = 0;
  virtual int insertAt(long long index, char letter) = 0;
  virtual int setAt(long long index, char letter) = 0;
  virtual int clear() = 0;
  virtual int assign(LetterList* other) = 0;  // of the same kind, or null
  virtual int insertListAt(long long index, LetterList* other) = 0;
  virtual int sort(Order order) = 0;
  virtual long long find(char key, Match match) = 0;

  // The other operations with a list of any kind, its type defeated by a cast.
  virtual int assignCast(ZOL::IDmBaseObj* other) = 0;
  virtual int insertCastAt(long long index, ZOL::IDmBaseObj* other) = 0;
  // The elements as the array that kListData lends shows them; empty where what
  // stands in it is the library's own business.
  virtual std::string array() = 0;
};

// What one kind of list needs for a test: nine elements, and lists to put them in.
class LetterKind {
 public:
  virtual ~LetterKind() = default;

  virtual std::unique_ptr<LetterList> create() = 0;
  // An implementation of a caller's own.
  virtual std::unique_ptr<LetterList> createForeign() = 0;
  // One that hands all on to a list of the library's, which must outlive it.
  virtual std::unique_ptr<LetterList> createForwarding(LetterList* real) = 0;
  // How many references the lists hold to an object; 0 for other elements.
  virtual int references(char letter) = 0;
  // How often find() has asked a caller's function since the start of the test.
  virtual int matchesAsked() = 0;
};

// A row of the table of all kinds.
struct ListKind {
  std::string name;
  std::string store;  // lists of one store take each other's elements
  ZOL::IDmBaseObj* (*createObject)();
  std::unique_ptr<LetterKind> (*createKind)();

  // How a failing case is shown.
  friend std::ostream& operator<<(std::ostream& out, const ListKind& kind) {
    return out << kind.name;
  }
};

std::vector<ListKind> valueLists();
std::vector<ListKind> recordLists();
std::vector<ListKind> mediaLists();
std::vector<ListKind> cutLists();

#endif  // KYDATASTRUCTURE_TESTS_LISTS_LETTER_LIST_H_
