// A hook that does what a test says when the object that it is set on ends.

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_CALLING_HOOK_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_CALLING_HOOK_H_

#include <KyDataStructure/frame.h>

#include <functional>
#include <utility>

class CallingHook final : public ZOL::IReleaseHook {
 public:
  explicit CallingHook(std::function<void()> call) : call_(std::move(call)) {}
  void onLastRelease() override {
    ++calls;
    call_();
  }
  int calls = 0;

 private:
  const std::function<void()> call_;
};

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_CALLING_HOOK_H_
