// What a resource description has to hold, by the text that it was read from.

#ifndef KYDATASTRUCTURE_BENCH_SUPPORT_DESCRIBED_H_
#define KYDATASTRUCTURE_BENCH_SUPPORT_DESCRIBED_H_

#include <KyDataStructure/resource.h>
#include <rapidjson/document.h>

#include <string>

#include "support/bare_json.h"
#include "support/owned.h"
#include "support/require.h"

namespace bench {

// Ends the program unless the related entries are those of the text.
inline void proveRelated(ZOL::IZolResSerializeInfoInternal* inside,
                         const rapidjson::Document& document) {
  using namespace ZOL::resSerializeInfoPropKey;
  using ZOL::resSerializeInfoUserStringKey::rsiusOpenFxPluginName;
  const auto entries = owned(createIZolResSerializeInfoList());
  require(inside->relatedResList(entries.get()) == ZOL::kSuccess, "related entries are copied");
  const auto list = document.FindMember("related_res_list");
  const rapidjson::SizeType count = list == document.MemberEnd() ? 0 : list->value.Size();
  require(entries->size() == count, "all related entries are there");
  for (rapidjson::SizeType i = 0; i < count; ++i) {
    const auto& row = list->value[i];
    auto* const entry = entries->at(i);
    auto* const entryInside = ZOL::query<ZOL::IZolResSerializeInfoInternal>(entry);
    require(entryInside->stringValue(rsResSlug) == std::string(row["rsResSlug"].GetString()) &&
                entryInside->intValue(rsResType) == row["rsResType"].GetInt64() &&
                entry->userString(rsiusOpenFxPluginName) ==
                    std::string(row["user_string"]["openfx_plugin_name"].GetString()),
            "a related entry is the text's");
  }
}

// Ends the program unless the description holds what the generated text says.
inline void proveDescribed(ZOL::IZolResSerializeInfo* info, const std::string& text) {
  using namespace ZOL::resSerializeInfoPropKey;
  require(info != nullptr && info->isValid(), "the text gives a valid description");
  rapidjson::Document document;
  bareParse(document, text);
  auto* const inside = ZOL::query<ZOL::IZolResSerializeInfoInternal>(info);
  const auto hasInteger = [&](const char* key, const char* member) {
    require(inside->intValue(key) == document[member].GetInt64(), "an integer is the text's");
  };
  hasInteger(rsResId, "id");
  hasInteger(rsResInfoType, "infoType");
  hasInteger(rsResType, "res_type");
  hasInteger(rsResSubType, "res_sub_type");
  hasInteger(rsResSaleMode, "sale_mode");
  const auto hasText = [&](const char* key, const char* member) {
    require(inside->stringValue(key) == std::string(document[member].GetString()),
            "a text is the text's");
  };
  hasText(rsResSlug, "name");
  hasText(rsResRelatedSlug, "related_slug");
  proveRelated(inside, document);
}

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_SUPPORT_DESCRIBED_H_
