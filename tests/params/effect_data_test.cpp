// The effect data: one parameter map each, with their differences.

#include <KyDataStructure/params.h>
#include <KyDataStructure/resource.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "support/foreign_string.h"
#include "support/held.h"

namespace {

using ZOL::IParamObjectData;

constexpr const char* kDescription = R"({"name": "soft-glow", "res_type": 7})";

struct EffectClass {
  const char* name;
  std::function<IParamObjectData*()> create;
  std::string afterClear;  // what clearParams() makes of ids 1 to 9, all "x"
};

const std::vector<EffectClass>& effectClasses() {
  static const std::vector<EffectClass> classes = {
      {"IRelinkEffectData", [] { return createRelinkEffectData(); },
       "1= 2=x 3=x 4=x 5=x 6=x 7=x 8=x 9=x"},
      {"IResourceMediaData", [] { return createResourceMediaData(); }, ""},
      {"IAiPortraitV2Data", [] { return createIAiPortraitV2Data(); }, ""},
      {"IRemoveBackgroundData", [] { return createRemoveBackgroundData(); },
       "1= 2= 3= 4= 5=x 6=x 7=x 8=x 9=x"},
      {"IAITemplateGenerateData", [] { return createAITemplateGenerateData(); },
       "1= 2= 3= 4= 5= 6=x 7=x 8=x 9=x"},
      {"IImageStylizesData", [] { return createImageStylizesData(); },
       "1= 2= 3= 4= 5=x 6=x 7=x 8=x 9=x"},
  };
  return classes;
}

Held<ZOL::IZolString> newText(const std::string& text = std::string()) {
  Held<ZOL::IZolString> string(createZolString());
  if (!text.empty()) string->setText(text.data(), static_cast<long long>(text.size()));
  return string;
}

// The entries, held empty ones told from absent ones: "1=x 3=". By a copy into the one
// class that has a text form.
std::string show(IParamObjectData* data) {
  const Held<ZOL::IImageStylizesData> copy(createImageStylizesData());
  const auto text = newText();
  EXPECT_EQ(copy->copyFrom(data), 0);
  EXPECT_EQ(copy->writeDataMap(text.get()), 0);
  const std::string form = text->text();
  std::string entries;
  for (int id = -20; id <= 20; ++id) {
    const std::string member = "        \"" + std::to_string(id) + "\": \"";
    if (form.find(member) == std::string::npos) continue;
    entries += (entries.empty() ? "" : " ") + std::to_string(id) + "=" + data->param(id);
  }
  return entries;
}

std::string dataMapOf(ZOL::IImageStylizesData& data) {
  const auto text = newText();
  EXPECT_EQ(data.writeDataMap(text.get()), 0);
  return text->text();
}

int readInto(ZOL::IImageStylizesData& data, const std::string& text) {
  return data.readDataMap(newText(text).get());
}

}  // namespace

TEST(EffectData, ANewOneHoldsNothingAndALookAddsNothing) {
  for (const EffectClass& effect : effectClasses()) {
    const Held<IParamObjectData> data(effect.create());
    EXPECT_STREQ(data->param(7), "") << effect.name;
    EXPECT_EQ(show(data.get()), "") << effect.name;
  }
}

TEST(EffectData, HoldsAnEmptyTextApartFromNone) {
  const Held<IParamObjectData> data(createRelinkEffectData());
  EXPECT_EQ(data->setParam(1, ""), 0);
  EXPECT_EQ(show(data.get()), "1=");
}

TEST(EffectData, RefusesANullTextAndKeepsTheOld) {
  for (const EffectClass& effect : effectClasses()) {
    const Held<IParamObjectData> data(effect.create());
    data->setParam(1, "x");
    EXPECT_EQ(data->setParam(1, nullptr), 1001) << effect.name;
    EXPECT_EQ(show(data.get()), "1=x") << effect.name;
  }
}

TEST(EffectData, ClearsByItsOwnRuleInEachClass) {
  for (const EffectClass& effect : effectClasses()) {
    const Held<IParamObjectData> data(effect.create());
    for (int id = 1; id <= 9; ++id) data->setParam(id, "x");
    EXPECT_EQ(data->clearParams(), 0);
    EXPECT_EQ(show(data.get()), effect.afterClear) << effect.name;
  }
}

TEST(EffectData, ClearingANewOneSetsItsOwnIds) {
  const Held<IParamObjectData> relink(createRelinkEffectData());
  relink->clearParams();
  EXPECT_EQ(show(relink.get()), "1=");
  const Held<IParamObjectData> generate(createAITemplateGenerateData());
  generate->clearParams();
  EXPECT_EQ(show(generate.get()), "1= 2= 3= 4= 5=");
  const Held<IParamObjectData> media(createResourceMediaData());
  media->clearParams();
  EXPECT_EQ(show(media.get()), "");
}

// On purpose: the old parameters go before anything is looked at.
TEST(EffectData, ARefusedCopyHasEmptiedTheTarget) {
  const Held<IParamObjectData> data(createRelinkEffectData());
  data->setParam(1, "x");
  EXPECT_EQ(data->copyFrom(nullptr), 1001);
  EXPECT_EQ(show(data.get()), "");
}

TEST(EffectData, ACopyOntoItselfEmptiesIt) {
  const Held<IParamObjectData> data(createRelinkEffectData());
  data->setParam(1, "x");
  EXPECT_EQ(data->copyFrom(data.get()), 0);
  EXPECT_EQ(show(data.get()), "");
}

TEST(EffectData, ACopyTakesAllIdsAcrossClassesAndSharesNoText) {
  const Held<IParamObjectData> source(createRemoveBackgroundData());
  const Held<IParamObjectData> target(createRelinkEffectData());
  for (int id : {1, 4, 9}) source->setParam(id, "s");
  target->setParam(2, "gone");
  EXPECT_EQ(target->copyFrom(source.get()), 0);
  EXPECT_EQ(show(target.get()), "1=s 4=s 9=s");
  source->setParam(4, "other");
  EXPECT_STREQ(target->param(4), "s");
}

TEST(EffectData, ACloneIsOfTheSameClassWithParametersOfItsOwn) {
  for (const EffectClass& effect : effectClasses()) {
    const Held<IParamObjectData> data(effect.create());
    data->setParam(5, "x");
    ZOL::IDmDeepClonableObj* const root = data.get();
    const Held<IParamObjectData> clone(static_cast<IParamObjectData*>(root->deepClone()));
    EXPECT_EQ(clone->refCount(), 1);
    EXPECT_NE(clone->queryInterface(effect.name), nullptr) << effect.name;
    EXPECT_EQ(show(clone.get()), "5=x") << effect.name;
    clone->setParam(5, "y");
    EXPECT_STREQ(data->param(5), "x") << effect.name;
  }
}

TEST(EffectData, OnlyItsOwnRelativesAnswerAsRelink) {
  for (const EffectClass& effect : effectClasses()) {
    const Held<IParamObjectData> data(effect.create());
    const std::string name = effect.name;
    const bool relative = name != "IResourceMediaData" && name != "IAiPortraitV2Data";
    EXPECT_EQ(data->queryInterface("IRelinkEffectData") != nullptr, relative) << name;
    EXPECT_NE(data->queryInterface("IDmDeepClonableObj"), nullptr) << name;
    EXPECT_EQ(data->queryInterface("IDmDeepClonableObj"), data->queryInterface("IParamObjectData"));
    EXPECT_EQ(data->refCount(), 1);
  }
}

TEST(DerivedSlug, ComesFromTheFirstDescriptionOnly) {
  for (const std::size_t row : {std::size_t{1}, std::size_t{2}}) {
    const Held<IParamObjectData> data(effectClasses()[row].create());
    EXPECT_EQ(data->setParam(1, kDescription), 0);
    EXPECT_STREQ(data->param(1), kDescription);
    EXPECT_STREQ(data->param(2), "soft-glow");
    EXPECT_EQ(data->setParam(1, R"({"name": "other", "res_type": 7})"), 0);
    EXPECT_STREQ(data->param(2), "soft-glow");
  }
}

TEST(DerivedSlug, LeavesOneThatIsSet) {
  const Held<IParamObjectData> data(createResourceMediaData());
  data->setParam(2, "mine");
  data->setParam(1, kDescription);
  EXPECT_STREQ(data->param(2), "mine");
}

TEST(DerivedSlug, DoesNotComeFromATextThatIsNoDescription) {
  const Held<IParamObjectData> data(createResourceMediaData());
  EXPECT_EQ(data->setParam(1, "no description"), 0);
  EXPECT_EQ(show(data.get()), "1=no description");
  EXPECT_EQ(data->setParam(1, nullptr), 1001);
  EXPECT_EQ(show(data.get()), "1=no description");
}

TEST(DerivedSlug, IsNotDerivedByOtherIdsClassesCopiesAndClones) {
  const Held<IParamObjectData> media(createResourceMediaData());
  media->setParam(2, kDescription);
  media->setParam(2, "");
  EXPECT_EQ(show(media.get()), "2=");
  const Held<IParamObjectData> relink(createRelinkEffectData());
  relink->setParam(1, kDescription);
  EXPECT_EQ(show(relink.get()), std::string("1=") + kDescription);
  EXPECT_EQ(media->copyFrom(relink.get()), 0);
  EXPECT_STREQ(media->param(2), "");
  const Held<IParamObjectData> clone(media->deepClone());
  EXPECT_STREQ(clone->param(2), "");
}

TEST(StylizedResourceType, IsThatOfTheDescriptionInIdThree) {
  const Held<ZOL::IImageStylizesData> data(createImageStylizesData());
  EXPECT_EQ(data->resourceType(), -1);
  data->setParam(1, kDescription);
  EXPECT_EQ(data->resourceType(), -1);
  data->setParam(3, kDescription);
  EXPECT_EQ(data->resourceType(), 7);
  data->setParam(3, "x");
  EXPECT_EQ(data->resourceType(), -1);
  data->setParam(3, R"({"name": "a", "infoType": 7, "res_type": 4294967303})");
  EXPECT_EQ(data->resourceType(), 7);  // the low 32 bits
}

TEST(DataMapText, IsWrittenIndentedInTheOrderOfSignedIds) {
  const Held<ZOL::IImageStylizesData> data(createImageStylizesData());
  EXPECT_EQ(dataMapOf(*data), "{\n    \"dataMap\": {}\n}");
  data->setParam(1, "b");
  data->setParam(-2, "a \"quoted\"\n\\ line");
  data->setParam(3, "");
  EXPECT_EQ(dataMapOf(*data),
            "{\n    \"dataMap\": {\n        \"-2\": \"a \\\"quoted\\\"\\n\\\\ line\",\n"
            "        \"1\": \"b\",\n        \"3\": \"\"\n    }\n}");
  EXPECT_EQ(data->writeDataMap(nullptr), 1001);
}

// The other texts are measured by whoever takes them.
TEST(DataMapText, IsHandedOverWithItsLength) {
  const Held<ZOL::IImageStylizesData> data(createImageStylizesData());
  data->setParam(1, "b");
  const std::string written = dataMapOf(*data);
  ForeignString target;
  EXPECT_EQ(data->writeDataMap(&target), 0);
  EXPECT_EQ(target.calls, "setText(" + written + ", " + std::to_string(written.size()) + ")");
  target.result = 1001;
  EXPECT_EQ(data->writeDataMap(&target), 0) << "whatever the target makes of it";
}

TEST(DataMapText, ComesBackEqual) {
  const Held<ZOL::IImageStylizesData> data(createImageStylizesData());
  for (int id : {-7, 0, 2, 1000})
    data->setParam(id, ("\"\\\n\xC3\xA4 " + std::to_string(id)).c_str());
  const Held<ZOL::IImageStylizesData> other(createImageStylizesData());
  EXPECT_EQ(readInto(*other, dataMapOf(*data)), 0);
  EXPECT_EQ(dataMapOf(*other), dataMapOf(*data));
}

TEST(DataMapText, IsReadBehindAByteOrderMark) {
  const Held<ZOL::IImageStylizesData> data(createImageStylizesData());
  EXPECT_EQ(readInto(*data, "\xEF\xBB\xBF{\"dataMap\": {\"4\": \"x\"}}"), 0);
  EXPECT_EQ(show(data.get()), "4=x");
}

TEST(DataMapText, IsTheSameForAClone) {
  const Held<ZOL::IImageStylizesData> data(createImageStylizesData());
  data->setParam(2, "x");
  data->setParam(9, "");
  const Held<IParamObjectData> clone(data->deepClone());
  auto* const stylized = ZOL::query<ZOL::IImageStylizesData>(clone.get());
  ASSERT_NE(stylized, nullptr);
  EXPECT_EQ(dataMapOf(*stylized), dataMapOf(*data));
}

TEST(DataMapText, IsMergedWhenRead) {
  const Held<ZOL::IImageStylizesData> data(createImageStylizesData());
  data->setParam(1, "old");
  EXPECT_EQ(readInto(*data, R"({"other": 3, "dataMap": {"2": "x"}})"), 0);
  EXPECT_EQ(show(data.get()), "1=old 2=x");
  EXPECT_EQ(readInto(*data, R"({"dataMap":{}})"), 0);
  EXPECT_EQ(show(data.get()), "1=old 2=x");
}

TEST(DataMapText, TakesNamesAsLeadingNumbersAndOfOneIdTheLast) {
  const Held<ZOL::IImageStylizesData> data(createImageStylizesData());
  EXPECT_EQ(readInto(*data, R"({"dataMap":{"abc":"x","1":"a","01":"b"," 1":"c","-3z":"d"}})"), 0);
  EXPECT_EQ(show(data.get()), "-3=d 0=x 1=c");
  EXPECT_EQ(readInto(*data, R"({"dataMap":{"5":"cut\u0000here"}})"), 0);
  EXPECT_STREQ(data->param(5), "cut");
}

TEST(DataMapText, IsStrictJsonAndRefusedWhole) {
  const Held<ZOL::IImageStylizesData> data(createImageStylizesData());
  data->setParam(1, "kept");
  for (const char* text :
       {"", "[]", "{}", R"({"other":{}})", R"({"dataMap":[]})", R"({"dataMap":{}} x)",
        R"({"dataMap":{"2":"x",}})", R"({"dataMap":{"2":"x"}/**/})", R"({"dataMap":{"2":"x")",
        R"({"dataMap":{"2":"x","3":4}})", R"({"DATAMAP":{"2":"x"}})", R"({"dataMap":null})"}) {
    EXPECT_EQ(readInto(*data, text), 1001) << text;
    EXPECT_EQ(show(data.get()), "1=kept") << text;
  }
  EXPECT_EQ(data->readDataMap(nullptr), 1001);
}

TEST(DataMapText, IsReadWhateverStandsBesideTheMap) {
  const Held<ZOL::IImageStylizesData> data(createImageStylizesData());
  EXPECT_EQ(readInto(*data, R"({"n": [1.0000000000e-2147483639, 1.7976931348623159e308],)"
                            R"( "dataMap":{"2":"x"}})"),
            0);
  EXPECT_EQ(show(data.get()), "2=x");
}
