// Work that four threads do at the same time.

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_FOUR_THREADS_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_FOUR_THREADS_H_

#include <atomic>
#include <thread>
#include <vector>

constexpr int kThreads = 4;

// Runs `work` with the numbers from 0, in threads that start together. Their start puts
// nothing that they do into an order.
template <class Work>
void inFourThreads(Work work) {
  std::atomic<int> ready{0};
  std::vector<std::thread> threads;
  for (int number = 0; number < kThreads; ++number) {
    threads.emplace_back([&ready, &work, number] {
      ready.fetch_add(1, std::memory_order_relaxed);
      while (ready.load(std::memory_order_relaxed) < kThreads) std::this_thread::yield();
      work(number);
    });
  }
  for (std::thread& thread : threads) thread.join();
}

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_FOUR_THREADS_H_
