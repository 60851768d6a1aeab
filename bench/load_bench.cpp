// What does it cost to load the library, call it and unload it, next to an empty
// library that needs the same others?

#include <cstdio>
#include <string>

#include "support/ratio.h"
#include "support/require.h"

namespace {

struct Loading {
  double seconds = 0;
  int libraries = 0;
  std::string answer;
};

// In a process of its own, a C program that measures itself.
Loading load(const std::string& library) {
  const std::string command = "'" LOAD_ONCE "' '" + library + "'";
  std::FILE* const output = popen(command.c_str(), "r");
  bench::require(output != nullptr, "the loading program starts");
  long long nanoseconds = 0;
  Loading loading;
  char answer[32] = "";
  const int read = std::fscanf(output, "%lld %d %31s", &nanoseconds, &loading.libraries, answer);
  bench::require(pclose(output) == 0 && read == 3, "the library is loaded, called and unloaded");
  loading.seconds = static_cast<double>(nanoseconds) / 1e9;
  loading.answer = answer;
  return loading;
}

void prove() {
  const Loading subject = load(LIBRARY);
  const Loading yardstick = load(EMPTY_LIBRARY);
  bench::require(subject.answer == yardstick.answer, "both answer the call");
  bench::require(subject.libraries == yardstick.libraries, "both need as many libraries");
}

bench::RatioTable::Body timed(const std::string& library) {
  return [library](benchmark::State& state) {
    for (auto _ : state) state.SetIterationTime(load(library).seconds);
  };
}

}  // namespace

int main(int argc, char** argv) {
  prove();
  bench::RatioTable table;
  table.measureByHand("load/library", timed(LIBRARY))->Iterations(20);
  table.measureByHand("load/empty", timed(EMPTY_LIBRARY))->Iterations(20);
  table.compare({"load, call and unload", "an empty library with the same needs", "load/library",
                 "load/empty", bench::atMost(1.1)});
  return table.run(argc, argv);
}
