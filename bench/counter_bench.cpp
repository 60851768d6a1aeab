// What does it cost to take and give up a reference, next to the two atomic
// operations that it stands for?

#include <KyDataStructure/frame.h>

#include <atomic>
#include <future>
#include <thread>

#include "support/owned.h"
#include "support/ratio.h"
#include "support/require.h"

namespace {

// A thread that waits until it is let go: with one thread alone in the process some
// C libraries leave the locking out.
class SecondThread {
 public:
  SecondThread() : thread_([gone = end_.get_future()] { gone.wait(); }) {}
  ~SecondThread() {
    end_.set_value();
    thread_.join();
  }

 private:
  std::promise<void> end_;
  std::thread thread_;
};

void prove(ZOL::IDmBaseObj* object) {
  bench::require(object->refCount() == 1, "a factory gives one reference");
  bench::require(object->addRef() == 2, "addRef answers the new count");
  bench::require(object->release() == 1, "release answers the new count");
  bench::require(object->refCount() == 1, "a pair of the two leaves the count");
}

}  // namespace

int main(int argc, char** argv) {
  const SecondThread second;
  const auto text = bench::owned(createZolString());
  auto* const object = ZOL::query<ZOL::IDmBaseObj>(text.get());
  prove(object);
  std::atomic<int> count{1};

  bench::RatioTable table;
  table.measure("counter/object", [object](benchmark::State& state) {
    for (auto _ : state) {
      benchmark::DoNotOptimize(object->addRef());
      benchmark::DoNotOptimize(object->release());
    }
  });
  table.measure("counter/atomic", [&count](benchmark::State& state) {
    for (auto _ : state) {
      benchmark::DoNotOptimize(count.fetch_add(1));
      benchmark::DoNotOptimize(count.fetch_sub(1));
    }
  });
  table.compare({"addRef and release through an interface", "an atomic add and subtract",
                 "counter/object", "counter/atomic", bench::atMost(1.5)});
  const int result = table.run(argc, argv);
  bench::require(object->refCount() == 1 && count == 1, "no reference was lost on the way");
  return result;
}
