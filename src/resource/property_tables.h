// The tables that type a resource description: which properties and user strings
// there are, under which JSON name each travels, as what, and what an unset number
// reads as. Constant data; a new property is a new row.
//
// Rows stand in ascending byte-wise order of their keys, which is the order of every
// walk. A property is named by its row in resPropTable.

#ifndef KYDATASTRUCTURE_RESOURCE_PROPERTY_TABLES_H_
#define KYDATASTRUCTURE_RESOURCE_PROPERTY_TABLES_H_

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include "json/names.h"

namespace ZOL {

enum Prop : unsigned char {
  kResId,
  kResInfoType,
  kResIsCustom,
  kResIsMultiFunctional,
  kResMeidaFilePath,
  kResMeidaSize,
  kResMeidaSizeFormat,
  kResMeidaType,
  kResMultiOriginFile,
  kResOpenFxSubType,
  kResOriginId,
  kResOriginSlug,
  kResPackId,
  kResPackSlug,
  kResRate,
  kResRelatedPresetSlug,
  kResRelatedSlug,
  kResRelatedTemplateSlug,
  kResRelatedTemplateType,
  kResSaleMode,
  kResSlug,
  kResSourceType,
  kResState,
  kResStockMediaStrId,
  kResSubType,
  kResType,
  kPropCount,
};

enum class ValueKind : unsigned char {
  group = 0,    // travels in one of the groups, and a walk passes over it
  integer = 4,  // the numbers are those of _Property::type
  text = 7,
};

struct ResProp {
  Prop prop;
  std::string_view key;
  std::string_view jsonKey;
  ValueKind valueKind;
  long long unset;  // what an integer that is not held reads as
};

// The columns are the point.
// clang-format off
inline constexpr std::array<ResProp, kPropCount> resPropTable = {{
    // property               key                         JSON name                  kind              unset
    {kResId,                  "rsResId",                  "id",                      ValueKind::integer,  0},
    {kResInfoType,            "rsResInfoType",            "infoType",                ValueKind::integer,  0},
    {kResIsCustom,            "rsResIsCustom",            "is_custom",               ValueKind::integer,  0},
    {kResIsMultiFunctional,   "rsResIsMultiFunctional",   "smart_resource",          ValueKind::integer,  0},
    {kResMeidaFilePath,       "rsResMeidaFilePath",       "vcg_media_path",          ValueKind::text,     0},
    {kResMeidaSize,           "rsResMeidaSize",           "res_media_size",          ValueKind::integer,  0},
    {kResMeidaSizeFormat,     "rsResMeidaSizeFormat",     "currentLimitSize",        ValueKind::text,     0},
    {kResMeidaType,           "rsResMeidaType",           "mediaType",               ValueKind::integer,  0},
    {kResMultiOriginFile,     "rsResMultiOriginFile",     "smart_res_relative_path", ValueKind::text,     0},
    {kResOpenFxSubType,       "rsResOpenFxSubType",       "openFx_sub_element_type", ValueKind::group,    0},
    {kResOriginId,            "rsResOriginId",            "resource_origin_id",      ValueKind::integer,  0},
    {kResOriginSlug,          "rsResOriginSlug",          "resource_origin_slug",    ValueKind::text,     0},
    {kResPackId,              "rsResPackId",              "pack_id",                 ValueKind::group,    0},
    {kResPackSlug,            "rsResPackSlug",            "pack_name",               ValueKind::group,    0},
    {kResRate,                "rsResRate",                "resourceRate",            ValueKind::integer, -1},
    {kResRelatedPresetSlug,   "rsResRelatedPresetSlug",   "related_preset_slug",     ValueKind::text,     0},
    {kResRelatedSlug,         "rsResRelatedSlug",         "related_slug",            ValueKind::text,     0},
    {kResRelatedTemplateSlug, "rsResRelatedTemplateSlug", "related_template_slug",   ValueKind::text,     0},
    {kResRelatedTemplateType, "rsResRelatedTemplateType", "related_template_type",   ValueKind::integer, -1},
    {kResSaleMode,            "rsResSaleMode",            "sale_mode",               ValueKind::integer, -1},
    {kResSlug,                "rsResSlug",                "name",                    ValueKind::text,     0},
    {kResSourceType,          "rsResSourceType",          "source",                  ValueKind::integer,  0},
    {kResState,               "rsResState",               "resourceState",           ValueKind::integer,  0},
    {kResStockMediaStrId,     "rsResStockMediaStrId",     "real_id",                 ValueKind::text,     0},
    {kResSubType,             "rsResSubType",             "res_sub_type",            ValueKind::integer,  0},
    {kResType,                "rsResType",                "res_type",                ValueKind::integer, -1},
}};

// A row of a table that gives a property another name.
struct PropRow {
  Prop prop;
  std::string_view jsonKey;
  ValueKind valueKind;
};

// The further names of a full record, walked behind resPropTable. On purpose: two
// properties read "element_sub_type", and the pack id is a text here, which the
// validity of a pack does not look at.
inline constexpr std::array<PropRow, 7> completeResPropTable = {{
    {kResOpenFxSubType, "element_sub_type", ValueKind::integer},
    {kResPackId,        "pack_id",          ValueKind::text},
    {kResPackSlug,      "pack_name",        ValueKind::text},
    {kResSlug,          "slug",             ValueKind::text},
    {kResSourceType,    "source",           ValueKind::integer},
    {kResSubType,       "element_sub_type", ValueKind::integer},
    {kResType,          "type",             ValueKind::integer},
}};

// The names of a VCG record. "res_type" is another property here than elsewhere.
inline constexpr std::array<PropRow, 3> vcgResPropTable = {{
    {kResId,        "res_id",   ValueKind::integer},
    {kResMeidaType, "res_type", ValueKind::integer},
    {kResState,     "status",   ValueKind::integer},
}};

struct UserString {
  std::string_view key;
  std::string_view jsonKey;
};

inline constexpr std::array<UserString, 4> userStringTable = {{
    {"rsiusAnimatedSttStateType", "animated_stt_state_type"},
    {"rsiusCustomRsMd5",          "customRsMd5"},
    {"rsiusOpenFxPluginName",     "openfx_plugin_name"},
    {"rsiusVST3PluginName",       "vst3_plugin_name"},
}};

// clang-format on

// The nested members of the normal form.
inline constexpr std::string_view kPackInfo = "pack_info";
inline constexpr std::string_view kExtensionInfo = "extension_info";
inline constexpr std::string_view kRelatedResList = "related_res_list";
inline constexpr std::string_view kUserStrings = "user_string";

template <class Row, std::size_t N, std::size_t... Is>
constexpr auto namesOfKeys(const std::array<Row, N>& table, std::index_sequence<Is...>) {
  return json::Names<N>({table[Is].key...});
}

inline constexpr auto kPropKeys = namesOfKeys(resPropTable, std::make_index_sequence<kPropCount>());
inline constexpr auto kUserStringKeys =
    namesOfKeys(userStringTable, std::make_index_sequence<userStringTable.size()>());

template <std::size_t... Is>
constexpr auto userStringMembers(std::index_sequence<Is...>) {
  return json::Names<userStringTable.size()>({userStringTable[Is].jsonKey...});
}
inline constexpr auto kUserStringMembers =
    userStringMembers(std::make_index_sequence<userStringTable.size()>());

template <class Table>
constexpr bool ascends(const Table& table) {
  for (std::size_t i = 1; i < table.size(); ++i) {
    if (!(table[i - 1].key < table[i].key)) return false;
  }
  return true;
}

constexpr bool rowsStandAtTheirProps() {
  for (std::size_t i = 0; i < resPropTable.size(); ++i) {
    if (resPropTable[i].prop != i) return false;
  }
  return true;
}

static_assert(resPropTable.size() == 26 && rowsStandAtTheirProps());
static_assert(ascends(resPropTable) && ascends(userStringTable));

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_RESOURCE_PROPERTY_TABLES_H_
