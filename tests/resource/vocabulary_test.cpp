// The words: folders, products, aspect rates and the constant keys.

#include <KyDataStructure/resource.h>
#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <string>

#include "resource/description.h"
#include "support/foreign_string.h"

namespace {

// An empty folder name is a name.
const std::map<long long, std::string>& folders() {
  static const std::map<long long, std::string> folders = {
      {0, "resComposite"},
      {1, "title"},
      {2, "transition"},
      {3, "filter"},
      {4, "overlay"},
      {5, "montage"},
      {6, "audio"},
      {7, "element"},
      {8, "media"},
      {9, "template"},
      {10, "resCaption"},
      {11, "resAnnotations"},
      {12, "resSticker"},
      {13, "resCursor"},
      {14, "backgroundremoval"},
      {15, "audioeffect"},
      {16, "arstickers"},
      {17, "resScences"},
      {18, "resBackground"},
      {19, "resProp"},
      {20, "resCharacter"},
      {21, "videoeffects"},
      {22, "openFxeffects"},
      {24, "compentTemplate"},
      {25, ""},
      {26, "resBorder"},
      {27, "resTextAnimation"},
      {28, "resClipMotion"},
      {29, "resClipBackgrond"},
      {30, "resReelkinComponent"},
      {31, "resReelkinPuppet"},
      {32, "resReelkinSkeleton"},
      {33, "resVirtualHuman"},
      {34, "audioVisualEditEffect"},
      {35, "resFont"},
      {36, "resScript"},
      {37, "CombinationEffects"},
      {38, "resTutorial"},
      {39, "VCGResource"},
      {40, "resCustomProperties"},
      {41, "resAdjustLayer"},
      {42, "resAction"},
      {43, "res3DTexture"},
      {44, "resVFXText"},
      {45, "resFluentEmoji"},
      {46, "resNewAudio"},
      {47, "resAudioSound"},
      {52, "resSLPosterTemplate"},
      {55, "resXPCVideo"},
      {57, "resBundleTemplate"},
      {58, "resThumbnailTemplate"},
      {59, "resIntroTemplate"},
      {60, "resPreset"},
      {61, "resAiPainting"},
      {64, "resComponentClip"},
      {65, "resAiVideo"},
      {66, "resAiFilter"},
      {67, "border"},
      {68, "resMuscle"},
      {69, "resAiPhotoshoot"},
      {70, "resAiZoom"},
      {82, "resLogoReveal"},
      {83, "resFilterNew"},
      {84, "resGettyPicture"},
      {85, "resAnimmateStt"},
      {86, "resAIGeneration"},
      {89, "resAIPortaitHairLevel"},
      {96, "resMusicUmc"},
      {97, "resAILongToShort"},
      {98, "resSoundEffectTransition"},
      {105, "resAIAudioToVideo"},
      {106, "resImageToVideo"},
      {110, "resEffectPreset"},
      {111, "resResBgmForImageToVideo"},
      {112, "resTitlePreset"},
      {113, "resAnimmateSttAnimation"},
      {114, "resCompsiteAnimmateStt"},
      {115, "resVideoTutorials"},
      {117, "resAiCrossPlatformTemplate"},
      {119, "resAiTextToVideo"},
      {120, "resBubbleText"},
      {121, "resImageToImage"},
      {143, "resPikaSwapTemplate"},
      {144, "resPikaAdditionTemplate"},
      {145, "resPikaPresetImage"},
      {146, "resVeoTemplate"},
      {147, "resMediaColorPreset"},
      {155, "resSubjectSmartCutoutPreset"},
      {162, "resPathEffectShapeStrokePreset"},
      {164, "resAIRelight"},
      {167, "resAIMosaic"},
  };
  return folders;
}

std::string folderOf(long long code) {
  const Held<ZOL::IZolString> out = zolString("what was here");
  EXPECT_EQ(getResourceFolderString(code, out.get()), ZOL::kSuccess) << code;
  return bytesIn(*out);
}

TEST(Vocabulary, NamesTheFolderOfEachCode) {
  ASSERT_EQ(folders().size(), 91u);
  for (long long code = -5; code <= 200; ++code) {
    const auto row = folders().find(code);
    EXPECT_EQ(folderOf(code), row == folders().end() ? "UnkownResType" : row->second) << code;
  }
}

TEST(Vocabulary, HasNoFolderForAGapNorOutsideTheTable) {
  for (const long long code : {23LL, 48LL, 166LL, 168LL, -1LL, LLONG_MIN, LLONG_MAX, 1LL << 32,
                               (1LL << 32) + 1, (1LL << 32) + 25, -(1LL << 32) + 1}) {
    EXPECT_EQ(folderOf(code), "UnkownResType") << code;
  }
}

TEST(Vocabulary, GivesStockItemsAnEmptyFolderAndNotTheUnknownOne) { EXPECT_EQ(folderOf(25), ""); }

TEST(Vocabulary, RefusesToNameAFolderNowhere) {
  EXPECT_EQ(getResourceFolderString(0, nullptr), 1001);
  EXPECT_EQ(getResourceFolderString(-1, nullptr), 1001);
}

TEST(Vocabulary, NamesAFolderInAnyStringObject) {
  ForeignString out;
  EXPECT_EQ(getResourceFolderString(28, &out), 0);
  EXPECT_EQ(getResourceFolderString(25, &out), 0);
  EXPECT_EQ(out.calls, "setText(resClipMotion, -1)setText(, -1)");
}

TEST(Vocabulary, NamesTheProductOfEachCode) {
  for (int code = -20; code <= 40; ++code) {
    std::string product = "Corvid";
    if (code == 4 || code == 5) product = "ScreenLoom";
    if (code >= 7 && code <= 12) product = "CorvidMobile";
    EXPECT_EQ(getProductlineString(code), product) << code;
  }
  for (const int code : {INT_MIN, INT_MAX}) EXPECT_STREQ(getProductlineString(code), "Corvid");
}

TEST(Vocabulary, SpellsTheRateOfEachCode) {
  const std::map<int, std::string> rates = {{0, "1_1"},  {1, "3_4"},  {2, "4_3"}, {3, "9_16"},
                                            {4, "16_9"}, {5, "21_9"}, {6, "All"}};
  for (int code = -20; code <= 40; ++code) {
    const auto row = rates.find(code);
    EXPECT_EQ(getResourceRateStr(code), row == rates.end() ? "" : row->second) << code;
  }
  for (const int code : {INT_MIN, INT_MAX}) EXPECT_STREQ(getResourceRateStr(code), "");
}

TEST(Vocabulary, HasNoRateForAnUnsetDescription) {
  const Held<Info> info = newInfo();
  const auto unset = static_cast<int>(inside(info).intValue("rsResRate"));
  EXPECT_EQ(unset, -1);
  EXPECT_STREQ(getResourceRateStr(unset), "");
}

// The same pointer each time: nothing is made for the call.
TEST(Vocabulary, LendsTextsThatStay) {
  for (int code = -2; code <= 14; ++code) {
    const char* const product = getProductlineString(code);
    const char* const rate = getResourceRateStr(code);
    ASSERT_NE(product, nullptr);
    ASSERT_NE(rate, nullptr);
    EXPECT_EQ(getProductlineString(code), product);
    EXPECT_EQ(getResourceRateStr(code), rate);
  }
}

TEST(Vocabulary, HasEachConstantKey) {
  namespace prop = ZOL::resSerializeInfoPropKey;
  namespace user = ZOL::resSerializeInfoUserStringKey;
  namespace tag = ZOL::zolFileTagKey;
  const struct {
    const char* constant;
    const char* text;
  } rows[] = {
      {prop::rsResType, "rsResType"},
      {prop::rsResSubType, "rsResSubType"},
      {prop::rsResSourceType, "rsResSourceType"},
      {prop::rsResOpenFxSubType, "rsResOpenFxSubType"},
      {prop::rsResId, "rsResId"},
      {prop::rsResStockMediaStrId, "rsResStockMediaStrId"},
      {prop::rsResSlug, "rsResSlug"},
      {prop::rsResInfoType, "rsResInfoType"},
      {prop::rsResRelatedSlug, "rsResRelatedSlug"},
      {prop::rsResRate, "rsResRate"},
      {prop::rsResSaleMode, "rsResSaleMode"},
      {prop::rsResIsCustom, "rsResIsCustom"},
      {prop::rsResPackId, "rsResPackId"},
      {prop::rsResPackSlug, "rsResPackSlug"},
      {prop::rsResMeidaSize, "rsResMeidaSize"},
      {prop::rsResMeidaSizeFormat, "rsResMeidaSizeFormat"},
      {prop::rsResMeidaType, "rsResMeidaType"},
      {prop::rsResMeidaFilePath, "rsResMeidaFilePath"},
      {prop::rsResRelatedTemplateSlug, "rsResRelatedTemplateSlug"},
      {prop::rsResRelatedTemplateType, "rsResRelatedTemplateType"},
      {prop::rsResRelatedPresetSlug, "rsResRelatedPresetSlug"},
      {prop::rsResState, "rsResState"},
      {prop::rsResMultiOriginFile, "rsResMultiOriginFile"},
      {prop::rsResIsMultiFunctional, "rsResIsMultiFunctional"},
      {prop::rsResOriginSlug, "rsResOriginSlug"},
      {prop::rsResOriginId, "rsResOriginId"},
      {user::rsiusAnimatedSttStateType, "rsiusAnimatedSttStateType"},
      {user::rsiusOpenFxPluginName, "rsiusOpenFxPluginName"},
      {user::rsiusVST3PluginName, "rsiusVST3PluginName"},
      {user::rsiusCustomRsMd5, "rsiusCustomRsMd5"},
      {tag::ai_task_id, "task_id"},
      {tag::ai_label, "Lables"},
      {tag::ai_dynamic_setting, "zol_ai_setting"},
      {tag::ai_effectres_buf, "zol_ai_effectres_buf"},
      {tag::file_group_id, "GroupId"},
      {tag::file_group_name, "GroupName"},
      {tag::file_group_time, "GroupCreateTime"},
      {tag::zol_tag_version_key, "zol_tag_version_key"},
      {tag::zol_tag_version, "1.0"},
      {tag::parent_file_id, "parent_file_id"},
  };
  static_assert(sizeof rows / sizeof *rows == 40, "each of them");
  for (const auto& row : rows) EXPECT_STREQ(row.constant, row.text);
}

// The library's constant and an equal text from elsewhere are one key.
TEST(Vocabulary, ComparesKeysByTheirText) {
  const Held<Info> info = newInfo();
  const std::string own = "rsResState";
  ASSERT_NE(own.c_str(), ZOL::resSerializeInfoPropKey::rsResState);
  EXPECT_EQ(inside(info).setIntValue(ZOL::resSerializeInfoPropKey::rsResState, 7), 0);
  EXPECT_EQ(inside(info).intValue(own.c_str()), 7);
  EXPECT_EQ(inside(info).setIntValue(own.c_str(), 8), 0);
  EXPECT_EQ(inside(info).intValue(ZOL::resSerializeInfoPropKey::rsResState), 8);
  const std::string ownUserKey = "rsiusCustomRsMd5";
  EXPECT_EQ(info->setUserString(ownUserKey.c_str(), "a"), 0);
  EXPECT_STREQ(info->userString(ZOL::resSerializeInfoUserStringKey::rsiusCustomRsMd5), "a");
}

}  // namespace
