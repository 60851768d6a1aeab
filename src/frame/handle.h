// The counted pointer that the library's own code holds objects by. Nobody in here
// calls addRef() or release() by hand.

#ifndef KYDATASTRUCTURE_FRAME_HANDLE_H_
#define KYDATASTRUCTURE_FRAME_HANDLE_H_

#include <cstddef>
#include <type_traits>
#include <utility>

namespace ZOL {

template <class T>
class Handle {
 public:
  // Takes over the reference that a factory gave.
  static Handle adopt(T* object) { return Handle(object); }
  // Adds a reference to an object that somebody lends.
  static Handle share(T* object) {
    if (object) object->addRef();
    return Handle(object);
  }

  Handle() = default;
  Handle(std::nullptr_t) {}  // NOLINT(google-explicit-constructor): an empty reference
  Handle(const Handle& other) : Handle(share(other.object_)) {}
  Handle(Handle&& other) noexcept : object_(other.object_) { other.object_ = nullptr; }
  // As a base of it.
  template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
  // NOLINTNEXTLINE(google-explicit-constructor): as a pointer converts
  Handle(Handle<U>&& other) noexcept : object_(other.give()) {}
  // By value, and swapped: the new object is in its place before the old one is
  // released, since a release may call back.
  Handle& operator=(Handle other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Handle() {
    if (object_) object_->release();
  }

  T* get() const { return object_; }
  T* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  // Gives the reference to the caller.
  T* give() { return std::exchange(object_, nullptr); }

 private:
  explicit Handle(T* object) : object_(object) {}

  T* object_ = nullptr;
};

// What every factory does: a new object with its first reference. Without arguments
// the object is not zeroed ahead of its constructor, which sets each field anyhow.
template <class Class, class... Arguments>
Class* makeObject(Arguments&&... arguments) {
  Class* object;
  if constexpr (sizeof...(Arguments) == 0) {
    object = new Class;
  } else {
    object = new Class(std::forward<Arguments>(arguments)...);
  }
  object->beginAtOne();
  return object;
}

// The same for the library's own use.
template <class Class, class... Arguments>
Handle<Class> makeHandle(Arguments&&... arguments) {
  return Handle<Class>::adopt(makeObject<Class>(std::forward<Arguments>(arguments)...));
}

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_FRAME_HANDLE_H_
