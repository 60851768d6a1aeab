// The JSON reader of the library, as far as it can be told from outside: RapidJSON's, in
// place, without recursion, with numbers as they are written, and the same grammars.

#ifndef KYDATA_CHECK_READER_H_
#define KYDATA_CHECK_READER_H_

#include <rapidjson/reader.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace kydata::check {

constexpr unsigned kStrictJson = rapidjson::kParseInsituFlag | rapidjson::kParseIterativeFlag |
                                 rapidjson::kParseNumbersAsStringsFlag;
constexpr unsigned kTolerantJson = kStrictJson | rapidjson::kParseCommentsFlag |
                                   rapidjson::kParseTrailingCommasFlag |
                                   rapidjson::kParseStopWhenDoneFlag;

/// How many bytes of a byte-order mark are skipped: each by itself, if it stands next.
inline std::size_t markSize(std::string_view text) {
  std::size_t size = 0;
  for (const char byte : {'\xEF', '\xBB', '\xBF'}) {
    if (size < text.size() && text[size] == byte) ++size;
  }
  return size;
}

/// RapidJSON works on a copy of a stream of its own, and would tell of a text before the
/// stream has got behind it. Of a stream that it does not know it makes no copy.
struct ReadStream : rapidjson::InsituStringStream {
  explicit ReadStream(char* text) : rapidjson::InsituStringStream(text) {}
};

/// A copy of a text that is read in place, while the text itself stays as it is.
class ReadCopy {
 public:
  ReadCopy(const std::string& text, bool skipsMark)
      : copy_(text), mark_(skipsMark ? markSize(text) : 0), stream_(copy_.data() + mark_) {}

  ReadStream& stream() { return stream_; }
  std::size_t markSkipped() const { return mark_; }
  /// Where the reader is, in bytes from the beginning of the text.
  std::size_t at() { return mark_ + stream_.Tell(); }
  /// The same of a text that the reader tells of.
  std::size_t at(const char* told) const { return static_cast<std::size_t>(told - copy_.data()); }

 private:
  std::string copy_;
  std::size_t mark_;
  ReadStream stream_;
};

}  // namespace kydata::check

#endif  // KYDATA_CHECK_READER_H_
