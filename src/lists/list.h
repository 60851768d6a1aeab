// The 17 operations, once, over a store (stores.h).

#ifndef KYDATASTRUCTURE_LISTS_LIST_H_
#define KYDATASTRUCTURE_LISTS_LIST_H_

#include <KyDataStructure/lists.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "frame/counted.h"

namespace ZOL {

template <class Interface, class Store>
class List final : public Counted<Interface, Store, RefCnt<void>> {
  using T = typename Interface::Element;
  using Item = typename Store::Item;
  using Compare = typename Interface::Compare;
  using Match = typename Interface::Match;
  static constexpr bool kPlain = std::is_same_v<Item, T>;  // stored as it goes in and out

 public:
  using Counted<Interface, Store, RefCnt<void>>::Counted;
  ~List() {
    std::vector<Item> gone;
    gone.swap(Store::items);
    behind_.reset();
    giveUp(gone);
  }

  void* queryInterface(const char* name) override {
    if (sameText(name, kListData)) return Store::items.data();
    return answer<Interface>(this, name);
  }

  long long size() override { return static_cast<long long>(Store::items.size()); }

  T at(long long index) override {
    return holds(index) ? T(Store::lend(Store::items[place(index)])) : T();
  }

  int add(T element) override {
    Store::items.push_back(Store::take(element));
    behind_.reset();
    return kSuccess;
  }

  int removeAt(long long index) override {
    if (!holds(index)) return kRefused;
    const auto position = positionOf(index);
    if constexpr (kPlain) {
      Store::items.erase(position);
    } else {
      // Out of the list before it goes: what it gives back may call back.
      const Item gone = std::move(*position);
      Store::items.erase(position);
    }
    behind_.reset();
    return kSuccess;
  }

  int insertAt(long long index, T element) override {
    if (!mayStandAt(index)) return kRefused;
    Store::items.insert(positionOf(index), Store::take(element));
    behind_.reset();
    return kSuccess;
  }

  // On purpose with the bound of insertAt().
  int setAt(long long index, T element) override {
    if (!mayStandAt(index)) return kRefused;
    if (holds(index)) {
      // The old one goes when the new one is in its place.
      Store::items[place(index)] = Store::take(element);
    } else {
      const auto old = std::exchange(behind_, std::make_unique<Item>(Store::take(element)));
    }
    return kSuccess;
  }

  int clear() override {
    // The elements go, first to last, when the list is empty already; its array
    // stays, unless somebody who was called back has filled the list anew.
    std::vector<Item> gone;
    gone.swap(Store::items);
    behind_.reset();
    giveUp(gone);
    gone.clear();
    if (Store::items.capacity() == 0) gone.swap(Store::items);
    return kSuccess;
  }

  // On purpose cleared before `other` is read, so that a list assigned to itself
  // is empty afterwards.
  int assign(Interface* other) override {
    const Store* const source = storeOf(other);
    if (!source) return kRefused;
    clear();
    Store::items.reserve(source->items.size());
    for (const Item& item : source->items) {
      Store::items.push_back(Store::take(Store::lend(item)));
    }
    return kSuccess;
  }

  int insertListAt(long long index, Interface* other) override {
    const Store* const source = storeOf(other);
    if (!source || !mayStandAt(index)) return kRefused;
    if constexpr (kPlain) {
      if (source != this) {
        Store::items.insert(positionOf(index), source->items.begin(), source->items.end());
        behind_.reset();
        return kSuccess;
      }
    }
    std::vector<Item> taken;  // last to first
    taken.reserve(source->items.size());
    if (source == this) {
      takeOwn(place(index), taken);
    } else {
      for (std::size_t position = source->items.size(); position-- > 0;) {
        taken.push_back(Store::take(Store::lend(source->items[position])));
      }
    }
    Store::items.insert(positionOf(index), std::make_move_iterator(taken.rbegin()),
                        std::make_move_iterator(taken.rend()));
    behind_.reset();
    return kSuccess;
  }

  int sort(Compare compare) override {
    if (!compare) return kRefused;
    if constexpr (kPlain) {
      std::sort(Store::items.begin(), Store::items.end(), compare);
    } else {
      std::sort(Store::items.begin(), Store::items.end(), [compare](const Item& a, const Item& b) {
        return compare(Store::lend(a), Store::lend(b));
      });
    }
    return kSuccess;
  }

  // Then assign() wants no memory but for texts, and for what elements of a caller's do.
  void makeRoomFor(Interface* other) {
    if (const Store* const source = storeOf(other)) Store::items.reserve(source->items.size());
  }

  // For whoever makes the list: the elements, to be filled before anybody else sees it.
  std::vector<Item>& elements() { return Store::items; }

  long long find(T key, Match match) override {
    if (!match) return -1;
    for (long long index = 0; index < size(); ++index) {
      if (match(at(index), key)) return index;
    }
    return -1;
  }

 private:
  // On purpose by the store alone: a list of another interface over the same store,
  // which a caller has cast to this one, is as good.
  static const Store* storeOf(IDmBaseObj* other) { return own<Store>(other); }

  bool holds(long long index) { return index >= 0 && index < size(); }
  bool mayStandAt(long long index) { return index >= 0 && index <= size(); }
  static std::size_t place(long long index) { return static_cast<std::size_t>(index); }
  typename std::vector<Item>::iterator positionOf(long long index) {
    return Store::items.begin() + static_cast<std::ptrdiff_t>(index);
  }

  // First to last, which not every standard library's vector does when it ends.
  static void giveUp(std::vector<Item>& items) {
    if constexpr (!kPlain) {
      for (Item& item : items) const Item gone = std::move(item);
    }
  }

  // What a list inserted into itself at `index` takes. Element by element, last
  // position first, each read sees the positions as they have moved: in front of
  // `index` nothing moved; from there on stand the elements inserted so far, the
  // latest first; behind them the old ones, as many places further on.
  void takeOwn(std::size_t index, std::vector<Item>& taken) {
    const std::size_t size = Store::items.size();
    std::vector<std::size_t> inserted;  // where each came from, in order of insertion
    inserted.reserve(size);
    for (std::size_t position = size; position-- > 0;) {
      const std::size_t moved = inserted.size();
      if (position < index) {
        inserted.push_back(position);
      } else if (position - index < moved) {
        inserted.push_back(inserted[moved - 1 - (position - index)]);
      } else {
        inserted.push_back(position - moved);
      }
      taken.push_back(Store::take(Store::lend(Store::items[inserted.back()])));
    }
  }

  // The slot behind the last element, which setAt() alone writes. What stands in it
  // is given back like any element, at the latest when the list ends.
  std::unique_ptr<Item> behind_;
};

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_LISTS_LIST_H_
