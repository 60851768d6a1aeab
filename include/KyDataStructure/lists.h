/// \file
/// Typed lists: one contract of 17 operations, 51 names, and the plain records
/// that some of the lists hold.
///
/// A list is a plain ordered sequence. Nothing in it is sorted or unique by
/// itself; order and doubles are what the callers made them.

#ifndef KYDATASTRUCTURE_LISTS_H_
#define KYDATASTRUCTURE_LISTS_H_

#include <KyDataStructure/frame.h>

namespace ZOL {

/// The name under which queryInterface() of every list lends the address of its
/// first element: an array of size() elements as the list stores them, valid
/// until the list next changes, and null for a list that never held one.
constexpr const char* kListData = "listData";

/// The contract of every list. `Self` is the list's own interface, `T` what
/// goes in and out: always by value.
///
/// What a list does with an element depends on its kind:
///
/// | element           | add, insertAt, setAt | at              | when it goes           |
/// |-------------------|----------------------|-----------------|------------------------|
/// | number, record    | copied               | a copy          | nothing, also pointers |
/// | counted object    | kept; null is stored | lent            | one release()          |
/// | text              | copied               | lent            | the copy is freed      |
/// | raw memory (auto) | taken over           | lent            | freed                  |
///
/// A list answers queryInterface() with its own name and with kListData and
/// nothing else. On purpose: it does not answer "IDmBaseObj".
template <class Self, class T>
class ListInterface : public IDmBaseObj {
 public:
  /// What the list holds.
  using Element = T;
  /// True when `a` must come before `b`: a strict weak ordering.
  using Compare = bool (*)(T a, T b);
  /// True when `element` is what is looked for; `key` is the caller's own.
  using Match = bool (*)(T element, T key);

  /// How many elements there are.
  virtual long long size() = 0;
  /// The element; the zero of `T` outside the range.
  virtual T at(long long index) = 0;
  /// Appends; always kSuccess.
  virtual int add(T element) = 0;
  /// Refused outside the range.
  virtual int removeAt(long long index) = 0;
  /// Inserts before the element at `index`. size() appends; beyond is refused.
  virtual int insertAt(long long index, T element) = 0;
  /// Replaces an element. On purpose: an index equal to size() is accepted. The
  /// element is then taken into the slot behind the last, where at() does not
  /// see it; size() stays. It goes when another is set there, when the list next
  /// takes an addition, insertion, removal, clear() or assign(), or when it ends.
  virtual int setAt(long long index, T element) = 0;
  /// Drops all elements from first to last and keeps the array; always kSuccess.
  virtual int clear() = 0;
  /// Replaces the content by that of `other`, element by element as add() takes
  /// them. Null, and a list of another kind of store, is refused; so is an
  /// implementation of the interface that is not this library's. The list is
  /// cleared before `other` is read: assigning a list to itself empties it.
  virtual int assign(Self* other) = 0;
  /// Inserts the elements of `other` before the element at `index`, in their
  /// order. Refused as assign() and insertAt() refuse. On purpose: a list that is
  /// inserted into itself is read, last position first, while it grows, so
  /// `[a, b]` at 0 becomes `[b, b, a, b]`.
  virtual int insertListAt(long long index, Self* other) = 0;
  /// Sorts by `compare`, not stably. A null function is refused.
  virtual int sort(Compare compare) = 0;
  /// The first index for which `match(element, key)` is true, or -1; -1 for a
  /// null function. The list must not be changed from `match` or `compare`.
  virtual long long find(T key, Match match) = 0;

 protected:
  ~ListInterface() = default;
};

// Plain records. They are copied as bytes, and their sizes are contract: they
// cross the boundary by value. The library knows the fields of _Property, _Range
// and _RectF alone; the callers own the meaning of the others.

/// A point of integers.
struct _PointN {
  /// In the callers' own unit.
  ///@{
  std::int32_t x, y;
  ///@}
};
static_assert(sizeof(_PointN) == 8, "crosses the boundary by value");

/// A size of integers.
struct _SizeN {
  /// In the callers' own unit.
  ///@{
  std::int32_t width, height;
  ///@}
};
static_assert(sizeof(_SizeN) == 8, "crosses the boundary by value");

/// A colour of a gradient and where it stands.
struct _GradientColorComponent {
  float position;       ///< in the callers' own unit
  std::uint32_t color;  ///< in the callers' own encoding
};
static_assert(sizeof(_GradientColorComponent) == 8, "crosses the boundary by value");

/// A point.
struct _PointF {
  /// In the callers' own unit.
  ///@{
  double x, y;
  ///@}
};
static_assert(sizeof(_PointF) == 16, "crosses the boundary by value");

/// A rectangle of integers.
struct _RectN {
  /// In the callers' own unit.
  ///@{
  std::int32_t left, top, right, bottom;
  ///@}
};
static_assert(sizeof(_RectN) == 16, "crosses the boundary by value");

/// A span; both ends are -1 when there is none.
struct _Range {
  std::int64_t start = -1;  ///< in the callers' own unit
  std::int64_t end = -1;    ///< in the callers' own unit
};
static_assert(sizeof(_Range) == 16, "crosses the boundary by value");

/// A bookmarked section.
struct _BkMarkInOutSection {
  /// In the callers' own unit.
  ///@{
  std::int64_t in, out;
  ///@}
};
static_assert(sizeof(_BkMarkInOutSection) == 16, "crosses the boundary by value");

/// A rectangle; (0, 0, 1, 1) is the whole unit square.
struct _RectF {
  /// In the callers' own unit.
  ///@{
  double left, top, right, bottom;
  ///@}
};
static_assert(sizeof(_RectF) == 32, "crosses the boundary by value");

/// A segment to render and where it comes from.
struct _RenderSegmentInfo {
  /// In the callers' own unit.
  ///@{
  std::int64_t start, end, sourceStart, sourceEnd;
  ///@}
};
static_assert(sizeof(_RenderSegmentInfo) == 32, "crosses the boundary by value");

/// A polygon of four points.
struct _PolygonF {
  _PointF points[4];  ///< in the callers' own order
};
static_assert(sizeof(_PolygonF) == 64, "crosses the boundary by value");

/// _Property::type of an integer: signed 64 bits in the first 8 bytes of value.
constexpr std::int32_t kPropertyInteger = 4;
/// _Property::type of a text: at most 1023 bytes and a zero.
constexpr std::int32_t kPropertyText = 7;

/// One parameter, travelling by value. Its types are not those of ZolValue.
struct _Property {
  std::int32_t present;  ///< 0 for no value; the library writes 1
  std::int32_t type;     ///< kPropertyInteger or kPropertyText
  char value[1024];      ///< an integer in the first 8 bytes, or a text with its zero
};
static_assert(sizeof(_Property) == 1032, "crosses the boundary by value");

/// A key frame: a time, two handles and a parameter.
struct KeyFrameValue {
  std::int64_t time;   ///< in the callers' own unit
  _PointF handleIn;    ///< ahead of the frame
  _PointF handleOut;   ///< behind the frame
  _Property property;  ///< the value at that time
};
static_assert(sizeof(KeyFrameValue) == 1072, "crosses the boundary by value");

/// Integers.
class ZOLIntList : public ListInterface<ZOLIntList, int> {
 public:
  static constexpr const char* interfaceName = "ZOLIntList";

 protected:
  ~ZOLIntList() = default;
};

/// On purpose a list of `int`: any value is stored as it is, and nothing is folded
/// to 0 or 1.
class ZOLBoolList : public ListInterface<ZOLBoolList, int> {
 public:
  static constexpr const char* interfaceName = "ZOLBoolList";

 protected:
  ~ZOLBoolList() = default;
};

/// Numbers of single precision.
class ZOLFLOATList : public ListInterface<ZOLFLOATList, float> {
 public:
  static constexpr const char* interfaceName = "ZOLFLOATList";

 protected:
  ~ZOLFLOATList() = default;
};

/// Numbers of double precision.
class ZOLREALList : public ListInterface<ZOLREALList, double> {
 public:
  static constexpr const char* interfaceName = "ZOLREALList";

 protected:
  ~ZOLREALList() = default;
};

/// Wide integers.
class ZOLLonglongList : public ListInterface<ZOLLonglongList, long long> {
 public:
  static constexpr const char* interfaceName = "ZOLLonglongList";

 protected:
  ~ZOLLonglongList() = default;
};

/// Wide integers without a sign.
class ZOLULonglongList : public ListInterface<ZOLULonglongList, unsigned long long> {
 public:
  static constexpr const char* interfaceName = "ZOLULonglongList";

 protected:
  ~ZOLULonglongList() = default;
};

/// Integers the size of a pointer.
class ZOLIntPtrList : public ListInterface<ZOLIntPtrList, unsigned long long> {
 public:
  static constexpr const char* interfaceName = "ZOLIntPtrList";

 protected:
  ~ZOLIntPtrList() = default;
};

/// Pointers that the list does not own.
class ZOLVoidPtrList : public ListInterface<ZOLVoidPtrList, void*> {
 public:
  static constexpr const char* interfaceName = "ZOLVoidPtrList";

 protected:
  ~ZOLVoidPtrList() = default;
};

/// Pointers that the list does not own.
class ZOLPByteList : public ListInterface<ZOLPByteList, unsigned char*> {
 public:
  static constexpr const char* interfaceName = "ZOLPByteList";

 protected:
  ~ZOLPByteList() = default;
};

/// Values with their texts: each way in or out makes a deep copy.
class ZolValueList : public ListInterface<ZolValueList, ZolValue> {
 public:
  static constexpr const char* interfaceName = "ZolValueList";

 protected:
  ~ZolValueList() = default;
};

/// Points on whole pixels.
class ZOLPointNList : public ListInterface<ZOLPointNList, _PointN> {
 public:
  static constexpr const char* interfaceName = "ZOLPointNList";

 protected:
  ~ZOLPointNList() = default;
};

/// Sizes in whole pixels.
class ZOLSizeNList : public ListInterface<ZOLSizeNList, _SizeN> {
 public:
  static constexpr const char* interfaceName = "ZOLSizeNList";

 protected:
  ~ZOLSizeNList() = default;
};

/// The colours of a gradient.
class GradientColorList : public ListInterface<GradientColorList, _GradientColorComponent> {
 public:
  static constexpr const char* interfaceName = "GradientColorList";

 protected:
  ~GradientColorList() = default;
};

/// Points.
class ZOLPointFList : public ListInterface<ZOLPointFList, _PointF> {
 public:
  static constexpr const char* interfaceName = "ZOLPointFList";

 protected:
  ~ZOLPointFList() = default;
};

/// Rectangles on whole pixels.
class ZOLRectNList : public ListInterface<ZOLRectNList, _RectN> {
 public:
  static constexpr const char* interfaceName = "ZOLRectNList";

 protected:
  ~ZOLRectNList() = default;
};

/// Spans.
class ZOLRangeList : public ListInterface<ZOLRangeList, _Range> {
 public:
  static constexpr const char* interfaceName = "ZOLRangeList";

 protected:
  ~ZOLRangeList() = default;
};

/// Bookmarked sections.
class BkMarkInOutSectionList : public ListInterface<BkMarkInOutSectionList, _BkMarkInOutSection> {
 public:
  static constexpr const char* interfaceName = "BkMarkInOutSectionList";

 protected:
  ~BkMarkInOutSectionList() = default;
};

/// Rectangles.
class ZOLRectFList : public ListInterface<ZOLRectFList, _RectF> {
 public:
  static constexpr const char* interfaceName = "ZOLRectFList";

 protected:
  ~ZOLRectFList() = default;
};

/// Segments to render.
class RenderSegmentInfoList : public ListInterface<RenderSegmentInfoList, _RenderSegmentInfo> {
 public:
  static constexpr const char* interfaceName = "RenderSegmentInfoList";

 protected:
  ~RenderSegmentInfoList() = default;
};

/// Polygons of four points.
class ZOLPolygonFList : public ListInterface<ZOLPolygonFList, _PolygonF> {
 public:
  static constexpr const char* interfaceName = "ZOLPolygonFList";

 protected:
  ~ZOLPolygonFList() = default;
};

/// Parameters.
class PropertyList : public ListInterface<PropertyList, _Property> {
 public:
  static constexpr const char* interfaceName = "PropertyList";

 protected:
  ~PropertyList() = default;
};

/// Key frames.
class KeyFrameValueList : public ListInterface<KeyFrameValueList, KeyFrameValue> {
 public:
  static constexpr const char* interfaceName = "KeyFrameValueList";

 protected:
  ~KeyFrameValueList() = default;
};

/// Copied texts. at() lends a text until that element or the list changes;
/// compare and match are given zero-terminated texts. A null text is taken as
/// the empty text.
class ZOLPCharList : public ListInterface<ZOLPCharList, const char*> {
 public:
  static constexpr const char* interfaceName = "ZOLPCharList";

 protected:
  ~ZOLPCharList() = default;
};

/// Raw memory that the list owns, each block from the global new operator. On purpose:
/// assign() and insertListAt() take the bare pointers as add() does, so both
/// lists then own the same blocks without knowing of each other; they are not
/// for elements that both will drop. A block is freed also when taking it fails
/// for want of memory.
class ZOLAutoVoidPtrList : public ListInterface<ZOLAutoVoidPtrList, void*> {
 public:
  static constexpr const char* interfaceName = "ZOLAutoVoidPtrList";

 protected:
  ~ZOLAutoVoidPtrList() = default;
};

/// Any counted objects.
class ZOLBaseObjectList : public ListInterface<ZOLBaseObjectList, IDmBaseObj*> {
 public:
  static constexpr const char* interfaceName = "ZOLBaseObjectList";

 protected:
  ~ZOLBaseObjectList() = default;
};

/// A graphics processor of the host's. The library has no implementation of it
/// and only counts what callers put into an IGpuInfoList.
class IGpuInfo : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IGpuInfo";

 protected:
  ~IGpuInfo() = default;
};

// Lists of counted objects. The element interfaces stand in the headers of their
// subsystems.

class IKyMaskInfoData;
class IZolBGRData;
class IZolBGRAData;
class IZoEffectInfo;
class IZolPluginInfo;
class IFaceClusterInfo;
class IKyLoraTextToImageHistoryInfo;
class IKyVoiceDataInfo;
class IKyScriptSceneInfo;
class IKyScriptCharacterInfo;
class IKyScriptEventSoundInfo;
class IKyScriptCharactersIfInfo;
class IKyScriptClipInfo;
class IZolResSerializeInfo;
class IZolSliceItem;
class IZolDemensionsItem;
class IZolKeyMatrixInfo;
class IZolTextInfo;
class IZolHighlightInfo;
class IZolSmartCutClipInfo;
class IZolMusicInfo;
class IZolStoryboardInfo;
class IZolSmartCutSearchResult;
class IZolSmartCutSearchDimensionsResultItem;
class IZolRoleSearchItemInfo;

/// Masks.
class IKyMaskInfoDataList : public ListInterface<IKyMaskInfoDataList, IKyMaskInfoData*> {
 public:
  static constexpr const char* interfaceName = "IKyMaskInfoDataList";

 protected:
  ~IKyMaskInfoDataList() = default;
};

/// Media without alpha.
class IZolBGRDataList : public ListInterface<IZolBGRDataList, IZolBGRData*> {
 public:
  static constexpr const char* interfaceName = "IZolBGRDataList";

 protected:
  ~IZolBGRDataList() = default;
};

/// Media with alpha.
class IZolBGRADataList : public ListInterface<IZolBGRADataList, IZolBGRAData*> {
 public:
  static constexpr const char* interfaceName = "IZolBGRADataList";

 protected:
  ~IZolBGRADataList() = default;
};

/// Effects.
class IZoEffectInfoList : public ListInterface<IZoEffectInfoList, IZoEffectInfo*> {
 public:
  static constexpr const char* interfaceName = "IZoEffectInfoList";

 protected:
  ~IZoEffectInfoList() = default;
};

/// Plug-ins.
class IZolPluginInfoList : public ListInterface<IZolPluginInfoList, IZolPluginInfo*> {
 public:
  static constexpr const char* interfaceName = "IZolPluginInfoList";

 protected:
  ~IZolPluginInfoList() = default;
};

/// Face clusters.
class IFaceClusterInfoList : public ListInterface<IFaceClusterInfoList, IFaceClusterInfo*> {
 public:
  static constexpr const char* interfaceName = "IFaceClusterInfoList";

 protected:
  ~IFaceClusterInfoList() = default;
};

/// Entries of an image history.
class IKyLoraTextToImageHistoryInfoList
    : public ListInterface<IKyLoraTextToImageHistoryInfoList, IKyLoraTextToImageHistoryInfo*> {
 public:
  static constexpr const char* interfaceName = "IKyLoraTextToImageHistoryInfoList";

 protected:
  ~IKyLoraTextToImageHistoryInfoList() = default;
};

/// Voices.
class IKyVoiceDataInfoList : public ListInterface<IKyVoiceDataInfoList, IKyVoiceDataInfo*> {
 public:
  static constexpr const char* interfaceName = "IKyVoiceDataInfoList";

 protected:
  ~IKyVoiceDataInfoList() = default;
};

/// Scenes.
class IKyScriptSceneInfoList : public ListInterface<IKyScriptSceneInfoList, IKyScriptSceneInfo*> {
 public:
  static constexpr const char* interfaceName = "IKyScriptSceneInfoList";

 protected:
  ~IKyScriptSceneInfoList() = default;
};

/// Characters.
class IKyScriptCharacterInfoList
    : public ListInterface<IKyScriptCharacterInfoList, IKyScriptCharacterInfo*> {
 public:
  static constexpr const char* interfaceName = "IKyScriptCharacterInfoList";

 protected:
  ~IKyScriptCharacterInfoList() = default;
};

/// Sounds of a scene.
class IKyScriptEventSoundInfoList
    : public ListInterface<IKyScriptEventSoundInfoList, IKyScriptEventSoundInfo*> {
 public:
  static constexpr const char* interfaceName = "IKyScriptEventSoundInfoList";

 protected:
  ~IKyScriptEventSoundInfoList() = default;
};

/// What is said of characters in a clip.
class IKyScriptCharactersIfInfoList
    : public ListInterface<IKyScriptCharactersIfInfoList, IKyScriptCharactersIfInfo*> {
 public:
  static constexpr const char* interfaceName = "IKyScriptCharactersIfInfoList";

 protected:
  ~IKyScriptCharactersIfInfoList() = default;
};

/// Clips of a scene.
class IKyScriptClipInfoList : public ListInterface<IKyScriptClipInfoList, IKyScriptClipInfo*> {
 public:
  static constexpr const char* interfaceName = "IKyScriptClipInfoList";

 protected:
  ~IKyScriptClipInfoList() = default;
};

/// Resource descriptions.
class IZolResSerializeInfoList
    : public ListInterface<IZolResSerializeInfoList, IZolResSerializeInfo*> {
 public:
  static constexpr const char* interfaceName = "IZolResSerializeInfoList";

 protected:
  ~IZolResSerializeInfoList() = default;
};

/// Slices of a dimension.
class IZolSliceItemList : public ListInterface<IZolSliceItemList, IZolSliceItem*> {
 public:
  static constexpr const char* interfaceName = "IZolSliceItemList";

 protected:
  ~IZolSliceItemList() = default;
};

/// Dimensions of a report.
class IZolDemensionsItemList : public ListInterface<IZolDemensionsItemList, IZolDemensionsItem*> {
 public:
  static constexpr const char* interfaceName = "IZolDemensionsItemList";

 protected:
  ~IZolDemensionsItemList() = default;
};

/// Analysis reports.
class IZolKeyMatrixInfoList : public ListInterface<IZolKeyMatrixInfoList, IZolKeyMatrixInfo*> {
 public:
  static constexpr const char* interfaceName = "IZolKeyMatrixInfoList";

 protected:
  ~IZolKeyMatrixInfoList() = default;
};

/// Texts of a clip.
class IZolTextInfoList : public ListInterface<IZolTextInfoList, IZolTextInfo*> {
 public:
  static constexpr const char* interfaceName = "IZolTextInfoList";

 protected:
  ~IZolTextInfoList() = default;
};

/// Highlights of a clip.
class IZolHighlightInfoList : public ListInterface<IZolHighlightInfoList, IZolHighlightInfo*> {
 public:
  static constexpr const char* interfaceName = "IZolHighlightInfoList";

 protected:
  ~IZolHighlightInfoList() = default;
};

/// Clips of a cut.
class IZolSmartCutClipInfoList
    : public ListInterface<IZolSmartCutClipInfoList, IZolSmartCutClipInfo*> {
 public:
  static constexpr const char* interfaceName = "IZolSmartCutClipInfoList";

 protected:
  ~IZolSmartCutClipInfoList() = default;
};

/// Music sections.
class IZolMusicInfoList : public ListInterface<IZolMusicInfoList, IZolMusicInfo*> {
 public:
  static constexpr const char* interfaceName = "IZolMusicInfoList";

 protected:
  ~IZolMusicInfoList() = default;
};

/// Rows of a storyboard.
class IZolStoryboardInfoList : public ListInterface<IZolStoryboardInfoList, IZolStoryboardInfo*> {
 public:
  static constexpr const char* interfaceName = "IZolStoryboardInfoList";

 protected:
  ~IZolStoryboardInfoList() = default;
};

/// Search results.
class IZolSmartCutSearchResultList
    : public ListInterface<IZolSmartCutSearchResultList, IZolSmartCutSearchResult*> {
 public:
  static constexpr const char* interfaceName = "IZolSmartCutSearchResultList";

 protected:
  ~IZolSmartCutSearchResultList() = default;
};

/// Items of a search result's dimension.
class IZolSmartCutSearchDimensionsResultItemList
    : public ListInterface<IZolSmartCutSearchDimensionsResultItemList,
                           IZolSmartCutSearchDimensionsResultItem*> {
 public:
  static constexpr const char* interfaceName = "IZolSmartCutSearchDimensionsResultItemList";

 protected:
  ~IZolSmartCutSearchDimensionsResultItemList() = default;
};

/// Roles of a search result.
class IZolRoleSearchItemInfoList
    : public ListInterface<IZolRoleSearchItemInfoList, IZolRoleSearchItemInfo*> {
 public:
  static constexpr const char* interfaceName = "IZolRoleSearchItemInfoList";

 protected:
  ~IZolRoleSearchItemInfoList() = default;
};

/// Graphics processors.
class IGpuInfoList : public ListInterface<IGpuInfoList, IGpuInfo*> {
 public:
  static constexpr const char* interfaceName = "IGpuInfoList";

 protected:
  ~IGpuInfoList() = default;
};

}  // namespace ZOL

extern "C" {

/// An empty list, owned.
///@{
KYDATASTRUCTURE_API ZOL::ZOLIntList* createZOLIntList();
KYDATASTRUCTURE_API ZOL::ZOLBoolList* createZOLBoolList();
KYDATASTRUCTURE_API ZOL::ZOLFLOATList* createZOLFLOATList();
KYDATASTRUCTURE_API ZOL::ZOLREALList* createZOLREALList();
KYDATASTRUCTURE_API ZOL::ZOLLonglongList* createZOLLonglongList();
KYDATASTRUCTURE_API ZOL::ZOLULonglongList* createZOLULonglongList();
KYDATASTRUCTURE_API ZOL::ZOLIntPtrList* createZOLIntPtrList();
KYDATASTRUCTURE_API ZOL::ZOLVoidPtrList* createZOLVoidPtrList();
KYDATASTRUCTURE_API ZOL::ZOLPByteList* createZOLPByteList();
KYDATASTRUCTURE_API ZOL::ZolValueList* createZolValueList();
KYDATASTRUCTURE_API ZOL::ZOLPointNList* createZOLPointNList();
KYDATASTRUCTURE_API ZOL::ZOLSizeNList* createZOLSizeNList();
KYDATASTRUCTURE_API ZOL::GradientColorList* createGradientColorList();
KYDATASTRUCTURE_API ZOL::ZOLPointFList* createZOLPointFList();
KYDATASTRUCTURE_API ZOL::ZOLRectNList* createZOLRectNList();
KYDATASTRUCTURE_API ZOL::ZOLRangeList* createZOLRangeList();
KYDATASTRUCTURE_API ZOL::BkMarkInOutSectionList* createBkMarkInOutSectionList();
KYDATASTRUCTURE_API ZOL::ZOLRectFList* createZOLRectFList();
KYDATASTRUCTURE_API ZOL::RenderSegmentInfoList* createRenderSegmentInfoList();
KYDATASTRUCTURE_API ZOL::ZOLPolygonFList* createZOLPolygonFList();
KYDATASTRUCTURE_API ZOL::PropertyList* createPropertyList();
KYDATASTRUCTURE_API ZOL::KeyFrameValueList* createKeyFrameValueList();
KYDATASTRUCTURE_API ZOL::ZOLPCharList* createZOLPCharList();
KYDATASTRUCTURE_API ZOL::ZOLAutoVoidPtrList* createZOLAutoVoidPtrList();
KYDATASTRUCTURE_API ZOL::ZOLBaseObjectList* createZOLBaseObjectList();
KYDATASTRUCTURE_API ZOL::IKyMaskInfoDataList* createIKyMaskInfoDataList();
KYDATASTRUCTURE_API ZOL::IZolBGRDataList* createIZolBGRDataList();
KYDATASTRUCTURE_API ZOL::IZolBGRADataList* createIZolBGRADataList();
KYDATASTRUCTURE_API ZOL::IZoEffectInfoList* createIZoEffectInfoList();
KYDATASTRUCTURE_API ZOL::IZolPluginInfoList* createIZolPluginInfoList();
KYDATASTRUCTURE_API ZOL::IFaceClusterInfoList* createIFaceClusterInfoList();
KYDATASTRUCTURE_API ZOL::IKyLoraTextToImageHistoryInfoList*
createIKyLoraTextToImageHistoryInfoList();
KYDATASTRUCTURE_API ZOL::IKyVoiceDataInfoList* createIKyVoiceDataInfoList();
KYDATASTRUCTURE_API ZOL::IKyScriptSceneInfoList* createIKyScriptSceneInfoList();
KYDATASTRUCTURE_API ZOL::IKyScriptCharacterInfoList* createIKyScriptCharacterInfoList();
KYDATASTRUCTURE_API ZOL::IKyScriptEventSoundInfoList* createIKyScriptEventSoundInfoList();
KYDATASTRUCTURE_API ZOL::IKyScriptCharactersIfInfoList* createIKyScriptCharactersIfInfoList();
KYDATASTRUCTURE_API ZOL::IKyScriptClipInfoList* createIKyScriptClipInfoList();
KYDATASTRUCTURE_API ZOL::IZolResSerializeInfoList* createIZolResSerializeInfoList();
KYDATASTRUCTURE_API ZOL::IZolSliceItemList* createIZolSliceItemList();
KYDATASTRUCTURE_API ZOL::IZolDemensionsItemList* createIZolDemensionsItemList();
KYDATASTRUCTURE_API ZOL::IZolKeyMatrixInfoList* createIZolKeyMatrixInfoList();
KYDATASTRUCTURE_API ZOL::IZolTextInfoList* createIZolTextInfoList();
KYDATASTRUCTURE_API ZOL::IZolHighlightInfoList* createIZolHighlightInfoList();
KYDATASTRUCTURE_API ZOL::IZolSmartCutClipInfoList* createIZolSmartCutClipInfoList();
KYDATASTRUCTURE_API ZOL::IZolMusicInfoList* createIZolMusicInfoList();
KYDATASTRUCTURE_API ZOL::IZolStoryboardInfoList* createIZolStoryboardInfoList();
KYDATASTRUCTURE_API ZOL::IZolSmartCutSearchResultList* createIZolSmartCutSearchResultList();
KYDATASTRUCTURE_API ZOL::IZolSmartCutSearchDimensionsResultItemList*
createIZolSmartCutSearchDimensionsResultItemList();
KYDATASTRUCTURE_API ZOL::IZolRoleSearchItemInfoList* createIZolRoleSearchItemInfoList();
KYDATASTRUCTURE_API ZOL::IGpuInfoList* createIGpuInfoList();
///@}

}  // extern "C"

#endif  // KYDATASTRUCTURE_LISTS_H_
