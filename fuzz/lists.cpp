// Any operations on three lists of a kind, against plain sequences of letters. The first
// byte picks the kind; then each operation takes four, and what is too many is left out.

#include <algorithm>
#include <array>
#include <iterator>
#include <string>

#include "lists/letter_list.h"
#include "lists/letter_list_of.h"
#include "target.h"

namespace {

constexpr char kSomeLetters[] = "abcdefghi";
constexpr std::size_t kLists = 3;
constexpr std::size_t kLongest = 32;
constexpr std::size_t kMostOperations = 60;

// A list as its contract tells it, and the slot behind its last element.
class Model {
 public:
  std::string letters;
  char behind = kNone;

  bool holds(long long index) const { return index >= 0 && index < size(); }
  bool mayStandAt(long long index) const { return index >= 0 && index <= size(); }
  long long size() const { return static_cast<long long>(letters.size()); }

  char at(long long index) const { return holds(index) ? letters[place(index)] : kNone; }
  void put(long long index, const std::string& more) {
    letters.insert(place(index), more);
    behind = kNone;
  }
  void drop(long long index) {
    letters.erase(place(index), 1);
    behind = kNone;
  }
  void set(long long index, char letter) {
    (holds(index) ? letters[place(index)] : behind) = letter;
  }
  void clear() {
    letters.clear();
    behind = kNone;
  }
  // The last position first, while the list grows.
  void putIntoItself(long long index) {
    for (long long position = size(); position-- > 0;) {
      letters.insert(place(index), 1, at(position));
    }
    behind = kNone;
  }
  int references(char letter) const {
    return static_cast<int>(std::count(letters.begin(), letters.end(), letter)) +
           (behind == letter ? 1 : 0);
  }

 private:
  static std::size_t place(long long index) { return static_cast<std::size_t>(index); }
};

// One of each way to keep elements.
const std::array<ListKind, 11>& kinds() {
  static const std::array<ListKind, 11> all = {
      listKind<ZOL::ZOLIntList>(),        listKind<ZOL::ZOLREALList>(),
      listKind<ZOL::ZOLLonglongList>(),   listKind<ZOL::ZolValueList>(),
      listKind<ZOL::ZOLPCharList>(),      listKind<ZOL::ZOLAutoVoidPtrList>(),
      listKind<ZOL::ZOLBaseObjectList>(), listKind<ZOL::IKyMaskInfoDataList>(),
      listKind<ZOL::IZolMusicInfoList>(), listKind<ZOL::ZOLRectFList>(),
      listKind<ZOL::KeyFrameValueList>()};
  return all;
}

class Play {
 public:
  explicit Play(const ListKind& kind) : kind_(kind.createKind()) {
    for (auto& list : lists_) list = kind_->create();
  }

  void operate(std::uint8_t operation, std::uint8_t which, std::uint8_t where, std::uint8_t what) {
    LetterList& list = *lists_[which % kLists];
    Model& model = models_[which % kLists];
    const std::size_t other = which / kLists % kLists;
    const long long index = where % (model.size() + 3) - 1;
    const char letter = kSomeLetters[what % (std::size(kSomeLetters) - 1)];
    switch (operation % 13) {
      case 0:
        require(list.add(letter) == ZOL::kSuccess, "add takes all");
        model.put(model.size(), std::string(1, letter));
        break;
      case 1:
        requireCode(list.removeAt(index), model.holds(index));
        if (model.holds(index)) model.drop(index);
        break;
      case 2:
        requireCode(list.insertAt(index, letter), model.mayStandAt(index));
        if (model.mayStandAt(index)) model.put(index, std::string(1, letter));
        break;
      case 3:
        requireCode(list.setAt(index, letter), model.mayStandAt(index));
        if (model.mayStandAt(index)) model.set(index, letter);
        break;
      case 4:
        require(list.clear() == ZOL::kSuccess, "clear is never refused");
        model.clear();
        break;
      case 5:
        require(list.assign(lists_[other].get()) == ZOL::kSuccess,
                "a list of its kind is assigned");
        model.clear();
        model.letters = models_[other].letters;  // to itself: nothing
        break;
      case 6:
        requireCode(list.assign(nullptr), false);
        break;
      case 7:
      case 8:
        insertList(list, model, other, index);
        break;
      case 9:
        require(list.sort(what % 2 ? Order::kAscending : Order::kDescending) == ZOL::kSuccess,
                "any list is sorted");
        std::sort(model.letters.begin(), model.letters.end());
        if (what % 2 == 0) std::reverse(model.letters.begin(), model.letters.end());
        break;
      case 10:
        requireCode(list.sort(Order::kNull), false);
        break;
      case 11: {
        const std::size_t found = model.letters.find(letter);
        require(list.find(letter, Match::kEqual) ==
                    (found == std::string::npos ? -1 : static_cast<long long>(found)),
                "the first that matches is found");
        break;
      }
      default:
        lists_[which % kLists] = kind_->create();
        model = Model();
        break;
    }
    requireAsTheModel(*lists_[which % kLists], model);
    requireReferences();
  }

  void end() {
    for (auto& list : lists_) list.reset();
    for (Model& model : models_) model = Model();
    requireReferences();
  }

 private:
  static void requireCode(int code, bool taken) {
    require(code == (taken ? ZOL::kSuccess : ZOL::kRefused), "what may not be is refused");
  }

  void insertList(LetterList& list, Model& model, std::size_t other, long long index) {
    if (model.letters.size() + models_[other].letters.size() > kLongest) return;
    requireCode(list.insertListAt(index, lists_[other].get()), model.mayStandAt(index));
    if (!model.mayStandAt(index)) return;
    if (&model == &models_[other]) {
      model.putIntoItself(index);
    } else {
      model.put(index, models_[other].letters);
    }
  }

  static void requireAsTheModel(LetterList& list, const Model& model) {
    require(list.size() == model.size(), "as many elements as in the model");
    for (long long index = -1; index <= model.size(); ++index) {
      require(list.at(index) == model.at(index), "the elements of the model");
    }
    const std::string array = list.array();
    require(array.empty() || array == model.letters, "the array is the elements");
  }

  // Where the elements have references at all.
  void requireReferences() {
    for (std::size_t i = 0; i + 1 < std::size(kSomeLetters); ++i) {
      const char letter = kSomeLetters[i];
      int expected = 0;
      for (const Model& model : models_) expected += model.references(letter);
      const int references = kind_->references(letter);
      if (references != 0) counts_ = true;
      require(!counts_ || references == expected, "one reference for each position");
    }
  }

  std::unique_ptr<LetterKind> kind_;
  std::array<std::unique_ptr<LetterList>, kLists> lists_;
  std::array<Model, kLists> models_;
  bool counts_ = false;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  if (size == 0) return 0;
  Play play(kinds()[*bytes % kinds().size()]);
  const std::size_t end = std::min(size, 1 + 4 * kMostOperations);
  for (std::size_t at = 1; at + 4 <= end; at += 4) {
    play.operate(bytes[at], bytes[at + 1], bytes[at + 2], bytes[at + 3]);
  }
  play.end();
  return 0;
}
