// The counted pointer that the library's own code holds objects by. Nobody in here
// calls addRef() or release() by hand.

#ifndef KYDATASTRUCTURE_FRAME_REF_H_
#define KYDATASTRUCTURE_FRAME_REF_H_

#include <cstddef>
#include <type_traits>
#include <utility>

namespace ZOL {

template <class T>
class Ref {
 public:
  // Takes over the reference that a factory gave.
  static Ref adopt(T* object) { return Ref(object); }
  // Adds a reference to an object that somebody lends.
  static Ref share(T* object) {
    if (object) object->addRef();
    return Ref(object);
  }

  Ref() = default;
  Ref(std::nullptr_t) {}  // NOLINT(google-explicit-constructor): an empty reference
  Ref(const Ref& other) : Ref(share(other.object_)) {}
  Ref(Ref&& other) noexcept : object_(other.object_) { other.object_ = nullptr; }
  // As a base of it.
  template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
  Ref(Ref<U>&& other) noexcept : object_(other.give()) {}  // NOLINT(google-explicit-constructor)
  // By value, and swapped: the new object is in its place before the old one is
  // released, since a release may call back.
  Ref& operator=(Ref other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Ref() {
    if (object_) object_->release();
  }

  T* get() const { return object_; }
  T* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  // Gives the reference to the caller.
  T* give() { return std::exchange(object_, nullptr); }

 private:
  explicit Ref(T* object) : object_(object) {}

  T* object_ = nullptr;
};

// What every factory does: a new object with its first reference. Without arguments
// the object is not zeroed ahead of its constructor, which sets each field anyhow.
template <class Class, class... Arguments>
Class* make(Arguments&&... arguments) {
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
Ref<Class> makeRef(Arguments&&... arguments) {
  return Ref<Class>::adopt(make<Class>(std::forward<Arguments>(arguments)...));
}

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_FRAME_REF_H_
