/// \file
/// The resource description: what the editor knows of a title, a transition, a
/// stock photo or anything else that it can fetch, and the two text forms in
/// which such a description travels.

#ifndef KYDATASTRUCTURE_RESOURCE_H_
#define KYDATASTRUCTURE_RESOURCE_H_

#include <KyDataStructure/frame.h>
#include <KyDataStructure/lists.h>

namespace ZOL {

/// The keys of properties. Each text is its own identifier, and keys are compared
/// by their text, so an equal text from elsewhere works as well.
namespace resSerializeInfoPropKey {
/// A key. Kind and member of its property stand with the resource description's format.
///@{
extern KYDATASTRUCTURE_API const char* const rsResType;
extern KYDATASTRUCTURE_API const char* const rsResSubType;
extern KYDATASTRUCTURE_API const char* const rsResSourceType;
extern KYDATASTRUCTURE_API const char* const rsResOpenFxSubType;
extern KYDATASTRUCTURE_API const char* const rsResId;
extern KYDATASTRUCTURE_API const char* const rsResStockMediaStrId;
extern KYDATASTRUCTURE_API const char* const rsResSlug;
extern KYDATASTRUCTURE_API const char* const rsResInfoType;
extern KYDATASTRUCTURE_API const char* const rsResRelatedSlug;
extern KYDATASTRUCTURE_API const char* const rsResRate;
extern KYDATASTRUCTURE_API const char* const rsResSaleMode;
extern KYDATASTRUCTURE_API const char* const rsResIsCustom;
extern KYDATASTRUCTURE_API const char* const rsResPackId;
extern KYDATASTRUCTURE_API const char* const rsResPackSlug;
extern KYDATASTRUCTURE_API const char* const rsResMeidaSize;
extern KYDATASTRUCTURE_API const char* const rsResMeidaSizeFormat;
extern KYDATASTRUCTURE_API const char* const rsResMeidaType;
extern KYDATASTRUCTURE_API const char* const rsResMeidaFilePath;
extern KYDATASTRUCTURE_API const char* const rsResRelatedTemplateSlug;
extern KYDATASTRUCTURE_API const char* const rsResRelatedTemplateType;
extern KYDATASTRUCTURE_API const char* const rsResRelatedPresetSlug;
extern KYDATASTRUCTURE_API const char* const rsResState;
extern KYDATASTRUCTURE_API const char* const rsResMultiOriginFile;
extern KYDATASTRUCTURE_API const char* const rsResIsMultiFunctional;
extern KYDATASTRUCTURE_API const char* const rsResOriginSlug;
extern KYDATASTRUCTURE_API const char* const rsResOriginId;
///@}
}  // namespace resSerializeInfoPropKey

/// The keys of user strings. Each text is its own identifier.
namespace resSerializeInfoUserStringKey {
/// A key. Its member stands with the resource description's format.
///@{
extern KYDATASTRUCTURE_API const char* const rsiusAnimatedSttStateType;
extern KYDATASTRUCTURE_API const char* const rsiusOpenFxPluginName;
extern KYDATASTRUCTURE_API const char* const rsiusVST3PluginName;
extern KYDATASTRUCTURE_API const char* const rsiusCustomRsMd5;
///@}
}  // namespace resSerializeInfoUserStringKey

/// Names of tags that programs attach to files. The library reads none of them.
/// `zol_tag_version` is the value that goes with the key `zol_tag_version_key`.
namespace zolFileTagKey {
/// A name, in the programs' own sense.
///@{
extern KYDATASTRUCTURE_API const char* const ai_task_id;
extern KYDATASTRUCTURE_API const char* const ai_label;
extern KYDATASTRUCTURE_API const char* const ai_dynamic_setting;
extern KYDATASTRUCTURE_API const char* const ai_effectres_buf;
extern KYDATASTRUCTURE_API const char* const file_group_id;
extern KYDATASTRUCTURE_API const char* const file_group_name;
extern KYDATASTRUCTURE_API const char* const file_group_time;
extern KYDATASTRUCTURE_API const char* const zol_tag_version_key;
extern KYDATASTRUCTURE_API const char* const zol_tag_version;
extern KYDATASTRUCTURE_API const char* const parent_file_id;
///@}
}  // namespace zolFileTagKey

/// The description of one resource: properties, user strings and related
/// descriptions.
///
/// A property is an integer or a text; a key may hold both, of which
/// getProperty() tells the integer, and toBuffer() writes the text if the member
/// stands outside the groups. Reading a text adds and replaces, and never takes
/// away, but for the related list.
///
/// Threads: an object may be shared between threads. Texts that it lends stay
/// valid only while no thread sets that key; uniqueKey() is for one thread at a
/// time. When locks nest, an object's comes before those of its related entries.
class IZolResSerializeInfo : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolResSerializeInfo";

  /// Reads a provider's full record, in the layout that `infoType` names: 6 and 7
  /// (packs, single resources), 101 to 104, 106 to 109, 112, 113 (stock
  /// providers), 1007 (the VCG stock library). Any other code reads nothing.
  /// Answers kSuccess if the description is valid afterwards. Null and a text
  /// that is no JSON object are refused; after any other kRefused what was read
  /// stays. The text is not remembered.
  virtual int setFromCompletResInfo(IZolString* text, int infoType) = 0;
  /// True if there is a slug and what the info type asks for:
  ///   6: a pack id of 1 or more held as an integer, a type other than -1 and 0;
  ///   7: a type other than -1;
  ///   a stock code: a type other than -1, and a stock id;
  ///   1007: a type other than -1, and an id of 1 or more;
  ///   any other: never.
  virtual bool isValid() = 0;
  /// Reads a normal-form text and remembers it whole. Answers kSuccess if the
  /// description is valid afterwards. Refused: null, a text that is no JSON
  /// object, and one with neither a "name" nor an "id" other than 0; after any
  /// other kRefused what was read stays.
  virtual int setFromBuffer(IZolString* text) = 0;
  /// Writes the normal form on top of the remembered text, so members that the
  /// library does not know are passed through. Refused for null and without slug
  /// and id; `out` is then unchanged.
  virtual int toBuffer(IZolString* out) = 0;
  /// Refused for a null or unknown key and for one that is not held. An integer
  /// is written into the first 8 bytes of the value and leaves the others as they
  /// were; a text is cut to 1023 bytes and padded with zeros. `out` must not be
  /// null, and is unchanged when refused.
  virtual int getProperty(const char* key, _Property* out) = 0;
  /// Stores by the record's type, whatever the key's usual kind. Refused for a
  /// null or unknown key, for a record that is not present and for any type but
  /// kPropertyInteger and kPropertyText.
  virtual int setProperty(const char* key, const _Property* value) = 0;
  /// Reads what `other` writes, on top of what is here. Null is refused. Answers
  /// kRefused when either side does; what was read by then stays.
  virtual int copyFrom(IZolResSerializeInfo* other) = 0;
  /// "SLUG_res_type_T_info_type_I", with 0 for a number that is not held: equal
  /// for descriptions of the same resource. The slug's first 1023 bytes and the low
  /// 32 bits of each number count. Without a slug the last key built, at first the
  /// empty text. Lent until the next call.
  virtual const char* uniqueKey() = 0;
  /// Lent while no one sets that key; the empty text for null and for a key
  /// without a value.
  virtual const char* userString(const char* key) = 0;
  /// Copied. Null and a key that is not one of the four are refused.
  virtual int setUserString(const char* key, const char* value) = 0;
  /// True if nothing is held: no property, no user string, no related entry.
  virtual bool isEmpty() = 0;

 protected:
  ~IZolResSerializeInfo() = default;
};

/// The side of a description for those who know it by name.
class IZolResSerializeInfoInternal {
 public:
  static constexpr const char* interfaceName = "IZolResSerializeInfoInternal";

  /// The integer of a key, or its default: -1 for rsResType, rsResRate,
  /// rsResSaleMode and rsResRelatedTemplateType, and 0 for any other key.
  virtual long long intValue(const char* key) = 0;
  /// Refused for a null or unknown key.
  virtual int setIntValue(const char* key, const long long& value) = 0;
  /// Lent while no one sets that key; the empty text for a key without a text.
  virtual const char* stringValue(const char* key) = 0;
  /// Copied. Refused for null and for an unknown key.
  virtual int setStringValue(const char* key, const char* value) = 0;
  /// A word of the caller's, which the library only stores.
  virtual std::uintptr_t hostData() = 0;
  /// Always kSuccess.
  virtual int setHostData(std::uintptr_t value) = 0;
  /// Appends a private copy of `info`, made by its text. Refused for null, for a
  /// description that is not valid or not this library's, for a user's own resource
  /// (rsResIsCustom not 0), for one without a slug, and where the copy is not valid.
  virtual int addRelatedRes(IZolResSerializeInfo* info) = 0;
  /// Null empties the list. Otherwise every entry whose four user strings equal
  /// those of `info` goes. On purpose the slugs are not compared: a description
  /// without user strings takes all such entries. Refuses what addRelatedRes()
  /// refuses ahead of the copy.
  virtual int removeRelatedRes(IZolResSerializeInfo* info) = 0;
  /// Adds a copy of each entry to `out`, which is not cleared. Null is refused;
  /// a copy that fails stops with kRefused, and what was added stays.
  virtual int relatedResList(IZolResSerializeInfoList* out) = 0;
  /// As in IZolResSerializeInfo.
  ///@{
  virtual const char* userString(const char* key) = 0;
  virtual int setUserString(const char* key, const char* value) = 0;
  ///@}

 protected:
  ~IZolResSerializeInfoInternal() = default;
};

}  // namespace ZOL

extern "C" {

/// Writes the folder name of a resource type into `out`; "UnkownResType" for a
/// code that is not assigned, which is no error. Null is refused.
KYDATASTRUCTURE_API int getResourceFolderString(long long resType, ZOL::IZolString* out);
/// The product of a code; a constant text, never null.
KYDATASTRUCTURE_API const char* getProductlineString(int code);
/// The text of an aspect-rate code, as "16_9"; a constant text, empty for a code
/// that is not assigned, never null.
KYDATASTRUCTURE_API const char* getResourceRateStr(int rate);

/// A description that holds nothing.
KYDATASTRUCTURE_API ZOL::IZolResSerializeInfo* createZolResSerializeInfo();
/// Reads a zero-terminated normal-form text. Null for a null or empty text, and
/// for one that setFromBuffer() refuses; a caller who wants to know more makes an
/// empty description and calls that.
KYDATASTRUCTURE_API ZOL::IZolResSerializeInfo* createZolResSerializeInfoFromBuffer(
    const char* text);
/// Reads a zero-terminated complete-form text, with setFromCompletResInfo().
KYDATASTRUCTURE_API ZOL::IZolResSerializeInfo* createZolResSerializeInfoFromCompletResInfo(
    const char* text, int infoType);
/// Reads each normal-form text and adds the descriptions to `out`, leaving out
/// those that cannot be read and, of several with one unique key, all but the
/// first. `out` is neither cleared nor looked at. Null is refused.
KYDATASTRUCTURE_API int resInfoStr2SerializeList(ZOL::ZOLPCharList* texts,
                                                 ZOL::IZolResSerializeInfoList* out);

}  // extern "C"

#endif  // KYDATASTRUCTURE_RESOURCE_H_
