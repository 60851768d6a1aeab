// Arguments for any operation, made by their type, and what a test sees of them before
// and after a call.

#ifndef KYDATASTRUCTURE_TESTS_OWNERSHIP_ARGUMENTS_H_
#define KYDATASTRUCTURE_TESTS_OWNERSHIP_ARGUMENTS_H_

#include <KyDataStructure/ref.h>

#include <cstring>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "ownership/contents.h"

constexpr int kBytes = 4;  // in each argument that is a block of them

// A text, or four bytes, that no other argument has.
std::string newText();
std::string newBytes();

// A new object of an interface, filled so far that others take it; a list has one
// element. `place` is where it is to be an argument.
template <class Interface>
ZOL::Ref<Interface> fresh(const Place& place);

class Argument {
 public:
  virtual ~Argument() = default;

  // From now on a null pointer is passed, or that number.
  void beNull() { null_ = true; }
  virtual void beNumber(int /*number*/) {}

  // The counts of the object, and of the element that a list was given with it; none for
  // anything else.
  virtual std::vector<int> counts() { return {}; }
  virtual int elementCount() { return 0; }
  // Of a list, as the call left it.
  virtual ZOL::Ref<ZOL::IDmBaseObj> lastElement() { return nullptr; }
  virtual bool hasElements() { return false; }
  // Overwrites the caller's memory.
  virtual void scribble() {}
  // True when a copy of the argument can be told from any other; isIn() then looks.
  virtual bool isTraceable() { return false; }
  virtual bool isIn(const void* /*memory*/) { return false; }
  virtual bool isBytes() { return false; }

 protected:
  bool isNull() const { return null_; }

 private:
  bool null_ = false;
};

// Values, among them functions and structures.
template <class T, class = void>
class Given final : public Argument {
 public:
  explicit Given(const Place& place) {
    if constexpr (std::is_arithmetic_v<T>) value_ = static_cast<T>(numberFor(place));
    if constexpr (std::is_same_v<T, ZOL::_Property>) {
      value_.present = 1;
      value_.type = ZOL::kPropertyText;
      value_.value[0] = 'a';
    }
  }
  T value() { return value_; }
  void beNumber([[maybe_unused]] int number) override {
    if constexpr (std::is_arithmetic_v<T>) value_ = static_cast<T>(number);
  }

 private:
  T value_ = {};
};

// A structure of the caller's.
template <class T>
class Given<
    T*, std::enable_if_t<!ZOL::refDetail::isCounted<std::remove_const_t<T>> && std::is_class_v<T>>>
    final : public Argument {
 public:
  explicit Given(const Place& place) : given_(place) { value_ = given_.value(); }
  T* value() { return isNull() ? nullptr : &value_; }

 private:
  Given<std::remove_const_t<T>> given_;
  std::remove_const_t<T> value_;
};

template <class T>
class Given<const T&> final : public Argument {
 public:
  explicit Given(const Place& place) : value_(Given<T>(place).value()) {}
  const T& value() { return value_; }

 private:
  T value_;
};

// The caller's own order and match.
template <class... T>
class Given<bool (*)(T...)> final : public Argument {
 public:
  explicit Given(const Place& /*place*/) {}
  auto value() -> bool (*)(T...) {
    if (isNull()) return nullptr;
    return [](T...) { return false; };
  }
};

// Bytes where the argument is so called, and else a text.
template <>
class Given<const char*> final : public Argument {
 public:
  explicit Given(const Place& place)
      : bytes_(place.parameter == "data"), any_(bytes_ || !textFor(place)) {
    content_ = bytes_ ? newBytes() : any_ ? newText() : textFor(place);
    passed_ = content_;
  }
  const char* value() { return isNull() ? nullptr : passed_.c_str(); }
  void scribble() override { passed_.assign(passed_.size(), '#'); }
  bool isTraceable() override { return any_; }
  bool isBytes() override { return bytes_; }
  bool isIn(const void* memory) override {
    if (bytes_) return std::memcmp(memory, content_.data(), content_.size()) == 0;
    return std::strstr(static_cast<const char*>(memory), content_.c_str()) != nullptr;
  }

 private:
  const bool bytes_;
  const bool any_;
  std::string content_;
  std::string passed_;
};

template <class T>
class Given<
    T*, std::enable_if_t<std::is_same_v<T, const void> || std::is_same_v<T, const unsigned char>>>
    final : public Argument {
 public:
  explicit Given(const Place& /*place*/) : passed_(content_) {}
  T* value() { return isNull() ? nullptr : reinterpret_cast<T*>(passed_.data()); }
  void scribble() override { passed_.assign(passed_.size(), '#'); }
  bool isTraceable() override { return true; }
  bool isBytes() override { return true; }
  bool isIn(const void* memory) override {
    return std::memcmp(memory, content_.data(), content_.size()) == 0;
  }

 private:
  const std::string content_ = newBytes();
  std::string passed_;
};

template <class Object>
constexpr bool holdsObjects() {
  if constexpr (ZOL::refDetail::isList<Object>) {
    using Lent = typename ZOL::Each<Object>::value_type;
    return std::is_convertible_v<Lent, ZOL::Ref<ZOL::IDmBaseObj>>;
  }
  return false;
}

template <class Object>
class Given<Object*, std::enable_if_t<ZOL::refDetail::isCounted<Object>>> final : public Argument {
 public:
  explicit Given(const Place& place) : object_(fresh<Object>(place)) {
    if constexpr (kHoldsObjects) element_ = ZOL::share(object_->at(0));
  }
  Object* value() { return isNull() ? nullptr : object_.get(); }

  std::vector<int> counts() override { return {object_->refCount(), elementCount()}; }
  int elementCount() override { return element_ ? element_->refCount() : 0; }
  bool hasElements() override {
    if constexpr (ZOL::refDetail::isList<Object>) return object_->size() > 0;
    return false;
  }
  ZOL::Ref<ZOL::IDmBaseObj> lastElement() override {
    if constexpr (kHoldsObjects) return ZOL::share(object_->at(object_->size() - 1));
    return nullptr;
  }

 private:
  static constexpr bool kHoldsObjects = holdsObjects<Object>();

  const ZOL::Ref<Object> object_;
  ZOL::Ref<ZOL::IDmBaseObj> element_;
};

using Arguments = std::vector<std::unique_ptr<Argument>>;

template <class Interface>
ZOL::Ref<Interface> fresh(const Place& place) {
  using Factories = ZOL::refDetail::Factories;
  static const unsigned char bytes[kBytes] = {1, 2, 3, 4};
  if constexpr (std::is_same_v<Interface, ZOL::IZolString>) {
    auto string = ZOL::make<ZOL::IZolString>();
    const char* const text = textFor(place);
    string->setText(text ? text : newText().c_str(), 0);
    return string;
  } else if constexpr (ZOL::refDetail::isList<Interface>) {
    auto list = ZOL::make<Interface>();
    Given<typename Interface::Element> element({"", "", "element"});
    list->add(element.value());
    return list;
  } else if constexpr (std::is_same_v<Interface, ZOL::IZolMediaData>) {
    return ZOL::makeMediaData(1, 1, bytes, kBytes, 0);
  } else if constexpr (std::is_same_v<Interface, ZOL::IZolResSerializeInfo>) {
    return ZOL::makeZolResSerializeInfoFromBuffer(textFor({"", "setFromBuffer", ""}));
  } else if constexpr (std::is_same_v<Interface, ZOL::IZolStageReportData>) {
    return ZOL::make<Interface>(1, "name", 1, 1, "message", "detail");
  } else if constexpr (std::is_same_v<Interface, ZOL::IZolCutScripts>) {
    return ZOL::make<Interface>(textFor({"", "createCutScripts", ""}));
  } else if constexpr (std::is_same_v<Interface, ZOL::IZolKeyMatrixInfo>) {
    return ZOL::make<Interface>(textFor({"", "createKeyMatrixInfo", ""}));
  } else if constexpr (Factories::rowsOf<Interface> == 0) {
    // A base of what factories make.
    if constexpr (std::is_convertible_v<ZOL::IRelinkEffectData*, Interface*> &&
                  !std::is_same_v<Interface, ZOL::IDmBaseObj>) {
      return ZOL::make<ZOL::IRelinkEffectData>();
    } else {
      return ZOL::make<ZOL::IZolString>();
    }
  } else if constexpr (std::is_invocable_v<decltype(ZOL::make<Interface>)>) {
    return ZOL::make<Interface>();
  } else {
    return ZOL::make<Interface>(1, 1, bytes, kBytes, 0);
  }
}

#endif  // KYDATASTRUCTURE_TESTS_OWNERSHIP_ARGUMENTS_H_
