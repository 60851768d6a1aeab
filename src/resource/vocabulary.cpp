// The words of a description: folder names, products, aspect rates and the keys.

#include <KyDataStructure/resource.h>

#include <algorithm>
#include <iterator>

namespace ZOL {

namespace resSerializeInfoPropKey {
const char* const rsResType = "rsResType";
const char* const rsResSubType = "rsResSubType";
const char* const rsResSourceType = "rsResSourceType";
const char* const rsResOpenFxSubType = "rsResOpenFxSubType";
const char* const rsResId = "rsResId";
const char* const rsResStockMediaStrId = "rsResStockMediaStrId";
const char* const rsResSlug = "rsResSlug";
const char* const rsResInfoType = "rsResInfoType";
const char* const rsResRelatedSlug = "rsResRelatedSlug";
const char* const rsResRate = "rsResRate";
const char* const rsResSaleMode = "rsResSaleMode";
const char* const rsResIsCustom = "rsResIsCustom";
const char* const rsResPackId = "rsResPackId";
const char* const rsResPackSlug = "rsResPackSlug";
const char* const rsResMeidaSize = "rsResMeidaSize";
const char* const rsResMeidaSizeFormat = "rsResMeidaSizeFormat";
const char* const rsResMeidaType = "rsResMeidaType";
const char* const rsResMeidaFilePath = "rsResMeidaFilePath";
const char* const rsResRelatedTemplateSlug = "rsResRelatedTemplateSlug";
const char* const rsResRelatedTemplateType = "rsResRelatedTemplateType";
const char* const rsResRelatedPresetSlug = "rsResRelatedPresetSlug";
const char* const rsResState = "rsResState";
const char* const rsResMultiOriginFile = "rsResMultiOriginFile";
const char* const rsResIsMultiFunctional = "rsResIsMultiFunctional";
const char* const rsResOriginSlug = "rsResOriginSlug";
const char* const rsResOriginId = "rsResOriginId";
}  // namespace resSerializeInfoPropKey

namespace resSerializeInfoUserStringKey {
const char* const rsiusAnimatedSttStateType = "rsiusAnimatedSttStateType";
const char* const rsiusOpenFxPluginName = "rsiusOpenFxPluginName";
const char* const rsiusVST3PluginName = "rsiusVST3PluginName";
const char* const rsiusCustomRsMd5 = "rsiusCustomRsMd5";
}  // namespace resSerializeInfoUserStringKey

namespace zolFileTagKey {
const char* const ai_task_id = "task_id";
const char* const ai_label = "Lables";
const char* const ai_dynamic_setting = "zol_ai_setting";
const char* const ai_effectres_buf = "zol_ai_effectres_buf";
const char* const file_group_id = "GroupId";
const char* const file_group_name = "GroupName";
const char* const file_group_time = "GroupCreateTime";
const char* const zol_tag_version_key = "zol_tag_version_key";
const char* const zol_tag_version = "1.0";
const char* const parent_file_id = "parent_file_id";
}  // namespace zolFileTagKey

namespace {

struct Folder {
  int code;
  const char* name;
};

// By code; a code that is missing is not assigned. On purpose 25, the type of every
// stock item, has an empty name and not the one of unknown types.
// clang-format off
constexpr Folder kFolders[] = {
    {0, "resComposite"},                 {1, "title"},                        {2, "transition"},
    {3, "filter"},                       {4, "overlay"},                      {5, "montage"},
    {6, "audio"},                        {7, "element"},                      {8, "media"},
    {9, "template"},                     {10, "resCaption"},                  {11, "resAnnotations"},
    {12, "resSticker"},                  {13, "resCursor"},                   {14, "backgroundremoval"},
    {15, "audioeffect"},                 {16, "arstickers"},                  {17, "resScences"},
    {18, "resBackground"},               {19, "resProp"},                     {20, "resCharacter"},
    {21, "videoeffects"},                {22, "openFxeffects"},               {24, "compentTemplate"},
    {25, ""},                            {26, "resBorder"},                   {27, "resTextAnimation"},
    {28, "resClipMotion"},               {29, "resClipBackgrond"},            {30, "resReelkinComponent"},
    {31, "resReelkinPuppet"},            {32, "resReelkinSkeleton"},          {33, "resVirtualHuman"},
    {34, "audioVisualEditEffect"},       {35, "resFont"},                     {36, "resScript"},
    {37, "CombinationEffects"},          {38, "resTutorial"},                 {39, "VCGResource"},
    {40, "resCustomProperties"},         {41, "resAdjustLayer"},              {42, "resAction"},
    {43, "res3DTexture"},                {44, "resVFXText"},                  {45, "resFluentEmoji"},
    {46, "resNewAudio"},                 {47, "resAudioSound"},               {52, "resSLPosterTemplate"},
    {55, "resXPCVideo"},                 {57, "resBundleTemplate"},           {58, "resThumbnailTemplate"},
    {59, "resIntroTemplate"},            {60, "resPreset"},                   {61, "resAiPainting"},
    {64, "resComponentClip"},            {65, "resAiVideo"},                  {66, "resAiFilter"},
    {67, "border"},                      {68, "resMuscle"},                   {69, "resAiPhotoshoot"},
    {70, "resAiZoom"},                   {82, "resLogoReveal"},               {83, "resFilterNew"},
    {84, "resGettyPicture"},             {85, "resAnimmateStt"},              {86, "resAIGeneration"},
    {89, "resAIPortaitHairLevel"},       {96, "resMusicUmc"},                 {97, "resAILongToShort"},
    {98, "resSoundEffectTransition"},    {105, "resAIAudioToVideo"},          {106, "resImageToVideo"},
    {110, "resEffectPreset"},            {111, "resResBgmForImageToVideo"},   {112, "resTitlePreset"},
    {113, "resAnimmateSttAnimation"},    {114, "resCompsiteAnimmateStt"},     {115, "resVideoTutorials"},
    {117, "resAiCrossPlatformTemplate"}, {119, "resAiTextToVideo"},           {120, "resBubbleText"},
    {121, "resImageToImage"},            {143, "resPikaSwapTemplate"},        {144, "resPikaAdditionTemplate"},
    {145, "resPikaPresetImage"},         {146, "resVeoTemplate"},             {147, "resMediaColorPreset"},
    {155, "resSubjectSmartCutoutPreset"}, {162, "resPathEffectShapeStrokePreset"}, {164, "resAIRelight"},
    {167, "resAIMosaic"},
};
// clang-format on
static_assert(std::size(kFolders) == 91);

constexpr const char* kUnknownFolder = "UnkownResType";

const char* folderOf(long long resType) {
  const auto* const folder =
      std::lower_bound(std::begin(kFolders), std::end(kFolders), resType,
                       [](const Folder& row, long long code) { return row.code < code; });
  return folder != std::end(kFolders) && folder->code == resType ? folder->name : kUnknownFolder;
}

}  // namespace
}  // namespace ZOL

int getResourceFolderString(long long resType, ZOL::IZolString* out) {
  if (!out) return ZOL::kRefused;
  out->setText(ZOL::folderOf(resType), -1);
  return ZOL::kSuccess;
}

const char* getProductlineString(int code) {
  if (code == 4 || code == 5) return "ScreenLoom";
  if (code >= 7 && code <= 12) return "CorvidMobile";
  return "Corvid";
}

const char* getResourceRateStr(int rate) {
  static constexpr const char* kRates[] = {"1_1", "3_4", "4_3", "9_16", "16_9", "21_9", "All"};
  return rate >= 0 && rate < static_cast<int>(std::size(kRates)) ? kRates[rate] : "";
}
