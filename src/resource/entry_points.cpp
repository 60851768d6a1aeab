// The doors to the subsystem.

#include <KyDataStructure/resource.h>

#include <string>
#include <unordered_set>

#include "frame/zol_string.h"
#include "resource/res_serialize_info.h"

namespace ZOL {
namespace {

// A description that `read` made of the text, or null.
template <class Reader>
IZolResSerializeInfo* fromText(const char* text, Reader read) {
  if (!text || *text == '\0') return nullptr;
  const Handle<ZolString> string = makeHandle<ZolString>();
  string->setText(text, -1);
  Handle<ZolResSerializeInfo> info = makeHandle<ZolResSerializeInfo>();
  return read(*info.get(), string.get()) == kSuccess ? info.give() : nullptr;
}

}  // namespace
}  // namespace ZOL

ZOL::IZolResSerializeInfo* createZolResSerializeInfo() {
  return ZOL::makeObject<ZOL::ZolResSerializeInfo>();
}

ZOL::IZolResSerializeInfo* createZolResSerializeInfoFromBuffer(const char* text) {
  return ZOL::fromText(text, [](ZOL::ZolResSerializeInfo& info, ZOL::IZolString* string) {
    return info.setFromBuffer(string);
  });
}

ZOL::IZolResSerializeInfo* createZolResSerializeInfoFromCompletResInfo(const char* text,
                                                                       int infoType) {
  return ZOL::fromText(text, [infoType](ZOL::ZolResSerializeInfo& info, ZOL::IZolString* string) {
    return info.setFromCompletResInfo(string, infoType);
  });
}

int resInfoStr2SerializeList(ZOL::ZOLPCharList* texts, ZOL::IZolResSerializeInfoList* out) {
  if (!texts || !out) return ZOL::kRefused;
  std::unordered_set<std::string> keys;
  for (long long i = 0; i < texts->size(); ++i) {
    const auto info = ZOL::Handle<ZOL::IZolResSerializeInfo>::adopt(
        createZolResSerializeInfoFromBuffer(texts->at(i)));
    if (info && keys.insert(info->uniqueKey()).second) out->add(info.get());
  }
  return ZOL::kSuccess;
}
