// Each row of docs/ownership.md does what it says, and would be found out if it said
// anything else.

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ownership/by_hand.h"
#include "ownership/drive.h"

namespace {

const Rows& everyRow() {
  static const Rows rows = [] {
    Rows all;
    addRows(all);
    return all;
  }();
  return rows;
}

TEST(Ownership, OfEachRowIsWhatItSays) {
  for (const Row& row : everyRow().driven()) drive(everyRow(), row);
  EXPECT_GT(everyRow().driven().size(), 300U);
}

TEST(Ownership, OfEachRowThatIsDrivenByHandIsWhatItSays) {
  for (const std::string& row : everyRow().drivenByHand()) {
    SCOPED_TRACE(row);
    const auto drive = drivesByHand().find(row);
    ASSERT_NE(drive, drivesByHand().end()) << "nothing drives it";
    drive->second();
  }
  EXPECT_EQ(drivesByHand().size(), everyRow().drivenByHand().size());
}

// The rows that one false word each would make of a row. Words that no count can tell
// apart are left: a text or an object that is copied, from one that is lent; and so is
// what is given, since a reference that was never there could not be given back.
std::vector<Row> falsified(const Row& row) {
  std::vector<Row> all;
  const Arguments arguments = row.call->arguments(row.written);
  for (std::size_t place = 0; row.written.takes[place].parameter; ++place) {
    const auto add = [&](auto falsify) {
      all.push_back(row);
      falsify(all.back().written.takes[place]);
    };
    const Taken& taken = row.written.takes[place];
    std::size_t argument = 0;
    while (std::string(row.written.parameters[argument]) != taken.parameter) ++argument;
    const auto counts = arguments[argument]->counts();
    if (!counts.empty()) {
      add([](Taken& t) { t.word = t.word == Word::kept ? Word::lent : Word::kept; });
    }
    if (taken.elements != Word::nothing && !counts.empty() && counts[1] > 0) {
      add([](Taken& t) { t.elements = t.elements == Word::kept ? Word::copied : Word::kept; });
    }
    if (taken.null != Null::forbidden && !row.written.alwaysRefused) {
      add([](Taken& t) { t.null = t.null == Null::refused ? Null::taken : Null::refused; });
    }
  }
  return all;
}

TEST(Ownership, OfEachRowIsNothingElse) {
  int rows = 0;
  for (const Row& row : everyRow().driven()) {
    for (const Row& falseRow : falsified(row)) {
      testing::TestPartResultArray faults;
      {
        const testing::ScopedFakeTestPartResultReporter reporter(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &faults);
        drive(everyRow(), falseRow);
      }
      bool foundOut = false;
      for (int i = 0; i < faults.size(); ++i) {
        foundOut = foundOut || faults.GetTestPartResult(i).failed();
      }
      EXPECT_TRUE(foundOut) << row.written.owner << ": " << row.written.signature;
      ++rows;
    }
  }
  EXPECT_GT(rows, 300);
}

}  // namespace
