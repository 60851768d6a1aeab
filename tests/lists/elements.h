// Nine elements of any kind, 'a' to 'i', so that one test can be written for all
// lists: `of('a')` makes one, `letter(element)` tells which it is.

#ifndef KYDATASTRUCTURE_TESTS_LISTS_ELEMENTS_H_
#define KYDATASTRUCTURE_TESTS_LISTS_ELEMENTS_H_

#include <KyDataStructure/KyDataStructure.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "lists/factories.h"
#include "support/counted_note.h"
#include "support/heap_watch.h"

constexpr char kLetters[] = "abcdefghi";
constexpr char kNone = '-';     // the zero of the type
constexpr char kUnknown = '?';  // neither the zero nor one of the nine

inline std::size_t placeOf(char letter) { return static_cast<std::size_t>(letter - 'a'); }

// Numbers, pointers that are not owned, and plain records: bytes.
template <class T, class = void>
class ElementsOf {
 public:
  static T of(char letter) {
    static_assert(std::is_trivially_copyable<T>::value, "copied as bytes");
    T element;
    std::memcpy(static_cast<void*>(&element), bytesOf(letter).data(), sizeof element);
    return element;
  }

  static char letter(const T& element) {
    std::array<unsigned char, sizeof(T)> bytes;
    std::memcpy(bytes.data(), &element, sizeof element);
    for (const char* candidate = kLetters; *candidate; ++candidate) {
      if (bytes == bytesOf(*candidate)) return *candidate;
    }
    const T none = zero();
    return std::memcmp(bytes.data(), &none, sizeof none) == 0 ? kNone : kUnknown;
  }

 private:
  // All zero, but for the one record that has a default of its own.
  static T zero() {
    T none;
    std::memset(static_cast<void*>(&none), std::is_same<T, ZOL::_Range>::value ? 0xFF : 0,
                sizeof none);
    return none;
  }

  // Neighbouring bytes differ, and so do the rows of 256: a part that is lost or
  // misplaced shows.
  static std::array<unsigned char, sizeof(T)> bytesOf(char letter) {
    std::array<unsigned char, sizeof(T)> bytes;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      bytes[i] = static_cast<unsigned char>(i * 17 + i / 256 + placeOf(letter) + 1);
    }
    return bytes;
  }
};

// Values: texts too long for any place but the heap, between numbers.
template <>
class ElementsOf<ZOL::ZolValue> {
 public:
  static ZOL::ZolValue of(char letter) {
    const int place = static_cast<int>(placeOf(letter));
    if (place % 2 == 1) return ZOL::ZolValue(place);
    return ZOL::ZolValue((std::string("a text that ends with ") + letter).c_str());
  }

  static char letter(ZOL::ZolValue element) {
    for (const char* candidate = kLetters; *candidate; ++candidate) {
      if (element == of(*candidate)) return *candidate;
    }
    return element.type() == ZOL::kEmptyValue ? kNone : kUnknown;
  }
};

// Texts, each too long to stand in the string object itself.
template <>
class ElementsOf<const char*> {
 public:
  ElementsOf() {
    for (const char* letter = kLetters; *letter; ++letter) {
      texts_.push_back(std::string("a text that ends with ") + *letter);
    }
  }

  const char* of(char letter) const { return texts_[placeOf(letter)].c_str(); }

  static char letter(const char* element) {
    if (!element) return kNone;
    const std::string text = element;
    return text.compare(0, text.size() - 1, "a text that ends with ") == 0 ? text.back() : kUnknown;
  }

 private:
  std::vector<std::string> texts_;
};

// Counted objects of the library's own. A list's references to one of them are all
// but the one that is held here.
template <class Interface>
class ElementsOf<Interface*, std::enable_if_t<std::is_base_of<ZOL::IDmBaseObj, Interface>::value>> {
 public:
  ElementsOf() {
    for (Interface*& object : objects_) object = createElement<Interface>();
    current_ = this;
  }
  ~ElementsOf() {
    current_ = nullptr;
    for (Interface* object : objects_) object->release();
  }
  ElementsOf(const ElementsOf&) = delete;
  ElementsOf& operator=(const ElementsOf&) = delete;

  Interface* of(char letter) const { return objects_[placeOf(letter)]; }
  int references(char letter) const { return of(letter)->refCount() - 1; }

  // For a list's compare and match, which are given nothing but elements.
  static char letter(Interface* element) {
    if (!element) return kNone;
    for (const char* candidate = kLetters; *candidate; ++candidate) {
      if (current_->of(*candidate) == element) return *candidate;
    }
    return kUnknown;
  }

 private:
  std::array<Interface*, sizeof kLetters - 1> objects_;
  inline static ElementsOf* current_ = nullptr;
};

template <class List>
class Elements : public ElementsOf<typename List::Element> {};

// Raw memory: blocks that count how often they are given back.
template <>
class Elements<ZOL::ZOLAutoVoidPtrList> {
 public:
  Elements() { current_ = this; }
  ~Elements() { current_ = nullptr; }
  Elements(const Elements&) = delete;
  Elements& operator=(const Elements&) = delete;

  void* of(char letter) const { return blocks_[placeOf(letter)].memory(); }
  int timesFreed(char letter) const { return blocks_[placeOf(letter)].timesFreed(); }

  static char letter(void* element) {
    if (!element) return kNone;
    for (const char* candidate = kLetters; *candidate; ++candidate) {
      if (current_->of(*candidate) == element) return *candidate;
    }
    return kUnknown;
  }

 private:
  std::array<WatchedBlock, sizeof kLetters - 1> blocks_;
  inline static Elements* current_ = nullptr;
};

#endif  // KYDATASTRUCTURE_TESTS_LISTS_ELEMENTS_H_
