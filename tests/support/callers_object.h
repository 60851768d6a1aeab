// Implementations of the library's interfaces that a caller has made, and a diary of
// what the library does with them.

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_CALLERS_OBJECT_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_CALLERS_OBJECT_H_

#include <KyDataStructure/frame.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>

// What happened, in order: "a+ b- a!".
class Diary {
 public:
  void write(const std::string& event) {
    if (!events_.empty()) events_ += ' ';
    events_ += event;
  }

  // The events since the last call.
  std::string read() { return std::exchange(events_, std::string()); }

 private:
  std::string events_;
};

// Writes "name!" when the object that it is set on ends.
class DiaryHook final : public ZOL::IReleaseHook {
 public:
  DiaryHook(std::string name, Diary& diary) : name_(std::move(name)), diary_(diary) {}
  void onLastRelease() override { diary_.write(name_ + "!"); }

 private:
  const std::string name_;
  Diary& diary_;
};

// A base for an implementation of `Interface` that stands where the test puts it: it
// starts with the test's one reference and must be left with it. With a diary it
// writes "name+" for each addRef() and "name-" for each release(). What an operation
// without an override of its own does, the class that derives from it says.
template <class Interface>
class CallersObject : public Interface {
 public:
  CallersObject() = default;
  CallersObject(std::string name, Diary& diary) : name_(std::move(name)), diary_(&diary) {}
  CallersObject(const CallersObject&) = delete;
  CallersObject& operator=(const CallersObject&) = delete;
  virtual ~CallersObject() { EXPECT_EQ(count_, 1) << "references of " << name_; }

  int addRef() override {
    write("+");
    return ++count_;
  }
  int release() override {
    write("-");
    return --count_;
  }
  int refCount() override { return count_; }
  ZOL::IReleaseHook* releaseHook() override { return nullptr; }
  void setReleaseHook(ZOL::IReleaseHook* /*hook*/) override {}
  void* queryInterface(const char* name) override {
    return std::strcmp(name, Interface::interfaceName) == 0 ? static_cast<Interface*>(this)
                                                            : nullptr;
  }

 protected:
  // For operations that are worth an entry.
  void write(const char* event) {
    if (diary_) diary_->write(name_ + event);
  }

 private:
  const std::string name_ = Interface::interfaceName;
  Diary* const diary_ = nullptr;
  int count_ = 1;
};

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_CALLERS_OBJECT_H_
