#include "json/document.h"

#include <limits>

#include "json/rapidjson.h"

namespace ZOL::json {
namespace {

// Lays what the reader reports down on a tape. While a container is open, its end
// holds the place of the one around it, and the root's its own.
class TapeBuilder : public rapidjson::BaseReaderHandler<Encoding, TapeBuilder> {
 public:
  TapeBuilder(RootWatcher* watcher, std::size_t greatestDepth)
      : watcher_(watcher), depthLeft_(greatestDepth) {
    if (watcher_) watcher_->begin();
  }
  TapeBuilder(const TapeBuilder&) = delete;
  TapeBuilder& operator=(const TapeBuilder&) = delete;
  ~TapeBuilder() { ThrowingAllocator::Free(tape_); }

  Node* giveTape() { return std::exchange(tape_, nullptr); }
  bool wasTooDeep() const { return wasTooDeep_; }

  // The names are those that RapidJSON calls.
  bool Null() { return plain(Kind::null); }
  bool Bool(bool value) { return plain(value ? Kind::yes : Kind::no); }
  bool RawNumber(const char* text, std::size_t size, bool) { return lay(Kind::number, text, size); }
  bool String(const char* text, std::size_t size, bool) { return lay(Kind::string, text, size); }
  bool Key(const char* text, std::size_t size, bool) {
    push(Kind::key, size).text = text;
    return true;
  }
  bool StartObject() { return open(Kind::object); }
  bool EndObject(std::size_t count) { return close(count); }
  bool StartArray() { return open(Kind::array); }
  bool EndArray(std::size_t count) { return close(count); }

 private:
  static std::uint64_t pack(Kind kind, std::size_t size) {
    return (static_cast<std::uint64_t>(size) << 8) | static_cast<unsigned char>(kind);
  }

  Node& push(Kind kind, std::size_t size) {
    if (count_ == capacity_) grow();
    Node& node = tape_[count_++];
    node.kindAndSize = pack(kind, size);
    return node;
  }

  bool plain(Kind kind) { return lay(kind, nullptr, 0); }

  bool lay(Kind kind, const char* text, std::size_t size) {
    push(kind, size).text = text;
    complete(count_ - 1);
    return true;
  }

  bool open(Kind kind) {
    if (depthLeft_ == 0) {
      wasTooDeep_ = true;
      return false;
    }
    --depthLeft_;
    push(kind, 0).end = open_;
    open_ = count_ - 1;
    return true;
  }

  bool close(std::size_t count) {
    ++depthLeft_;
    const std::size_t place = open_;
    Node& node = tape_[place];
    open_ = static_cast<std::size_t>(node.end);
    node.kindAndSize = pack(node.kind(), place == kRoot ? count - taken_ : count);
    node.end = count_ - place;
    complete(place);
    return true;
  }

  // A value is complete.
  void complete(std::size_t place) {
    if (watcher_ && open_ == kRoot && place != kRoot) show(place);
  }

  // Shows a child of the root. Rare, and kept out of what runs for every value.
  [[gnu::noinline]] void show(std::size_t place) {
    const bool named = tape_[kRoot].kind() == Kind::object;
    const Node* const key = named ? &tape_[place - 1] : nullptr;
    if (!watcher_->takes(key, Value(&tape_[place]))) return;
    count_ = named ? place - 1 : place;
    ++taken_;
  }

  [[gnu::noinline]] void grow() {
    const std::size_t capacity = capacity_ ? capacity_ * 2 : 64;
    tape_ = static_cast<Node*>(
        ThrowingAllocator::Realloc(tape_, capacity_ * sizeof(Node), capacity * sizeof(Node)));
    capacity_ = capacity;
  }

  static constexpr std::size_t kRoot = 0;

  RootWatcher* const watcher_;
  Node* tape_ = nullptr;
  std::size_t count_ = 0;
  std::size_t capacity_ = 0;
  std::size_t open_ = kRoot;  // the innermost open container
  std::size_t taken_ = 0;     // children of the root that are off the tape again
  std::size_t depthLeft_;
  bool wasTooDeep_ = false;
};

constexpr unsigned kStrict = rapidjson::kParseInsituFlag | rapidjson::kParseNumbersAsStringsFlag;
constexpr unsigned kTolerant = kStrict | rapidjson::kParseCommentsFlag |
                               rapidjson::kParseTrailingCommasFlag |
                               rapidjson::kParseStopWhenDoneFlag;

// How deep the recursive reader goes. A level takes some hundred bytes of stack.
constexpr std::size_t kGreatestRecursion = 64;

template <unsigned flags>
bool parse(char* text, TapeBuilder& builder) {
  rapidjson::InsituStringStream stream(text);
  Reader reader;
  return !reader.Parse<flags>(stream, builder).IsError();
}

// Each byte of the mark by itself, if it stands next.
char* behindByteOrderMark(char* text) {
  for (const char byte : {'\xEF', '\xBB', '\xBF'}) {
    if (*text == byte) ++text;
  }
  return text;
}

}  // namespace

Document::Document(std::string_view text, Grammar grammar, ByteOrderMark mark, RootWatcher* watcher)
    : text_(new char[text.size() + 1 + kScanPadding]) {
  constexpr std::size_t kAnyDepth = std::numeric_limits<std::size_t>::max();
  constexpr unsigned kIterative = rapidjson::kParseIterativeFlag;

  const auto parseCopy = [&](auto parseTolerant, auto parseStrict, std::size_t greatestDepth) {
    std::memcpy(text_.get(), text.data(), text.size());
    std::memset(text_.get() + text.size(), 0, 1 + kScanPadding);
    char* const begin =
        mark == ByteOrderMark::skipped ? behindByteOrderMark(text_.get()) : text_.get();
    TapeBuilder builder(watcher, greatestDepth);
    const bool accepted =
        grammar == Grammar::tolerant ? parseTolerant(begin, builder) : parseStrict(begin, builder);
    if (accepted) {
      tape_ = builder.giveTape();
      root_ = Value(tape_);
    }
    return builder.wasTooDeep();
  };
  if (parseCopy(parse<kTolerant>, parse<kStrict>, kGreatestRecursion)) {
    parseCopy(parse<kTolerant | kIterative>, parse<kStrict | kIterative>, kAnyDepth);
  }
}

Document::~Document() { ThrowingAllocator::Free(tape_); }

bool readInteger(std::string_view number, long long& integer) {
  const char* digit = number.data();
  const char* const end = digit + number.size();
  const bool negative = *digit == '-';
  if (negative) ++digit;
  // Downwards, where there is one number more.
  constexpr long long kLowest = std::numeric_limits<long long>::min();
  integer = 0;
  for (; digit != end; ++digit) {
    if (*digit < '0' || *digit > '9') return false;  // a point or an exponent
    const int value = *digit - '0';
    if (integer < kLowest / 10 || integer * 10 < kLowest + value) return false;
    integer = integer * 10 - value;
  }
  if (negative) return true;
  if (integer == kLowest) return false;
  integer = -integer;
  return true;
}

}  // namespace ZOL::json
