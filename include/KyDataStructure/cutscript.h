/// \file
/// The object graph of an automatic cut, the analysis report, and the text forms
/// of storyboards and highlights.
///
/// A record has a public interface that reads and one whose name ends in
/// `Internal` that writes; the writing side is reached by queryInterface() alone,
/// for instance with query<IZolMusicInfoInternal>(music). Unless a comment says
/// otherwise a setter always answers kSuccess, takes a null text as the empty
/// one, and a text getter never gives null.
///
/// A script class is 0 for a plain row, 1 for a title, 2 for a chapter, which
/// opens a new music section, and 3 for a frame.

#ifndef KYDATASTRUCTURE_CUTSCRIPT_H_
#define KYDATASTRUCTURE_CUTSCRIPT_H_

#include <KyDataStructure/frame.h>
#include <KyDataStructure/lists.h>
#include <KyDataStructure/media.h>

namespace ZOL {

/// A span of a clip worth showing. On purpose, alone among its relatives, the
/// reading side writes too.
class IZolHighlightInfo : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolHighlightInfo";

  /// The kind of the highlight and its span in the clip.
  ///@{
  virtual int setHLType(int type) = 0;
  /// 0 for an emotion, 1 for any other kind, as far as the library knows. On
  /// purpose: out of a cut reply it is 0 for every kind that is named by a text.
  virtual int hlType() = 0;
  virtual long long trimIn() = 0;
  virtual int setTrimIn(long long trimIn) = 0;
  virtual long long trimOut() = 0;
  virtual int setTrimOut(long long trimOut) = 0;
  ///@}

  /// Writes `{"HLType":0,"trimIn":0,"trimOut":0}` into `out`. Null is refused.
  virtual int toJson(IZolString* out) = 0;
  /// Reads such a text: comments and a trailing comma are allowed, what follows
  /// the object is ignored, a byte-order mark is an error. Each member stands by
  /// itself; one that is missing or of another type leaves its field. Refused:
  /// null and a text that is no JSON object.
  virtual int fromJson(const char* text) = 0;

 protected:
  ~IZolHighlightInfo() = default;
};

/// The writing side of IZolHighlightInfo.
class IZolHighlightInfoInternal {
 public:
  static constexpr const char* interfaceName = "IZolHighlightInfoInternal";

  /// As the setters of IZolHighlightInfo.
  ///@{
  virtual int setHLType(int type) = 0;
  virtual int setTrimIn(long long trimIn) = 0;
  virtual int setTrimOut(long long trimOut) = 0;
  ///@}

 protected:
  ~IZolHighlightInfoInternal() = default;
};

/// A stretch of the finished video that one piece of music covers.
class IZolMusicInfo : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolMusicInfo";

  /// The music type of a reply is 0 for "t2m" or no text, and 1 for any other; start and
  /// end lie on the finished timeline. The note is the callers' own: no reader sets it.
  ///@{
  virtual int musicType() = 0;
  virtual long long start() = 0;
  virtual long long end() = 0;
  virtual const char* description() = 0;
  virtual const char* note() = 0;
  ///@}

 protected:
  ~IZolMusicInfo() = default;
};

/// The writing side of IZolMusicInfo.
class IZolMusicInfoInternal : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolMusicInfoInternal";

  /// Any number is taken, and texts are copied.
  ///@{
  virtual int setMusicType(int type) = 0;
  virtual int setStart(long long start) = 0;
  virtual int setEnd(long long end) = 0;
  virtual int setDescription(const char* text) = 0;
  virtual int setNote(const char* text) = 0;
  ///@}

 protected:
  ~IZolMusicInfoInternal() = default;
};

/// A row of the finished video.
class IZolStoryboardInfo : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolStoryboardInfo";

  /// The fields of the row; start and end lie on the finished timeline.
  ///@{
  virtual int scriptClass() = 0;
  virtual const char* title() = 0;
  virtual const char* subtitle() = 0;
  virtual const char* description() = 0;
  virtual long long start() = 0;
  virtual long long end() = 0;
  ///@}

 protected:
  ~IZolStoryboardInfo() = default;
};

/// The writing side of IZolStoryboardInfo.
class IZolStoryboardInfoInternal : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolStoryboardInfoInternal";

  /// Any number is taken, and texts are copied.
  ///@{
  virtual int setScriptClass(int scriptClass) = 0;
  virtual int setTitle(const char* text) = 0;
  virtual int setSubtitle(const char* text) = 0;
  virtual int setDescription(const char* text) = 0;
  virtual int setStart(long long start) = 0;
  virtual int setEnd(long long end) = 0;
  ///@}

 protected:
  ~IZolStoryboardInfoInternal() = default;
};

/// A timed text of a clip, with an optional b-roll clip to lay over it.
class IZolTextInfo : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolTextInfo";

  /// The text with its span in the clip, and the b-roll with its span in its own file.
  ///@{
  virtual long long start() = 0;
  virtual long long end() = 0;
  /// On purpose: always empty out of a cut reply.
  virtual const char* text() = 0;
  /// True exactly when there is a b-roll file name.
  virtual bool hasBroll() = 0;
  virtual const char* brollFileName() = 0;
  virtual long long brollStart() = 0;
  virtual long long brollEnd() = 0;
  ///@}

 protected:
  ~IZolTextInfo() = default;
};

/// The writing side of IZolTextInfo.
class IZolTextInfoInternal {
 public:
  static constexpr const char* interfaceName = "IZolTextInfoInternal";

  /// Any number is taken, and texts are copied.
  ///@{
  virtual int setStart(long long start) = 0;
  virtual int setEnd(long long end) = 0;
  virtual int setText(const char* text) = 0;
  virtual int setBrollFileName(const char* text) = 0;
  virtual int setBrollStart(long long start) = 0;
  virtual int setBrollEnd(long long end) = 0;
  ///@}

 protected:
  ~IZolTextInfoInternal() = default;
};

/// Where a storyboard row comes from in its source.
class IZolSmartCutClipInfo : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolSmartCutClipInfo";

  /// The fields of the clip; start and end lie in its own file.
  ///@{
  virtual int scriptClass() = 0;
  // On purpose before the title here, and behind the subtitle on the writing side.
  virtual const char* fileName() = 0;
  virtual const char* title() = 0;
  virtual const char* subtitle() = 0;
  virtual long long start() = 0;
  virtual long long end() = 0;
  ///@}

  /// The stored list itself, lent; null if none.
  virtual IZolTextInfoList* textInfoList() = 0;
  /// The stored list itself, lent; null if none.
  virtual IZolHighlightInfoList* highlightInfoList() = 0;

 protected:
  ~IZolSmartCutClipInfo() = default;
};

/// The writing side of IZolSmartCutClipInfo.
class IZolSmartCutClipInfoInternal {
 public:
  static constexpr const char* interfaceName = "IZolSmartCutClipInfoInternal";

  /// Any number is taken, and texts are copied.
  ///@{
  virtual int setScriptClass(int scriptClass) = 0;
  virtual int setTitle(const char* text) = 0;
  virtual int setSubtitle(const char* text) = 0;
  virtual int setFileName(const char* text) = 0;
  virtual int setStart(long long start) = 0;
  virtual int setEnd(long long end) = 0;
  ///@}

  /// Kept, not copied: later changes to the list show. Null clears.
  virtual int setTextInfoList(IZolTextInfoList* list) = 0;
  /// Kept, not copied: later changes to the list show. Null clears.
  virtual int setHighlightInfoList(IZolHighlightInfoList* list) = 0;

 protected:
  ~IZolSmartCutClipInfoInternal() = default;
};

/// Nine texts without a meaning of the library's.
class IZolTargetScreenInfo : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolTargetScreenInfo";

  /// Lent until it is next set.
  ///@{
  virtual const char* screenText1() = 0;
  virtual const char* screenText2() = 0;
  virtual const char* screenText3() = 0;
  virtual const char* screenText4() = 0;
  virtual const char* screenText5() = 0;
  virtual const char* screenText6() = 0;
  virtual const char* screenText7() = 0;
  virtual const char* screenText8() = 0;
  virtual const char* screenText9() = 0;
  ///@}

 protected:
  ~IZolTargetScreenInfo() = default;
};

/// The writing side of IZolTargetScreenInfo.
class IZolTargetScreenInfoInternal {
 public:
  static constexpr const char* interfaceName = "IZolTargetScreenInfoInternal";

  /// Copied.
  ///@{
  virtual int setScreenText1(const char* text) = 0;
  virtual int setScreenText2(const char* text) = 0;
  virtual int setScreenText3(const char* text) = 0;
  virtual int setScreenText4(const char* text) = 0;
  virtual int setScreenText5(const char* text) = 0;
  virtual int setScreenText6(const char* text) = 0;
  virtual int setScreenText7(const char* text) = 0;
  virtual int setScreenText8(const char* text) = 0;
  virtual int setScreenText9(const char* text) = 0;
  ///@}

 protected:
  ~IZolTargetScreenInfoInternal() = default;
};

/// The alternative scripts of one cut. Filled once, by createCutScripts(), and
/// read from then on. An index is out of range when it is negative or not below
/// scriptCount().
class IZolCutScripts : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolCutScripts";

  /// How many scripts there are.
  virtual long long scriptCount() = 0;
  /// The empty text out of range; never null.
  virtual const char* scriptTitle(int index) = 0;
  /// The script's own list, lent; null out of range. Row i here and clip i of
  /// smartCutClipInfoList() are the same item.
  virtual IZolStoryboardInfoList* storyboardInfoList(int index) = 0;
  /// The script's own list, lent; null out of range.
  virtual IZolSmartCutClipInfoList* smartCutClipInfoList(int index) = 0;
  /// The sum of end minus start over the rows, worked out on each call and not
  /// clamped; 0 out of range.
  virtual long long scriptDuration(int index) = 0;
  /// Clears `out` and assigns the music sections to it; the sections are shared.
  /// Refused for null and out of range. A list of another kind comes back empty.
  virtual int getMusicInfoList(int index, IZolMusicInfoList* out) = 0;

 protected:
  ~IZolCutScripts() = default;
};

// The analysis report.

/// A span of time with a label.
class IZolSliceItem : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolSliceItem";

  virtual const char* label() = 0;    ///< lent until it is next set
  virtual long long startTime() = 0;  ///< milliseconds
  virtual long long endTime() = 0;    ///< milliseconds
  virtual int score() = 0;            ///< 100 until set
  /// Clears both lists and assigns the stored names and values to them, if both
  /// are stored. Null is refused.
  virtual int getKeyValues(ZOLPCharList* keys, ZOLPCharList* values) = 0;
  /// Lent; null if none.
  virtual IZolBGRData* faceImage() = 0;

 protected:
  ~IZolSliceItem() = default;
};

/// The writing side of IZolSliceItem.
class IZolSliceItemInternal {
 public:
  static constexpr const char* interfaceName = "IZolSliceItemInternal";

  /// Null is taken as the empty text.
  virtual int setLabel(const char* text) = 0;
  virtual int setStartTime(long long time) = 0;  ///< milliseconds
  virtual int setEndTime(long long time) = 0;    ///< milliseconds
  virtual int setScore(int score) = 0;           ///< any number is taken
  /// Copies both lists. Refused for null and for lists of different sizes.
  virtual int setKeyValues(ZOLPCharList* keys, ZOLPCharList* values) = 0;
  /// Kept; null clears.
  virtual int setFaceImage(IZolBGRData* image) = 0;

 protected:
  ~IZolSliceItemInternal() = default;
};

/// One dimension of a report: slices, flat or by label, and score samples.
class IZolDemensionsItem : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolDemensionsItem";

  /// 1 to 12 in a report: what each stands for is told with the report's format.
  virtual int dimensionType() = 0;
  /// Clears `out` and fills it with the flat list if there is one, and otherwise
  /// with the slices of all labels, in the byte-wise order of the labels. The
  /// slices are shared. Null is refused.
  virtual int getSliceItems(IZolSliceItemList* out) = 0;
  /// True if slices are held by label.
  virtual bool hasLabels() = 0;
  /// Clears `out` and adds every label, in byte-wise order. Refused for null and
  /// without labels.
  virtual int getLabels(ZOLPCharList* out) = 0;
  /// Clears `out` and assigns the label's slices to it; an unknown label leaves
  /// it empty. Refused for null and without labels.
  virtual int getLabelSliceItems(const char* label, IZolSliceItemList* out) = 0;
  /// On purpose the reverse of what its name promises: true exactly when there
  /// are times and their number differs from that of the scores.
  virtual bool hasScores() = 0;
  /// Clears both lists and fills them only if hasScores(). As setScores() takes
  /// lists of equal size alone, the samples cannot be read out; that is on
  /// purpose, too. Null is refused.
  virtual int getScores(ZOLLonglongList* times, ZOLIntList* scores) = 0;

 protected:
  ~IZolDemensionsItem() = default;
};

/// The writing side of IZolDemensionsItem. It keeps lists of its own, which share
/// the slices with the caller's.
class IZolDemensionsItemInternal {
 public:
  static constexpr const char* interfaceName = "IZolDemensionsItemInternal";

  /// Any number is taken.
  virtual int setDimensionType(int type) = 0;
  /// Null drops the flat list.
  virtual int setSliceItems(IZolSliceItemList* slices) = 0;
  /// Enters or replaces the slices of a label. Null is refused.
  virtual int setLabelSliceItems(const char* label, IZolSliceItemList* slices) = 0;
  /// Copies both lists. Refused for null and for lists of different sizes.
  virtual int setScores(ZOLLonglongList* times, ZOLIntList* scores) = 0;

 protected:
  ~IZolDemensionsItemInternal() = default;
};

/// An analysis report: one item for each dimension, and the keywords.
class IZolKeyMatrixInfo : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolKeyMatrixInfo";

  /// Lent until it is next set. No reader sets it.
  virtual const char* matrixName() = 0;
  /// On purpose always refused: the check of the argument is the wrong way
  /// about and stays so. Ask dimensionItem() for the types 1 to 12 instead.
  virtual int getDimensionTypes(ZOLIntList* out) = 0;
  /// Lent; null if the report has none of that type.
  virtual IZolDemensionsItem* dimensionItem(int type) = 0;
  /// Clears `out` and assigns the keywords to it, if there are any. Null is
  /// refused.
  virtual int getKeywords(ZOLPCharList* out) = 0;

 protected:
  ~IZolKeyMatrixInfo() = default;
};

/// The writing side of IZolKeyMatrixInfo.
class IZolKeyMatrixInfoInternal {
 public:
  static constexpr const char* interfaceName = "IZolKeyMatrixInfoInternal";

  /// Null is taken as the empty text.
  virtual int setMatrixName(const char* text) = 0;
  /// Kept under its type, in the place of an item that is there. Null is refused.
  virtual int setDimensionItem(int type, IZolDemensionsItem* item) = 0;
  /// Copied; null drops the keywords.
  virtual int setKeywords(ZOLPCharList* keywords) = 0;

 protected:
  ~IZolKeyMatrixInfoInternal() = default;
};

}  // namespace ZOL

extern "C" {

/// A new record, owned.
///@{
KYDATASTRUCTURE_API ZOL::IZolStoryboardInfo* createStoryboardInfo();
KYDATASTRUCTURE_API ZOL::IZolSmartCutClipInfo* createSmartCutClipInfo();
KYDATASTRUCTURE_API ZOL::IZolTextInfo* createTextInfo();
KYDATASTRUCTURE_API ZOL::IZolTargetScreenInfo* createTargetScreenInfo();
KYDATASTRUCTURE_API ZOL::IZolHighlightInfo* createHighlightInfo();
KYDATASTRUCTURE_API ZOL::IZolMusicInfo* createMusicInfo();
KYDATASTRUCTURE_API ZOL::IZolSliceItem* createSliceItem();
KYDATASTRUCTURE_API ZOL::IZolDemensionsItem* createDemensionsItem();
///@}

/// Reads a cut reply: a JSON array of scripts, zero-terminated. Null for a null
/// text and for one that is no JSON array. Anything in it that is missing or of
/// another type is passed over. Nothing points into the text afterwards.
KYDATASTRUCTURE_API ZOL::IZolCutScripts* createCutScripts(const char* text);

/// Reads an analysis report: a JSON object, zero-terminated. Null for a null text
/// and for one that is no JSON object. Anything in it that is missing or of
/// another type is passed over.
/// \throws std::invalid_argument "invalid stoi argument" for a label of "total" or
///   "brightness_change" with a span, when the label does not begin with a number.
/// \throws std::out_of_range "stoi argument out of range" for such a label beyond
///   32 bits. Nothing of the report is left behind.
KYDATASTRUCTURE_API ZOL::IZolKeyMatrixInfo* createKeyMatrixInfo(const char* text);

/// Reads a storyboard text and appends its rows to `list`. A row that lacks one
/// of its six members, or has one of another type, is dropped. Refused: null, an
/// empty text, and one that is no JSON object with an array "storyboard_infos".
KYDATASTRUCTURE_API int jsonBufferToStoryboardInfoList(ZOL::IZolString* buffer,
                                                       ZOL::IZolStoryboardInfoList* list);

/// Writes the rows as indented JSON; a null row is passed over. Null arguments are
/// refused. A script class is written as it stands, although the reader takes 0 to
/// 3 alone and makes 0 of any other.
KYDATASTRUCTURE_API int storyboardInfoListToJsonBuffer(ZOL::IZolStoryboardInfoList* list,
                                                       ZOL::IZolString* out);

}  // extern "C"

#endif  // KYDATASTRUCTURE_CUTSCRIPT_H_
