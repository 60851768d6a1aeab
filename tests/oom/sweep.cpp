#include "oom/sweep.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <new>
#include <optional>

#include "oom/failing_heap.h"

namespace oom {
namespace {

using failing_heap::Fails;

bool isBeginning(const std::string& list, const std::string& whole) {
  if (list == "[]") return true;
  if (list.size() < 2 || list.front() != '[' || list.back() != ']') return false;
  const std::size_t size = list.size() - 1;
  if (whole.compare(0, size, list, 0, size) != 0) return false;
  return whole.compare(size, 2, ", ") == 0;
}

std::string joined(const State& state) {
  std::string text;
  for (const std::string& part : state) text += "\n    " + part;
  return text;
}

// The block of an object that has never had a reference and is gone.
bool isCounterBlock(const failing_heap::Block& block) {
  if (block.size != 8) return false;
  std::int32_t words[2];
  std::memcpy(words, block.memory, sizeof words);
  return words[0] == -1 && words[1] == 1;
}

// What success leaves.
struct Success {
  std::vector<std::size_t> allocations;
  State before;
  State finished;
  State finishedTwice;  // after the operation was called once more
};

Success succeed(const Case& swept) {
  Success success;
  const Trial trial = swept.prepare();
  success.before = trial.state();
  success.allocations = failing_heap::allocationsOf(trial.operation);
  success.finished = trial.state();
  trial.operation();
  success.finishedTwice = trial.state();
  return success;
}

// Why a failure left something else than it may; nothing if all is well.
std::optional<std::string> faultAfter(const Case& swept, const Success& success,
                                      std::size_t allocation, Fails fails) {
  const Trial trial = swept.prepare();
  bool failed = false;
  std::optional<std::string> surprise;
  const bool cameToIt = failing_heap::runFailingAt(allocation, fails, [&] {
    try {
      trial.operation();
    } catch (const std::bad_alloc&) {
      failed = true;
    } catch (const std::exception& other) {
      surprise = other.what();
    } catch (...) {
      surprise = "something";
    }
  });
  if (surprise) return "has thrown " + *surprise;
  if (!cameToIt) return "does not make the same allocations each time";

  const State after = trial.state();
  // An operation may have another way than the allocation that failed.
  if (!failed && after != success.finished)
    return "failed without a word, and left" + joined(after);
  if (failed && !swept.judge(success.before, after, success.finished)) {
    return "left" + joined(after) + "\n  of" + joined(success.before) + "\n  on the way to" +
           joined(success.finished);
  }
  trial.operation();
  const State again = trial.state();
  const bool repeats = success.finished == success.finishedTwice;
  const State& wanted = failed ? success.finished : success.finishedTwice;
  if ((swept.judge == unchanged || (swept.judge == stepByStep && repeats)) && again != wanted) {
    return "was called once more and left" + joined(again) + "\n  and not" + joined(wanted);
  }
  return std::nullopt;
}

}  // namespace

bool unchanged(const State& before, const State& after, const State& /*finished*/) {
  return after == before;
}

bool stepByStep(const State& before, const State& after, const State& finished) {
  if (after.size() != before.size() || after.size() != finished.size()) return false;
  for (std::size_t i = 0; i < after.size(); ++i) {
    if (after[i] != before[i] && after[i] != finished[i] && !isBeginning(after[i], finished[i])) {
      return false;
    }
  }
  return true;
}

void sweep(const Case& swept, Figures& figures) {
  constexpr int kMostTold = 3;  // of each case
  int told = 0;
  const auto tell = [&](const std::string& where, const std::string& what) {
    ++figures.failures;
    if (++told <= kMostTold) ADD_FAILURE() << swept.name << where << " " << what;
  };

  const Success success = succeed(swept);
  {
    failing_heap::Watch watch;
    succeed(swept);
    const std::size_t left = watch.left().size();
    if (left != 0) tell("", "leaves " + std::to_string(left) + " blocks behind when it succeeds");
  }
  ++figures.cases;
  for (std::size_t i = 0; i < success.allocations.size(); ++i) {
    ++figures.points;
    for (const Fails fails : {Fails::once, Fails::fromThereOn}) {
      const std::string where = ", allocation " + std::to_string(i + 1) + " of " +
                                std::to_string(success.allocations.size()) +
                                (fails == Fails::once ? " fails:" : " and all behind it fail:");
      failing_heap::Watch watch;
      const auto fault = faultAfter(swept, success, success.allocations[i], fails);
      const std::vector<failing_heap::Block> left = watch.left();
      if (fault) {
        tell(where, *fault);
        continue;
      }
      // The object is the first allocation of its factory, its counter block the second.
      auto wanted = swept.block == Block::stays && i >= 2 ? 1 : 0;
      const auto counterBlocks = std::count_if(left.begin(), left.end(), isCounterBlock);
      if (swept.block == Block::mayStay && counterBlocks == 1) wanted = 1;
      figures.blocksLeft += counterBlocks;
      if (counterBlocks != wanted || left.size() != static_cast<std::size_t>(wanted)) {
        std::string sizes;
        for (const failing_heap::Block& block : left) sizes += " " + std::to_string(block.size);
        tell(where, "leaves blocks behind, of the sizes" + (sizes.empty() ? " (none)" : sizes));
      }
    }
  }
}

}  // namespace oom
