// What comes of an analysis report.

#include <gtest/gtest.h>

#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "cutscript/report_state.h"
#include "support/counted_note.h"
#include "support/heap_watch.h"
#include "support/held.h"
#include "support/json_tree.h"
#include "support/show.h"

namespace {

struct Row {
  int type;
  const char* member;
};

constexpr Row kByLabel[] = {{3, "scene"},   {4, "object"}, {5, "camera"},     {8, "scene_text"},
                            {9, "emotion"}, {11, "action"}, {12, "shot_size"}};
constexpr Row kFlat[] = {{2, "total"}, {6, "camera_quality"}, {7, "brightness_change"}};
constexpr Row kLabelIsScore[] = {{2, "total"}, {7, "brightness_change"}};

std::string member(const std::string& name, const std::string& value) {
  return "{\"" + name + "\": " + value + "}";
}

// What leaves createKeyMatrixInfo(): the exception's kind and words.
std::string failure(const std::string& text) {
  try {
    const Held<ZOL::IZolKeyMatrixInfo> report(createKeyMatrixInfo(text.c_str()));
    return report.get() ? "none" : "null";
  } catch (const std::invalid_argument& error) {
    return std::string("invalid_argument: ") + error.what();
  } catch (const std::out_of_range& error) {
    return std::string("out_of_range: ") + error.what();
  }
}

TEST(AnalysisReport, ThatIsNoObjectGivesNothing) {
  EXPECT_EQ(createKeyMatrixInfo(nullptr), nullptr);
  for (const char* const text : {"[]", "", " ", "null", "1", "\"{}\"", "[{}]", "{", "}", "{]",
                                 "{,}", "{\"a\"}", "{\"a\":}", "{\"a\":1 \"b\":2}", "{a:1}",
                                 "{\"a\":nan}", "{\"a\":Infinity}", "//{}", "/*{}"}) {
    EXPECT_EQ(createKeyMatrixInfo(text), nullptr) << text;
  }
}

TEST(AnalysisReport, MayBeEmpty) {
  const Held<ZOL::IZolKeyMatrixInfo> report(createKeyMatrixInfo("{}"));
  ASSERT_NE(report.get(), nullptr);
  EXPECT_EQ(report->refCount(), 1);
  for (int type = -20; type <= 20; ++type) EXPECT_EQ(report->dimensionItem(type), nullptr) << type;
  const auto keywords = textList({"old"});
  EXPECT_EQ(report->getKeywords(keywords.get()), 0);
  EXPECT_EQ(keywords->size(), 0);
  EXPECT_STREQ(report->matrixName(), "");
}

TEST(AnalysisReport, MayHaveCommentsATrailingCommaAMarkAndMoreBehindIt) {
  const std::string expected = "keywords [\"sea\"]\n";
  for (const char* const text :
       {"{\"keywords\":[\"sea\"]}", "/* a */ {\"keywords\": [\"sea\" , ] , } // end",
        "\xEF\xBB\xBF{\"keywords\":[\"sea\"]}", "{\"keywords\":[\"sea\"]}}} [and more"}) {
    EXPECT_EQ(showReport(text), expected) << text;
  }
}

TEST(AnalysisReport, PassesOverMembersOfAnotherType) {
  for (const char* const name :
       {"stt", "total", "scene", "object", "camera", "camera_quality", "brightness_change",
        "scene_text", "emotion", "face_cluster", "action", "shot_size", "keywords",
        "face_image_map"}) {
    for (const char* const value : {"null", "true", "1", "1.5", "\"labels\""}) {
      EXPECT_EQ(showReport(member(name, value)), "") << name << " " << value;
    }
  }
  for (const char* const name : {"total", "scene", "camera_quality", "face_cluster"}) {
    EXPECT_EQ(showReport(member(name, "[{\"labels\": {\"1\": [\"0:0:1Z-0:0:2Z\"]}}]")), "") << name;
  }
  EXPECT_EQ(showReport(member("stt", "{\"begin_time\":1,\"end_time\":2,\"text\":\"a\"}")), "");
  EXPECT_EQ(showReport(member("keywords", "{\"0\":\"a\"}")), "");
}

TEST(AnalysisReport, CountsTheFirstOfMembersWithOneName) {
  EXPECT_EQ(showReport(R"({"keywords": ["a"], "keywords": ["b"],
                           "camera": {"labels": {"x": ["-"]}, "labels": {"y": ["-"]}},
                           "camera": {"labels": {"z": ["-"]}},
                           "stt": [{"begin_time": 1, "end_time": 2, "text": "a"}],
                           "stt": [{"begin_time": 3, "end_time": 4, "text": "b"}],
                           "action": 1, "action": {}})"),
            "1: slices [\"a\" 1..2]\n"
            "5: labels [\"x\"], slices [\"x\" 0..0]\n"
            "keywords [\"a\"]\n");
}

TEST(Dimension, IsThereForEveryObject) {
  // Neither labels nor scores are needed.
  for (const auto& rows : {std::vector<Row>(std::begin(kByLabel), std::end(kByLabel)),
                           std::vector<Row>(std::begin(kFlat), std::end(kFlat))}) {
    for (const Row& row : rows) {
      EXPECT_EQ(showReport(member(row.member, "{}")),
                std::to_string(row.type) + ": slices []\n")
          << row.member;
    }
  }
  const Held<ZOL::IZolKeyMatrixInfo> report(createKeyMatrixInfo("{\"camera\": {}}"));
  ASSERT_NE(report->dimensionItem(5), nullptr);
  EXPECT_FALSE(report->dimensionItem(5)->hasLabels());
  const Held<ZOL::IZolSliceItemList> slices(createIZolSliceItemList());
  slices->add(nullptr);
  EXPECT_EQ(report->dimensionItem(5)->getSliceItems(slices.get()), 0);
  EXPECT_EQ(slices->size(), 0);
}

TEST(Dimension, IsKeptByLabelInMost) {
  for (const Row& row : kByLabel) {
    EXPECT_EQ(showReport(member(row.member, R"({"labels": {"tilt": ["0:0:3Z-0:0:4Z"],
                                                           "pan": ["0:0:1Z-0:0:2Z"]}})")),
              std::to_string(row.type) + ": labels [\"pan\", \"tilt\"], " +
                  "slices [\"pan\" 1000..2000, \"tilt\" 3000..4000]\n")
        << row.member;
  }
}

TEST(Dimension, KeptByLabelGivesItsSlicesWithAScoreOfAHundred) {
  const Held<ZOL::IZolKeyMatrixInfo> report(createKeyMatrixInfo(
      R"({"camera":{"labels":{"pan":["0:0:1Z-0:0:2Z"],"tilt":["0:0:3Z-0:0:4Z"]}}})"));
  ZOL::IZolDemensionsItem* const camera = report->dimensionItem(5);
  ASSERT_NE(camera, nullptr);
  const auto labels = textList({});
  EXPECT_EQ(camera->getLabels(labels.get()), 0);
  EXPECT_EQ(show(*labels), "[\"pan\", \"tilt\"]");
  const Held<ZOL::IZolSliceItemList> slices(createIZolSliceItemList());
  EXPECT_EQ(camera->getSliceItems(slices.get()), 0);
  EXPECT_EQ(show(*slices), "[\"pan\" 1000..2000, \"tilt\" 3000..4000]");
  EXPECT_EQ(slices->at(0)->score(), 100);
  EXPECT_EQ(slices->at(1)->score(), 100);
  EXPECT_EQ(slices->at(0)->refCount(), 2) << "the item's list and ours";
  EXPECT_EQ(camera->refCount(), 1);
}

TEST(Dimension, KeptFlatHasTheSlicesOfTheLastLabelAlone) {
  // On purpose each label takes the place of the one before it.
  for (const Row& row : kFlat) {
    const std::string type = std::to_string(row.type);
    const bool labelIsScore = row.type != 6;
    EXPECT_EQ(showReport(member(row.member, R"({"labels": {"9": ["0:0:1Z-0:0:2Z", "0:0:5Z-0:0:6Z"],
                                                           "70": ["0:0:3Z-0:0:4Z"]}})")),
              type + ": slices [\"70\" 3000..4000" + (labelIsScore ? " score 70" : "") + "]\n")
        << row.member;
    EXPECT_EQ(showReport(member(row.member, R"({"labels": {"9": ["0:0:1Z-0:0:2Z"], "8": []}})")),
              type + ": slices []\n")
        << "an empty label is the last as well";
    EXPECT_EQ(showReport(member(row.member,
                                R"({"labels": {"9": ["0:0:1Z-0:0:2Z"], "8": "x", "7": null}})")),
              type + ": slices [\"9\" 1000..2000" + (labelIsScore ? " score 9" : "") + "]\n")
        << "one that is no array is passed over";
  }
  EXPECT_EQ(showReport(R"({"camera_quality": {"labels": {"pan": ["0:0:1Z-0:0:2Z"],
                                                         "tilt": ["0:0:3Z-0:0:4Z"]}}})"),
            "6: slices [\"tilt\" 3000..4000]\n");
}

TEST(Dimension, KeptByLabelPassesOverALabelThatIsNoArray) {
  EXPECT_EQ(showReport(R"({"camera": {"labels": {"a": "0:0:1Z-0:0:2Z", "b": null, "c": {"d": []},
                                                 "e": 1, "f": []}}})"),
            "5: labels [\"f\"], slices []\n");
}

TEST(Dimension, TakesTheLastOfLabelsWithOneName) {
  EXPECT_EQ(showReport(R"({"camera": {"labels": {"a": ["0:0:1Z-0:0:2Z"], "b": ["0:0:3Z-0:0:4Z"],
                                                 "a": ["0:0:5Z-0:0:6Z"]}}})"),
            "5: labels [\"a\", \"b\"], slices [\"a\" 5000..6000, \"b\" 3000..4000]\n");
}

TEST(Dimension, PassesOverLabelsThatAreNoObject) {
  for (const char* const labels : {"[]", "[\"0:0:1Z-0:0:2Z\"]", "\"a\"", "1", "null"}) {
    EXPECT_EQ(showReport(member("camera", member("labels", labels))), "5: slices []\n") << labels;
    EXPECT_EQ(showReport(member("total", member("labels", labels))), "2: slices []\n") << labels;
  }
}

TEST(Dimension, PassesOverElementsThatAreNoSpans) {
  EXPECT_EQ(showReport(R"({"camera": {"labels": {"a": [
              "", "90", "0:0:1Z", 12, null, true, ["0:0:1Z-0:0:2Z"], {"a": "0:0:1Z-0:0:2Z"},
              "0:0:1Z-0:0:2Z", "0:0:1Z_0:0:2Z"]}}})"),
            "5: labels [\"a\"], slices [\"a\" 1000..2000]\n");
}

TEST(Dimension, ReadsSpans) {
  const struct {
    const char* text;
    const char* times;
  } rows[] = {
      {"0:1:30Z-0:2:0Z", "90000..120000"},
      {"1:0:0Z-", "3600000..0"},
      {"-0:0:5Z", "0..5000"},
      {"-", "0..0"},
      {"0:0:1Z--0:0:2Z", "1000..2000"},
      {"0:0:1Z--1:0:0Z", "1000..-3600000"},
      {"0:0:1Z-0:0:-2Z", "1000..-2000"},
      {"00:00:07Z-000:000:0008Z", "7000..8000"},
      {"0:0:1-0:0:2", "1000..2000"},
      {"0:0:1.5Z-0:0:2.9Z", "1000..2000"},
      {"0:90:90Z-99:99:99Z", "5490000..362439000"},
      {" 0: 0:\t3Z- 0:0:4Z", "3000..4000"},
      {"0:0:5Z-0:0:2Z", "5000..2000"},
      {"0:0:5Z-0:0:6Z-0:0:7Z", "5000..6000"},
      // Past 596 hours the times wrap around.
      {"596:31:23Z-596:31:24Z", "2147483000..-2147483296"},
      {"1193:02:47Z-1193:02:48Z", "-296..704"},
      {"2147483647:0:0Z-0:2147483647:0Z", "-3600000..-60000"},
      {"0:0:2147483647Z-0:0:-2147483648Z", "-1000..0"},
      // Fields that are not read are 0.
      {"1:2-3", "3720000..10800000"},
      {"1:x:3Z-x", "3600000..0"},
      {"1 :2:3Z-1:2 :3Z", "3600000..3720000"},
      {"Z-:1:2Z", "0..0"},
      // Numbers beyond 32 bits wrap around.
      {"4294967297:0:0Z-0:0:4294967298Z", "3600000..2000"},
      {"0:0:8589934593Z-0:0:18446744073709551619Z", "1000..3000"},
      {"0:0:340282366920938463463374607431768211460Z-0:0:0Z", "4000..0"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(showReport("{\"camera\": {\"labels\": {\"a\": [" + quoted(row.text) + "]}}}"),
              "5: labels [\"a\"], slices [\"a\" " + std::string(row.times) + "]\n")
        << row.text;
  }
}

TEST(Dimension, TakesTheLabelAsTheScoreInTwo) {
  const struct {
    const char* label;
    const char* score;
  } rows[] = {
      {"80", " score 80"},   {"-7", " score -7"},  {"+7", " score 7"},
      {"0", " score 0"},     {"100", ""},          {"0100", ""},
      {" 12", " score 12"},  {"12 %", " score 12"}, {"12abc", " score 12"},
      {"1.9", " score 1"},   {"0x20", " score 0"}, {"2147483647", " score 2147483647"},
      {"-2147483648", " score -2147483648"},
  };
  for (const Row& dimension : kLabelIsScore) {
    for (const auto& row : rows) {
      const std::string label = row.label;
      EXPECT_EQ(showReport("{\"" + std::string(dimension.member) + "\": {\"labels\": {\"" + label +
                           "\": [\"0:0:1Z-0:0:2Z\"]}}}"),
                std::to_string(dimension.type) + ": slices [\"" + label + "\" 1000..2000" +
                    row.score + "]\n")
          << label;
    }
  }
  EXPECT_EQ(showReport(R"({"camera_quality": {"labels": {"80": ["0:0:1Z-0:0:2Z"]}},
                           "camera": {"labels": {"80": ["0:0:1Z-0:0:2Z"]}}})"),
            "5: labels [\"80\"], slices [\"80\" 1000..2000]\n"
            "6: slices [\"80\" 1000..2000]\n")
      << "in no other";
}

TEST(Dimension, WithALabelThatIsNoScoreFails) {
  const std::string noNumber = "invalid_argument: invalid stoi argument";
  const std::string tooLarge = "out_of_range: stoi argument out of range";
  const struct {
    const char* label;
    std::string failure;
  } rows[] = {
      {"x", noNumber},          {"", noNumber},
      {" ", noNumber},          {"-", noNumber},
      {"- 1", noNumber},        {".5", noNumber},
      {"x80", noNumber},        {"2147483648", tooLarge},
      {"-2147483649", tooLarge}, {"99999999999999999999", tooLarge},
      {"-99999999999999999999x", tooLarge},
  };
  for (const Row& dimension : kLabelIsScore) {
    for (const auto& row : rows) {
      EXPECT_EQ(failure("{\"" + std::string(dimension.member) + "\": {\"labels\": {\"" +
                        row.label + "\": [\"0:0:1Z-0:0:2Z\"]}}}"),
                row.failure)
          << row.label;
    }
  }
}

TEST(Dimension, OfTwoWithALabelThatIsNoScoreFailsForBrightness) {
  const std::string total = R"("total": {"labels": {"99999999999": ["-"]}})";
  const std::string brightness = R"("brightness_change": {"labels": {"x": ["-"]}})";
  for (const std::string& text : {total + ", " + brightness, brightness + ", " + total}) {
    EXPECT_EQ(failure("{" + text + "}"), "invalid_argument: invalid stoi argument") << text;
  }
}

TEST(Dimension, FailsOnlyForALabelWithASlice) {
  EXPECT_EQ(showReport(R"({"total": {"labels": {"x": [], "y": ["no span", 1], "z": "-"}}})"),
            "2: slices []\n");
  EXPECT_EQ(showReport(R"({"camera_quality": {"labels": {"x": ["0:0:1Z-0:0:2Z"]}}})"),
            "6: slices [\"x\" 1000..2000]\n");
  EXPECT_EQ(failure(R"({"total": {"labels": {"x": ["-"], "8": []}}})"),
            "invalid_argument: invalid stoi argument")
      << "also for one whose slices would not stay";
}

TEST(AnalysisReport, ThatFailsLeavesNothingBehind) {
  const std::string text = R"({
    "face_image_map": {"a": {"width": 2, "height": 2, "base64": "AAAAAAAAAAAA"}},
    "face_cluster": {"a": ["0:0:1Z-0:0:2Z"]}, "stt": [{"begin_time":1,"end_time":2,"text":"t"}],
    "camera": {"labels": {"pan": ["0:0:1Z-0:0:2Z"]}, "scores": [1, 2]},
    "shot_size": {"labels": {"wide": ["0:0:1Z-0:0:2Z"]}}, "keywords": ["k"],
    "brightness_change": {"scores": [1, 2], "labels": {"7": ["0:0:1Z-0:0:2Z"],
                                                       "LABEL": ["0:0:1Z-0:0:2Z"]}},
    "total": {"scores": [1, 2], "labels": {"7": ["0:0:1Z-0:0:2Z"]}}})";
  for (const char* const label : {"not a number", "99999999999"}) {
    std::string bad = text;
    bad.replace(bad.find("LABEL"), 5, label);
    EXPECT_NE(failure(bad), "none");
    const long long before = liveBlocks();
    for (int i = 0; i < 10; ++i) failure(bad);
    EXPECT_EQ(liveBlocks(), before) << label;
  }
}

TEST(Dimension, KeepsScoresThatNobodyCanReadOut) {
  for (const char* const scores : {"[10, \"x\", 20]", "[]", "[1]", "[2147483647, 1.5, -1]",
        "[1, 1.0000000000e-2147483639, 1.7976931348623159e308, 2]",
        "[1234567890123456789012345678901234567890, -9223372036854775809, 1]"}) {
    const Held<ZOL::IZolKeyMatrixInfo> report(
        createKeyMatrixInfo(member("camera", member("scores", scores)).c_str()));
    ZOL::IZolDemensionsItem* const camera = report->dimensionItem(5);
    EXPECT_FALSE(camera->hasScores()) << scores;
    const Held<ZOL::ZOLLonglongList> times(createZOLLonglongList());
    const Held<ZOL::ZOLIntList> values(createZOLIntList());
    times->add(1);
    values->add(2);
    EXPECT_EQ(camera->getScores(times.get(), values.get()), 0) << scores;
    EXPECT_EQ(show(times) + show(values), "[][]") << scores;
  }
}

TEST(Dimension, TakesScoresThatAreNoArrayForNone) {
  for (const char* const scores : {"{}", "1", "\"1\"", "null", "{\"0\": 1}"}) {
    EXPECT_EQ(showReport(member("total", member("scores", scores))), "2: slices []\n") << scores;
  }
}

TEST(Dimension, HasNothingOfItsMemberDimensions) {
  // On purpose: it is not kept, and does not stand in for the labels.
  for (const char* const dimensions :
       {R"([{"score": 7, "time": "0:0:1Z-0:0:2Z", "kind": "a"}, {"time": "x"}, 5, "a"])", "[]",
        "{}", "1", R"({"labels": {"x": ["0:0:1Z-0:0:2Z"]}})"}) {
    EXPECT_EQ(showReport(member("camera", member("dimensions", dimensions))), "5: slices []\n");
    EXPECT_EQ(showReport("{\"total\": {\"labels\": {\"8\": [\"0:0:1Z-0:0:2Z\"]}, \"dimensions\": " +
                         std::string(dimensions) + "}}"),
              "2: slices [\"8\" 1000..2000 score 8]\n");
  }
}

TEST(FaceClusters, LeaveTheLastOneAlone) {
  // On purpose each cluster takes the place of the one before it.
  EXPECT_EQ(showReport(R"({"face_cluster": {"zoe": ["0:0:1Z-0:0:2Z"],
                                            "ann": ["0:0:3Z-0:0:4Z", "0:0:5Z-0:0:6Z"]}})"),
            "10: slices [\"ann\" 3000..4000, \"ann\" 5000..6000]\n");
  EXPECT_EQ(showReport(R"({"face_cluster": {"zoe": ["0:0:1Z-0:0:2Z"], "ann": []}})"),
            "10: slices []\n");
  EXPECT_EQ(showReport(R"({"face_cluster": {"zoe": ["0:0:1Z-0:0:2Z"], "ann": "x", "bob": {}}})"),
            "10: slices [\"zoe\" 1000..2000]\n")
      << "what is no array is passed over";
  EXPECT_EQ(showReport(R"({"face_cluster": {"ann": ["0:0:1Z-0:0:2Z"], "bob": ["0:0:3Z-0:0:4Z"],
                                            "ann": ["0:0:5Z-0:0:6Z"]}})"),
            "10: slices [\"ann\" 5000..6000]\n");
}

TEST(FaceClusters, WithoutOneArrayGiveNoItem) {
  EXPECT_EQ(showReport(R"({"face_cluster": {}})"), "");
  EXPECT_EQ(showReport(R"({"face_cluster": {"ann": "x", "bob": {"labels": {}}}})"), "");
}

TEST(FaceClusters, PassOverElementsThatAreNoSpans) {
  EXPECT_EQ(showReport(R"({"face_cluster": {"7": ["90", 1, null, "", "0:0:1Z-0:0:2Z", ["-"]]}})"),
            "10: slices [\"7\" 1000..2000]\n")
      << "the score stays 100, whatever the name";
  EXPECT_EQ(showReport(R"({"face_cluster": {"labels": ["-"], "x": ["0:0:1Z-"]}})"),
            "10: slices [\"x\" 1000..0]\n");
}

// The only slice of a face of that name, with that map of images.
std::string face(const std::string& images, const std::string& name = "a") {
  return showReport("{\"face_cluster\": {\"" + name + "\": [\"-\"]}, \"face_image_map\": " +
                    images + "}");
}

TEST(FaceImages, GoToTheSlicesOfTheirFace) {
  EXPECT_EQ(showReport(R"({
      "face_image_map": {"ann": {"width": 4, "height": 2, "base64": "YWJj"},
                         "zoe": {"width": 1, "height": 1, "base64": "eg=="}},
      "face_cluster": {"zoe": ["0:0:1Z-0:0:2Z"], "ann": ["0:0:3Z-0:0:4Z", "0:0:5Z-0:0:6Z"]}})"),
            "10: slices [\"ann\" 3000..4000 face 4x2 \"abc\", "
            "\"ann\" 5000..6000 face 4x2 \"abc\"]\n");
  EXPECT_EQ(face(R"({"b": {"width": 4, "height": 2, "base64": "YWJj"}})"),
            "10: slices [\"a\" 0..0]\n");
  EXPECT_EQ(face(R"({"": {"width": 4, "height": 2, "base64": "YWJj"}})", ""),
            "10: slices [\"\" 0..0 face 4x2 \"abc\"]\n");
}

TEST(FaceImages, AreSharedByTheSlicesAndHeldByThemAlone) {
  CountingHook hook;
  Held<ZOL::IZolKeyMatrixInfo> report(createKeyMatrixInfo(R"({
      "face_image_map": {"a": {"width": 4, "height": 2, "base64": "YWJj"}},
      "face_cluster": {"a": ["-", "-", "-"]}})"));
  Held<ZOL::IZolSliceItemList> slices(createIZolSliceItemList());
  report->dimensionItem(10)->getSliceItems(slices.get());
  ASSERT_EQ(slices->size(), 3);
  ZOL::IZolBGRData* const image = slices->at(0)->faceImage();
  EXPECT_EQ(slices->at(2)->faceImage(), image);
  EXPECT_EQ(image->refCount(), 3);
  EXPECT_EQ(image->tag(), 0);
  image->setReleaseHook(&hook);

  report.reset();
  EXPECT_EQ(hook.calls, 0) << "the slices that we hold hold it";
  EXPECT_EQ(show(*slices->at(1)), "\"a\" 0..0 face 4x2 \"abc\"");
  slices->at(1)->faceImage()->addRef();
  slices->clear();
  EXPECT_EQ(hook.calls, 0);
  EXPECT_EQ(image->refCount(), 1);
  EXPECT_EQ(image->dataSize(), 3);
  EXPECT_EQ(image->data()[0], 'a');
  EXPECT_EQ(image->release(), 0);
  EXPECT_EQ(hook.calls, 1);
}

TEST(FaceImages, NeedTheirThreeMembers) {
  const std::string none = "10: slices [\"a\" 0..0]\n";
  for (const char* const image :
       {R"({"height": 2, "base64": "YWJj"})", R"({"width": 4, "base64": "YWJj"})",
        R"({"width": 4, "height": 2})", R"({"width": "4", "height": 2, "base64": "YWJj"})",
        R"({"width": 4, "height": 2.0, "base64": "YWJj"})",
        R"({"width": 4, "height": 2147483648, "base64": "YWJj"})",
        R"({"width": -2147483649, "height": 2, "base64": "YWJj"})",
        R"({"width": 4, "height": 2, "base64": 5})", R"({"width": 4, "height": 2, "base64": null})",
        R"([4, 2, "YWJj"])", R"("YWJj")", "null", "{}"}) {
    EXPECT_EQ(face("{\"a\": " + std::string(image) + "}"), none) << image;
  }
  for (const char* const map : {"[]", "null", "\"a\"", "1",
                                R"([{"width": 4, "height": 2, "base64": "YWJj"}])"}) {
    EXPECT_EQ(face(map), none) << map;
  }
}

TEST(FaceImages, OfOneNameCountWithTheLastThatIsWhole) {
  EXPECT_EQ(face(R"({"a": {"width": 4, "height": 2, "base64": "YWJj"},
                     "a": {"width": 5, "height": 6, "base64": "eHl6"},
                     "b": {"width": 7, "height": 7, "base64": "AAAA"},
                     "a": {"width": 1, "height": 1}})"),
            "10: slices [\"a\" 0..0 face 5x6 \"xyz\"]\n");
}

TEST(FaceImages, WithoutWidthHeightOrBytesAreEmpty) {
  // The image is there, and nothing is in it.
  const std::string empty = "10: slices [\"a\" 0..0 face 0x0 \"\"]\n";
  EXPECT_EQ(face(R"({"a": {"width": 0, "height": 2, "base64": "YWJj"}})"), empty);
  EXPECT_EQ(face(R"({"a": {"width": 4, "height": 0, "base64": "YWJj"}})"), empty);
  EXPECT_EQ(face(R"({"a": {"width": 4, "height": 2, "base64": ""}})"), empty);
  EXPECT_EQ(face(R"({"a": {"width": 4, "height": 2, "base64": "\r\n"}})"), empty);
  EXPECT_EQ(face(R"({"a": {"width": -1, "height": 2147483647, "base64": "YWJj"}})"),
            "10: slices [\"a\" 0..0 face 4294967295x2147483647 \"abc\"]\n");
}

TEST(Speech, HasItsTimesAsNumbers) {
  EXPECT_EQ(showReport(R"({"stt": [
              {"begin_time": 0, "end_time": 900, "text": "Hello."},
              {"text": "", "end_time": -2147483648, "begin_time": 2147483647, "more": [1]}]})"),
            "1: slices [\"Hello.\" 0..900, \"\" 2147483647..-2147483648]\n");
}

TEST(Speech, WithoutAUsableElementIsAnItemWithoutSlices) {
  EXPECT_EQ(showReport(R"({"stt": []})"), "1: slices []\n");
  EXPECT_EQ(showReport(R"({"stt": [null, 1, "a", [], {}]})"), "1: slices []\n");
}

TEST(Speech, PassesOverElementsThatAreNotWhole) {
  EXPECT_EQ(showReport(R"({"stt": [
              {"end_time": 900, "text": "a"}, {"begin_time": 0, "text": "b"},
              {"begin_time": 0, "end_time": 900},
              {"begin_time": "0", "end_time": 900, "text": "c"},
              {"begin_time": 0, "end_time": 900.0, "text": "d"},
              {"begin_time": 2147483648, "end_time": 900, "text": "e"},
              {"begin_time": 0, "end_time": -2147483649, "text": "f"},
              {"begin_time": 0, "end_time": 900, "text": 7},
              [{"begin_time": 0, "end_time": 900, "text": "g"}],
              {"begin_time": 1, "end_time": 2, "text": "h"}]})"),
            "1: slices [\"h\" 1..2]\n");
}

TEST(Keywords, AreTheTextsOfTheArray) {
  EXPECT_EQ(showReport(R"({"keywords": ["sea", 1, null, "", ["a"], {"b": "b"}, "sea", "dawn"]})"),
            "keywords [\"sea\", \"\", \"sea\", \"dawn\"]\n");
  EXPECT_EQ(showReport(R"({"keywords": []})"), "");
}

TEST(AnalysisReport, IsReadAsAWholeInAnyOrder) {
  const std::vector<std::string> members = {
      R"("keywords": ["harbour", "dawn"])",
      R"("face_image_map": {"ann": {"width": 1, "height": 1, "base64": "YWJj"}})",
      R"("face_cluster": {"bob": ["0:0:1Z-0:0:2Z"], "ann": ["0:0:26Z-0:0:34Z"]})",
      R"("stt": [{"begin_time": 12400, "end_time": 16100, "text": "Nobody talks."}])",
      R"("camera": {"labels": {"pan": ["0:0:8Z-0:0:21Z"], "static": ["0:0:0Z-0:0:8Z"]}})",
      R"("object": {"labels": {"boat": ["0:0:10Z-0:0:40Z"]}})",
      R"("shot_size": {"labels": {"wide": ["0:0:0Z-0:0:21Z"]}})",
      R"("emotion": {"labels": {"calm": ["0:0:0Z-0:0:36Z"]}})",
      R"("scene": {"labels": {"pier": ["0:0:0Z-0:0:58Z"]}})",
      R"("scene_text": {"labels": {"Quay 3": ["0:0:14Z-0:0:19Z"]}})",
      R"("action": {"labels": {"walking": ["0:0:12Z-0:0:22Z"]}})",
      R"("camera_quality": {"labels": {"still": ["0:0:0Z-0:0:58Z"], "shaky": ["0:1:5Z-0:1:15Z"]}})",
      R"("brightness_change": {"scores": [12, 14], "labels": {"40": ["0:0:24Z-0:0:30Z"]}})",
      R"("total": {"scores": [61, 64], "labels": {"85": ["0:0:44Z-0:0:57Z"]}})",
      R"("somebody else's": {"labels": {"x": ["0:0:1Z-0:0:2Z"]}})"};
  const std::string expected = R"(1: slices ["Nobody talks." 12400..16100]
2: slices ["85" 44000..57000 score 85]
3: labels ["pier"], slices ["pier" 0..58000]
4: labels ["boat"], slices ["boat" 10000..40000]
5: labels ["pan", "static"], slices ["pan" 8000..21000, "static" 0..8000]
6: slices ["shaky" 65000..75000]
7: slices ["40" 24000..30000 score 40]
8: labels ["Quay 3"], slices ["Quay 3" 14000..19000]
9: labels ["calm"], slices ["calm" 0..36000]
10: slices ["ann" 26000..34000 face 1x1 "abc"]
11: labels ["walking"], slices ["walking" 12000..22000]
12: labels ["wide"], slices ["wide" 0..21000]
keywords ["harbour", "dawn"]
)";
  for (std::size_t first = 0; first < members.size(); ++first) {
    std::string text;
    for (std::size_t i = 0; i < members.size(); ++i) {
      text += (i ? ", " : "{") + members[(first + i) % members.size()];
    }
    EXPECT_EQ(showReport(text + "}"), expected) << text;
  }
}

TEST(AnalysisReport, IsNotPointedIntoAfterwards) {
  std::string text = R"({"keywords": ["k"], "stt": [{"begin_time":1,"end_time":2,"text":"t"}],
                         "camera": {"labels": {"pan": ["-"]}}})";
  const Held<ZOL::IZolKeyMatrixInfo> report(createKeyMatrixInfo(text.c_str()));
  text.assign(text.size(), '#');
  EXPECT_EQ(show(*report),
            "1: slices [\"t\" 1..2]\n"
            "5: labels [\"pan\"], slices [\"pan\" 0..0]\n"
            "keywords [\"k\"]\n");
}

// A text that repeats a long label in thousands of slices must not make thousands of copies.
TEST(AnalysisReport, HoldsALongLabelOnceForAllSlicesOfALabel) {
  for (const std::size_t length : {2000u, 8000u, 8192u, 100000u}) {
    const std::string label(length, 'x');
    std::string spans = "\"0:0:1Z-0:0:2Z\"";
    for (int i = 1; i < 500; ++i) spans += ", \"0:0:1Z-0:0:2Z\"";
    const Held<ZOL::IZolKeyMatrixInfo> report(createKeyMatrixInfo(
        member("camera", "{\"labels\": {\"" + label + "\": [" + spans + "]}}").c_str()));
    const Held<ZOL::IZolSliceItemList> slices(createIZolSliceItemList());
    ASSERT_EQ(report->dimensionItem(5)->getLabelSliceItems(label.c_str(), slices.get()), 0);
    ASSERT_EQ(slices->size(), 500);
    std::set<const void*> places;
    for (int i = 0; i < slices->size(); ++i) {
      ZOL::IZolSliceItem* const slice = slices->at(i);
      ASSERT_STREQ(slice->label(), label.c_str());
      places.insert(slice->label());
    }
    EXPECT_EQ(places.size(), 1u) << length;
  }
}

TEST(AnalysisReport, GivesAllItsMemoryBack) {
  const auto readAndDrop = [] {
    EXPECT_NE(showReport(R"({"face_image_map": {"a": {"width": 1, "height": 1, "base64": "YWJj"}},
                             "face_cluster": {"b": ["-"], "a": ["-"]}, "keywords": ["k"],
                             "camera": {"labels": {"a": ["-"], "a": ["-"]}, "scores": [1]},
                             "total": {"labels": {"1": ["-"], "2": ["-"]}}})"),
              "null");
    EXPECT_EQ(showReport("{\"keywords\": [\"a\"}"), "null");
  };
  readAndDrop();
  const long long before = liveBlocks();
  readAndDrop();
  EXPECT_EQ(liveBlocks(), before);
}

}  // namespace
