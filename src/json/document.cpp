#include "json/document.h"

#include <limits>

#include "json/rapidjson.h"

namespace ZOL::json {
namespace {

// Lays what the reader reports down on a tape. While a container is open, its end
// holds the place of the one around it.
class TapeBuilder : public rapidjson::BaseReaderHandler<Encoding, TapeBuilder> {
 public:
  TapeBuilder() = default;
  TapeBuilder(const TapeBuilder&) = delete;
  TapeBuilder& operator=(const TapeBuilder&) = delete;
  ~TapeBuilder() { ThrowingAllocator::Free(tape_); }

  Node* giveTape() { return std::exchange(tape_, nullptr); }

  // The names are those that RapidJSON calls.
  bool Null() { return plain(Kind::null); }
  bool Bool(bool value) { return plain(value ? Kind::yes : Kind::no); }
  bool RawNumber(const char* text, std::size_t size, bool) { return lay(Kind::number, text, size); }
  bool String(const char* text, std::size_t size, bool) { return lay(Kind::string, text, size); }
  bool Key(const char* text, std::size_t size, bool) { return lay(Kind::key, text, size); }
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
    return true;
  }

  bool open(Kind kind) {
    push(kind, 0).end = open_;
    open_ = count_ - 1;
    return true;
  }

  bool close(std::size_t count) {
    Node& node = tape_[open_];
    const std::size_t around = static_cast<std::size_t>(node.end);
    node.kindAndSize = pack(node.kind(), count);
    node.end = count_ - open_;
    open_ = around;
    return true;
  }

  void grow() {
    const std::size_t capacity = capacity_ ? capacity_ * 2 : 64;
    tape_ = static_cast<Node*>(
        ThrowingAllocator::Realloc(tape_, capacity_ * sizeof(Node), capacity * sizeof(Node)));
    capacity_ = capacity;
  }

  Node* tape_ = nullptr;
  std::size_t count_ = 0;
  std::size_t capacity_ = 0;
  std::size_t open_ = 0;  // the innermost open container
};

constexpr unsigned kStrict = rapidjson::kParseInsituFlag | rapidjson::kParseIterativeFlag |
                             rapidjson::kParseNumbersAsStringsFlag;
constexpr unsigned kTolerant = kStrict | rapidjson::kParseCommentsFlag |
                               rapidjson::kParseTrailingCommasFlag |
                               rapidjson::kParseStopWhenDoneFlag;

// Each byte of the mark by itself, if it stands next.
char* behindByteOrderMark(char* text) {
  for (const char byte : {'\xEF', '\xBB', '\xBF'}) {
    if (*text == byte) ++text;
  }
  return text;
}

}  // namespace

Document::Document(std::string_view text, Grammar grammar, ByteOrderMark mark)
    : text_(new char[text.size() + 1 + kScanPadding]) {
  std::memcpy(text_.get(), text.data(), text.size());
  std::memset(text_.get() + text.size(), 0, 1 + kScanPadding);

  rapidjson::InsituStringStream stream(
      mark == ByteOrderMark::skipped ? behindByteOrderMark(text_.get()) : text_.get());
  Reader reader;
  TapeBuilder builder;
  const bool failed = grammar == Grammar::tolerant
                          ? reader.Parse<kTolerant>(stream, builder).IsError()
                          : reader.Parse<kStrict>(stream, builder).IsError();
  if (failed) return;
  tape_ = builder.giveTape();
  root_ = Value(tape_);
}

Document::~Document() { ThrowingAllocator::Free(tape_); }

std::optional<long long> Value::integer64() const {
  if (!isNumber()) return std::nullopt;
  const char* digit = node_->text;
  const char* const end = digit + node_->size();
  const bool negative = *digit == '-';
  if (negative) ++digit;
  if (end - digit <= 18) {  // too few to overflow
    long long number = 0;
    for (; digit != end; ++digit) {
      const auto value = static_cast<unsigned>(*digit - '0');
      if (value > 9) return std::nullopt;  // a point or an exponent
      number = number * 10 + static_cast<long long>(value);
    }
    return negative ? -number : number;
  }
  // Downwards, where there is one number more.
  constexpr long long kLowest = std::numeric_limits<long long>::min();
  long long number = 0;
  for (; digit != end; ++digit) {
    if (*digit < '0' || *digit > '9') return std::nullopt;  // a point or an exponent
    const int value = *digit - '0';
    if (number < kLowest / 10 || number * 10 < kLowest + value) return std::nullopt;
    number = number * 10 - value;
  }
  if (negative) return number;
  if (number == kLowest) return std::nullopt;
  return -number;
}

std::optional<int> Value::integer32() const {
  const std::optional<long long> number = integer64();
  if (!number || *number < std::numeric_limits<int>::min() ||
      *number > std::numeric_limits<int>::max()) {
    return std::nullopt;
  }
  return static_cast<int>(*number);
}

}  // namespace ZOL::json
