/// \file
/// The object frame: counted objects, the query of an interface by name, the
/// tagged value, and the small holders of text and bytes.
///
/// Rules that hold for the whole library, and are not repeated below:
///
/// *Words.* Five words keep one meaning in every header.
///   - lent:    a pointer is handed out and no reference is added for it.
///   - owned:   the caller gets one reference and gives it up with release().
///   - kept:    the receiver adds a reference of its own.
///   - copied:  the receiver makes its own copy and looks at the argument no more.
///   - refused: the operation answers kRefused and nothing has changed.
///
/// *Results.* An operation that answers `int` without being a getter answers
/// kSuccess or kRefused, but for addRef() and release(), which answer the count.
/// An index of none is -1, an object of none is null.
/// There are no messages, no logging and no last-error state.
///
/// *Lifetimes.* A factory's result is owned. A getter lends: an object for as
/// long as its holder keeps it, a text until the field is next set or the
/// object ends. Text goes in up to its first zero byte unless a length is asked
/// for, and is always copied.
///
/// *Deleting.* An interface has a protected destructor that takes no place in
/// its table, so `delete object` does not compile: release() ends an object.
///
/// *Tables.* The order of virtual operations in these headers is binary
/// contract. New operations are never put between, before or behind them.
///
/// *Threads.* addRef(), release() and setReleaseHook() may be called from any
/// thread. Everything else on one object is for one thread at a time; only
/// IZolResSerializeInfo (resource.h) has a lock of its own.
///
/// *Exceptions.* The library throws nothing of its own. Exhausted memory leaves
/// an operation as std::bad_alloc; the two functions that let a number
/// conversion fail with an exception say so.

#ifndef KYDATASTRUCTURE_FRAME_H_
#define KYDATASTRUCTURE_FRAME_H_

#include <cstddef>
#include <cstdint>

#if defined(_WIN32)
#if defined(KYDATASTRUCTURE_BUILDING)
#define KYDATASTRUCTURE_API __declspec(dllexport)
#else
#define KYDATASTRUCTURE_API __declspec(dllimport)
#endif
#else
/// Marks what the library exports.
#define KYDATASTRUCTURE_API __attribute__((visibility("default")))
#endif

namespace ZOL {

/// The operation did what it says.
constexpr int kSuccess = 0;
/// The operation was refused: a null argument, an index outside the range, a
/// text or a list that is not taken. There is no other code.
constexpr int kRefused = 1001;

/// A caller's object that is told when a counted object is about to end.
class IReleaseHook {
 public:
  /// Called by the release() that ends the object, while the object is whole.
  virtual void onLastRelease() = 0;

 protected:
  ~IReleaseHook() = default;
};

/// The root of every interface: a reference count and a query by name.
class IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IDmBaseObj";

  /// Adds a reference. Answers the new count, or 0 on a dead object, which
  /// stays dead.
  virtual int addRef() = 0;
  /// Gives up a reference. Answers the new count; at 0 the hook has run and the
  /// object is gone.
  virtual int release() = 0;
  /// The count as it stands; -1 on an object that never had a reference.
  virtual int refCount() = 0;
  /// The hook, or null. Never owned by the object.
  virtual IReleaseHook* releaseHook() = 0;
  /// Puts a hook in the place of the old one, which is forgotten. Null clears.
  virtual void setReleaseHook(IReleaseHook* hook) = 0;
  /// The object viewed as the interface of that name (exact, case-sensitive),
  /// lent; null for a name that it does not answer. `name` must not be null.
  /// The untyped result is to be used as that interface and nothing else;
  /// query() below does so.
  virtual void* queryInterface(const char* name) = 0;

 protected:
  ~IDmBaseObj() = default;
};

/// The object viewed as `Interface`, lent, or null. `object` may be null.
template <class Interface, class Object>
Interface* query(Object* object) {
  return object ? static_cast<Interface*>(object->queryInterface(Interface::interfaceName))
                : nullptr;
}

/// An object that can make a copy of itself.
class IDmDeepClonableObj : public virtual IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IDmDeepClonableObj";

  /// A new object of the same class with its own copy of the data, owned.
  virtual IDmDeepClonableObj* deepClone() = 0;

 protected:
  ~IDmDeepClonableObj() = default;
};

/// The kinds of ZolValue. Their numbers are contract; 7 to 18 are not in use.
enum _ValueType : std::int32_t {
  kEmptyValue = 0,     ///< nothing
  kBoolValue = 1,      ///< bool
  kDoubleValue = 2,    ///< double
  kFloatValue = 3,     ///< float
  kLonglongValue = 4,  ///< long long
  kIntValue = 5,       ///< int
  kUintValue = 6,      ///< unsigned int
  kStringValue = 19,   ///< a text of the value's own
};

/// The payload of a ZolValue.
union _ZolValueUnion {
  bool boolean;                  ///< of kBoolValue
  double number;                 ///< of kDoubleValue
  float shortNumber;             ///< of kFloatValue
  long long longInteger;         ///< of kLonglongValue
  int integer;                   ///< of kIntValue
  unsigned int unsignedInteger;  ///< of kUintValue
  const char* text;              ///< of kStringValue; zero-terminated
};
static_assert(sizeof(_ZolValueUnion) == 8, "the payload crosses the boundary by value");

/// A small tagged value: empty, a boolean, a number or a text of its own.
///
/// Not counted: it is held, copied and destroyed like any structure. Nothing
/// converts: a getter answers the payload when the type is exactly its own, and
/// otherwise false, zero or null.
class ZolValue {
 public:
  /// An empty value.
  KYDATASTRUCTURE_API ZolValue();
  /// A value of the argument's own type.
  ///@{
  KYDATASTRUCTURE_API ZolValue(bool value);          // NOLINT(google-explicit-constructor)
  KYDATASTRUCTURE_API ZolValue(double value);        // NOLINT(google-explicit-constructor)
  KYDATASTRUCTURE_API ZolValue(float value);         // NOLINT(google-explicit-constructor)
  KYDATASTRUCTURE_API ZolValue(long long value);     // NOLINT(google-explicit-constructor)
  KYDATASTRUCTURE_API ZolValue(int value);           // NOLINT(google-explicit-constructor)
  KYDATASTRUCTURE_API ZolValue(unsigned int value);  // NOLINT(google-explicit-constructor)
  ///@}

  /// The text is copied; null is taken as the empty text.
  KYDATASTRUCTURE_API ZolValue(const char* value);  // NOLINT(google-explicit-constructor)
  /// Takes any type number. Type 19 copies the union's text; every other takes
  /// the union's 64 bits as they are, also those that no operation knows.
  KYDATASTRUCTURE_API ZolValue(_ValueType type, _ZolValueUnion value);
  /// A copy, with a text of its own.
  KYDATASTRUCTURE_API ZolValue(const ZolValue& other);
  /// On purpose a copy: the source stays whole.
  KYDATASTRUCTURE_API ZolValue(ZolValue&& other);  // NOLINT(performance-noexcept-move-constructor)
  KYDATASTRUCTURE_API ~ZolValue();

  /// A value that held a text and takes one of another type keeps the old
  /// text's memory until it is next set, reset or destroyed.
  KYDATASTRUCTURE_API ZolValue& operator=(const ZolValue& other);
  /// On purpose a copy: the source stays whole.
  KYDATASTRUCTURE_API ZolValue& operator=(  // NOLINT(performance-noexcept-move-constructor)
      ZolValue&& other);

  /// Equal type and equal payload; numbers with a point compare as such, texts
  /// byte by byte. On purpose: an empty value, and one of a type that is not
  /// used, equals nothing, not even itself.
  KYDATASTRUCTURE_API bool operator==(const ZolValue& other);

  /// Back to the state of `ZolValue()`.
  KYDATASTRUCTURE_API void reset();

  /// Takes the argument and its type.
  ///@{
  KYDATASTRUCTURE_API void setValue(int value);
  KYDATASTRUCTURE_API void setValue(unsigned int value);
  KYDATASTRUCTURE_API void setValue(float value);
  KYDATASTRUCTURE_API void setValue(double value);
  KYDATASTRUCTURE_API void setValue(long long value);
  KYDATASTRUCTURE_API void setValue(bool value);
  ///@}

  /// The text is copied; null is taken as the empty text.
  KYDATASTRUCTURE_API void setValue(const char* value);

  /// The payload of exactly that type; false or zero for any other.
  ///@{
  KYDATASTRUCTURE_API bool boolValue();
  KYDATASTRUCTURE_API double doubleValue();
  KYDATASTRUCTURE_API float floatValue();
  KYDATASTRUCTURE_API long long longlongValue();
  KYDATASTRUCTURE_API int intValue();
  KYDATASTRUCTURE_API unsigned int uintValue();
  ///@}

  /// The value's own text, lent; null for any type but text.
  KYDATASTRUCTURE_API const char* charValue();

  /// What is held.
  _ValueType type() const { return type_; }

 private:
  KYDATASTRUCTURE_API void InitByType(_ValueType type, _ZolValueUnion value);
  KYDATASTRUCTURE_API void createAndCopyBuffer(const char* text);
  KYDATASTRUCTURE_API void releaseBuffer();

  _ValueType type_;
  _ZolValueUnion value_;
  char* buffer_;  // the owned copy of a text that is not empty, or null
};
static_assert(sizeof(ZolValue) == 16 + sizeof(char*) || sizeof(void*) != 8,
              "three words, passed by value through ZolValueList");

/// A text that the library writes and a caller reads. May hold zero bytes.
class IZolString : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolString";

  /// Replaces the content. A length above 0 takes that many bytes, zero bytes
  /// among them; 0 or below takes the text up to its zero. Null is refused. A
  /// length that no memory could hold leaves as std::bad_alloc or
  /// std::length_error, with the content as it was.
  virtual int setText(const char* text, long long length) = 0;
  /// The content with a zero behind it, lent until the next change; never null.
  virtual const char* text() = 0;
  /// Appends, with the arguments of setText().
  virtual int appendText(const char* text, long long length) = 0;
  /// True if both are the same bytes up to their first zero. Null equals nothing.
  virtual bool equals(const char* text) = 0;
  /// The content's size in bytes, zero bytes among them.
  virtual unsigned long long length() = 0;

 protected:
  ~IZolString() = default;
};

/// A counted copy of bytes, without a zero behind them.
class IZolPChar : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IZolPChar";

  /// The old content goes in every case. A null `data` clears and answers
  /// kSuccess. On purpose: a size of 0 with data is refused, and leaves the
  /// holder empty. A negative size leaves as std::bad_alloc.
  virtual int setData(const char* data, int size) = 0;
  /// The bytes, lent until the next setData(); null when empty.
  virtual const char* data() = 0;
  /// In bytes; 0 when empty.
  virtual int size() = 0;

 protected:
  ~IZolPChar() = default;
};

/// Bytes with a size and always a zero behind the last.
class IDataSizeBuffer : public IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IDataSizeBuffer";

  /// The bytes, lent until the next setData() and the holder's own to write in;
  /// null until the first setData().
  virtual unsigned char* data() = 0;
  /// In bytes, without the zero behind the last.
  virtual unsigned long long size() = 0;
  /// Replaces the content; always kSuccess. A size of 0 leaves one zero byte.
  /// With a null `data` the bytes are all zero.
  virtual int setData(const void* data, unsigned long long size) = 0;

 protected:
  ~IDataSizeBuffer() = default;
};

}  // namespace ZOL

extern "C" {

/// An empty holder, owned.
///@{
KYDATASTRUCTURE_API ZOL::IZolString* createZolString();
KYDATASTRUCTURE_API ZOL::IZolPChar* createZolPChar();
KYDATASTRUCTURE_API ZOL::IDataSizeBuffer* createDataSizeBuffer();
///@}

/// Reads a text into a value of the type that the value has already.
///
/// Numbers are read by the standard conversions stoi (types 1, 5, 6), stod (2,
/// 3) and stoll (4): white space ahead is skipped, what follows the number is
/// ignored. On purpose: a boolean is any integer, 0 being false; an unsigned
/// value is read as a signed one; a float is a narrowed double. A value without
/// a type, or of an unused one, stays as it is and answers kSuccess. A null
/// `text` is refused.
/// \throws std::invalid_argument "invalid stoi argument" (stoll, stod) when
///   there is no number to begin with; the value is unchanged.
/// \throws std::out_of_range "stoi argument out of range" (stoll, stod); the
///   value is unchanged.
KYDATASTRUCTURE_API int ZOLStringToZolValue(const char* text, ZOL::ZolValue* value);

/// Writes a value as text: numbers with a point as "%f" does, a boolean as 1 or
/// 0, an empty or unknown value as the empty text. A null `text` is refused.
/// Not the inverse of ZOLStringToZolValue(): decimals beyond the sixth are lost,
/// and an unsigned value above 2147483647 does not read back.
KYDATASTRUCTURE_API int ZOLValueToString(ZOL::ZolValue* value, ZOL::IZolString* text);

}  // extern "C"

#endif  // KYDATASTRUCTURE_FRAME_H_
