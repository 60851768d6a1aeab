#include "ownership/drive.h"

#include <gtest/gtest.h>

#include <cstring>

#include "support/counted_note.h"

std::string newText() {
  static int number = 100000;
  return "text " + std::to_string(++number);
}

std::string newBytes() {
  static int number = 0;
  ++number;
  const std::string bytes = {'b', static_cast<char>(number / 100), static_cast<char>(number % 100),
                             '\0'};
  static_assert(kBytes == 4, "as many as there are here");
  return bytes;
}

namespace {

bool begins(const std::string& name, const char* with) { return name.rfind(with, 0) == 0; }

bool isSetter(const Row& row) {
  return row.written.takes[0].parameter && row.written.owner[0] != '\0' &&
         (begins(row.written.name, "set") || begins(row.written.name, "add"));
}

bool isOf(const Row& row, const std::string& family) { return row.call->family() == family; }

Arguments argumentsOf(const Row& row) { return row.call->arguments(row.written); }

const Taken* said(const Row& row, std::size_t place) {
  for (const Taken& taken : row.written.takes) {
    if (!taken.parameter) break;
    if (std::strcmp(taken.parameter, row.written.parameters[place]) == 0) return &taken;
  }
  return nullptr;
}

// An object with everything set that can be set, and the arguments that did it.
class Filled {
 public:
  Filled(const Rows& rows, const Row& row) {
    subject_ = row.call->create();
    if (!subject_) return;
    for (const Row& other : rows.driven()) {
      if (!isOf(other, subject_->family()) || !isSetter(other)) continue;
      kept_.push_back(argumentsOf(other));
      EXPECT_EQ(other.call->run(subject(), kept_.back()).status, ZOL::kSuccess)
          << other.written.signature;
    }
  }
  Subject* subject() { return subject_.get(); }
  void end() { subject_.reset(); }

 private:
  std::vector<Arguments> kept_;
  std::unique_ptr<Subject> subject_;
};

// One drive of one row.
class Drive {
 public:
  Drive(const Rows& rows, const Row& row) : rows_(rows), row_(row) {}

  void run() {
    countsAreAsSaid();
    resultIsAsSaid();
    listsAreFilledAsSaid();
    nullIsRefusedAsSaid();
  }

 private:
  int successful() const { return row_.written.alwaysRefused ? ZOL::kRefused : ZOL::kSuccess; }

  // An argument that is kept counts one more until the receiver ends; any other is as
  // before. So are the elements of a list.
  void countsAreAsSaid() {
    Filled filled(rows_, row_);
    const Arguments arguments = argumentsOf(row_);
    const auto before = countsOf(arguments);
    const Outcome outcome = row_.call->run(filled.subject(), arguments);
    ASSERT_EQ(outcome.status, successful());
    std::unique_ptr<Subject> made;
    if (row_.written.gives == Word::owned) made = outcome.adopt();
    Subject* const receiver = filled.subject() ? filled.subject() : made.get();

    for (std::size_t place = 0; place < arguments.size(); ++place) {
      const Taken* const taken = said(row_, place);
      if (!taken) continue;
      SCOPED_TRACE(taken->parameter);
      auto expected = before[place];
      if (!expected.empty()) {
        if (taken->word == Word::kept) ++expected[0];
        if (fills(*taken)) {
          expected[1] = arguments[place]->elementCount();  // listsAreFilledAsSaid() looks there
        } else if (taken->elements == Word::kept) {
          ++expected[1];
        }
        EXPECT_EQ(arguments[place]->counts(), expected) << "of the object, and of its element";
      }
      if (taken->word == Word::copied) isCopied(*arguments[place], receiver);
    }
    made.reset();
    filled.end();
    for (std::size_t place = 0; place < arguments.size(); ++place) {
      const Taken* const taken = said(row_, place);
      if (!taken || fills(*taken)) continue;
      EXPECT_EQ(arguments[place]->counts(), before[place])
          << taken->parameter << ", after the end of the receiver";
    }
  }

  // The caller's memory is overwritten, and the text can still be read from the receiver,
  // if it can be read there at all.
  void isCopied(Argument& argument, Subject* receiver) {
    argument.scribble();
    if (!argument.isTraceable() || !receiver) return;
    bool readable = false;
    bool found = false;
    for (const Row& other : rows_.driven()) {
      if (!isOf(other, receiver->family()) || other.written.gives != Word::lent) continue;
      if ((other.written.name == std::string("data")) != argument.isBytes()) continue;
      const bool hasIndex = begins(other.written.signature, "T at(long long index)");
      for (int index = 0; index < (hasIndex ? 10 : 1); ++index) {
        const Arguments arguments = argumentsOf(other);
        if (hasIndex) arguments.front()->beNumber(index);
        const Outcome outcome = other.call->run(receiver, arguments);
        if (!outcome.memory) continue;
        readable = true;
        found = found || argument.isIn(outcome.memory);
      }
    }
    EXPECT_EQ(found, readable) << "not copied";
  }

  // Lent: the same again, and not one reference more. Owned: each time a new object whose
  // only reference the caller has.
  void resultIsAsSaid() {
    if (row_.written.gives == Word::nothing) return;
    Filled filled(rows_, row_);
    const Arguments arguments = argumentsOf(row_);
    const Outcome first = row_.call->run(filled.subject(), arguments);
    ASSERT_TRUE(first.object || first.memory) << "nothing is given";
    const int count = first.object ? first.object->refCount() : 0;
    const Outcome second = row_.call->run(filled.subject(), arguments);
    if (row_.written.gives == Word::lent) {
      EXPECT_EQ(second.memory, first.memory);
      ASSERT_EQ(second.object, first.object);
      if (first.object) {
        EXPECT_EQ(first.object->refCount(), count) << "a getter lends";
      }
      return;
    }
    ASSERT_EQ(row_.written.gives, Word::owned);
    EXPECT_NE(second.object, first.object);
    for (const Outcome& outcome : {first, second}) {
      CountingHook hook;
      EXPECT_EQ(outcome.object->refCount(), 1);
      outcome.object->setReleaseHook(&hook);
      outcome.adopt().reset();
      EXPECT_EQ(hook.calls, 1) << "the caller's reference is the only one";
    }
  }

  // A getter with a list argument puts elements into it: shared ones, which count one
  // more with each list that has them, or copies of the caller's own.
  void listsAreFilledAsSaid() {
    for (std::size_t place = 0; row_.written.parameters[place]; ++place) {
      const Taken* const taken = said(row_, place);
      if (!taken || !fills(*taken)) continue;
      SCOPED_TRACE(taken->parameter);
      Filled filled(rows_, row_);
      const Arguments once = argumentsOf(row_);
      const Arguments again = argumentsOf(row_);
      row_.call->run(filled.subject(), once);
      ASSERT_TRUE(once[place]->hasElements()) << "nothing was put into the list";
      const auto element = once[place]->lastElement();
      if (!element) continue;  // texts and numbers do not count
      const int count = element->refCount();
      row_.call->run(filled.subject(), again);
      if (taken->elements == Word::kept) {
        EXPECT_EQ(again[place]->lastElement(), element) << "shared";
        EXPECT_EQ(element->refCount(), count + 1);
      } else {
        EXPECT_NE(again[place]->lastElement(), element) << "a copy each time";
        EXPECT_EQ(element->refCount(), count);
        EXPECT_EQ(count, 2) << "the list's, and this one";
      }
    }
  }

  // A refusal leaves every count as it was. Null that is not refused is taken.
  void nullIsRefusedAsSaid() {
    for (std::size_t place = 0; row_.written.parameters[place]; ++place) {
      const Taken* const taken = said(row_, place);
      if (!taken || taken->null == Null::forbidden) continue;
      SCOPED_TRACE(std::string("null ") + taken->parameter);
      Filled filled(rows_, row_);
      const Arguments arguments = argumentsOf(row_);
      const auto before = countsOf(arguments);
      arguments[place]->beNull();
      const Outcome outcome = row_.call->run(filled.subject(), arguments);
      if (taken->null == Null::refused) {
        if (row_.written.gives == Word::owned) {
          EXPECT_EQ(outcome.object, nullptr);
        } else {
          EXPECT_EQ(outcome.status, ZOL::kRefused);
        }
        EXPECT_EQ(countsOf(arguments), before);
      } else if (row_.written.gives == Word::owned) {
        EXPECT_NE(outcome.object, nullptr);
      } else {
        EXPECT_EQ(outcome.status, successful());
      }
      if (row_.written.gives == Word::owned) outcome.adopt();
    }
  }

  // True of a list that the operation puts something into.
  bool fills(const Taken& taken) const {
    return taken.elements != Word::nothing && !isSetter(row_) &&
           row_.written.name != std::string("assign") &&
           row_.written.name != std::string("insertListAt");
  }

  static std::vector<std::vector<int>> countsOf(const Arguments& arguments) {
    std::vector<std::vector<int>> counts;
    for (const auto& argument : arguments) counts.push_back(argument->counts());
    return counts;
  }

  const Rows& rows_;
  const Row& row_;
};

}  // namespace

void Rows::add(const Written& written, const Call* call) {
  rows_.push_back({written, std::shared_ptr<const Call>(call)});
}

void drive(const Rows& rows, const Row& row) {
  SCOPED_TRACE(std::string(row.written.owner) + ": " + row.written.signature);
  Drive(rows, row).run();
}
