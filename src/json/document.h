// A parsed JSON text, and the one rule of what a member of which type counts as.
//
// A text is copied into a private buffer and parsed there, in place. RapidJSON's
// recursive reader does it, up to a depth that fits any stack; a text that is nested
// deeper is begun anew with the iterative one. What is found is laid down in document
// order on a tape of 16-byte nodes:
//
//   {"a": [1, "x"], "b": 2.5}
//
//   object(2)  key a  array(2)  number 1  string x  key b  number 2.5
//
// A container knows where it ends, so it is stepped over at once and nothing here
// recurses. Numbers stay what they were in the text: an integer is read out of its
// characters when somebody asks, and no number is ever made a double.

#ifndef KYDATASTRUCTURE_JSON_DOCUMENT_H_
#define KYDATASTRUCTURE_JSON_DOCUMENT_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <optional>
#include <string_view>

#include "json/names.h"

namespace ZOL::json {

enum class Kind : unsigned char { null, no, yes, number, string, key, array, object };

struct Node {
  std::uint64_t kindAndSize;  // Kind in the low byte; above it bytes of text or count of values
  union {
    const char* text;   // of a string, a key or a number; a string and a key end in a zero
    std::uint64_t end;  // of a container: how many nodes it takes, itself among them
  };

  Kind kind() const { return static_cast<Kind>(kindAndSize & 0xFF); }
  std::uint64_t size() const { return kindAndSize >> 8; }
  const Node* next() const { return this + (kind() >= Kind::array ? end : 1); }
};
static_assert(sizeof(Node) == 16);

class Elements;
class Members;

// A value somewhere in a document, or none. What is asked of a value of another
// type, or of none, is answered as for an absent one.
class Value {
 public:
  Value() = default;
  explicit Value(const Node* node) : node_(node) {}

  explicit operator bool() const { return node_ != nullptr; }
  bool isString() const { return is(Kind::string); }
  bool isArray() const { return is(Kind::array); }
  bool isObject() const { return is(Kind::object); }
  bool isNumber() const { return is(Kind::number); }

  // A number without point and exponent that fits. The last form is for many of them.
  std::optional<long long> integer64() const;
  std::optional<int> integer32() const;
  bool read(int& integer) const;

  // A string, zero-terminated, lent by the document; null for any other value. It
  // counts up to its first zero byte.
  const char* text() const { return isString() ? node_->text : nullptr; }
  // The same with all its bytes, zero bytes among them; empty for any other value.
  std::string_view bytes() const {
    return isString() ? std::string_view(node_->text, static_cast<std::size_t>(node_->size()))
                      : std::string_view();
  }

  // How many values an array or object holds.
  std::size_t size() const { return isContainer() ? static_cast<std::size_t>(node_->size()) : 0; }
  Elements elements() const;
  Members members() const;
  // The first member of that name.
  Value member(std::string_view name) const;

  const Node* node() const { return node_; }

 private:
  bool readInteger(long long& integer) const;
  bool is(Kind kind) const { return node_ && node_->kind() == kind; }
  bool isContainer() const { return isArray() || isObject(); }

  const Node* node_ = nullptr;
};

// for (Value element : array.elements())
class Elements {
 public:
  class Iterator {
   public:
    explicit Iterator(const Node* node) : node_(node) {}
    Value operator*() const { return Value(node_); }
    Iterator& operator++() {
      node_ = node_->next();
      return *this;
    }
    bool operator!=(const Iterator& other) const { return node_ != other.node_; }

   private:
    const Node* node_;
  };

  Elements(const Node* begin, const Node* end) : begin_(begin), end_(end) {}
  Iterator begin() const { return Iterator(begin_); }
  Iterator end() const { return Iterator(end_); }

 private:
  const Node* begin_;
  const Node* end_;
};

struct Member {
  const Node* key;
  Value value;

  std::string_view name() const { return {key->text, static_cast<std::size_t>(key->size())}; }
};

// for (Member member : object.members())
class Members {
 public:
  class Iterator {
   public:
    explicit Iterator(const Node* key) : key_(key) {}
    Member operator*() const { return {key_, Value(key_ + 1)}; }
    Iterator& operator++() {
      key_ = (key_ + 1)->next();
      return *this;
    }
    bool operator!=(const Iterator& other) const { return key_ != other.key_; }

   private:
    const Node* key_;
  };

  Members(const Node* begin, const Node* end) : begin_(begin), end_(end) {}
  Iterator begin() const { return Iterator(begin_); }
  Iterator end() const { return Iterator(end_); }

 private:
  const Node* begin_;
  const Node* end_;
};

// The value of a number's characters, if it is an integer that fits.
bool readInteger(std::string_view number, long long& integer);

// The same for up to eight digits, all looked at together. Reads eight bytes, which a
// document has behind the beginning of any number.
inline bool readShortInteger(const char* digits, std::size_t count, long long& integer) {
  std::uint64_t eight = 0;
  std::memcpy(&eight, digits, sizeof(eight));
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
  eight = __builtin_bswap64(eight);
#endif
  // The last digit to the top; what is below the first one is 0.
  const auto empty = static_cast<unsigned>(8 * (8 - count));
  eight = (eight << empty) ^ (0x3030303030303030U << empty);
  constexpr std::uint64_t tops = 0x8080808080808080U;
  if (((eight + 0x7676767676767676U) | eight) & tops) return false;  // a point or an exponent
  // Neighbours are joined: to two digits, to four, to eight.
  eight = (eight * (1 + (10U << 8))) >> 8;
  eight = ((eight & 0x00FF00FF00FF00FFU) * (1 + (100U << 16))) >> 16;
  eight = ((eight & 0x0000FFFF0000FFFFU) * (1 + (std::uint64_t{10000} << 32))) >> 32;
  integer = static_cast<long long>(eight);
  return true;
}

inline bool Value::readInteger(long long& integer) const {
  if (!isNumber()) return false;
  const auto size = static_cast<std::size_t>(node_->size());
  const bool negative = *node_->text == '-';
  const std::size_t digits = size - (negative ? 1 : 0);
  if (digits > 8) return json::readInteger({node_->text, size}, integer);
  if (!readShortInteger(node_->text + (negative ? 1 : 0), digits, integer)) return false;
  if (negative) integer = -integer;
  return true;
}

inline std::optional<long long> Value::integer64() const {
  long long integer = 0;
  if (!readInteger(integer)) return std::nullopt;
  return integer;
}

inline bool Value::read(int& integer) const {
  long long wide = 0;
  if (!readInteger(wide)) return false;
  integer = static_cast<int>(wide);
  return integer == wide;
}

inline std::optional<int> Value::integer32() const {
  int integer = 0;
  if (!read(integer)) return std::nullopt;
  return integer;
}

inline Elements Value::elements() const {
  return isArray() ? Elements(node_ + 1, node_->next()) : Elements(nullptr, nullptr);
}

inline Members Value::members() const {
  return isObject() ? Members(node_ + 1, node_->next()) : Members(nullptr, nullptr);
}

inline Value Value::member(std::string_view name) const {
  for (const Member member : members()) {
    if (member.name() == name) return member.value;
  }
  return Value();
}

// The members of an object by their places in a set of names, in one pass over the
// object; of several with one name the first counts.
template <std::size_t N>
std::array<Value, N> sortIn(const Names<N>& names, Value object) {
  std::array<Value, N> places;
  for (const Member member : object.members()) {
    const int place = names.find(member.name());
    if (place >= 0 && !places[static_cast<std::size_t>(place)]) {
      places[static_cast<std::size_t>(place)] = member.value;
    }
  }
  return places;
}

enum class Grammar {
  tolerant,  // comments, a trailing comma; what follows the root is not looked at
  strict,    // plain JSON, nothing but white space behind the root
};

enum class ByteOrderMark { skipped, error };

// Sees each child of the root as soon as it is complete, and may take it off the tape, so
// that a long text needs a short one. The text may still turn out not to be accepted.
class RootWatcher {
 public:
  // The children are shown from the first one on, for the first time or once more.
  virtual void begin() = 0;
  // Whether the child is done with. Its key is null if the root is an array. Neither may
  // be looked at afterwards.
  virtual bool takes(const Node* key, Value child) = 0;

 protected:
  ~RootWatcher() = default;
};

class Document {
 public:
  // Copies the text. `length` counts: a zero byte in it is a character like any other.
  explicit Document(std::string_view text, Grammar grammar = Grammar::tolerant,
                    ByteOrderMark mark = ByteOrderMark::skipped)
      : Document(text, grammar, mark, nullptr) {}
  // The same with the tolerant grammar. The root holds what the watcher has not taken.
  Document(std::string_view text, RootWatcher& watcher)
      : Document(text, Grammar::tolerant, ByteOrderMark::skipped, &watcher) {}
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;
  ~Document();

  // None for a text that is not accepted.
  Value root() const { return root_; }

 private:
  Document(std::string_view text, Grammar grammar, ByteOrderMark mark, RootWatcher* watcher);

  std::unique_ptr<char[]> text_;
  Node* tape_ = nullptr;
  Value root_;
};

}  // namespace ZOL::json

#endif  // KYDATASTRUCTURE_JSON_DOCUMENT_H_
