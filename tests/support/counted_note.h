// A counted object of a caller's own: nothing but the public headers, and a diary
// of what happens to it.

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_COUNTED_NOTE_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_COUNTED_NOTE_H_

#include <KyDataStructure/lists.h>

#include <cstring>
#include <string>

// Implements `Interface`, which has IDmBaseObj's six operations and no others.
// Starts with one reference and ends with the last. The diary, if there is one,
// outlives the note and gets "name+" for each addRef(), "name-" for each release()
// and "name!" at the end.
template <class Interface>
class CountedNote final : public Interface {
 public:
  CountedNote(const char* name, std::string* diary) : name_(name), diary_(diary) {}
  CountedNote(const CountedNote&) = delete;
  CountedNote& operator=(const CountedNote&) = delete;

  int addRef() override {
    write("+");
    return ++count_;
  }

  int release() override {
    write("-");
    const int left = --count_;
    if (left == 0) {
      write("!");
      if (hook_) hook_->onLastRelease();
      delete this;
    }
    return left;
  }

  int refCount() override { return count_; }
  ZOL::IReleaseHook* releaseHook() override { return hook_; }
  void setReleaseHook(ZOL::IReleaseHook* hook) override { hook_ = hook; }

  void* queryInterface(const char* name) override {
    if (std::strcmp(name, Interface::interfaceName) == 0) return static_cast<Interface*>(this);
    if (std::strcmp(name, "IDmBaseObj") == 0) return static_cast<ZOL::IDmBaseObj*>(this);
    return nullptr;
  }

  const std::string& name() const { return name_; }

 private:
  ~CountedNote() = default;

  void write(const char* event) {
    if (!diary_) return;
    if (!diary_->empty()) *diary_ += ' ';
    *diary_ += name_ + event;
  }

  const std::string name_;
  std::string* const diary_;
  int count_ = 1;
  ZOL::IReleaseHook* hook_ = nullptr;
};

using Note = CountedNote<ZOL::IDmBaseObj>;
using GpuNote = CountedNote<ZOL::IGpuInfo>;

// Counts the objects that end.
class CountingHook final : public ZOL::IReleaseHook {
 public:
  void onLastRelease() override { ++calls; }
  int calls = 0;
};

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_COUNTED_NOTE_H_
