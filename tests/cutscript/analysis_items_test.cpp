// The three records of an analysis report, filled by hand.

#include <gtest/gtest.h>

#include <climits>
#include <initializer_list>
#include <string>

#include "cutscript/report_state.h"
#include "lists/foreign_list.h"
#include "support/calling_hook.h"
#include "support/counted_note.h"
#include "support/held.h"
#include "support/show.h"

namespace {

using ZOL::query;

Held<ZOL::IZolSliceItem> slice(const char* label, long long start = 0, long long end = 0) {
  Held<ZOL::IZolSliceItem> made(createSliceItem());
  auto* const writing = query<ZOL::IZolSliceItemInternal>(made.get());
  writing->setLabel(label);
  writing->setStartTime(start);
  writing->setEndTime(end);
  return made;
}

Held<ZOL::IZolSliceItemList> slices(std::initializer_list<const char*> labels) {
  Held<ZOL::IZolSliceItemList> list(createIZolSliceItemList());
  for (const char* const label : labels) list->add(slice(label).get());
  return list;
}

Held<ZOL::ZOLLonglongList> times(std::initializer_list<long long> numbers) {
  Held<ZOL::ZOLLonglongList> list(createZOLLonglongList());
  for (const long long number : numbers) list->add(number);
  return list;
}

Held<ZOL::ZOLIntList> scores(std::initializer_list<int> numbers) {
  Held<ZOL::ZOLIntList> list(createZOLIntList());
  for (const int number : numbers) list->add(number);
  return list;
}

Held<ZOL::IZolBGRData> image(const std::string& bytes) {
  return Held<ZOL::IZolBGRData>(
      createBGRData(1, 1, reinterpret_cast<const unsigned char*>(bytes.data()),
                    static_cast<int>(bytes.size()), 0));
}

// A slice, a dimension or a report and its writing side.
template <class Reading, class Writing>
struct Record {
  explicit Record(Reading* object) : reading(object), writing(query<Writing>(object)) {}
  Reading* operator->() const { return reading.get(); }
  Held<Reading> reading;
  Writing* const writing;
};
using Slice = Record<ZOL::IZolSliceItem, ZOL::IZolSliceItemInternal>;
using Dimension = Record<ZOL::IZolDemensionsItem, ZOL::IZolDemensionsItemInternal>;
using Report = Record<ZOL::IZolKeyMatrixInfo, ZOL::IZolKeyMatrixInfoInternal>;

// A caller's list that remembers what it was last told to take: the record's own list.
template <class List>
class Witness final : public ForeignList<List> {
 public:
  int assign(List* other) override {
    seen = other;
    return ForeignList<List>::assign(other);
  }
  List* seen = nullptr;
};

// What a slice gives of its names and values; the lists held something before.
std::string keyValues(const Slice& item) {
  const auto keys = textList({"old", "older"});
  const auto values = textList({"oldest"});
  EXPECT_EQ(item->getKeyValues(keys.get(), values.get()), 0);
  return show(*keys) + " " + show(*values);
}

TEST(SliceItem, IsMadeBlankWithAScoreOfAHundred) {
  const Slice item(createSliceItem());
  EXPECT_EQ(item->score(), 100);
  EXPECT_EQ(show(*item.reading), "\"\" 0..0");
  EXPECT_EQ(item->faceImage(), nullptr);
  EXPECT_EQ(keyValues(item), "[] []");
}

TEST(SliceItem, ReadsWhatItsWritingSideWrites) {
  const Slice item(createSliceItem());
  EXPECT_EQ(item.writing->setLabel("pan"), 0);
  EXPECT_EQ(item.writing->setStartTime(LLONG_MIN), 0);
  EXPECT_EQ(item.writing->setEndTime(LLONG_MAX), 0);
  EXPECT_EQ(item.writing->setScore(INT_MIN), 0);
  EXPECT_EQ(show(*item.reading),
            "\"pan\" -9223372036854775808..9223372036854775807 score -2147483648");
}

TEST(SliceItem, TakesANullLabelAsTheEmptyOne) {
  const Slice item(createSliceItem());
  item.writing->setLabel("pan");
  EXPECT_EQ(item.writing->setLabel(nullptr), 0);
  EXPECT_STREQ(item->label(), "");
}

TEST(SliceItem, CopiesNamesAndValues) {
  const Slice item(createSliceItem());
  const auto keys = textList({"a", "b"});
  const auto values = textList({"1", "2"});
  EXPECT_EQ(item.writing->setKeyValues(keys.get(), values.get()), 0);
  keys->clear();
  values->setAt(0, "changed");
  EXPECT_EQ(keyValues(item), "[\"a\", \"b\"] [\"1\", \"2\"]");
  EXPECT_EQ(keys->refCount(), 1);

  const auto got = textList({});
  const auto gotValues = textList({});
  item->getKeyValues(got.get(), gotValues.get());
  got->clear();
  EXPECT_EQ(keyValues(item), "[\"a\", \"b\"] [\"1\", \"2\"]") << "the getter copies as well";
}

TEST(SliceItem, ReplacesNamesAndValues) {
  const Slice item(createSliceItem());
  item.writing->setKeyValues(textList({"a", "b"}).get(), textList({"1", "2"}).get());
  EXPECT_EQ(item.writing->setKeyValues(textList({"c"}).get(), textList({"3"}).get()), 0);
  EXPECT_EQ(keyValues(item), "[\"c\"] [\"3\"]");
  EXPECT_EQ(item.writing->setKeyValues(textList({}).get(), textList({}).get()), 0);
  EXPECT_EQ(keyValues(item), "[] []");
}

TEST(SliceItem, RefusesNamesAndValuesThatAreNullOrOfDifferentSizes) {
  const Slice item(createSliceItem());
  const auto one = textList({"a"});
  const auto two = textList({"a", "b"});
  EXPECT_EQ(item.writing->setKeyValues(one.get(), two.get()), 1001);
  EXPECT_EQ(keyValues(item), "[] []");
  item.writing->setKeyValues(one.get(), one.get());
  EXPECT_EQ(item.writing->setKeyValues(two.get(), one.get()), 1001);
  EXPECT_EQ(item.writing->setKeyValues(two.get(), nullptr), 1001);
  EXPECT_EQ(item.writing->setKeyValues(nullptr, two.get()), 1001);
  EXPECT_EQ(item.writing->setKeyValues(nullptr, nullptr), 1001);
  EXPECT_EQ(keyValues(item), "[\"a\"] [\"a\"]") << "nothing has changed";
}

TEST(SliceItem, RefusesToGiveNamesAndValuesWithoutBothLists) {
  const Slice item(createSliceItem());
  const auto list = textList({"old"});
  EXPECT_EQ(item->getKeyValues(nullptr, list.get()), 1001);
  EXPECT_EQ(item->getKeyValues(list.get(), nullptr), 1001);
  EXPECT_EQ(item->getKeyValues(nullptr, nullptr), 1001);
  EXPECT_EQ(show(*list), "[\"old\"]");
}

TEST(SliceItem, GivesNothingWhenItsStoredListsDiffer) {
  // A list of a caller's own making is not taken, so the names stay empty.
  ForeignList<ZOL::ZOLPCharList> keys;
  keys.add("a");
  const Slice item(createSliceItem());
  EXPECT_EQ(item.writing->setKeyValues(&keys, textList({"1"}).get()), 0);
  EXPECT_EQ(keyValues(item), "[] []");
}

TEST(SliceItem, FillsTheSameListsAnewEachTime) {
  const Slice item(createSliceItem());
  item.writing->setKeyValues(textList({"a"}).get(), textList({"1"}).get());
  Witness<ZOL::ZOLPCharList> keys;
  Witness<ZOL::ZOLPCharList> values;
  item->getKeyValues(&keys, &values);
  item.writing->setKeyValues(textList({"b", "c"}).get(), textList({"2", "3"}).get());
  EXPECT_EQ(show(keys.seen) + " " + show(values.seen), "[\"b\", \"c\"] [\"2\", \"3\"]");
}

// The lists are cleared before they are read.
TEST(SliceItem, IsLeftWithoutNamesAndValuesWhenItIsSetToItsOwnLists) {
  const auto other = textList({"x", "y"});
  // Which of the item's own lists, or neither, is handed in as names and as values.
  const struct {
    char keys, values;
    const char* left;
  } cases[] = {{'k', 'v', "[] []"},
               {'v', 'k', "[] []"},
               {'k', 'k', "[] []"},
               {'v', 'v', "[] []"},
               {'v', '-', "[] [\"x\", \"y\"]"},
               {'-', 'k', "[\"x\", \"y\"] []"}};
  for (const auto& each : cases) {
    const Slice item(createSliceItem());
    item.writing->setKeyValues(textList({"a", "b"}).get(), textList({"1", "2"}).get());
    Witness<ZOL::ZOLPCharList> keys;
    Witness<ZOL::ZOLPCharList> values;
    item->getKeyValues(&keys, &values);
    const auto handedIn = [&](char list) {
      return list == 'k' ? keys.seen : list == 'v' ? values.seen : other.get();
    };
    EXPECT_EQ(item.writing->setKeyValues(handedIn(each.keys), handedIn(each.values)), 0);
    EXPECT_EQ(show(keys.seen) + " " + show(values.seen), each.left) << each.keys << each.values;
  }
}

TEST(SliceItem, KeepsTheFaceImage) {
  const Slice item(createSliceItem());
  const auto first = image("abc");
  const auto second = image("de");
  EXPECT_EQ(item.writing->setFaceImage(first.get()), 0);
  EXPECT_EQ(item->faceImage(), first.get());
  EXPECT_EQ(first->refCount(), 2);
  item.writing->setFaceImage(first.get());
  EXPECT_EQ(first->refCount(), 2) << "the same image again is still kept once";
  item.writing->setFaceImage(second.get());
  EXPECT_EQ(first->refCount(), 1);
  EXPECT_EQ(show(*item.reading), "\"\" 0..0 face 1x1 \"de\"");
  EXPECT_EQ(item.writing->setFaceImage(nullptr), 0);
  EXPECT_EQ(item->faceImage(), nullptr);
  EXPECT_EQ(second->refCount(), 1);
}

TEST(SliceItem, KeepsAnImageThatItAloneHoldsAndGivesItUpAtItsEnd) {
  CountingHook hook;
  Slice item(createSliceItem());
  {
    const auto face = image("abc");
    face->setReleaseHook(&hook);
    item.writing->setFaceImage(face.get());
  }
  EXPECT_EQ(item->faceImage()->refCount(), 1);
  item.writing->setFaceImage(item->faceImage());
  EXPECT_EQ(show(*item.reading), "\"\" 0..0 face 1x1 \"abc\"");
  EXPECT_EQ(hook.calls, 0);
  item.reading.reset();
  EXPECT_EQ(hook.calls, 1);
}

TEST(DemensionsItem, IsMadeBlank) {
  const Dimension item(createDemensionsItem());
  EXPECT_EQ(item->dimensionType(), 0);
  EXPECT_FALSE(item->hasLabels());
  EXPECT_FALSE(item->hasScores());
  EXPECT_EQ(show(*item.reading), "slices []");
}

TEST(DemensionsItem, TakesAnyType) {
  const Dimension item(createDemensionsItem());
  EXPECT_EQ(item.writing->setDimensionType(INT_MIN), 0);
  EXPECT_EQ(item->dimensionType(), INT_MIN);
}

TEST(DemensionsItem, KeepsAListOfItsOwnWithTheCallersSlices) {
  const Dimension item(createDemensionsItem());
  const auto mine = slices({"a", "b"});
  EXPECT_EQ(item.writing->setSliceItems(mine.get()), 0);
  EXPECT_EQ(mine->refCount(), 1);
  EXPECT_EQ(mine->at(0)->refCount(), 2);
  mine->removeAt(1);
  query<ZOL::IZolSliceItemInternal>(mine->at(0))->setLabel("changed");
  EXPECT_EQ(show(*item.reading), "slices [\"changed\" 0..0, \"b\" 0..0]");

  const auto out = slices({"old"});
  EXPECT_EQ(item->getSliceItems(out.get()), 0);
  EXPECT_EQ(out->at(0), mine->at(0)) << "the slices are shared";
  out->clear();
  EXPECT_EQ(show(*item.reading), "slices [\"changed\" 0..0, \"b\" 0..0]");
}

TEST(DemensionsItem, ReplacesAndDropsItsFlatList) {
  const Dimension item(createDemensionsItem());
  item.writing->setSliceItems(slices({"a", "b"}).get());
  EXPECT_EQ(item.writing->setSliceItems(slices({"c"}).get()), 0);
  EXPECT_EQ(show(*item.reading), "slices [\"c\" 0..0]");
  EXPECT_EQ(item.writing->setSliceItems(slices({}).get()), 0);
  EXPECT_EQ(show(*item.reading), "slices []");
  EXPECT_EQ(item.writing->setSliceItems(nullptr), 0);
  EXPECT_EQ(show(*item.reading), "slices []");
}

TEST(DemensionsItem, FillsTheSameListsAnewEachTime) {
  const Dimension item(createDemensionsItem());
  Witness<ZOL::IZolSliceItemList> flat;
  Witness<ZOL::IZolSliceItemList> labelled;
  item.writing->setSliceItems(slices({"a"}).get());
  item->getSliceItems(&flat);
  item.writing->setLabelSliceItems("x", slices({"a"}).get());
  item->getLabelSliceItems("x", &labelled);
  item.writing->setSliceItems(slices({"b", "c"}).get());
  item.writing->setLabelSliceItems("x", slices({"d"}).get());
  EXPECT_EQ(show(*flat.seen), "[\"b\" 0..0, \"c\" 0..0]");
  EXPECT_EQ(show(*labelled.seen), "[\"d\" 0..0]");
  EXPECT_EQ(item.writing->setSliceItems(flat.seen), 0);
  EXPECT_EQ(show(*flat.seen), "[]") << "cleared before it is read";
  EXPECT_EQ(item.writing->setLabelSliceItems("x", labelled.seen), 0);
  EXPECT_EQ(show(*labelled.seen), "[]");
}

TEST(DemensionsItem, FillsTheSameListsOfSamplesAnewEachTime) {
  const Dimension item(createDemensionsItem());
  ForeignList<ZOL::ZOLIntList> untaken;  // so that the samples are given
  untaken.add(1);
  Witness<ZOL::ZOLLonglongList> seenTimes;
  Witness<ZOL::ZOLIntList> seenScores;
  item.writing->setScores(times({7}).get(), &untaken);
  item->getScores(&seenTimes, &seenScores);
  item.writing->setScores(times({8, 9}).get(), scores({1, 2}).get());
  EXPECT_EQ(show(seenTimes.seen) + " " + show(seenScores.seen), "[8, 9] [1, 2]");
}

TEST(DemensionsItem, GivesUpItsSlicesBeforeItTakesOthers) {
  const Dimension item(createDemensionsItem());
  const auto coming = slices({"new"});
  for (const bool flat : {true, false}) {
    const auto set = [&](ZOL::IZolSliceItemList* list) {
      return flat ? item.writing->setSliceItems(list)
                  : item.writing->setLabelSliceItems("x", list);
    };
    const int before = coming->at(0)->refCount();
    int meanwhile = 0;
    CallingHook hook([&] { meanwhile = coming->at(0)->refCount(); });
    {
      const auto going = slices({"old"});
      going->at(0)->setReleaseHook(&hook);
      set(going.get());
    }
    EXPECT_EQ(set(coming.get()), 0);
    EXPECT_EQ(hook.calls, 1);
    EXPECT_EQ(meanwhile, before);
    EXPECT_EQ(coming->at(0)->refCount(), before + 1);
  }
}

TEST(DemensionsItem, LooksALabelUpBeforeItEndsWithTheSlicesOfTheList) {
  const Dimension item(createDemensionsItem());
  const char* const label = "a label that is too long for any place but the heap";
  item.writing->setLabelSliceItems(label, slices({"x1"}).get());
  const auto out = slices({label});
  EXPECT_EQ(item->getLabelSliceItems(out->at(0)->label(), out.get()), 0);
  EXPECT_EQ(show(*out), "[\"x1\" 0..0]");
}

TEST(DemensionsItem, GivesItsFlatListWhateverItsLabelsHold) {
  const Dimension item(createDemensionsItem());
  item.writing->setLabelSliceItems("x", slices({"x1"}).get());
  const auto out = slices({"old"});
  item.writing->setSliceItems(slices({"flat"}).get());
  EXPECT_EQ(item->getSliceItems(out.get()), 0);
  EXPECT_EQ(show(*out), "[\"flat\" 0..0]");
  item.writing->setSliceItems(slices({}).get());
  EXPECT_EQ(item->getSliceItems(out.get()), 0);
  EXPECT_EQ(show(*out), "[]") << "an empty flat list is one";
  item.writing->setSliceItems(nullptr);
  EXPECT_EQ(item->getSliceItems(out.get()), 0);
  EXPECT_EQ(show(*out), "[\"x1\" 0..0]");
}

TEST(DemensionsItem, JoinsTheSlicesOfAllLabelsInByteOrder) {
  const Dimension item(createDemensionsItem());
  item.writing->setLabelSliceItems("b", slices({"b1", "b2"}).get());
  item.writing->setLabelSliceItems("\xC3\xA9", slices({"e1"}).get());
  item.writing->setLabelSliceItems("ab", slices({}).get());
  item.writing->setLabelSliceItems("a", slices({"a1"}).get());
  item.writing->setLabelSliceItems("", slices({"none1"}).get());
  item.writing->setLabelSliceItems("Z", slices({"Z1"}).get());
  EXPECT_EQ(show(*item.reading),
            "labels [\"\", \"Z\", \"a\", \"ab\", \"b\", \"\\xc3\\xa9\"], "
            "slices [\"none1\" 0..0, \"Z1\" 0..0, \"a1\" 0..0, \"b1\" 0..0, \"b2\" 0..0, "
            "\"e1\" 0..0]");
}

TEST(DemensionsItem, ReplacesTheSlicesOfALabel) {
  const Dimension item(createDemensionsItem());
  const auto mine = slices({"a1"});
  EXPECT_EQ(item.writing->setLabelSliceItems("a", mine.get()), 0);
  EXPECT_EQ(mine->refCount(), 1);
  mine->clear();
  EXPECT_EQ(show(*item.reading), "labels [\"a\"], slices [\"a1\" 0..0]");
  EXPECT_EQ(item.writing->setLabelSliceItems("a", slices({"a2", "a3"}).get()), 0);
  EXPECT_EQ(show(*item.reading), "labels [\"a\"], slices [\"a2\" 0..0, \"a3\" 0..0]");
}

TEST(DemensionsItem, RefusesALabelOrItsSlicesThatAreNull) {
  const Dimension item(createDemensionsItem());
  EXPECT_EQ(item.writing->setLabelSliceItems(nullptr, slices({"a"}).get()), 1001);
  EXPECT_EQ(item.writing->setLabelSliceItems("a", nullptr), 1001);
  EXPECT_FALSE(item->hasLabels());
}

TEST(DemensionsItem, RefusesWhatItHasNoLabelsFor) {
  const Dimension item(createDemensionsItem());
  const auto labels = textList({"old"});
  const auto out = slices({"old"});
  EXPECT_EQ(item->getLabels(labels.get()), 1001);
  EXPECT_EQ(item->getLabelSliceItems("a", out.get()), 1001);
  EXPECT_EQ(show(*labels), "[\"old\"]") << "left as it was";
  EXPECT_EQ(show(*out), "[\"old\" 0..0]");
  item.writing->setSliceItems(slices({"flat"}).get());
  EXPECT_EQ(item->getLabels(labels.get()), 1001);
  EXPECT_EQ(item->getLabelSliceItems("flat", out.get()), 1001);
}

TEST(DemensionsItem, RefusesNullLists) {
  const Dimension item(createDemensionsItem());
  item.writing->setLabelSliceItems("a", slices({"a1"}).get());
  const auto out = slices({"old"});
  EXPECT_EQ(item->getSliceItems(nullptr), 1001);
  EXPECT_EQ(item->getLabels(nullptr), 1001);
  EXPECT_EQ(item->getLabelSliceItems("a", nullptr), 1001);
  EXPECT_EQ(item->getLabelSliceItems(nullptr, out.get()), 1001);
  EXPECT_EQ(item->getLabelSliceItems(nullptr, nullptr), 1001);
  EXPECT_EQ(show(*out), "[\"old\" 0..0]");
  const auto samples = times({1});
  const auto values = scores({2});
  EXPECT_EQ(item->getScores(nullptr, values.get()), 1001);
  EXPECT_EQ(item->getScores(samples.get(), nullptr), 1001);
  EXPECT_EQ(show(samples.get()) + show(values.get()), "[1][2]");
}

TEST(DemensionsItem, GivesTheSlicesOfALabelByItsExactText) {
  const Dimension item(createDemensionsItem());
  const auto mine = slices({"a1", "a2"});
  item.writing->setLabelSliceItems("a", mine.get());
  const auto out = slices({"old"});
  EXPECT_EQ(item->getLabelSliceItems("a", out.get()), 0);
  EXPECT_EQ(show(*out), "[\"a1\" 0..0, \"a2\" 0..0]");
  EXPECT_EQ(out->at(1), mine->at(1)) << "the slices are shared";
  for (const char* const unknown : {"A", "", "a ", "aa"}) {
    out->add(nullptr);
    EXPECT_EQ(item->getLabelSliceItems(unknown, out.get()), 0) << unknown;
    EXPECT_EQ(out->size(), 0) << unknown;
  }
}

// What an item gives of its samples; the lists held something before.
std::string samples(const Dimension& item) {
  const auto outTimes = times({7, 8});
  const auto outScores = scores({9});
  EXPECT_EQ(item->getScores(outTimes.get(), outScores.get()), 0);
  return show(outTimes.get()) + " " + show(outScores.get());
}

TEST(DemensionsItem, HasNoScoresOnPurposeWhenItHasThem) {
  const Dimension item(createDemensionsItem());
  EXPECT_EQ(samples(item), "[] []");
  EXPECT_EQ(item.writing->setScores(times({0, 1000}).get(), scores({10, 20}).get()), 0);
  EXPECT_FALSE(item->hasScores());
  EXPECT_EQ(samples(item), "[] []") << "samples of equal number are kept and not given out";
  EXPECT_EQ(item.writing->setScores(times({}).get(), scores({}).get()), 0);
  EXPECT_FALSE(item->hasScores());
  EXPECT_EQ(samples(item), "[] []");
}

TEST(DemensionsItem, HasScoresOnPurposeWhenTheirNumbersDiffer) {
  // A list of a caller's own making is not taken, so it alone stays empty.
  ForeignList<ZOL::ZOLIntList> foreignScores;
  foreignScores.add(10);
  foreignScores.add(20);
  const Dimension item(createDemensionsItem());
  EXPECT_EQ(item.writing->setScores(times({0, 1000}).get(), &foreignScores), 0);
  EXPECT_TRUE(item->hasScores());
  EXPECT_EQ(samples(item), "[0, 1000] []");

  ForeignList<ZOL::ZOLLonglongList> foreignTimes;
  foreignTimes.add(0);
  EXPECT_EQ(item.writing->setScores(&foreignTimes, scores({10}).get()), 0);
  EXPECT_FALSE(item->hasScores()) << "without times there are none in any case";
  EXPECT_EQ(samples(item), "[] []");
}

TEST(DemensionsItem, CopiesTheSamples) {
  ForeignList<ZOL::ZOLIntList> foreignScores;
  foreignScores.add(10);
  const auto mine = times({5});
  const Dimension item(createDemensionsItem());
  item.writing->setScores(mine.get(), &foreignScores);
  mine->setAt(0, 6);
  EXPECT_EQ(samples(item), "[5] []");
  EXPECT_EQ(mine->refCount(), 1);
}

TEST(DemensionsItem, RefusesSamplesThatAreNullOrOfDifferentNumbers) {
  ForeignList<ZOL::ZOLIntList> foreignScores;
  foreignScores.add(10);
  const Dimension item(createDemensionsItem());
  item.writing->setScores(times({5}).get(), &foreignScores);
  EXPECT_EQ(item.writing->setScores(times({1, 2}).get(), scores({1}).get()), 1001);
  EXPECT_EQ(item.writing->setScores(times({}).get(), scores({1}).get()), 1001);
  EXPECT_EQ(item.writing->setScores(nullptr, scores({1}).get()), 1001);
  EXPECT_EQ(item.writing->setScores(times({1}).get(), nullptr), 1001);
  EXPECT_EQ(samples(item), "[5] []") << "nothing has changed";
}

TEST(DemensionsItem, GivesUpItsSlicesWhenItEnds) {
  Dimension item(createDemensionsItem());
  const auto flat = slices({"a"});
  const auto labelled = slices({"b"});
  item.writing->setSliceItems(flat.get());
  item.writing->setLabelSliceItems("x", labelled.get());
  item.writing->setLabelSliceItems("y", labelled.get());
  EXPECT_EQ(flat->at(0)->refCount(), 2);
  EXPECT_EQ(labelled->at(0)->refCount(), 3);
  item.reading.reset();
  EXPECT_EQ(flat->at(0)->refCount(), 1);
  EXPECT_EQ(labelled->at(0)->refCount(), 1);
}

TEST(KeyMatrixInfo, HasANameThatNoReaderSets) {
  const Report report(createKeyMatrixInfo("{\"matrixName\": \"a\", \"matrix_name\": \"b\"}"));
  EXPECT_STREQ(report->matrixName(), "");
  EXPECT_EQ(report.writing->setMatrixName("name"), 0);
  EXPECT_STREQ(report->matrixName(), "name");
  EXPECT_EQ(report.writing->setMatrixName(nullptr), 0);
  EXPECT_STREQ(report->matrixName(), "");
}

TEST(KeyMatrixInfo, RefusesOnPurposeToTellItsDimensionTypes) {
  const Report report(createKeyMatrixInfo("{\"camera\": {}, \"stt\": []}"));
  const auto out = scores({7, 8});
  EXPECT_EQ(report->getDimensionTypes(out.get()), 1001);
  EXPECT_EQ(show(out.get()), "[7, 8]") << "the list is not touched";
  EXPECT_EQ(report->getDimensionTypes(nullptr), 1001);
}

TEST(KeyMatrixInfo, KeepsAnItemUnderAnyType) {
  const Report report(createKeyMatrixInfo("{}"));
  const Dimension item(createDemensionsItem());
  item.writing->setDimensionType(3);
  EXPECT_EQ(report.writing->setDimensionItem(INT_MAX, item.reading.get()), 0);
  EXPECT_EQ(report.writing->setDimensionItem(-1, item.reading.get()), 0);
  EXPECT_EQ(item->refCount(), 3);
  EXPECT_EQ(report->dimensionItem(INT_MAX), item.reading.get());
  EXPECT_EQ(report->dimensionItem(-1), item.reading.get());
  EXPECT_EQ(report->dimensionItem(3), nullptr) << "the type it is entered under counts";
  EXPECT_EQ(item->refCount(), 3) << "the getter lends";
}

TEST(KeyMatrixInfo, ReplacesAnItemAndRefusesNull) {
  const Report report(createKeyMatrixInfo("{}"));
  const Dimension first(createDemensionsItem());
  const Dimension second(createDemensionsItem());
  report.writing->setDimensionItem(5, first.reading.get());
  report.writing->setDimensionItem(5, first.reading.get());
  EXPECT_EQ(first->refCount(), 2) << "the same item again is still kept once";
  EXPECT_EQ(report.writing->setDimensionItem(5, nullptr), 1001);
  EXPECT_EQ(report->dimensionItem(5), first.reading.get());
  EXPECT_EQ(report.writing->setDimensionItem(6, nullptr), 1001);
  EXPECT_EQ(report->dimensionItem(6), nullptr);
  EXPECT_EQ(report.writing->setDimensionItem(5, second.reading.get()), 0);
  EXPECT_EQ(first->refCount(), 1);
  EXPECT_EQ(second->refCount(), 2);
}

TEST(KeyMatrixInfo, CopiesTheKeywords) {
  const Report report(createKeyMatrixInfo("{}"));
  const auto mine = textList({"sea", "dawn"});
  EXPECT_EQ(report.writing->setKeywords(mine.get()), 0);
  mine->clear();
  const auto out = textList({"old"});
  EXPECT_EQ(report->getKeywords(out.get()), 0);
  EXPECT_EQ(show(*out), "[\"sea\", \"dawn\"]");
  report.writing->setKeywords(textList({"quay"}).get());
  EXPECT_EQ(report->getKeywords(out.get()), 0);
  EXPECT_EQ(show(*out), "[\"quay\"]");
  EXPECT_EQ(report->getKeywords(nullptr), 1001);
  EXPECT_EQ(report.writing->setKeywords(nullptr), 0);
  EXPECT_EQ(report->getKeywords(out.get()), 0);
  EXPECT_EQ(show(*out), "[]");
}

TEST(KeyMatrixInfo, FillsTheSameListOfKeywordsAnewEachTime) {
  const Report report(createKeyMatrixInfo("{}"));
  report.writing->setKeywords(textList({"a"}).get());
  Witness<ZOL::ZOLPCharList> keywords;
  report->getKeywords(&keywords);
  report.writing->setKeywords(textList({"b"}).get());
  EXPECT_EQ(show(keywords.seen), "[\"b\"]");
  EXPECT_EQ(report.writing->setKeywords(keywords.seen), 0);
  EXPECT_EQ(show(keywords.seen), "[]") << "cleared before it is read";
}

TEST(KeyMatrixInfo, GivesUpItsItemsWhenItEnds) {
  Report report(createKeyMatrixInfo("{}"));
  const Dimension item(createDemensionsItem());
  report.writing->setDimensionItem(1, item.reading.get());
  report.writing->setDimensionItem(2, item.reading.get());
  report.reading.reset();
  EXPECT_EQ(item->refCount(), 1);
}

}  // namespace
