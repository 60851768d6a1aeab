/// \file
/// Media blocks and the plain records of masks, effects, plug-ins, pan-zoom
/// moves, face clusters, voices, image history and scripts.
///
/// A record carries what its callers agree on; the library reads none of it. Its
/// operations stand in field order, getter before setter, with copyFrom behind
/// them; where a record breaks that order it says so. Setters of numbers and
/// rectangles always answer kSuccess.

#ifndef KYDATASTRUCTURE_MEDIA_H_
#define KYDATASTRUCTURE_MEDIA_H_

#include <KyDataStructure/frame.h>
#include <KyDataStructure/lists.h>

namespace ZOL {

/// A block of bytes with a width, a height and a tag. The bytes are always the
/// object's own copy, with a zero behind the last; what they mean, and how many
/// they are for a width and a height, is between the callers.
class IZolMediaData : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolMediaData";

  /// The callers' own numbers; all are 0 in a new object.
  ///@{
  virtual long long tag() = 0;
  virtual void setTag(long long tag) = 0;
  virtual unsigned int width() = 0;
  virtual unsigned int height() = 0;
  ///@}

  /// Changes the two numbers and nothing else.
  virtual void setDimensions(unsigned int width, unsigned int height) = 0;
  /// In bytes, without the zero behind the last.
  virtual int dataSize() = 0;
  /// The object's own block, lent until the next setData() or copyFrom() and
  /// free to be written in; null until the object is first filled.
  virtual unsigned char* data() = 0;
  /// Replaces the block by a copy of `size` bytes of `data`, or by zeros when
  /// `data` is null. Tag and dimensions stay. A size of 0 leaves one zero byte.
  /// A negative size leaves as std::bad_alloc with the object unchanged.
  virtual void setData(int size, const unsigned char* data) = 0;
  /// Takes tag, dimensions and a copy of the bytes. Refused for null and for a
  /// source that has no bytes, no width or no height.
  virtual int copyFrom(IZolMediaData* other) = 0;

 protected:
  ~IZolMediaData() = default;
};

/// Media that the caller states to be blue, green and red. Nothing looks at it.
class IZolBGRData : public virtual IZolMediaData {
 public:
  static constexpr const char* interfaceName = "IZolBGRData";

 protected:
  ~IZolBGRData() = default;
};

/// Media that the caller states to be blue, green, red and alpha.
class IZolBGRAData : public virtual IZolMediaData {
 public:
  static constexpr const char* interfaceName = "IZolBGRAData";

 protected:
  ~IZolBGRAData() = default;
};

/// A text and a number that describe a mask. There is no copy operation.
class IKyMaskInfoData : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IKyMaskInfoData";

  /// The callers' own text and number.
  ///@{
  virtual const char* maskText() = 0;
  /// Null is refused.
  virtual int setMaskText(const char* text) = 0;
  virtual int maskNumber() = 0;
  virtual int setMaskNumber(int number) = 0;
  ///@}

 protected:
  ~IKyMaskInfoData() = default;
};

/// Four texts about one effect.
///
/// A null text is refused.
class IZoEffectInfo : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZoEffectInfo";

  /// The callers' own texts, each of them lent until it is next set.
  ///@{
  virtual const char* effectText1() = 0;
  virtual int setEffectText1(const char* text) = 0;
  virtual const char* effectText2() = 0;
  virtual int setEffectText2(const char* text) = 0;
  virtual const char* effectText3() = 0;
  virtual int setEffectText3(const char* text) = 0;
  virtual const char* effectText4() = 0;
  virtual int setEffectText4(const char* text) = 0;
  ///@}

  /// Takes the four texts. Null is refused.
  virtual int copyFrom(IZoEffectInfo* other) = 0;

 protected:
  ~IZoEffectInfo() = default;
};

/// A plug-in: three texts, a number and the effects that it offers.
///
/// A null text is refused. The effects are never handed out as a list object: they
/// go through the caller's list, and the element objects are shared.
class IZolPluginInfo : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolPluginInfo";

  /// The callers' own texts and number; a text is lent until it is next set.
  ///@{
  virtual const char* pluginText1() = 0;
  virtual int setPluginText1(const char* text) = 0;
  virtual const char* pluginText2() = 0;
  virtual int setPluginText2(const char* text) = 0;
  virtual const char* pluginText3() = 0;
  virtual int setPluginText3(const char* text) = 0;
  virtual int pluginNumber() = 0;
  virtual int setPluginNumber(int number) = 0;
  ///@}

  /// Assigns the record's effects to `out`. Null is refused; what `out` makes of
  /// the assignment is not looked at.
  virtual int getEffects(IZoEffectInfoList* out) = 0;
  /// Assigns `in` to the record's effects, in the same way.
  virtual int setEffects(IZoEffectInfoList* in) = 0;
  /// Adds one effect, kept. Null is refused.
  virtual int addEffect(IZoEffectInfo* effect) = 0;
  /// Takes the texts and the number. On purpose the effects go the other way:
  /// `other` is given this record's effects, and loses its own; so a record copied
  /// onto itself loses them. Null is refused.
  virtual int copyFrom(IZolPluginInfo* other) = 0;

 protected:
  ~IZolPluginInfo() = default;
};

/// Two rectangles and two numbers of a pan-and-zoom move. A new pair stands for
/// the whole unit square, (0, 0, 1, 1), at both ends.
class IZolPanZoomPair : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolPanZoomPair";

  /// The rectangles and numbers of the move.
  ///@{
  virtual _RectF firstRect() = 0;
  virtual int setFirstRect(_RectF rect) = 0;
  virtual _RectF secondRect() = 0;
  virtual int setSecondRect(_RectF rect) = 0;
  virtual long long firstNumber() = 0;
  virtual int setFirstNumber(long long number) = 0;
  virtual long long secondNumber() = 0;
  virtual int setSecondNumber(long long number) = 0;
  ///@}

  /// Takes all four fields. Null is refused.
  virtual int copyFrom(IZolPanZoomPair* other) = 0;

 protected:
  ~IZolPanZoomPair() = default;
};

/// A face cluster: two numbers (-1 when new), a rectangle ((0, 0, 1, 1) when new)
/// and a picture. The picture goes in and out as a copy of its bytes.
class IFaceClusterInfo : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IFaceClusterInfo";

  /// The callers' own numbers and rectangle.
  ///@{
  virtual long long clusterNumber1() = 0;
  virtual int setClusterNumber1(long long number) = 0;
  virtual long long clusterNumber2() = 0;
  virtual int setClusterNumber2(long long number) = 0;
  virtual _RectF clusterRect() = 0;
  virtual int setClusterRect(_RectF rect) = 0;
  ///@}

  /// Copies the picture into `out`. Refused for null, and while the record has
  /// no picture.
  virtual int getClusterMedia(IZolMediaData* out) = 0;
  /// Copies the picture from `in`. Refused for null and for an object that has no
  /// bytes, no width or no height.
  virtual int setClusterMedia(IZolMediaData* in) = 0;
  /// Takes the two numbers and the picture, if the source has one. On purpose
  /// not the rectangle: the caller copies it where it is wanted. Null is refused.
  virtual int copyFrom(IFaceClusterInfo* other) = 0;

 protected:
  ~IFaceClusterInfo() = default;
};

/// A voice: texts and numbers. A null text is refused.
class IKyVoiceDataInfo : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IKyVoiceDataInfo";

  /// The callers' own numbers and texts; a text is lent until it is next set.
  ///@{
  virtual int voiceNumber1() = 0;
  virtual int setVoiceNumber1(int number) = 0;
  virtual const char* voiceText1() = 0;
  virtual int setVoiceText1(const char* text) = 0;
  virtual const char* voiceText2() = 0;
  virtual int setVoiceText2(const char* text) = 0;
  virtual int voiceNumber2() = 0;
  virtual int setVoiceNumber2(int number) = 0;
  virtual const char* voiceText3() = 0;
  virtual int setVoiceText3(const char* text) = 0;
  virtual const char* voiceText4() = 0;
  virtual int setVoiceText4(const char* text) = 0;
  virtual const char* voiceText5() = 0;
  virtual int setVoiceText5(const char* text) = 0;
  virtual const char* voiceText6() = 0;
  virtual int setVoiceText6(const char* text) = 0;
  virtual int voiceNumber3() = 0;
  virtual int setVoiceNumber3(int number) = 0;
  virtual const char* voiceText7() = 0;
  virtual int setVoiceText7(const char* text) = 0;
  virtual int voiceNumber4() = 0;
  virtual int setVoiceNumber4(int number) = 0;
  virtual int voiceNumber5() = 0;
  virtual int setVoiceNumber5(int number) = 0;
  virtual int voiceNumber6() = 0;
  virtual int setVoiceNumber6(int number) = 0;
  ///@}

  /// Takes all thirteen fields. Null is refused.
  virtual int copyFrom(IKyVoiceDataInfo* other) = 0;

 protected:
  ~IKyVoiceDataInfo() = default;
};

/// An entry of a history of text-to-image generation. A null text is refused.
/// There is no copy operation.
class IKyLoraTextToImageHistoryInfo : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IKyLoraTextToImageHistoryInfo";

  /// The callers' own numbers and texts; a text is lent until it is next set.
  ///@{
  virtual int historyNumber1() = 0;
  virtual int setHistoryNumber1(int number) = 0;
  /// On purpose wider than its setter's argument; the sign is kept.
  virtual long long historyNumber2() = 0;
  virtual int setHistoryNumber2(int number) = 0;
  virtual const char* historyText1() = 0;
  virtual int setHistoryText1(const char* text) = 0;
  virtual const char* historyText2() = 0;
  virtual int setHistoryText2(const char* text) = 0;
  ///@}

  /// Assigns the texts to `out`, as copies. Null is refused.
  virtual int getHistoryTexts(ZOLPCharList* out) = 0;
  /// Clears the texts and then assigns `in` to them, so an `in` that is no list
  /// of this library's leaves none. Null is refused.
  virtual int setHistoryTexts(ZOLPCharList* in) = 0;

 protected:
  ~IKyLoraTextToImageHistoryInfo() = default;
};

// Script records. A null text is refused, and copyFrom() refuses null. A list
// never changes hands: its getter assigns the record's list to the caller's, its
// setter the caller's to the record's; null is refused, and what the assignment
// answers is not looked at, so a list of another kind changes nothing and still
// gives kSuccess. Objects in the lists are shared, texts are copied.

/// A number and a text about characters, held by a clip.
class IKyScriptCharactersIfInfo : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IKyScriptCharactersIfInfo";

  /// The callers' own number and text, which is lent until it is next set.
  ///@{
  virtual int charactersIfNumber() = 0;
  virtual int setCharactersIfNumber(int number) = 0;
  virtual const char* charactersIfText() = 0;
  virtual int setCharactersIfText(const char* text) = 0;
  ///@}

  /// Takes both fields.
  virtual int copyFrom(IKyScriptCharactersIfInfo* other) = 0;

 protected:
  ~IKyScriptCharactersIfInfo() = default;
};

/// A clip of a scene.
class IKyScriptClipInfo : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IKyScriptClipInfo";

  /// What belongs to the clip; the text is lent until it is next set.
  ///@{
  virtual int getCharactersIfList(IKyScriptCharactersIfInfoList* out) = 0;
  virtual int setCharactersIfList(IKyScriptCharactersIfInfoList* in) = 0;
  virtual const char* clipText() = 0;
  virtual int setClipText(const char* text) = 0;
  ///@}

  /// Takes both fields. A clip copied onto itself loses the content of its list.
  virtual int copyFrom(IKyScriptClipInfo* other) = 0;

 protected:
  ~IKyScriptClipInfo() = default;
};

/// A sound of a scene.
class IKyScriptEventSoundInfo : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IKyScriptEventSoundInfo";

  /// The callers' own numbers and texts; a text is lent until it is next set.
  ///@{
  virtual int eventNumber1() = 0;
  virtual int setEventNumber1(int number) = 0;
  virtual int eventNumber2() = 0;
  virtual int setEventNumber2(int number) = 0;
  virtual const char* eventText1() = 0;
  virtual int setEventText1(const char* text) = 0;
  virtual const char* eventText2() = 0;
  virtual int setEventText2(const char* text) = 0;
  ///@}

  /// Takes all four fields.
  virtual int copyFrom(IKyScriptEventSoundInfo* other) = 0;

 protected:
  ~IKyScriptEventSoundInfo() = default;
};

/// A character. No record holds it; it lives in the caller's list.
class IKyScriptCharacterInfo : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IKyScriptCharacterInfo";

  /// The callers' own numbers and texts; a text is lent until it is next set.
  ///@{
  virtual int characterNumber1() = 0;
  virtual int setCharacterNumber1(int number) = 0;
  virtual const char* characterText1() = 0;
  virtual int setCharacterText1(const char* text) = 0;
  virtual const char* characterText2() = 0;
  virtual int setCharacterText2(const char* text) = 0;
  virtual const char* characterText3() = 0;
  virtual int setCharacterText3(const char* text) = 0;
  /// Takes the fields above. On purpose not characterNumber2.
  virtual int copyFrom(IKyScriptCharacterInfo* other) = 0;
  // On purpose behind copyFrom, the setter first and without a result.
  virtual void setCharacterNumber2(int number) = 0;
  virtual int characterNumber2() = 0;
  ///@}

 protected:
  ~IKyScriptCharacterInfo() = default;
};

/// A scene with its clips, sounds, texts and history.
class IKyScriptSceneInfo : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IKyScriptSceneInfo";

  /// What belongs to the scene: numbers, texts, each lent until it is next set, and lists.
  ///@{
  virtual int sceneNumber1() = 0;
  virtual int setSceneNumber1(int number) = 0;
  /// On purpose wider than its setter's argument; the sign is kept.
  virtual long long sceneNumber2() = 0;
  virtual int setSceneNumber2(int number) = 0;
  virtual const char* sceneText1() = 0;
  virtual int setSceneText1(const char* text) = 0;
  virtual int sceneNumber3() = 0;
  virtual int setSceneNumber3(int number) = 0;
  virtual int sceneNumber4() = 0;
  virtual int setSceneNumber4(int number) = 0;
  virtual int sceneNumber5() = 0;
  virtual int setSceneNumber5(int number) = 0;
  virtual int sceneNumber6() = 0;
  virtual int setSceneNumber6(int number) = 0;
  virtual const char* sceneText2() = 0;
  virtual int setSceneText2(const char* text) = 0;
  virtual const char* sceneText3() = 0;
  virtual int setSceneText3(const char* text) = 0;
  virtual int getSceneTexts1(ZOLPCharList* out) = 0;
  virtual int setSceneTexts1(ZOLPCharList* in) = 0;
  virtual int getSceneTexts2(ZOLPCharList* out) = 0;
  virtual int setSceneTexts2(ZOLPCharList* in) = 0;
  virtual const char* sceneText4() = 0;
  virtual int setSceneText4(const char* text) = 0;
  virtual const char* sceneText5() = 0;
  virtual int setSceneText5(const char* text) = 0;
  virtual int getHistoryList(IKyLoraTextToImageHistoryInfoList* out) = 0;
  virtual int setHistoryList(IKyLoraTextToImageHistoryInfoList* in) = 0;
  virtual int getClipList(IKyScriptClipInfoList* out) = 0;
  virtual int setClipList(IKyScriptClipInfoList* in) = 0;
  virtual const char* sceneText6() = 0;
  virtual int setSceneText6(const char* text) = 0;
  virtual const char* sceneText7() = 0;
  virtual int setSceneText7(const char* text) = 0;
  virtual int getSceneTexts3(ZOLPCharList* out) = 0;
  virtual int setSceneTexts3(ZOLPCharList* in) = 0;
  virtual int getEventSoundList(IKyScriptEventSoundInfoList* out) = 0;
  virtual int setEventSoundList(IKyScriptEventSoundInfoList* in) = 0;
  virtual const char* sceneText8() = 0;
  virtual int setSceneText8(const char* text) = 0;
  virtual const char* sceneText9() = 0;
  virtual int setSceneText9(const char* text) = 0;
  virtual int sceneNumber7() = 0;
  virtual int setSceneNumber7(int number) = 0;
  virtual int getSceneTexts4(ZOLPCharList* out) = 0;
  virtual int setSceneTexts4(ZOLPCharList* in) = 0;
  /// Takes every field but four. On purpose sceneText3, sceneTexts2, sceneTexts4
  /// and sceneNumber8 stay as they are. A scene copied onto itself loses the
  /// content of the lists that are taken.
  virtual int copyFrom(IKyScriptSceneInfo* other) = 0;
  // On purpose behind copyFrom, the setter first and without a result.
  virtual void setSceneNumber8(int number) = 0;
  virtual int sceneNumber8() = 0;
  ///@}

  /// Not a general clear: empties sceneText2, 5, 7 and 9, the four text lists
  /// and the sounds, sets sceneNumber7 to 0 and, on purpose, sceneNumber6 to 1.
  /// Everything else stays, clips and history among it.
  virtual void resetScene() = 0;

 protected:
  ~IKyScriptSceneInfo() = default;
};

}  // namespace ZOL

extern "C" {

/// A new record, owned.
///@{
KYDATASTRUCTURE_API ZOL::IZolMediaData* createEmptyMediaData();
///@}

/// An object filled with a copy of `size` bytes of `data`, or with zeros when
/// `data` is null. On purpose never null: with a width, height or size of 0 (or
/// below) the object is as createEmptyMediaData() gives it.
KYDATASTRUCTURE_API ZOL::IZolMediaData* createMediaData(unsigned int width, unsigned int height,
                                                        const unsigned char* data, int size,
                                                        long long tag);
/// As createMediaData().
KYDATASTRUCTURE_API ZOL::IZolBGRData* createBGRData(unsigned int width, unsigned int height,
                                                    const unsigned char* data, int size,
                                                    long long tag);
/// As createMediaData().
KYDATASTRUCTURE_API ZOL::IZolBGRAData* createBGRAData(unsigned int width, unsigned int height,
                                                      const unsigned char* data, int size,
                                                      long long tag);

/// A new record, owned.
///@{
KYDATASTRUCTURE_API ZOL::IKyMaskInfoData* createMaskInfoData();
KYDATASTRUCTURE_API ZOL::IZoEffectInfo* createEffectInfo();
KYDATASTRUCTURE_API ZOL::IZolPluginInfo* createPluginInfo();
KYDATASTRUCTURE_API ZOL::IZolPanZoomPair* createPanZoomPair();
KYDATASTRUCTURE_API ZOL::IFaceClusterInfo* createFaceClusterInfo();
KYDATASTRUCTURE_API ZOL::IKyVoiceDataInfo* createVoiceDataInfo();
KYDATASTRUCTURE_API ZOL::IKyLoraTextToImageHistoryInfo* createLoraTextToImageHistoryInfo();
KYDATASTRUCTURE_API ZOL::IKyScriptSceneInfo* createScriptSceneInfo();
KYDATASTRUCTURE_API ZOL::IKyScriptClipInfo* createScriptClipInfo();
KYDATASTRUCTURE_API ZOL::IKyScriptEventSoundInfo* createScriptEventSoundInfo();
KYDATASTRUCTURE_API ZOL::IKyScriptCharactersIfInfo* createScriptCharactersIfInfo();
KYDATASTRUCTURE_API ZOL::IKyScriptCharacterInfo* createScriptCharacterInfo();
///@}

}  // extern "C"

#endif  // KYDATASTRUCTURE_MEDIA_H_
