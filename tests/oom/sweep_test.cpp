// Every operation with every allocation that can fail in it. `oom_test --full` takes
// larger inputs and takes minutes.

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "oom/sweep.h"

namespace {

oom::Figures total;
bool isFull = false;

void sweepAll(const char* room, const std::vector<oom::Case>& cases) {
  oom::Figures figures;
  for (const oom::Case& swept : cases) oom::sweep(swept, figures);
  std::printf("%-12s %5lld operations  %8lld allocations failed  %5lld counter blocks left\n", room,
              figures.cases, figures.points, figures.blocksLeft);
  EXPECT_EQ(figures.failures, 0);
  EXPECT_GT(figures.points, 0);
  total.cases += figures.cases;
  total.points += figures.points;
  total.blocksLeft += figures.blocksLeft;
  total.failures += figures.failures;
}

// The suites over all records are not run here, but for their tables.
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RecordFields);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RecordCopies);

TEST(OutOfMemory, Factories) { sweepAll("factories", oom::factoryCases()); }
TEST(OutOfMemory, ValuesAndHolders) { sweepAll("frame", oom::frameCases()); }
TEST(OutOfMemory, Lists) { sweepAll("lists", oom::listCases()); }
TEST(OutOfMemory, MediaRecords) { sweepAll("media", oom::mediaCases()); }
TEST(OutOfMemory, CutRecords) { sweepAll("cut records", oom::cutRecordCases()); }
TEST(OutOfMemory, CutTexts) { sweepAll("cut texts", oom::cutTextCases()); }
TEST(OutOfMemory, Params) { sweepAll("params", oom::paramCases()); }
TEST(OutOfMemory, Descriptions) { sweepAll("resource", oom::resourceCases()); }
TEST(OutOfMemory, SearchResults) { sweepAll("search", oom::searchCases()); }

// A factory that somebody adds is swept or this says so.
TEST(OutOfMemory, EveryExportedFactoryIsSwept) {
  const std::vector<oom::Case> cases = [] {
    std::vector<oom::Case> all = oom::factoryCases();
    for (auto* const more : {&oom::cutTextCases, &oom::resourceCases}) {
      const std::vector<oom::Case> some = more();
      all.insert(all.end(), some.begin(), some.end());
    }
    return all;
  }();
  std::ifstream names(KYDATASTRUCTURE_EXPORTED_NAMES);
  int factories = 0;
  for (std::string name; std::getline(names, name);) {
    if (name.rfind("create", 0) != 0) continue;
    ++factories;
    bool swept = false;
    for (const oom::Case& each : cases) {
      swept = swept || each.name.substr(0, each.name.find(' ')) == name;
    }
    EXPECT_TRUE(swept) << name;
  }
  EXPECT_GT(factories, 90);
}

}  // namespace

bool oom::full() { return isFull; }

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  isFull = argc > 1 && std::string_view(argv[1]) == "--full";
  try {
    throw std::bad_alloc();  // the first that a thread throws may leave the runtime's own block
  } catch (const std::bad_alloc&) {
  }
  const int result = RUN_ALL_TESTS();
  std::printf("%lld operations, %lld allocations failed, each in two ways: %lld wrong outcomes\n",
              total.cases, total.points, total.failures);
  std::printf("%lld counter blocks left by objects whose constructor failed\n", total.blocksLeft);
  return result;
}
