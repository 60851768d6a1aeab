// The rows of the ownership table as calls, and the driver that compares what each does
// to the counts with what its words say.
//
// A row is driven on a new object, after every operation of the object that sets or adds
// something was called, so that what a getter lends is there.

#ifndef KYDATASTRUCTURE_TESTS_OWNERSHIP_DRIVE_H_
#define KYDATASTRUCTURE_TESTS_OWNERSHIP_DRIVE_H_

#include <KyDataStructure/ref.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "ownership/arguments.h"

enum class Word { nothing, lent, owned, kept, copied };
enum class Null { taken, refused, forbidden };

// What a row says of one argument.
struct Taken {
  const char* parameter;
  Word word;
  Word elements;  // of a list
  Null null;
};

// One row as it is written; the names and the arguments end where a null is.
struct Written {
  const char* owner;  // "" for a function
  const char* name;
  const char* signature;
  const char* parameters[8];
  Word gives;
  bool alwaysRefused;
  Taken takes[4];
};

// An object whose operations are called, held at the interface of its factory.
class Subject {
 public:
  virtual ~Subject() = default;
  virtual ZOL::IDmBaseObj* object() = 0;
  virtual const char* family() = 0;  // the name of that interface
};

template <class Made>
class SubjectOf final : public Subject {
 public:
  explicit SubjectOf(ZOL::Ref<Made> made) : made_(std::move(made)) {}
  ZOL::IDmBaseObj* object() override { return made_.get(); }
  const char* family() override { return Made::interfaceName; }
  const ZOL::Ref<Made>& made() const { return made_; }

 private:
  const ZOL::Ref<Made> made_;
};

// What a call answers, as far as a row speaks of it.
struct Outcome {
  int status = ZOL::kSuccess;
  const void* memory = nullptr;       // a text or bytes
  ZOL::IDmBaseObj* object = nullptr;  // whose, the row says

  // Takes the object over.
  std::unique_ptr<Subject> adopt() const { return object ? adoptPointer(pointer) : nullptr; }

  void* pointer = nullptr;  // the object at the interface that was given
  std::unique_ptr<Subject> (*adoptPointer)(void* pointer) = nullptr;
};

// What a row stands for.
class Call {
 public:
  virtual ~Call() = default;
  // The object to call it on; null for a function.
  virtual std::unique_ptr<Subject> create() const = 0;
  virtual const char* family() const = 0;
  virtual Arguments arguments(const Written& written) const = 0;
  virtual Outcome run(Subject* subject, const Arguments& arguments) const = 0;
};

template <class Result>
Outcome outcomeOf(Result result) {
  Outcome outcome;
  if constexpr (std::is_same_v<Result, int>) {
    outcome.status = result;
  } else if constexpr (std::is_pointer_v<Result>) {
    using Pointed = std::remove_pointer_t<Result>;
    if constexpr (ZOL::refDetail::isCounted<Pointed>) {
      outcome.object = result;
      outcome.pointer = result;
      outcome.adoptPointer = [](void* pointer) -> std::unique_ptr<Subject> {
        return std::make_unique<SubjectOf<Pointed>>(ZOL::adopt(static_cast<Pointed*>(pointer)));
      };
    } else {
      outcome.memory = result;
    }
  }
  return outcome;
}

template <class... T>
Arguments argumentsOf(const Written& written) {
  Arguments arguments;
  (arguments.emplace_back(
       new Given<T>({written.owner, written.name, written.parameters[arguments.size()]})),
   ...);
  return arguments;
}

// `Owner` has the operation; `Made` is the interface of the factory that makes an object
// with it.
template <class Owner, class Made, class Class, class Result, class... T>
class OperationCall final : public Call {
 public:
  using Operation = Result (Class::*)(T...);

  explicit OperationCall(Operation operation) : operation_(operation) {}
  std::unique_ptr<Subject> create() const override {
    return std::unique_ptr<Subject>(new SubjectOf<Made>(fresh<Made>({"", "", ""})));
  }
  const char* family() const override { return Made::interfaceName; }
  Arguments arguments(const Written& written) const override { return argumentsOf<T...>(written); }
  Outcome run(Subject* subject, const Arguments& arguments) const override {
    const auto owner = static_cast<SubjectOf<Made>*>(subject)->made().template as<Owner>();
    return run(owner.get(), arguments, std::index_sequence_for<T...>());
  }

 private:
  template <std::size_t... place>
  Outcome run(Owner* owner, [[maybe_unused]] const Arguments& arguments,
              std::index_sequence<place...>) const {
    Class* const target = owner;
    if constexpr (std::is_void_v<Result>) {
      (target->*operation_)(static_cast<Given<T>&>(*arguments[place]).value()...);
      return {};
    } else {
      return outcomeOf<Result>(
          (target->*operation_)(static_cast<Given<T>&>(*arguments[place]).value()...));
    }
  }

  const Operation operation_;
};

template <class Result, class... T>
class FunctionCall final : public Call {
 public:
  using Function = Result (*)(T...);

  explicit FunctionCall(Function function) : function_(function) {}
  std::unique_ptr<Subject> create() const override { return nullptr; }
  const char* family() const override { return ""; }
  Arguments arguments(const Written& written) const override { return argumentsOf<T...>(written); }
  Outcome run(Subject* /*none*/, const Arguments& arguments) const override {
    return run(arguments, std::index_sequence_for<T...>());
  }

 private:
  template <std::size_t... place>
  Outcome run([[maybe_unused]] const Arguments& arguments, std::index_sequence<place...>) const {
    return outcomeOf<Result>(function_(static_cast<Given<T>&>(*arguments[place]).value()...));
  }

  const Function function_;
};

struct Row {
  Written written;
  std::shared_ptr<const Call> call;
};

class Rows {
 public:
  template <class Owner, class Made, class Class, class Result, class... T>
  void operation(const Written& written, Result (Class::*pointer)(T...)) {
    add(written, new OperationCall<Owner, Made, Class, Result, T...>(pointer));
  }
  template <class Result, class... T>
  void function(const Written& written, Result (*pointer)(T...)) {
    add(written, new FunctionCall<Result, T...>(pointer));
  }
  void byHand(const char* row) { byHand_.emplace_back(row); }

  const std::vector<Row>& driven() const { return rows_; }
  const std::vector<std::string>& drivenByHand() const { return byHand_; }

 private:
  void add(const Written& written, const Call* call);

  std::vector<Row> rows_;
  std::vector<std::string> byHand_;
};

// Adds every row of the page; made from it when the tests are built.
void addRows(Rows& rows);

// Calls what a row stands for and fails the test where a word is not kept.
void drive(const Rows& rows, const Row& row);

#endif  // KYDATASTRUCTURE_TESTS_OWNERSHIP_DRIVE_H_
