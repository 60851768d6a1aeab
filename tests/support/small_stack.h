// A thread with little stack: whatever recurses for each level of a deeply nested
// text does not come back from it.

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_SMALL_STACK_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_SMALL_STACK_H_

#include <gtest/gtest.h>
#if defined(_WIN32)
#include "support/windows_api.h"
#else
#include <pthread.h>
#endif

#include <cstddef>

constexpr std::size_t kSmallStack = 256 * 1024;

// How many levels a text is nested that is to break whatever recurses: a million. qemu
// takes minutes for each of those, so that there it is what breaks the small stack with
// no more than 8 bytes for a level.
#if defined(KYDATASTRUCTURE_TESTS_IN_QEMU)
constexpr std::size_t kManyLevels = 32 * 1024;
#else
constexpr std::size_t kManyLevels = 1000000;
#endif

// Runs `work` to its end on a thread with a stack of 256 KiB.
template <class Work>
void onSmallStack(Work work) {
#if defined(_WIN32)
  struct Entry {
    static DWORD WINAPI run(void* argument) {
      (*static_cast<Work*>(argument))();
      return 0;
    }
  };
  // Without the flag the stack would begin so small and could grow.
  const HANDLE thread = CreateThread(nullptr, kSmallStack, &Entry::run, &work,
                                     STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
  ASSERT_NE(thread, nullptr);
  const DWORD ended = WaitForSingleObject(thread, INFINITE);
  CloseHandle(thread);
  ASSERT_EQ(ended, WAIT_OBJECT_0);
#else
  struct Entry {
    static void* run(void* argument) {
      (*static_cast<Work*>(argument))();
      return nullptr;
    }
  };
  pthread_attr_t attributes;
  ASSERT_EQ(pthread_attr_init(&attributes), 0);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, kSmallStack), 0);
  pthread_t thread;
  const int result = pthread_create(&thread, &attributes, &Entry::run, &work);
  pthread_attr_destroy(&attributes);
  ASSERT_EQ(result, 0);
  ASSERT_EQ(pthread_join(thread, nullptr), 0);
#endif
}

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_SMALL_STACK_H_
