// A resource's full record, in its provider's layout. Read only; the text is not kept.

#include <string>

#include "resource/res_serialize_info.h"
#include "resource/walk.h"

namespace ZOL {

int ZolResSerializeInfo::setFromCompletResInfo(IZolString* text, int infoType) {
  if (!text) return kRefused;
  const json::Document document({text->text(), static_cast<std::size_t>(text->length())});
  const json::Value record = document.root();
  if (!record.isObject()) return kRefused;
  {
    const Lock lock(stateMutex_);
    if (infoType == kPackInfoType || infoType == kSingleInfoType) {
      // Ahead of the walk, so that an "infoType" in the text replaces it.
      intProps_.set(kResInfoType, infoType);
      walk(resPropTable, record);
      walk(completeResPropTable, record);
    } else if (infoType == kVcgInfoType) {
      readVcg(record);
    } else if (const StockProvider* const provider = stockProviderOf(infoType)) {
      readStock(*provider, infoType, record);
    }
  }
  return isValid() ? kSuccess : kRefused;
}

// {"res_id": 9, "res_type": 2, "status": 1}
void ZolResSerializeInfo::readVcg(json::Value record) {
  intProps_.set(kResInfoType, kVcgInfoType);
  intProps_.set(kResType, kVcgType);
  walk(vcgResPropTable, record);
  if (!intProps_.has(kResId) || !intProps_.has(kResMeidaType)) return;
  const std::string slug =
      std::to_string(intProps_.get(kResMeidaType)) + "_" + std::to_string(intProps_.get(kResId));
  stringProps_.set(kResSlug, slug.c_str());
}

namespace {

// On purpose a text is reduced to the sum of its bytes, each of them signed, in 32
// bits that wrap around; the text itself is dropped.
long long checksumOf(const char* text) {
  std::uint32_t sum = 0;
  for (; *text != '\0'; ++text) sum += static_cast<std::uint32_t>(static_cast<signed char>(*text));
  return static_cast<std::int32_t>(sum);
}

}  // namespace

// {"id": 42} or {"id": "xT9IgG50Fb7Mi0prBC", "slug": "cat-typing"}
void ZolResSerializeInfo::readStock(const StockProvider& provider, int infoType,
                                    json::Value record) {
  intProps_.set(kResSubType, provider.subType);
  const json::Value id = record.member("id");
  std::optional<long long> number = id.integer64();
  if (const char* const text = id.text()) number = checksumOf(text);
  if (number) {
    const std::string digits = std::to_string(*number);
    intProps_.set(kResId, *number);
    stringProps_.set(kResStockMediaStrId, digits.c_str());
    if (!provider.namesItsSlugs) {
      stringProps_.set(kResSlug, (provider.slugPrefix + digits).c_str());
    }
  }
  if (provider.namesItsSlugs) {
    if (const char* const slug = record.member("slug").text()) {
      stringProps_.set(kResSlug, (std::string(provider.slugPrefix) + slug).c_str());
    }
  }
  intProps_.set(kResInfoType, infoType);
  intProps_.set(kResType, kStockType);
}

const StockProvider* stockProviderOf(long long infoType) {
  static constexpr StockProvider kProviders[] = {
      {101, 102, 2, "pixabay/", false},
      {103, 104, 3, "unsplash/", false},
      {106, 109, 1, "giphy/", true},
      {112, 113, 4, "pexels/", false},
  };
  for (const StockProvider& provider : kProviders) {
    if (infoType >= provider.firstInfoType && infoType <= provider.lastInfoType) return &provider;
  }
  return nullptr;
}

}  // namespace ZOL
