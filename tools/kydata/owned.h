#ifndef KYDATA_OWNED_H_
#define KYDATA_OWNED_H_

#include <utility>

namespace kydata {

/// The one reference that a factory of the library gives, released at the end.
template <class T>
class Owned {
 public:
  explicit Owned(T* object) : object_(object) {}
  Owned(Owned&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Owned& operator=(Owned&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Owned() {
    if (object_) object_->release();
  }

  T* get() const { return object_; }
  T* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

 private:
  T* object_;
};

}  // namespace kydata

#endif  // KYDATA_OWNED_H_
