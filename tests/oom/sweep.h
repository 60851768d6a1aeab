// The sweep: an operation is run again and again, each time on objects of its own, and
// each time another of the allocations that it makes inside the library fails. Then
//
//   - std::bad_alloc has come out, and nothing else;
//   - the objects are as the operation's contract lets a failure leave them;
//   - the operation does what it should when it is called once more;
//   - no memory is left behind, but for the counter block of an object whose own
//     constructor failed.

#ifndef KYDATASTRUCTURE_TESTS_OOM_SWEEP_H_
#define KYDATASTRUCTURE_TESTS_OOM_SWEEP_H_

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace oom {

// What can be seen of the objects: a text for each part that can change by itself.
using State = std::vector<std::string>;

// Whether a failure may leave that. `finished` is what success leaves.
using Judge = bool (*)(const State& before, const State& after, const State& finished);

// All is as it was.
bool unchanged(const State& before, const State& after, const State& finished);
// For operations that go step by step and do not go back: each part is as it was, or as
// it is to be, or, of a list "[a, b, c]", the beginning of what is to be.
bool stepByStep(const State& before, const State& after, const State& finished);

// The objects of one run, and what is done with them.
struct Trial {
  std::function<void()> operation;
  std::function<State()> state;
};

// What happens to the counter block of an object that the operation makes, when it fails.
enum class Block {
  goes,
  stays,    // if the object's constructor fails, which allocates more than that block
  mayStay,  // as that, but the object is one of those that the operation makes
};

struct Case {
  std::string name;  // "createTextInfo", or "IZolTextInfo::setText"
  std::function<Trial()> prepare;
  Judge judge = unchanged;
  Block block = Block::goes;
};

// A case on a stage of its own: what `make` gives, `operate` works on and `show` makes a
// State or a text of. All three are copied.
template <class Make, class Operate, class Show>
Case onStage(std::string name, Make make, Operate operate, Show show, Judge judge = unchanged) {
  return {std::move(name),
          [=] {
            auto stage = std::make_shared<decltype(make())>(make());
            return Trial{[=] { operate(*stage); },
                         [=]() -> State {
                           if constexpr (std::is_same_v<decltype(show(*stage)), State>) {
                             return show(*stage);
                           } else {
                             return {show(*stage)};
                           }
                         }};
          },
          judge};
}

// What has been seen.
struct Figures {
  long long cases = 0;
  long long points = 0;      // allocations, each of which has failed in two ways
  long long blocksLeft = 0;  // counter blocks of objects whose constructor failed
  long long failures = 0;
};

// Sweeps all allocations of a case. What is wrong is added to the running test.
void sweep(const Case& swept, Figures& figures);

// Whether the larger inputs are wanted.
bool full();

// All cases, by room.
std::vector<Case> factoryCases();
std::vector<Case> frameCases();
std::vector<Case> listCases();
std::vector<Case> mediaCases();
std::vector<Case> cutRecordCases();
std::vector<Case> cutTextCases();
std::vector<Case> paramCases();
std::vector<Case> resourceCases();
std::vector<Case> searchCases();

}  // namespace oom

#endif  // KYDATASTRUCTURE_TESTS_OOM_SWEEP_H_
