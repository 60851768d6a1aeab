// How each kind of element is kept. A store holds one vector and says, with three
// words, what an element is:
//
//   Item           the element as it stands in the vector
//   take(element)  an Item made of what a caller hands in
//   lend(item)     what a caller is given
//
// Everything else, the giving back above all, is the Item's own life.
//
// assign() and insertListAt() accept another list by its store, so a store is a
// type of its own where lists must not mix, and shared where they may.

#ifndef KYDATASTRUCTURE_LISTS_STORES_H_
#define KYDATASTRUCTURE_LISTS_STORES_H_

#include <memory>
#include <new>
#include <string>
#include <vector>

#include "frame/handle.h"

namespace ZOL {

// Numbers, records, pointers that are not owned, and ZolValue: copies.
template <class T>
class ZOLTemplateList {
 public:
  using Item = T;
  static const T& take(const T& element) { return element; }
  static const T& lend(const T& item) { return item; }

  std::vector<Item> items;
};

// Counted objects: one reference for each position. Null is an element, too.
template <class Interface>
class ZOLObjectTemplateList {
 public:
  using Item = Handle<Interface>;
  static Item take(Interface* element) { return Item::share(element); }
  static Interface* lend(const Item& item) { return item.get(); }

  std::vector<Item> items;
};

// Copied texts.
template <class T>
class ZOLStringTemplateList {
 public:
  using Item = std::string;
  static Item take(const char* element) { return element ? element : std::string(); }
  static const char* lend(const Item& item) { return item.c_str(); }

  std::vector<Item> items;
};

// Memory of the caller's, from now on the list's. On purpose each take() is an
// owner of its own that knows of no other, also when the memory came out of
// another list.
template <class T>
class ZOLSharePtrTemplateList {
 public:
  using Item = std::shared_ptr<void>;
  static Item take(void* element) {
    return {element, [](void* memory) { ::operator delete(memory); }};
  }
  static void* lend(const Item& item) { return item.get(); }

  std::vector<Item> items;
};

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_LISTS_STORES_H_
