// One reference, given up when the test is done with it.

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_HELD_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_HELD_H_

#include <utility>

// Takes over the reference that a factory gave.
template <class Object>
class Held {
 public:
  explicit Held(Object* object) : object_(object) {}
  Held(Held&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;
  Held& operator=(Held&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Held() { reset(); }

  Object* get() const { return object_; }
  Object* operator->() const { return object_; }
  Object& operator*() const { return *object_; }

  // Gives the reference up now. Answers what release() does, and 0 for nothing.
  int reset() {
    Object* const object = std::exchange(object_, nullptr);
    return object ? object->release() : 0;
  }

 private:
  Object* object_;
};

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_HELD_H_
