// The tests' own copy of the tables: every property and user string with the name
// under which it travels.

#ifndef KYDATASTRUCTURE_TESTS_RESOURCE_PROPERTY_ROWS_H_
#define KYDATASTRUCTURE_TESTS_RESOURCE_PROPERTY_ROWS_H_

// Where the normal form has a property: as a member of the outermost object, or in
// one of the groups.
enum class Travels { asInteger, asText, inGroup };

struct PropertyRow {
  const char* key;
  const char* jsonName;
  Travels travels;
  long long unset;
};

// By key.
constexpr PropertyRow kPropertyRows[] = {
    {"rsResId", "id", Travels::asInteger, 0},
    {"rsResInfoType", "infoType", Travels::asInteger, 0},
    {"rsResIsCustom", "is_custom", Travels::asInteger, 0},
    {"rsResIsMultiFunctional", "smart_resource", Travels::asInteger, 0},
    {"rsResMeidaFilePath", "vcg_media_path", Travels::asText, 0},
    {"rsResMeidaSize", "res_media_size", Travels::asInteger, 0},
    {"rsResMeidaSizeFormat", "currentLimitSize", Travels::asText, 0},
    {"rsResMeidaType", "mediaType", Travels::asInteger, 0},
    {"rsResMultiOriginFile", "smart_res_relative_path", Travels::asText, 0},
    {"rsResOpenFxSubType", "openFx_sub_element_type", Travels::inGroup, 0},
    {"rsResOriginId", "resource_origin_id", Travels::asInteger, 0},
    {"rsResOriginSlug", "resource_origin_slug", Travels::asText, 0},
    {"rsResPackId", "pack_id", Travels::inGroup, 0},
    {"rsResPackSlug", "pack_name", Travels::inGroup, 0},
    {"rsResRate", "resourceRate", Travels::asInteger, -1},
    {"rsResRelatedPresetSlug", "related_preset_slug", Travels::asText, 0},
    {"rsResRelatedSlug", "related_slug", Travels::asText, 0},
    {"rsResRelatedTemplateSlug", "related_template_slug", Travels::asText, 0},
    {"rsResRelatedTemplateType", "related_template_type", Travels::asInteger, -1},
    {"rsResSaleMode", "sale_mode", Travels::asInteger, -1},
    {"rsResSlug", "name", Travels::asText, 0},
    {"rsResSourceType", "source", Travels::asInteger, 0},
    {"rsResState", "resourceState", Travels::asInteger, 0},
    {"rsResStockMediaStrId", "real_id", Travels::asText, 0},
    {"rsResSubType", "res_sub_type", Travels::asInteger, 0},
    {"rsResType", "res_type", Travels::asInteger, -1},
};
static_assert(sizeof kPropertyRows / sizeof *kPropertyRows == 26, "one row for each property");

struct UserStringRow {
  const char* key;
  const char* jsonName;
};

constexpr UserStringRow kUserStringRows[] = {
    {"rsiusAnimatedSttStateType", "animated_stt_state_type"},
    {"rsiusCustomRsMd5", "customRsMd5"},
    {"rsiusOpenFxPluginName", "openfx_plugin_name"},
    {"rsiusVST3PluginName", "vst3_plugin_name"},
};

#endif  // KYDATASTRUCTURE_TESTS_RESOURCE_PROPERTY_ROWS_H_
