/// \file
/// A safe face for C++17: counted pointers, walks over lists, and makers, so that
/// nobody pairs addRef() with release() or a factory with a cast.
///
/// Everything here is inline and stands on the other headers alone. It is not part
/// of KyDataStructure.h, which is the same for every standard; include it by name.
///
///     ZOL::Ref<ZOL::IZolMusicInfo> music = ZOL::make<ZOL::IZolMusicInfo>();
///     if (auto writer = music.as<ZOL::IZolMusicInfoInternal>()) writer->setNote("calm");
///     auto list = ZOL::make<ZOL::IZolMusicInfoList>();
///     list->add(music.get());
///     for (const auto& row : ZOL::each(list)) std::puts(row->note());
///
/// What these do not do: a raw pointer does not say whether it is lent or owned, so
/// adopt() and share() believe their caller. A cycle of references is never freed.

#ifndef KYDATASTRUCTURE_REF_H_
#define KYDATASTRUCTURE_REF_H_

#if !defined(_MSVC_LANG) && __cplusplus < 201703L
#error "KyDataStructure/ref.h needs C++17"
#endif

#include <KyDataStructure/cutscript.h>
#include <KyDataStructure/frame.h>
#include <KyDataStructure/lists.h>
#include <KyDataStructure/media.h>
#include <KyDataStructure/params.h>
#include <KyDataStructure/resource.h>
#include <KyDataStructure/search.h>

#include <cstddef>
#include <functional>
#include <iterator>
#include <string>
#include <type_traits>
#include <utility>

namespace ZOL {

template <class T>
class Ref;
template <class Interface>
class Side;

/// \cond inside
namespace refDetail {

template <class T>
inline constexpr bool isCounted = std::is_base_of_v<IDmBaseObj, T>;

// What queryInterface() can be asked for: an interface, not a class that has one.
template <class T, class = void>
inline constexpr bool isInterface = false;
template <class T>
inline constexpr bool isInterface<
    T, std::enable_if_t<std::is_same_v<decltype(T::interfaceName), const char* const>>> =
    std::is_abstract_v<T> && !std::is_const_v<T>;

template <class T, class U>
inline constexpr bool areRelated = std::is_convertible_v<T*, U*> || std::is_convertible_v<U*, T*>;

template <class Interface>
using View = std::conditional_t<isCounted<Interface>, Ref<Interface>, Side<Interface>>;

template <class Interface, class T>
View<Interface> viewOf(const Ref<T>& object);

}  // namespace refDetail
/// \endcond

/// A reference to a counted object, or to none; a pointer in size and in speed.
///
/// It is made in two ways that are told apart by name, and by no conversion:
///
///     auto text = ZOL::adopt(createZolString());    // owned: takes the reference over
///     auto image = ZOL::share(role->roleImage());   // lent: adds a reference
///
/// A copy adds a reference, a move adds none and leaves its source empty, the end
/// releases. Where one object takes the place of another, the new one is there before
/// the old one is released, since a release may call back; so assigning a Ref to
/// itself is harmless. What is done with `->` and `*` on an empty Ref is undefined.
///
/// One Ref is for one thread at a time; Refs to one object may be in several.
template <class T>
class Ref {
 public:
  using element_type = T;  ///< As with the pointers of the standard library.

  /// Takes over a reference that the caller owns, as a factory's result. Null gives an
  /// empty Ref.
  [[nodiscard]] static Ref adopt(T* owned) noexcept {
    static_assert(!std::is_const_v<T>, "operations are not const: a Ref holds no const object");
    static_assert(refDetail::isCounted<T>, "a Ref holds counted objects");
    return Ref(owned);
  }
  /// Adds a reference to an object that is lent. Null gives an empty Ref, and so does an
  /// object that is about to end, as its hook sees it: it takes no reference any more.
  [[nodiscard]] static Ref share(T* lent) {
    return adopt(lent && lent->addRef() != 0 ? lent : nullptr);
  }

  /// Empty.
  ///@{
  constexpr Ref() noexcept = default;
  constexpr Ref(std::nullptr_t) noexcept {}  // NOLINT(google-explicit-constructor)
  ///@}

  /// A copy adds a reference. A move adds none and leaves the other empty.
  ///@{
  Ref(const Ref& other) : Ref(share(other.object_)) {}
  Ref(Ref&& other) noexcept : object_(other.give()) {}
  ///@}

  /// The same, to a base of `U`; as() finds other interfaces.
  ///@{
  template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
  Ref(const Ref<U>& other)  // NOLINT(google-explicit-constructor)
      : Ref(share(other.get())) {}
  template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
  Ref(Ref<U>&& other) noexcept  // NOLINT(google-explicit-constructor)
      : object_(other.give()) {}
  ///@}

  /// Takes the other object, by copy or by move, and then releases the old one.
  Ref& operator=(Ref other) noexcept {
    swap(other);
    return *this;
  }
  ~Ref() {
    if (object_) object_->release();
  }

  /// Lent for as long as this or another holder keeps the object; null when empty.
  [[nodiscard]] T* get() const noexcept { return object_; }
  /// The object; undefined when empty.
  ///@{
  T* operator->() const noexcept { return object_; }
  T& operator*() const noexcept { return *object_; }
  ///@}
  /// False when empty.
  explicit operator bool() const noexcept { return object_ != nullptr; }

  /// The object as `Interface`, with a reference of its own: a Ref, or a Side where the
  /// interface does not count. Empty when the object does not answer to it. A base of
  /// `T` needs no asking and is always answered, also by a list, which does not know
  /// "IDmBaseObj" by name.
  template <class Interface>
  [[nodiscard]] refDetail::View<Interface> as() const {
    static_assert(refDetail::isInterface<Interface>, "as<> takes an interface");
    return refDetail::viewOf<Interface>(*this);
  }

  /// Gives the reference away, to be released by whoever takes it, and is empty then.
  [[nodiscard]] T* give() noexcept { return std::exchange(object_, nullptr); }
  /// Empties, and releases what was there.
  void reset() noexcept { Ref().swap(*this); }
  /// Touches no count.
  ///@{
  void swap(Ref& other) noexcept { std::swap(object_, other.object_); }
  friend void swap(Ref& a, Ref& b) noexcept { a.swap(b); }
  ///@}

 private:
  explicit Ref(T* object) noexcept : object_(object) {}

  T* object_ = nullptr;
};

/// Ref<T>::adopt() and Ref<T>::share(), with `T` read off the argument.
///@{
template <class T>
[[nodiscard]] Ref<T> adopt(T* owned) noexcept {
  return Ref<T>::adopt(owned);
}
template <class T>
[[nodiscard]] Ref<T> share(T* lent) {
  return Ref<T>::share(lent);
}
///@}

/// Two Refs are equal when they hold the same object, or none; one interface has to be
/// the other's base. The order is that of the addresses.
///@{
template <class T, class U, class = std::enable_if_t<refDetail::areRelated<T, U>>>
[[nodiscard]] bool operator==(const Ref<T>& a, const Ref<U>& b) noexcept {
  return a.get() == b.get();
}
template <class T, class U, class = std::enable_if_t<refDetail::areRelated<T, U>>>
[[nodiscard]] bool operator!=(const Ref<T>& a, const Ref<U>& b) noexcept {
  return !(a == b);
}
template <class T>
[[nodiscard]] bool operator<(const Ref<T>& a, const Ref<T>& b) noexcept {
  return std::less<T*>()(a.get(), b.get());
}
template <class T>
[[nodiscard]] bool operator==(const Ref<T>& a, std::nullptr_t) noexcept {
  return !a;
}
template <class T>
[[nodiscard]] bool operator==(std::nullptr_t, const Ref<T>& a) noexcept {
  return !a;
}
template <class T>
[[nodiscard]] bool operator!=(const Ref<T>& a, std::nullptr_t) noexcept {
  return static_cast<bool>(a);
}
template <class T>
[[nodiscard]] bool operator!=(std::nullptr_t, const Ref<T>& a) noexcept {
  return static_cast<bool>(a);
}
///@}

/// A side of an object that does not count by itself, such as
/// IZolSliceItemInternal: the view, with a Ref that keeps the object. as() alone makes
/// one.
///
///     auto slice = ZOL::make<ZOL::IZolSliceItem>();
///     slice.as<ZOL::IZolSliceItemInternal>()->setLabel("door");
template <class Interface>
class Side {
 public:
  using element_type = Interface;  ///< As with the pointers of the standard library.

  /// Empty.
  ///@{
  constexpr Side() noexcept = default;
  constexpr Side(std::nullptr_t) noexcept {}  // NOLINT(google-explicit-constructor)
  ///@}

  /// As with a Ref.
  ///@{
  Side(const Side&) = default;
  Side(Side&& other) noexcept
      : object_(std::move(other.object_)), view_(std::exchange(other.view_, nullptr)) {}
  Side& operator=(Side other) noexcept {
    swap(other);
    return *this;
  }
  ///@}

  /// Lent for as long as the object lives; null when empty.
  [[nodiscard]] Interface* get() const noexcept { return view_; }
  /// The interface; undefined when empty.
  ///@{
  Interface* operator->() const noexcept { return view_; }
  Interface& operator*() const noexcept { return *view_; }
  ///@}
  /// False when empty.
  explicit operator bool() const noexcept { return view_ != nullptr; }

  /// What this is a side of.
  [[nodiscard]] const Ref<IDmBaseObj>& object() const noexcept { return object_; }
  /// Another interface of the object, as Ref::as() gives it.
  template <class Other>
  [[nodiscard]] refDetail::View<Other> as() const {
    return object_.as<Other>();
  }

  /// Empties, and gives up the object.
  void reset() noexcept { Side().swap(*this); }
  /// Touches no count.
  ///@{
  void swap(Side& other) noexcept {
    object_.swap(other.object_);
    std::swap(view_, other.view_);
  }
  friend void swap(Side& a, Side& b) noexcept { a.swap(b); }
  ///@}
  /// Equal when they are the same side of the same object, or empty.
  ///@{
  [[nodiscard]] friend bool operator==(const Side& a, const Side& b) noexcept {
    return a.view_ == b.view_;
  }
  [[nodiscard]] friend bool operator!=(const Side& a, const Side& b) noexcept { return !(a == b); }
  ///@}

 private:
  template <class View, class T>
  friend refDetail::View<View> refDetail::viewOf(const Ref<T>& object);

  Side(Ref<IDmBaseObj> object, Interface* view) noexcept
      : object_(std::move(object)), view_(view) {}

  Ref<IDmBaseObj> object_;
  Interface* view_ = nullptr;
};

/// \cond inside
namespace refDetail {

template <class Interface, class T>
View<Interface> viewOf(const Ref<T>& object) {
  if constexpr (std::is_convertible_v<T*, Interface*>) {
    return object;
  } else {
    auto* const view = query<Interface>(object.get());
    if constexpr (isCounted<Interface>) {
      return Ref<Interface>::share(view);
    } else {
      return view ? Side<Interface>(object, view) : Side<Interface>();
    }
  }
}

// The contract that a list derives from, whatever else it is.
template <class Self, class T>
ListInterface<Self, T> contractOf(const ListInterface<Self, T>*);

template <class List, class = void>
inline constexpr bool isList = false;
template <class List>
inline constexpr bool isList<List, std::void_t<decltype(contractOf(static_cast<List*>(nullptr)))>> =
    true;

// How a walk lends an element of type `T`: as `Lent`, which keeps it alive.
template <class T, class = void>
struct Lending {
  using Lent = T;
  static Lent lend(T element) { return element; }
};
template <class Object>
struct Lending<Object*, std::enable_if_t<isCounted<Object>>> {
  using Lent = Ref<Object>;
  static Lent lend(Object* element) { return Lent::share(element); }
};
template <>
struct Lending<const char*> {
  using Lent = std::string;
  static Lent lend(const char* element) { return Lent(element ? element : ""); }
};

// True of a list whose array is all that there is to its elements.
template <class List>
inline constexpr bool holdsPlainValues =
    std::is_trivially_copyable_v<typename Lending<typename List::Element>::Lent> &&
    !std::is_base_of_v<ZOLAutoVoidPtrList, List>;

}  // namespace refDetail
/// \endcond

/// What each() gives: a range of a list's elements, first to last.
///
/// It keeps the list. Its iterators belong to it, and are of the input kind: an
/// element is lent anew each time that it is asked for. See each().
template <class List>
class Each {
  using Lending = refDetail::Lending<typename List::Element>;

 public:
  /// A place in the list, of the input kind.
  class Iterator {
   public:
    /// What the standard algorithms ask for.
    ///@{
    using iterator_category = std::input_iterator_tag;
    using value_type = typename Lending::Lent;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = value_type;
    ///@}

    /// The end.
    Iterator() = default;

    /// Lends the element. Undefined at the end.
    [[nodiscard]] value_type operator*() const { return Lending::lend(list_->at(index_)); }
    /// To the next place.
    ///@{
    Iterator& operator++() {
      ++index_;
      return *this;
    }
    Iterator operator++(int) {
      Iterator old = *this;
      ++index_;
      return old;
    }
    ///@}
    /// All ends are equal; so are two places with the same index.
    ///@{
    [[nodiscard]] friend bool operator==(const Iterator& a, const Iterator& b) {
      const bool aEnds = a.isAtEnd();
      return aEnds == b.isAtEnd() && (aEnds || a.index_ == b.index_);
    }
    [[nodiscard]] friend bool operator!=(const Iterator& a, const Iterator& b) { return !(a == b); }
    ///@}

   private:
    friend class Each;
    explicit Iterator(List* list) : list_(list), limit_(list ? list->size() : 0) {}
    bool isAtEnd() const { return index_ >= limit_ || index_ >= list_->size(); }

    List* list_ = nullptr;
    long long index_ = 0;
    long long limit_ = 0;  // the list's size when the walk began
  };
  /// What the standard library asks for.
  ///@{
  using iterator = Iterator;
  using const_iterator = Iterator;
  using value_type = typename Iterator::value_type;
  ///@}

  /// What each() calls.
  explicit Each(Ref<List> list) noexcept : list_(std::move(list)) {}

  /// The walk begins at each call of begin().
  ///@{
  [[nodiscard]] Iterator begin() const { return Iterator(list_.get()); }
  [[nodiscard]] Iterator end() const { return Iterator(); }
  ///@}

 private:
  Ref<List> list_;
};

/// The elements of any list, each lent in a form that keeps it alive:
///
/// | element                  | as                                       |
/// |--------------------------|------------------------------------------|
/// | number, pointer, record  | a copy                                   |
/// | ZolValue                 | a copy with a text of its own            |
/// | counted object           | a Ref, empty for a null element          |
/// | text                     | a std::string                            |
/// | raw memory (auto)        | the pointer; the list may still free it  |
///
/// The range keeps the list, so a result may be walked where it stands, and an empty
/// Ref is walked as an empty list:
///
///     for (const auto& text : ZOL::each(ZOL::share(clip->textInfoList())))
///       std::puts(text->text());
///
/// The list may change meanwhile. A step takes the element that stands at its index
/// then; the walk ends where the list ended when it began, or ends by now, whichever
/// comes first. So what is appended is not walked, and nothing behind the end is.
///
/// A raw pointer is not taken: adopt() or share() it.
template <class List>
[[nodiscard]] Each<List> each(Ref<List> list) noexcept {
  static_assert(refDetail::isList<List>, "each() walks a list");
  return Each<List>(std::move(list));
}
template <class List>
void each(List* list) = delete;

/// What values() gives: a list's own array, to be read in place.
///
/// It keeps the list, and is valid until the list next changes.
template <class List>
class Values {
 public:
  /// What the standard library asks for.
  ///@{
  using value_type = typename List::Element;
  using size_type = std::size_t;
  using const_reference = const value_type&;
  using const_iterator = const value_type*;
  ///@}

  /// What values() calls.
  explicit Values(Ref<List> list)
      : list_(std::move(list)),
        data_(list_ ? static_cast<const value_type*>(list_->queryInterface(kListData)) : nullptr),
        size_(data_ ? static_cast<std::size_t>(list_->size()) : 0) {}
  /// On purpose without a move of its own: a view that is moved from is whole.
  ///@{
  Values(const Values&) = default;
  Values& operator=(const Values&) = default;
  ~Values() = default;
  ///@}

  /// The array; null where there is none.
  [[nodiscard]] const value_type* data() const noexcept { return data_; }
  /// The number of elements when the view was made.
  ///@{
  [[nodiscard]] std::size_t size() const noexcept { return size_; }
  [[nodiscard]] bool empty() const noexcept { return size_ == 0; }
  ///@}
  /// From the first element to behind the last.
  ///@{
  [[nodiscard]] const value_type* begin() const noexcept { return data_; }
  [[nodiscard]] const value_type* end() const noexcept { return data_ + size_; }
  ///@}
  /// Undefined for an index that is not below size().
  [[nodiscard]] const value_type& operator[](std::size_t index) const noexcept {
    return data_[index];
  }

 private:
  Ref<List> list_;
  const value_type* data_;
  std::size_t size_;
};

/// The array of a list of numbers, records or pointers that nobody owns: two calls in
/// all, and none per element.
///
///     long long sum = 0;
///     for (const int number : ZOL::values(numbers)) sum += number;
///
/// Empty for an empty Ref, and for a list that has no array to show: one that never
/// held an element, or a caller's own that does not answer kListData.
template <class List>
[[nodiscard]] Values<List> values(Ref<List> list) {
  static_assert(refDetail::isList<List>, "values() reads a list");
  if constexpr (refDetail::isList<List>) {
    static_assert(refDetail::holdsPlainValues<List>, "values() reads lists of plain values");
  }
  return Values<List>(std::move(list));
}
template <class List>
void values(List* list) = delete;

/// \cond inside
namespace refDetail {

template <class Interface, auto create>
struct Row {};

// A factory that gives its result to a Ref. It takes the factory's own arguments, so
// that they convert where it is called, as they would there.
template <auto create>
struct Maker;
template <class Interface, class... Arguments, Interface* (*create)(Arguments...)>
struct Maker<create> : Row<Interface, create> {
  using Made = Interface;

  /// Empty where the factory gives null; throws what it throws.
  [[nodiscard]] Ref<Interface> operator()(Arguments... arguments) const {
    return Ref<Interface>::adopt(create(arguments...));
  }
};

template <auto... creates>
struct Table final : Maker<creates>... {
  template <class Interface>
  static constexpr int rowsOf = (int{std::is_same_v<Interface, typename Maker<creates>::Made>} +
                                 ...);
};

// Every factory. The interface that it makes is read off its type.
using Factories = Table<
    &::createZolString, &::createZolPChar, &::createDataSizeBuffer, &::createZOLIntList,
    &::createZOLBoolList, &::createZOLFLOATList, &::createZOLREALList, &::createZOLLonglongList,
    &::createZOLULonglongList, &::createZOLIntPtrList, &::createZOLVoidPtrList,
    &::createZOLPByteList, &::createZolValueList, &::createZOLPointNList, &::createZOLSizeNList,
    &::createGradientColorList, &::createZOLPointFList, &::createZOLRectNList,
    &::createZOLRangeList, &::createBkMarkInOutSectionList, &::createZOLRectFList,
    &::createRenderSegmentInfoList, &::createZOLPolygonFList, &::createPropertyList,
    &::createKeyFrameValueList, &::createZOLPCharList, &::createZOLAutoVoidPtrList,
    &::createZOLBaseObjectList, &::createIKyMaskInfoDataList, &::createIZolBGRDataList,
    &::createIZolBGRADataList, &::createIZoEffectInfoList, &::createIZolPluginInfoList,
    &::createIFaceClusterInfoList, &::createIKyLoraTextToImageHistoryInfoList,
    &::createIKyVoiceDataInfoList, &::createIKyScriptSceneInfoList,
    &::createIKyScriptCharacterInfoList, &::createIKyScriptEventSoundInfoList,
    &::createIKyScriptCharactersIfInfoList, &::createIKyScriptClipInfoList,
    &::createIZolResSerializeInfoList, &::createIZolSliceItemList, &::createIZolDemensionsItemList,
    &::createIZolKeyMatrixInfoList, &::createIZolTextInfoList, &::createIZolHighlightInfoList,
    &::createIZolSmartCutClipInfoList, &::createIZolMusicInfoList, &::createIZolStoryboardInfoList,
    &::createIZolSmartCutSearchResultList, &::createIZolSmartCutSearchDimensionsResultItemList,
    &::createIZolRoleSearchItemInfoList, &::createIGpuInfoList, &::createEmptyMediaData,
    &::createMediaData, &::createBGRData, &::createBGRAData, &::createMaskInfoData,
    &::createEffectInfo, &::createPluginInfo, &::createPanZoomPair, &::createFaceClusterInfo,
    &::createVoiceDataInfo, &::createLoraTextToImageHistoryInfo, &::createScriptSceneInfo,
    &::createScriptClipInfo, &::createScriptEventSoundInfo, &::createScriptCharactersIfInfo,
    &::createScriptCharacterInfo, &::createZolParam, &::createRelinkEffectData,
    &::createResourceMediaData, &::createIAiPortraitV2Data, &::createRemoveBackgroundData,
    &::createAITemplateGenerateData, &::createImageStylizesData, &::createZolResSerializeInfo,
    &::createZolResSerializeInfoFromBuffer, &::createZolResSerializeInfoFromCompletResInfo,
    &::createStoryboardInfo, &::createSmartCutClipInfo, &::createTextInfo,
    &::createTargetScreenInfo, &::createHighlightInfo, &::createMusicInfo, &::createSliceItem,
    &::createDemensionsItem, &::createCutScripts, &::createKeyMatrixInfo,
    &::createSmartCutSearchResult, &::createSmartCutSearchDimensionsResult,
    &::createSmartCutSearchDimensionsResultItem, &::createRoleSearchItemInfo,
    &::createStageReportData>;

template <class Interface, auto create>
constexpr Maker<create> makerIn(const Row<Interface, create>&) {
  return {};
}

template <class Interface>
constexpr auto makerOf() {
  constexpr int rows = Factories::rowsOf<Interface>;
  static_assert(rows > 0, "no factory makes this interface");
  static_assert(rows < 2, "several factories make this interface: name the one that is meant");
  if constexpr (rows == 1) return makerIn<Interface>(Factories());
}

}  // namespace refDetail
/// \endcond

/// A new object from the factory of its interface, with the factory's arguments:
///
///     auto numbers = ZOL::make<ZOL::ZOLIntList>();
///     auto scripts = ZOL::make<ZOL::IZolCutScripts>(reply);   // empty for no JSON array
///
/// What the factory answers and throws is as its header says. An interface with
/// several factories has the makers below instead, each named after its factory.
template <class Interface>
inline constexpr auto make = refDetail::makerOf<Interface>();

/// The makers of an interface with several factories.
///@{
inline constexpr refDetail::Maker<&::createEmptyMediaData> makeEmptyMediaData{};
inline constexpr refDetail::Maker<&::createMediaData> makeMediaData{};
inline constexpr refDetail::Maker<&::createZolResSerializeInfo> makeZolResSerializeInfo{};
inline constexpr refDetail::Maker<&::createZolResSerializeInfoFromBuffer>
    makeZolResSerializeInfoFromBuffer{};
inline constexpr refDetail::Maker<&::createZolResSerializeInfoFromCompletResInfo>
    makeZolResSerializeInfoFromCompletResInfo{};
///@}

}  // namespace ZOL

/// \cond inside
template <class T>
struct std::hash<ZOL::Ref<T>> {
  std::size_t operator()(const ZOL::Ref<T>& ref) const noexcept {
    return std::hash<T*>()(ref.get());
  }
};
/// \endcond

#endif  // KYDATASTRUCTURE_REF_H_
