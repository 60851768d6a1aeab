/// \file
/// Parameters and effect data: a named store of _Property records, and the
/// records of AI and resource effects, each a map from integer id to text.

#ifndef KYDATASTRUCTURE_PARAMS_H_
#define KYDATASTRUCTURE_PARAMS_H_

#include <KyDataStructure/frame.h>
#include <KyDataStructure/lists.h>

namespace ZOL {

/// A dictionary from key to _Property. A key is any text, also the empty one;
/// a record is stored as it comes. Entries are never removed.
class IZolParam : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolParam";

  /// Stores or replaces. A null key is refused.
  virtual int setProperty(const char* key, _Property value) = 0;
  /// Refused for a null key and one that is not held; `out` then stays as it
  /// was, byte for byte. `out` must not be null.
  virtual int getProperty(const char* key, _Property* out) = 0;
  /// Clears the list and adds the keys, ascending by unsigned bytes. Null is
  /// refused.
  virtual int getKeys(ZOLPCharList* out) = 0;

 protected:
  ~IZolParam() = default;
};

/// The side of a store for those who know it by name.
class IZolParamInternal {
 public:
  static constexpr const char* interfaceName = "IZolParamInternal";

  /// Null is refused.
  virtual int setParamName(const char* name) = 0;
  /// Lent until it is next set; the empty text in a new store.
  virtual const char* paramName() = 0;
  /// On purpose always refused: it keeps its place and has nothing behind it.
  virtual int internalOperation3() = 0;
  /// As internalOperation3().
  virtual int internalOperation4() = 0;

 protected:
  ~IZolParamInternal() = default;
};

/// A map from parameter id to text: the base of the effect data below.
///
/// A text is copied; an id that holds the empty text is held all the same.
class IParamObjectData : public IDmDeepClonableObj {
 public:
  static constexpr const char* interfaceName = "IParamObjectData";

  /// A new object of the same class with the same parameters, owned.
  IParamObjectData* deepClone() override = 0;
  /// The text of an id, lent until it changes; the empty text for an id that is
  /// not held. Never null, and never adds an entry.
  virtual const char* param(int id) = 0;
  /// Null is refused. Two classes derive a second parameter, see there.
  virtual int setParam(int id, const char* text) = 0;
  /// Replaces all parameters by those of `other`, of whatever effect class. On
  /// purpose the old ones go first: a null and an implementation that is not the
  /// library's, which are refused, and a copy onto itself leave the object empty.
  virtual int copyFrom(IParamObjectData* other) = 0;
  /// Always kSuccess. Removes all entries or, in the classes that say so, sets
  /// ids of their own to the empty text and leaves the others.
  virtual int clearParams() = 0;

 protected:
  ~IParamObjectData() = default;
};

/// Relinking an effect. clearParams() sets id 1 to the empty text.
class IRelinkEffectData : public virtual IParamObjectData {
 public:
  static constexpr const char* interfaceName = "IRelinkEffectData";

 protected:
  ~IRelinkEffectData() = default;
};

/// Media of a resource. Id 1 is a resource description's normal form, id 2 its
/// slug: while id 2 is empty, setParam(1, text) sets it from the description, if
/// the text is one, to the slug's first 1023 bytes. copyFrom() and deepClone()
/// derive nothing.
class IResourceMediaData : public virtual IParamObjectData {
 public:
  static constexpr const char* interfaceName = "IResourceMediaData";

 protected:
  ~IResourceMediaData() = default;
};

/// An AI portrait. Derives id 2 from id 1 as IResourceMediaData does.
class IAiPortraitV2Data : public virtual IParamObjectData {
 public:
  static constexpr const char* interfaceName = "IAiPortraitV2Data";

 protected:
  ~IAiPortraitV2Data() = default;
};

/// Removing a background. clearParams() sets ids 1 to 4 to the empty text.
class IRemoveBackgroundData : public virtual IRelinkEffectData {
 public:
  static constexpr const char* interfaceName = "IRemoveBackgroundData";

 protected:
  ~IRemoveBackgroundData() = default;
};

/// Generating from an AI template. clearParams() sets ids 1 to 5 to the empty text.
class IAITemplateGenerateData : public virtual IRelinkEffectData {
 public:
  static constexpr const char* interfaceName = "IAITemplateGenerateData";

 protected:
  ~IAITemplateGenerateData() = default;
};

/// Stylising an image. clearParams() sets ids 1 to 4 to the empty text. Alone in
/// its family it has a text form.
class IImageStylizesData : public virtual IRelinkEffectData {
 public:
  static constexpr const char* interfaceName = "IImageStylizesData";

  /// The low 32 bits of the resource type of the description in id 3; -1 without
  /// one. The text is read anew on each call.
  virtual int resourceType() = 0;
  /// Writes the parameters as indented JSON. Null is refused.
  virtual int writeDataMap(IZolString* target) = 0;
  /// Reads such a text into the object: ids that it does not name stay. Strict
  /// JSON: no comments, no trailing commas, nothing behind the root. Refused:
  /// null, a text that is no such document, and one with a value that is no
  /// string.
  virtual int readDataMap(IZolString* source) = 0;

 protected:
  ~IImageStylizesData() = default;
};

}  // namespace ZOL

extern "C" {

/// An object that holds nothing, owned.
///@{
KYDATASTRUCTURE_API ZOL::IZolParam* createZolParam();
KYDATASTRUCTURE_API ZOL::IRelinkEffectData* createRelinkEffectData();
KYDATASTRUCTURE_API ZOL::IResourceMediaData* createResourceMediaData();
KYDATASTRUCTURE_API ZOL::IAiPortraitV2Data* createIAiPortraitV2Data();
KYDATASTRUCTURE_API ZOL::IRemoveBackgroundData* createRemoveBackgroundData();
KYDATASTRUCTURE_API ZOL::IAITemplateGenerateData* createAITemplateGenerateData();
KYDATASTRUCTURE_API ZOL::IImageStylizesData* createImageStylizesData();
///@}

}  // extern "C"

#endif  // KYDATASTRUCTURE_PARAMS_H_
