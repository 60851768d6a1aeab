// What holds of every object that a factory gives, in one table. The lists have a
// table of their own, beside their contract.

#include <KyDataStructure/KyDataStructure.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "support/counted_note.h"
#include "support/held.h"

namespace {

// A name that an object answers, and the view that it is to give for it; a null view
// stands for one that can be reached through the query alone.
struct View {
  std::string name;
  const void* address;
};

struct Made {
  ZOL::IDmBaseObj* object;
  std::vector<View> views;  // without that of IDmBaseObj
};

struct Row {
  const char* factory;
  Made (*make)();
};

template <class Interface, class Object>
View view(Object* object) {
  return {Interface::interfaceName, static_cast<Interface*>(object)};
}

template <class Interface>
View hidden() {
  return {Interface::interfaceName, nullptr};
}

// The interface of the factory itself, and further views.
template <class Object>
Made made(Object* object, const std::vector<View>& more = {}) {
  Made result{object, {view<Object>(object)}};
  result.views.insert(result.views.end(), more.begin(), more.end());
  return result;
}

template <class Effect>
Made madeEffect(Effect* effect) {
  ZOL::IParamObjectData* const data = effect;
  // On purpose the name of the cloning interface gives the view of its child.
  return made(effect, {view<ZOL::IParamObjectData>(data), {"IDmDeepClonableObj", data}});
}

template <class Effect>
Made madeRelinkingEffect(Effect* effect) {
  Made result = madeEffect(effect);
  result.views.push_back(view<ZOL::IRelinkEffectData>(effect));
  return result;
}

template <class Media>
Made madeMedia(Media* media) {
  return made(media, {view<ZOL::IZolMediaData>(media)});
}

const Row kRows[] = {
    {"createZolString", [] { return made(createZolString()); }},
    {"createZolPChar", [] { return made(createZolPChar()); }},
    {"createDataSizeBuffer", [] { return made(createDataSizeBuffer()); }},
    {"createZolParam", [] { return made(createZolParam(), {hidden<ZOL::IZolParamInternal>()}); }},
    {"createRelinkEffectData", [] { return madeEffect(createRelinkEffectData()); }},
    {"createResourceMediaData", [] { return madeEffect(createResourceMediaData()); }},
    {"createIAiPortraitV2Data", [] { return madeEffect(createIAiPortraitV2Data()); }},
    {"createRemoveBackgroundData",
     [] { return madeRelinkingEffect(createRemoveBackgroundData()); }},
    {"createAITemplateGenerateData",
     [] { return madeRelinkingEffect(createAITemplateGenerateData()); }},
    {"createImageStylizesData", [] { return madeRelinkingEffect(createImageStylizesData()); }},
    {"createEmptyMediaData", [] { return made(createEmptyMediaData()); }},
    {"createMediaData", [] { return made(createMediaData(1, 1, nullptr, 1, 0)); }},
    {"createBGRData", [] { return madeMedia(createBGRData(1, 1, nullptr, 1, 0)); }},
    {"createBGRAData", [] { return madeMedia(createBGRAData(1, 1, nullptr, 1, 0)); }},
    {"createMaskInfoData", [] { return made(createMaskInfoData()); }},
    {"createEffectInfo", [] { return made(createEffectInfo()); }},
    {"createPluginInfo", [] { return made(createPluginInfo()); }},
    {"createPanZoomPair", [] { return made(createPanZoomPair()); }},
    {"createFaceClusterInfo", [] { return made(createFaceClusterInfo()); }},
    {"createVoiceDataInfo", [] { return made(createVoiceDataInfo()); }},
    {"createLoraTextToImageHistoryInfo", [] { return made(createLoraTextToImageHistoryInfo()); }},
    {"createScriptSceneInfo", [] { return made(createScriptSceneInfo()); }},
    {"createScriptClipInfo", [] { return made(createScriptClipInfo()); }},
    {"createScriptEventSoundInfo", [] { return made(createScriptEventSoundInfo()); }},
    {"createScriptCharactersIfInfo", [] { return made(createScriptCharactersIfInfo()); }},
    {"createScriptCharacterInfo", [] { return made(createScriptCharacterInfo()); }},
    {"createZolResSerializeInfo",
     [] {
       auto* const info = createZolResSerializeInfo();
       return made(info,
                   {{"ZolResSerializeInfo", info}, hidden<ZOL::IZolResSerializeInfoInternal>()});
     }},
    {"createCutScripts", [] { return made(createCutScripts("[]")); }},
    {"createStoryboardInfo",
     [] { return made(createStoryboardInfo(), {hidden<ZOL::IZolStoryboardInfoInternal>()}); }},
    {"createSmartCutClipInfo",
     [] { return made(createSmartCutClipInfo(), {hidden<ZOL::IZolSmartCutClipInfoInternal>()}); }},
    {"createTextInfo",
     [] { return made(createTextInfo(), {hidden<ZOL::IZolTextInfoInternal>()}); }},
    {"createTargetScreenInfo",
     [] { return made(createTargetScreenInfo(), {hidden<ZOL::IZolTargetScreenInfoInternal>()}); }},
    {"createHighlightInfo",
     [] { return made(createHighlightInfo(), {hidden<ZOL::IZolHighlightInfoInternal>()}); }},
    {"createMusicInfo",
     [] { return made(createMusicInfo(), {hidden<ZOL::IZolMusicInfoInternal>()}); }},
    {"createSliceItem",
     [] { return made(createSliceItem(), {hidden<ZOL::IZolSliceItemInternal>()}); }},
    {"createDemensionsItem",
     [] { return made(createDemensionsItem(), {hidden<ZOL::IZolDemensionsItemInternal>()}); }},
    {"createKeyMatrixInfo",
     [] { return made(createKeyMatrixInfo("{}"), {hidden<ZOL::IZolKeyMatrixInfoInternal>()}); }},
    {"createSmartCutSearchResult", [] { return made(createSmartCutSearchResult()); }},
    {"createSmartCutSearchDimensionsResult",
     [] { return made(createSmartCutSearchDimensionsResult()); }},
    {"createSmartCutSearchDimensionsResultItem",
     [] { return made(createSmartCutSearchDimensionsResultItem()); }},
    {"createRoleSearchItemInfo", [] { return made(createRoleSearchItemInfo()); }},
    {"createStageReportData",
     [] { return made(createStageReportData(1, "name", 2, 3, "message", "detail")); }},
};

// Every name that some object answers, and some that none does.
std::set<std::string> everyName() {
  std::set<std::string> names = {"IDmBaseObj", "listData", "ZOLIntList",   "IReleaseHook",
                                 "ZolString",  "ZolParam", "ZolMediaData", "idmbaseobj"};
  for (const Row& row : kRows) {
    const Made made = row.make();
    for (const View& each : made.views) names.insert(each.name);
    made.object->release();
  }
  return names;
}

TEST(EveryObject, IsMadeWithOneReference) {
  for (const Row& row : kRows) {
    const Held<ZOL::IDmBaseObj> object(row.make().object);
    EXPECT_EQ(object->refCount(), 1) << row.factory;
    EXPECT_EQ(object->addRef(), 2) << row.factory;
    EXPECT_EQ(object->release(), 1) << row.factory;
    EXPECT_EQ(object->releaseHook(), nullptr) << row.factory;
  }
}

TEST(EveryObject, AnswersItsNamesAndNoOthers) {
  const std::set<std::string> names = everyName();
  for (const Row& row : kRows) {
    const Made made = row.make();
    const Held<ZOL::IDmBaseObj> object(made.object);
    EXPECT_EQ(object->queryInterface("IDmBaseObj"), object.get()) << row.factory;
    EXPECT_EQ(object->queryInterface(""), nullptr) << row.factory;
    for (const std::string& name : names) {
      if (name == "IDmBaseObj") continue;
      const auto answered = std::find_if(made.views.begin(), made.views.end(),
                                         [&name](const View& each) { return each.name == name; });
      const void* const found = object->queryInterface(name.c_str());
      if (answered == made.views.end()) {
        EXPECT_EQ(found, nullptr) << row.factory << " " << name;
      } else if (answered->address) {
        EXPECT_EQ(found, answered->address) << row.factory << " " << name;
      } else {
        EXPECT_NE(found, nullptr) << row.factory << " " << name;
      }
    }
    EXPECT_EQ(object->refCount(), 1) << row.factory << ": a query adds no reference";
  }
}

TEST(EveryObject, AnswersNoNameInAnotherCaseOrWithMoreBehindIt) {
  for (const Row& row : kRows) {
    const Made made = row.make();
    const Held<ZOL::IDmBaseObj> object(made.object);
    for (const View& each : made.views) {
      std::string other = each.name;
      other[0] = 'i';
      EXPECT_EQ(object->queryInterface((each.name + " ").c_str()), nullptr) << row.factory;
      EXPECT_EQ(object->queryInterface(each.name.substr(1).c_str()),
                each.name == "IZolResSerializeInfo" ? each.address : nullptr)
          << row.factory;
      if (other != each.name) {
        EXPECT_EQ(object->queryInterface(other.c_str()), nullptr) << row.factory;
      }
    }
  }
}

TEST(EveryObject, TellsItsHookOnceWhenItEnds) {
  for (const Row& row : kRows) {
    CountingHook old;
    CountingHook hook;
    ZOL::IDmBaseObj* const object = row.make().object;
    object->setReleaseHook(&old);
    object->setReleaseHook(&hook);
    EXPECT_EQ(object->releaseHook(), &hook) << row.factory;
    object->addRef();
    object->release();
    EXPECT_EQ(hook.calls, 0) << row.factory;
    EXPECT_EQ(object->release(), 0) << row.factory;
    EXPECT_EQ(hook.calls, 1) << row.factory;
    EXPECT_EQ(old.calls, 0) << row.factory << ": the old hook is forgotten";
  }
}

TEST(EveryObject, ForgetsAHookThatIsCleared) {
  for (const Row& row : kRows) {
    CountingHook hook;
    ZOL::IDmBaseObj* const object = row.make().object;
    object->setReleaseHook(&hook);
    object->setReleaseHook(nullptr);
    EXPECT_EQ(object->releaseHook(), nullptr) << row.factory;
    object->release();
    EXPECT_EQ(hook.calls, 0) << row.factory;
  }
}

// While the hook runs the object is whole, and dead: it answers, and takes no reference.
TEST(EveryObject, IsWholeAndDeadWhileItsHookRuns) {
  class Reviver final : public ZOL::IReleaseHook {
   public:
    explicit Reviver(ZOL::IDmBaseObj* object) : object_(object) {}
    void onLastRelease() override {
      root = object_->queryInterface("IDmBaseObj");
      counts = {object_->refCount(), object_->addRef(), object_->release(), object_->refCount()};
    }
    const void* root = nullptr;
    std::vector<int> counts;

   private:
    ZOL::IDmBaseObj* const object_;
  };
  for (const Row& row : kRows) {
    ZOL::IDmBaseObj* const object = row.make().object;
    Reviver reviver(object);
    object->setReleaseHook(&reviver);
    EXPECT_EQ(object->release(), 0) << row.factory;
    EXPECT_EQ(reviver.root, object) << row.factory;
    EXPECT_EQ(reviver.counts, std::vector<int>({0, 0, 0, 0})) << row.factory;
  }
}

TEST(EffectData, AnswersTheCloningInterfaceAndATextDoesNot) {
  const Held<ZOL::IRelinkEffectData> effect(createRelinkEffectData());
  const Held<ZOL::IZolString> text(createZolString());
  EXPECT_NE(effect->queryInterface("IDmDeepClonableObj"), nullptr);
  EXPECT_EQ(text->queryInterface("IDmDeepClonableObj"), nullptr);
}

TEST(EffectData, ClonesThroughTheCloningInterfaceWithAReferenceForTheCaller) {
  const Held<ZOL::IRelinkEffectData> effect(createRelinkEffectData());
  effect->setParam(4, "four");
  auto* const clonable = ZOL::query<ZOL::IDmDeepClonableObj>(effect.get());
  const Held<ZOL::IDmDeepClonableObj> clone(clonable->deepClone());
  EXPECT_EQ(clone->refCount(), 1);
  EXPECT_STREQ(ZOL::query<ZOL::IRelinkEffectData>(clone.get())->param(4), "four");
}

}  // namespace
