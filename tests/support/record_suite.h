// One suite over all records. A record is described by a table of its fields, one row
// each, and the suite sets, reads and copies every one of them:
//
//   template <>
//   struct Described<ZOL::ICue> {
//     static ZOL::ICue* create() { return createCue(); }
//     static RecordTable<ZOL::ICue> table() {
//       RecordTable<ZOL::ICue> table;
//       table.number("start", &ZOL::ICue::start, &ZOL::ICue::setStart, -1)
//           .text("title", &ZOL::ICue::title, &ZOL::ICue::setTitle)
//           .number("rank", &ZOL::ICue::rank, &ZOL::ICue::setRank, 0, InCopy::left);
//       return table;
//     }
//   };
//   INSTANTIATE_TYPED_TEST_SUITE_P(Cue, RecordFields, testing::Types<ZOL::ICue>, InterfaceName);
//   INSTANTIATE_TYPED_TEST_SUITE_P(Cue, RecordCopies, testing::Types<ZOL::ICue>, InterfaceName);

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_RECORD_SUITE_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_RECORD_SUITE_H_

#include <KyDataStructure/KyDataStructure.h>
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "support/held.h"
#include "support/show.h"

// What copyFrom() does with a field.
enum class InCopy {
  taken,       // the target has the source's
  left,        // the target keeps its own
  handedBack,  // the target keeps its own and gives it to the source
};

// A field as a test handles it: by the text that shows its value, and by marks, small
// numbers of which each stands for another value in each field.
template <class Record>
struct Field {
  std::string name;
  std::optional<std::string> initial;  // of a new record, if that is settled
  InCopy inCopy = InCopy::taken;
  std::function<std::string(Record&)> shown;
  std::function<int(Record&, int mark)> fill;
  std::function<std::string(int mark)> filled;  // what then is shown

  bool emptiedBySelfCopy = false;                     // a list that is assigned to itself
  bool keptWhenSourceIsNew = false;                   // a picture: there is none to be copied
  std::vector<std::function<int(Record&)>> refusals;  // calls that must answer 1001
  std::function<void(Record&)> edges;  // what values of its type need beside the marks
};

// The result of a setter; one without a result always succeeds.
template <class Record, class Result, class Argument, class Value>
int setBy(Record& record, Result (Record::*set)(Argument), Value value) {
  if constexpr (std::is_void_v<Result>) {
    (record.*set)(value);
    return ZOL::kSuccess;
  } else {
    return (record.*set)(value);
  }
}

template <class Record>
class RecordTable {
 public:
  static constexpr std::nullopt_t kUnsettled = std::nullopt;

  template <class Number, class Result, class Argument>
  RecordTable& number(const char* name, Number (Record::*get)(), Result (Record::*set)(Argument),
                      std::optional<long long> initial, InCopy inCopy = InCopy::taken) {
    Field<Record>& field = add(name, inCopy);
    if (initial) field.initial = std::to_string(*initial);
    field.shown = [get](Record& record) { return std::to_string((record.*get)()); };
    const int place = place_;
    field.fill = [set, place](Record& record, int mark) {
      return setBy(record, set, static_cast<Argument>(mark * 1000 + place));
    };
    field.filled = [place](int mark) { return std::to_string(mark * 1000 + place); };
    field.edges = [get, set](Record& record) {
      using Limits = std::numeric_limits<Argument>;
      for (const Argument value : {Limits::min(), Argument(-1), Argument(0), Limits::max()}) {
        EXPECT_EQ(setBy(record, set, value), 0);
        EXPECT_EQ((record.*get)(), static_cast<Number>(value)) << "with its sign";
      }
    };
    return *this;
  }

  RecordTable& text(const char* name, const char* (Record::*get)(), int (Record::*set)(const char*),
                    InCopy inCopy = InCopy::taken) {
    Field<Record>& field = add(name, inCopy);
    field.initial = "\"\"";
    field.shown = [get](Record& record) { return show((record.*get)()); };
    const std::string stem = std::string(name) + " as it is set ";
    field.fill = [set, stem](Record& record, int mark) {
      return (record.*set)((stem + std::to_string(mark)).c_str());
    };
    field.filled = [stem](int mark) { return "\"" + stem + std::to_string(mark) + "\""; };
    field.refusals = {[set](Record& record) { return (record.*set)(nullptr); }};
    field.edges = [get, set](Record& record) {
      char buffer[] = "the caller's\0 text";
      EXPECT_EQ((record.*set)(buffer), 0);
      buffer[0] = 'T';
      EXPECT_STREQ((record.*get)(), "the caller's");
      EXPECT_NE((record.*get)(), buffer);
      EXPECT_EQ((record.*set)("caf\xC3\xA9 \xFF \x01"), 0);
      EXPECT_STREQ((record.*get)(), "caf\xC3\xA9 \xFF \x01");
      EXPECT_EQ((record.*set)(""), 0);
      EXPECT_STREQ((record.*get)(), "");
    };
    return *this;
  }

  RecordTable& rect(const char* name, ZOL::_RectF (Record::*get)(), int (Record::*set)(ZOL::_RectF),
                    InCopy inCopy = InCopy::taken) {
    Field<Record>& field = add(name, inCopy);
    field.initial = "(0, 0, 1, 1)";
    field.shown = [get](Record& record) { return show((record.*get)()); };
    const int place = place_;
    const auto of = [place](int mark) {
      const double left = mark * 1000 + place + 0.25;
      return ZOL::_RectF{left, -left, left * 2, -left * 3};
    };
    field.fill = [set, of](Record& record, int mark) { return (record.*set)(of(mark)); };
    field.filled = [of](int mark) { return show(of(mark)); };
    return *this;
  }

  // A list of texts that goes through the caller's.
  RecordTable& texts(const char* name, int (Record::*get)(ZOL::ZOLPCharList*),
                     int (Record::*set)(ZOL::ZOLPCharList*), InCopy inCopy = InCopy::taken) {
    Field<Record>& field = addList(name, get, set, inCopy);
    field.shown = [get](Record& record) {
      Held<ZOL::ZOLPCharList> out(createZOLPCharList());
      out->add("of the caller's");
      EXPECT_EQ((record.*get)(out.get()), 0);
      return show(out);
    };
    const std::string stem = std::string(name) + " ";
    field.fill = [set, stem](Record& record, int mark) {
      Held<ZOL::ZOLPCharList> in(createZOLPCharList());
      for (const char* part : {"a", "b"}) in->add((stem + std::to_string(mark) + part).c_str());
      const int result = (record.*set)(in.get());
      EXPECT_EQ(in->refCount(), 1) << "the caller's list is not kept";
      in->clear();
      return result;
    };
    field.filled = [stem](int mark) {
      const std::string text = stem + std::to_string(mark);
      return "[\"" + text + "a\", \"" + text + "b\"]";
    };
    return *this;
  }

  // A list of objects that goes through the caller's; `label` and `setLabel` are a text
  // of the elements.
  template <class List, class Element>
  RecordTable& objects(const char* name, int (Record::*get)(List*), int (Record::*set)(List*),
                       List* (*createList)(), Element* (*createElement)(),
                       const char* (Element::*label)(), int (Element::*setLabel)(const char*),
                       InCopy inCopy = InCopy::taken) {
    Field<Record>& field = addList(name, get, set, inCopy);
    field.shown = [get, createList, createElement, label](Record& record) {
      Held<List> out(createList());
      const Held<Element> old(createElement());
      out->add(old.get());
      EXPECT_EQ((record.*get)(out.get()), 0);
      EXPECT_EQ(old->refCount(), 1) << "the caller's list is not added to";
      return showBy(*out, [label](Element* element) { return show((element->*label)()); });
    };
    const std::string stem = std::string(name) + " ";
    field.fill = [set, createList, createElement, setLabel, stem](Record& record, int mark) {
      const Held<List> in(createList());
      for (const char* part : {"a", "b"}) {
        const Held<Element> element(createElement());
        (element.get()->*setLabel)((stem + std::to_string(mark) + part).c_str());
        in->add(element.get());
      }
      const int result = (record.*set)(in.get());
      EXPECT_EQ(in->refCount(), 1) << "the caller's list is not kept";
      return result;
    };
    field.filled = [stem](int mark) {
      const std::string text = stem + std::to_string(mark);
      return "[\"" + text + "a\", \"" + text + "b\"]";
    };
    return *this;
  }

  // A picture that goes in and out as a copy of its bytes.
  RecordTable& picture(const char* name, int (Record::*get)(ZOL::IZolMediaData*),
                       int (Record::*set)(ZOL::IZolMediaData*), InCopy inCopy = InCopy::taken) {
    Field<Record>& field = add(name, inCopy);
    field.initial = "none";
    field.keptWhenSourceIsNew = true;
    field.shown = [get](Record& record) -> std::string {
      const Held<ZOL::IZolMediaData> out(createEmptyMediaData());
      const int result = (record.*get)(out.get());
      if (result != ZOL::kSuccess) return out->data() || result != 1001 ? "odd" : "none";
      return shownPicture(*out);
    };
    const int place = place_;
    const auto of = [place](int mark) {
      const auto byte = static_cast<unsigned char>(mark * 16 + place);
      return createMediaData(4, 2, &byte, 1, mark * 1000 + place);
    };
    field.fill = [set, of](Record& record, int mark) {
      const Held<ZOL::IZolMediaData> in(of(mark));
      const int result = (record.*set)(in.get());
      EXPECT_EQ(in->refCount(), 1) << "the caller's picture is not kept";
      return result;
    };
    field.filled = [of](int mark) { return shownPicture(*Held<ZOL::IZolMediaData>(of(mark))); };
    field.refusals = {[get](Record& record) { return (record.*get)(nullptr); },
                      [set](Record& record) { return (record.*set)(nullptr); },
                      [set](Record& record) {
                        const Held<ZOL::IZolMediaData> empty(createEmptyMediaData());
                        return (record.*set)(empty.get());
                      }};
    return *this;
  }

  // An object that is kept and lent; `label` tells one from another.
  template <class Object>
  RecordTable& kept(const char* name, Object* (Record::*get)(), int (Record::*set)(Object*),
                    Object* (*createMarked)(int mark), std::string (*label)(Object&)) {
    Field<Record>& field = add(name, InCopy::taken);
    field.initial = "none";
    field.shown = [get, label](Record& record) -> std::string {
      Object* const object = (record.*get)();
      if (!object) return "none";
      EXPECT_EQ(object->refCount(), 1) << "a getter lends";
      return label(*object);
    };
    const int place = place_;
    field.fill = [set, createMarked, place](Record& record, int mark) {
      const Held<Object> object(createMarked(mark * 1000 + place));
      const int result = (record.*set)(object.get());
      EXPECT_EQ(object->refCount(), 2) << "a setter keeps";
      return result;
    };
    field.filled = [createMarked, label, place](int mark) {
      return label(*Held<Object>(createMarked(mark * 1000 + place)));
    };
    field.refusals = {[set](Record& record) { return (record.*set)(nullptr); }};
    return *this;
  }

  const std::vector<Field<Record>>& fields() const { return fields_; }

 private:
  Field<Record>& add(const char* name, InCopy inCopy) {
    ++place_;
    fields_.emplace_back();
    fields_.back().name = name;
    fields_.back().inCopy = inCopy;
    return fields_.back();
  }

  template <class List>
  Field<Record>& addList(const char* name, int (Record::*get)(List*), int (Record::*set)(List*),
                         InCopy inCopy) {
    Field<Record>& field = add(name, inCopy);
    field.initial = "[]";
    field.emptiedBySelfCopy = inCopy != InCopy::left;
    field.refusals = {[get](Record& record) { return (record.*get)(nullptr); },
                      [set](Record& record) { return (record.*set)(nullptr); }};
    return field;
  }

  static std::string shownPicture(ZOL::IZolMediaData& media) {
    std::string text = std::to_string(media.width()) + "x" + std::to_string(media.height()) +
                       " tag " + std::to_string(media.tag()) + ":";
    for (int i = 0; i < media.dataSize(); ++i) text += " " + std::to_string(media.data()[i]);
    return text;
  }

  std::vector<Field<Record>> fields_;
  int place_ = 0;  // of the field last added, from 1
};

// How a record is made, and its table: create() and table(), both static.
template <class Record>
struct Described;

template <class Record>
class RecordSuite : public testing::Test {
 protected:
  using Fields = std::vector<Field<Record>>;

  static Held<Record> fresh() { return Held<Record>(Described<Record>::create()); }

  Held<Record> filledWith(int mark) {
    Held<Record> record = fresh();
    for (const Field<Record>& field : fields) EXPECT_EQ(field.fill(*record, mark), 0) << field.name;
    return record;
  }

  // Each field but `apart` shows what that mark stands for.
  void expectFilled(const Held<Record>& record, int mark, const std::string& apart = "") {
    for (const Field<Record>& field : fields) {
      if (field.name == apart) continue;
      EXPECT_EQ(field.shown(*record), field.filled(mark)) << field.name;
    }
  }

  const RecordTable<Record> described = Described<Record>::table();
  const Fields& fields = described.fields();
};

template <class Record>
class RecordFields : public RecordSuite<Record> {};
TYPED_TEST_SUITE_P(RecordFields);

TYPED_TEST_P(RecordFields, StartAtTheirDefaults) {
  const Held<TypeParam> record = this->fresh();
  EXPECT_EQ(record->refCount(), 1);
  for (const auto& field : this->fields) {
    if (!field.initial) continue;
    EXPECT_EQ(field.shown(*record), *field.initial) << field.name;
  }
}

TYPED_TEST_P(RecordFields, AreReadAsTheyWereSet) {
  const Held<TypeParam> record = this->filledWith(1);
  this->expectFilled(record, 1);
  EXPECT_EQ(record->refCount(), 1);
}

TYPED_TEST_P(RecordFields, AreSetWithoutTouchingTheOthers) {
  for (const auto& field : this->fields) {
    SCOPED_TRACE("set: " + field.name);
    const Held<TypeParam> record = this->filledWith(1);
    EXPECT_EQ(field.fill(*record, 2), 0);
    EXPECT_EQ(field.shown(*record), field.filled(2));
    this->expectFilled(record, 1, field.name);
  }
}

TYPED_TEST_P(RecordFields, RefuseNullAndKeepWhatTheyHold) {
  for (const auto& field : this->fields) {
    SCOPED_TRACE("refuses: " + field.name);
    for (const auto& refusedCall : field.refusals) {
      const Held<TypeParam> record = this->filledWith(1);
      EXPECT_EQ(refusedCall(*record), 1001);
      this->expectFilled(record, 1);
    }
  }
}

TYPED_TEST_P(RecordFields, TakeEveryValueOfTheirType) {
  for (const auto& field : this->fields) {
    if (!field.edges) continue;
    SCOPED_TRACE("set: " + field.name);
    const Held<TypeParam> record = this->filledWith(1);
    field.edges(*record);
    this->expectFilled(record, 1, field.name);
  }
}

REGISTER_TYPED_TEST_SUITE_P(RecordFields, StartAtTheirDefaults, AreReadAsTheyWereSet,
                            AreSetWithoutTouchingTheOthers, RefuseNullAndKeepWhatTheyHold,
                            TakeEveryValueOfTheirType);

template <class Record>
class RecordCopies : public RecordSuite<Record> {};
TYPED_TEST_SUITE_P(RecordCopies);

TYPED_TEST_P(RecordCopies, TakeAndLeaveWhatTheTableSays) {
  const Held<TypeParam> source = this->filledWith(1);
  const Held<TypeParam> target = this->filledWith(2);
  EXPECT_EQ(target->copyFrom(source.get()), 0);
  for (const auto& field : this->fields) {
    const bool taken = field.inCopy == InCopy::taken;
    const bool given = field.inCopy == InCopy::handedBack;
    EXPECT_EQ(field.shown(*target), field.filled(taken ? 1 : 2)) << field.name;
    EXPECT_EQ(field.shown(*source), field.filled(given ? 2 : 1)) << field.name << " of the source";
  }
  EXPECT_EQ(source->refCount(), 1);
  EXPECT_EQ(target->refCount(), 1);
}

TYPED_TEST_P(RecordCopies, AreIndependentAfterwards) {
  const Held<TypeParam> source = this->filledWith(1);
  const Held<TypeParam> target = this->fresh();
  EXPECT_EQ(target->copyFrom(source.get()), 0);
  for (const auto& field : this->fields) EXPECT_EQ(field.fill(*source, 3), 0);
  for (const auto& field : this->fields) {
    if (field.inCopy == InCopy::taken) {
      EXPECT_EQ(field.shown(*target), field.filled(1)) << field.name;
    } else if (field.initial) {
      EXPECT_EQ(field.shown(*target), *field.initial) << field.name;
    }
  }
}

TYPED_TEST_P(RecordCopies, OfANewRecordTakeItsDefaults) {
  const Held<TypeParam> source = this->fresh();
  const Held<TypeParam> target = this->filledWith(1);
  EXPECT_EQ(target->copyFrom(source.get()), 0);
  for (const auto& field : this->fields) {
    if (!field.initial) continue;
    const bool taken = field.inCopy == InCopy::taken && !field.keptWhenSourceIsNew;
    EXPECT_EQ(field.shown(*target), taken ? *field.initial : field.filled(1)) << field.name;
  }
}

TYPED_TEST_P(RecordCopies, OfNullAreRefusedAndChangeNothing) {
  const Held<TypeParam> record = this->filledWith(1);
  EXPECT_EQ(record->copyFrom(nullptr), 1001);
  this->expectFilled(record, 1);
}

// A list that is assigned to itself is empty afterwards; all else stays.
TYPED_TEST_P(RecordCopies, OntoThemselvesEmptyTheListsThatTheyCopy) {
  const Held<TypeParam> record = this->filledWith(1);
  EXPECT_EQ(record->copyFrom(record.get()), 0);
  for (const auto& field : this->fields) {
    EXPECT_EQ(field.shown(*record), field.emptiedBySelfCopy ? "[]" : field.filled(1)) << field.name;
  }
  EXPECT_EQ(record->refCount(), 1);
}

REGISTER_TYPED_TEST_SUITE_P(RecordCopies, TakeAndLeaveWhatTheTableSays, AreIndependentAfterwards,
                            OfANewRecordTakeItsDefaults, OfNullAreRefusedAndChangeNothing,
                            OntoThemselvesEmptyTheListsThatTheyCopy);

struct InterfaceName {
  template <class Interface>
  static std::string GetName(int /*index*/) {
    return Interface::interfaceName;
  }
};

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_RECORD_SUITE_H_
