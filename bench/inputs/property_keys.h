// The keys of a description's properties, and as many that it does not know.

#ifndef KYDATASTRUCTURE_BENCH_INPUTS_PROPERTY_KEYS_H_
#define KYDATASTRUCTURE_BENCH_INPUTS_PROPERTY_KEYS_H_

#include <KyDataStructure/resource.h>

#include <array>
#include <cstddef>
#include <string>

namespace bench {

constexpr std::size_t kKeyCount = 26;

inline std::array<const char*, kKeyCount> propertyKeys() {
  using namespace ZOL::resSerializeInfoPropKey;
  return {rsResType,
          rsResSubType,
          rsResSourceType,
          rsResOpenFxSubType,
          rsResId,
          rsResStockMediaStrId,
          rsResSlug,
          rsResInfoType,
          rsResRelatedSlug,
          rsResRate,
          rsResSaleMode,
          rsResIsCustom,
          rsResPackId,
          rsResPackSlug,
          rsResMeidaSize,
          rsResMeidaSizeFormat,
          rsResMeidaType,
          rsResMeidaFilePath,
          rsResRelatedTemplateSlug,
          rsResRelatedTemplateType,
          rsResRelatedPresetSlug,
          rsResState,
          rsResMultiOriginFile,
          rsResIsMultiFunctional,
          rsResOriginSlug,
          rsResOriginId};
}

// A known key with another last letter, so that a look at the length or at the first
// letters does not tell it from a known one.
inline std::array<std::string, kKeyCount> unknownKeys() {
  std::array<std::string, kKeyCount> keys;
  for (std::size_t i = 0; i < kKeyCount; ++i) {
    keys[i] = propertyKeys()[i];
    keys[i].back() = 'X';
  }
  return keys;
}

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_INPUTS_PROPERTY_KEYS_H_
