/// \file
/// Carriers of smart-cut search results and of a stage report. The library
/// neither fills nor reads them.
///
/// Objects are kept at their interface and lent by the getters. A null argument
/// is refused by every setter.

#ifndef KYDATASTRUCTURE_SEARCH_H_
#define KYDATASTRUCTURE_SEARCH_H_

#include <KyDataStructure/frame.h>
#include <KyDataStructure/lists.h>
#include <KyDataStructure/media.h>

namespace ZOL {

/// A role: a text and an image.
class IZolRoleSearchItemInfo : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolRoleSearchItemInfo";

  /// A text is copied and lent, an image kept and lent.
  ///@{
  virtual const char* roleText() = 0;
  virtual int setRoleText(const char* text) = 0;
  virtual IZolMediaData* roleImage() = 0;
  virtual int setRoleImage(IZolMediaData* image) = 0;
  ///@}

 protected:
  ~IZolRoleSearchItemInfo() = default;
};

/// An item of a dimension: a text, an image and time ranges.
class IZolSmartCutSearchDimensionsResultItem : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolSmartCutSearchDimensionsResultItem";

  /// A text is copied and lent, an image kept and lent.
  ///@{
  virtual const char* itemText() = 0;
  virtual int setItemText(const char* text) = 0;
  virtual IZolMediaData* itemImage() = 0;
  virtual int setItemImage(IZolMediaData* image) = 0;
  ///@}

  /// The item's own list, lent and never null. It has no setter: callers fill it.
  virtual ZOLRangeList* rangeList() = 0;

 protected:
  ~IZolSmartCutSearchDimensionsResultItem() = default;
};

/// The result for one dimension.
class IZolSmartCutSearchDimensionsResult : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolSmartCutSearchDimensionsResult";

  /// The callers' own number; the setter always answers kSuccess.
  ///@{
  virtual int dimensionValue() = 0;
  virtual int setDimensionValue(int value) = 0;
  ///@}

  /// The result's own list, lent and never null. It has no setter.
  virtual IZolSmartCutSearchDimensionsResultItemList* resultItemList() = 0;

 protected:
  ~IZolSmartCutSearchDimensionsResult() = default;
};

/// One result: three texts, roles, and results by dimension.
class IZolSmartCutSearchResult : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolSmartCutSearchResult";

  /// Null until set.
  virtual IZolRoleSearchItemInfoList* roleInfoList() = 0;
  /// Texts are copied and lent, the list is kept.
  ///@{
  virtual int setRoleInfoList(IZolRoleSearchItemInfoList* list) = 0;
  virtual const char* firstText() = 0;
  virtual int setFirstText(const char* text) = 0;
  virtual const char* secondText() = 0;
  virtual int setSecondText(const char* text) = 0;
  virtual const char* thirdText() = 0;
  virtual int setThirdText(const char* text) = 0;
  ///@}

  /// Clears `keys` and adds the keys in ascending order. Null is refused.
  virtual int getDimensionKeys(ZOLIntList* keys) = 0;
  /// Any key will do, negative ones too.
  virtual int setDimensionResult(int key, IZolSmartCutSearchDimensionsResult* result) = 0;
  /// Always kSuccess.
  virtual int removeDimensionResult(int key) = 0;
  /// Null for a key without a result; asking makes no entry.
  virtual IZolSmartCutSearchDimensionsResult* dimensionResult(int key) = 0;

 protected:
  ~IZolSmartCutSearchResult() = default;
};

/// What a stage reports. Fixed when made, so any thread may read it.
class IZolStageReportData : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolStageReportData";

  /// As the report was made; a text is lent as long as it lives.
  ///@{
  virtual int stageType() = 0;
  virtual const char* stageName() = 0;
  virtual int stageStatus() = 0;
  virtual int stageCode() = 0;
  virtual const char* stageMessage() = 0;
  virtual const char* stageDetail() = 0;
  ///@}

 protected:
  ~IZolStageReportData() = default;
};

}  // namespace ZOL

extern "C" {

/// An object with nothing set, owned.
///@{
KYDATASTRUCTURE_API ZOL::IZolSmartCutSearchResult* createSmartCutSearchResult();
KYDATASTRUCTURE_API ZOL::IZolSmartCutSearchDimensionsResult* createSmartCutSearchDimensionsResult();
KYDATASTRUCTURE_API ZOL::IZolSmartCutSearchDimensionsResultItem*
createSmartCutSearchDimensionsResultItem();
KYDATASTRUCTURE_API ZOL::IZolRoleSearchItemInfo* createRoleSearchItemInfo();
///@}

/// The texts are copied; null is taken as the empty text.
KYDATASTRUCTURE_API ZOL::IZolStageReportData* createStageReportData(int stageType,
                                                                    const char* stageName,
                                                                    int stageStatus, int stageCode,
                                                                    const char* stageMessage,
                                                                    const char* stageDetail);

}  // extern "C"

#endif  // KYDATASTRUCTURE_SEARCH_H_
