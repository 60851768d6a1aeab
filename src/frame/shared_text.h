// Text that does not change, and so can stand in several places at once.
//
//   SharedText title("Weekend");
//   SharedText same = title;         the same memory
//
// It is one pointer, at its first character; in front of that stands the distance to
// the beginning of the memory, which it may share with other texts and objects, too
// (batch.h). The empty text takes no memory.
//
//   shares | distance 16 | Weekend 0

#ifndef KYDATASTRUCTURE_FRAME_SHARED_TEXT_H_
#define KYDATASTRUCTURE_FRAME_SHARED_TEXT_H_

#include <cstddef>
#include <cstring>
#include <new>
#include <string_view>
#include <utility>

#include "frame/shares.h"

namespace ZOL {

class SharedText {
 public:
  SharedText() = default;
  // Copied.
  explicit SharedText(std::string_view text) {
    if (text.empty()) return;
    void* const memory = ::operator new(sizeof(Shares) + room(text));
    place(*new (memory) Shares(1), static_cast<char*>(memory) + sizeof(Shares), text);
  }
  SharedText(const SharedText& other) noexcept : text_(other.text_) {
    if (text_) shares().add();
  }
  SharedText(SharedText&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
  SharedText& operator=(SharedText other) noexcept {
    std::swap(text_, other.text_);
    return *this;
  }
  ~SharedText() {
    if (text_) shares().giveBack(1);
  }

  // Never null; ends in a zero. Lent for as long as this text or a copy of it lasts.
  const char* get() const { return text_ ? text_ : ""; }
  bool isEmpty() const { return *get() == 0; }

  // The bytes that a text takes in memory which it shares.
  static std::size_t room(std::string_view text) {
    return text.empty() ? 0 : sizeof(Distance) + text.size() + 1;
  }
  bool isIn(const Shares& memory) const { return text_ && &shares() == &memory; }
  // The same text, for which a share has been taken.
  SharedText sharedAlready() const {
    SharedText same;
    same.text_ = text_;
    return same;
  }
  // A text at that place, which has room for it, in memory one of whose shares it takes.
  static SharedText placed(Shares& shares, char* at, std::string_view text) {
    SharedText placed;
    placed.place(shares, at, text);
    return placed;
  }

 private:
  using Distance = std::size_t;

  void place(Shares& shares, char* at, std::string_view text) {
    const auto distance =
        static_cast<Distance>(at + sizeof(Distance) - reinterpret_cast<char*>(&shares));
    std::memcpy(at, &distance, sizeof(distance));
    char* const begin = at + sizeof(distance);
    std::memcpy(begin, text.data(), text.size());
    begin[text.size()] = 0;
    text_ = begin;
  }

  Shares& shares() const {
    Distance distance = 0;
    std::memcpy(&distance, text_ - sizeof(distance), sizeof(distance));
    void* const beginning = const_cast<char*>(text_) - distance;
    return *static_cast<Shares*>(beginning);
  }

  const char* text_ = nullptr;
};
static_assert(sizeof(SharedText) == sizeof(char*), "records hold many of them");

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_FRAME_SHARED_TEXT_H_
