// The data of one effect each. All of them are a parameter map; what sets them apart is
// their type, the ids that they treat as theirs, and what the overrides here do.

#include <KyDataStructure/resource.h>

#include <cstring>

#include "params/param_object_data.h"

namespace ZOL {
namespace {

constexpr int kDescriptionId = 1;         // of resource media and portraits
constexpr int kSlugId = 2;                // of resource media and portraits
constexpr int kStylizeDescriptionId = 3;  // of image stylising

// The first description that comes to `object` while it has no slug gives it one; every
// description has one. A text that is no description is no matter.
void deriveSlug(IParamObjectData& object, int id, const char* text) {
  if (id != kDescriptionId || *object.param(kSlugId) != '\0') return;
  const auto info = Handle<IZolResSerializeInfo>::adopt(createZolResSerializeInfoFromBuffer(text));
  if (!info) return;
  _Property slug{};
  info->getProperty(resSerializeInfoPropKey::rsResSlug, &slug);
  object.setParam(kSlugId, slug.value);
}

class RelinkEffectData : public ParamObjectData, public virtual IRelinkEffectData {
 public:
  void* queryInterface(const char* name) override {
    if (void* const view = answer<IRelinkEffectData>(this, name)) return view;
    return ParamObjectData::queryInterface(name);
  }
  IParamObjectData* deepClone() override { return cloneAs<RelinkEffectData>(); }
  int clearParams() override { return emptyParams(1, 1); }
};

class ResourceMediaData final : public ParamObjectData, public virtual IResourceMediaData {
 public:
  void* queryInterface(const char* name) override {
    if (void* const view = answer<IResourceMediaData>(this, name)) return view;
    return ParamObjectData::queryInterface(name);
  }
  IParamObjectData* deepClone() override { return cloneAs<ResourceMediaData>(); }
  int setParam(int id, const char* text) override {
    deriveSlug(*this, id, text);
    return ParamObjectData::setParam(id, text);
  }
};

class AiPortraitV2Data final : public ParamObjectData, public virtual IAiPortraitV2Data {
 public:
  void* queryInterface(const char* name) override {
    if (void* const view = answer<IAiPortraitV2Data>(this, name)) return view;
    return ParamObjectData::queryInterface(name);
  }
  IParamObjectData* deepClone() override { return cloneAs<AiPortraitV2Data>(); }
  int setParam(int id, const char* text) override {
    deriveSlug(*this, id, text);
    return ParamObjectData::setParam(id, text);
  }
};

class RemoveBackgroundData final : public RelinkEffectData, public virtual IRemoveBackgroundData {
 public:
  void* queryInterface(const char* name) override {
    if (void* const view = answer<IRemoveBackgroundData>(this, name)) return view;
    return RelinkEffectData::queryInterface(name);
  }
  IParamObjectData* deepClone() override { return cloneAs<RemoveBackgroundData>(); }
  int clearParams() override { return emptyParams(1, 4); }
};

class AITemplateGenerateData final : public RelinkEffectData,
                                     public virtual IAITemplateGenerateData {
 public:
  void* queryInterface(const char* name) override {
    if (void* const view = answer<IAITemplateGenerateData>(this, name)) return view;
    return RelinkEffectData::queryInterface(name);
  }
  IParamObjectData* deepClone() override { return cloneAs<AITemplateGenerateData>(); }
  int clearParams() override { return emptyParams(1, 5); }
};

class ImageStylizesData final : public RelinkEffectData, public virtual IImageStylizesData {
 public:
  void* queryInterface(const char* name) override {
    if (void* const view = answer<IImageStylizesData>(this, name)) return view;
    return RelinkEffectData::queryInterface(name);
  }
  IParamObjectData* deepClone() override { return cloneAs<ImageStylizesData>(); }
  int clearParams() override { return emptyParams(1, 4); }

  int resourceType() override {
    const auto info = Handle<IZolResSerializeInfo>::adopt(
        createZolResSerializeInfoFromBuffer(param(kStylizeDescriptionId)));
    if (!info) return -1;
    _Property type{};  // every description has one
    info->getProperty(resSerializeInfoPropKey::rsResType, &type);
    long long code = 0;
    std::memcpy(&code, type.value, sizeof(code));
    return static_cast<int>(code);
  }
  int writeDataMap(IZolString* target) override { return writeParams(target); }
  int readDataMap(IZolString* source) override { return readParams(source); }
};

}  // namespace
}  // namespace ZOL

ZOL::IRelinkEffectData* createRelinkEffectData() {
  return ZOL::makeObject<ZOL::RelinkEffectData>();
}
ZOL::IResourceMediaData* createResourceMediaData() {
  return ZOL::makeObject<ZOL::ResourceMediaData>();
}
ZOL::IAiPortraitV2Data* createIAiPortraitV2Data() {
  return ZOL::makeObject<ZOL::AiPortraitV2Data>();
}
ZOL::IRemoveBackgroundData* createRemoveBackgroundData() {
  return ZOL::makeObject<ZOL::RemoveBackgroundData>();
}
ZOL::IAITemplateGenerateData* createAITemplateGenerateData() {
  return ZOL::makeObject<ZOL::AITemplateGenerateData>();
}
ZOL::IImageStylizesData* createImageStylizesData() {
  return ZOL::makeObject<ZOL::ImageStylizesData>();
}
