// What a description holds: an integer and a text for each property, and a text for
// each user string, by their rows in the tables. A set of bits tells which are held.

#ifndef KYDATASTRUCTURE_RESOURCE_PROPERTY_BAG_H_
#define KYDATASTRUCTURE_RESOURCE_PROPERTY_BAG_H_

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "frame/shared_text.h"

namespace ZOL {

// Which slots are held. Read without the description's lock by isEmpty() alone, for
// which a snapshot will do; that is what the atomic is for.
template <std::size_t N>
class Held {
 public:
  static_assert(N <= 32);
  bool has(std::size_t slot) const { return ((bits() >> slot) & 1U) != 0; }
  bool none() const { return bits() == 0; }
  void add(std::size_t slot) { bits_.store(bits() | (1U << slot), std::memory_order_relaxed); }

 private:
  std::uint32_t bits() const { return bits_.load(std::memory_order_relaxed); }
  std::atomic<std::uint32_t> bits_{0};
};

template <std::size_t N>
class IntegerSlots {
 public:
  bool has(std::size_t slot) const { return held_.has(slot); }
  bool none() const { return held_.none(); }
  long long get(std::size_t slot) const { return values_[slot]; }
  void set(std::size_t slot, long long value) {
    values_[slot] = value;
    held_.add(slot);
  }

 private:
  Held<N> held_;
  std::array<long long, N> values_{};
};

// A text stays where it is until its own slot is set again.
template <std::size_t N>
class TextSlots {
 public:
  bool has(std::size_t slot) const { return held_.has(slot); }
  bool none() const { return held_.none(); }
  // The empty text for a slot that is not held.
  const char* get(std::size_t slot) const { return texts_[slot].get(); }
  void set(std::size_t slot, const char* text) { set(slot, SharedText(text)); }
  void set(std::size_t slot, SharedText&& text) {
    texts_[slot] = std::move(text);
    held_.add(slot);
  }

 private:
  Held<N> held_;
  std::array<SharedText, N> texts_;
};

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_RESOURCE_PROPERTY_BAG_H_
