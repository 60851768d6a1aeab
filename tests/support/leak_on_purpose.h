// For a test of something that stays allocated for good.

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_LEAK_ON_PURPOSE_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_LEAK_ON_PURPOSE_H_

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KYDATASTRUCTURE_TESTS_LEAK_CHECK 1
#endif
#endif
#if defined(__SANITIZE_ADDRESS__)
#define KYDATASTRUCTURE_TESTS_LEAK_CHECK 1
#endif

#if defined(KYDATASTRUCTURE_TESTS_LEAK_CHECK)
#include <sanitizer/lsan_interface.h>
#endif

// While one lives, what its thread allocates is no leak to the leak check. An object
// that ends without ever having had a reference leaves its counter block allocated,
// which is what the system wants and a leak all the same.
class LeakOnPurpose {
 public:
#if defined(KYDATASTRUCTURE_TESTS_LEAK_CHECK)
  LeakOnPurpose() { __lsan_disable(); }
  ~LeakOnPurpose() { __lsan_enable(); }
#else
  LeakOnPurpose() {}
  ~LeakOnPurpose() {}
#endif
  LeakOnPurpose(const LeakOnPurpose&) = delete;
  LeakOnPurpose& operator=(const LeakOnPurpose&) = delete;
};

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_LEAK_ON_PURPOSE_H_
