// A text in the hands of RapidJSON alone, set up as the library sets it up, but with its
// iterative parser for every depth, and not in place.

#ifndef KYDATASTRUCTURE_FUZZ_BARE_JSON_H_
#define KYDATASTRUCTURE_FUZZ_BARE_JSON_H_

#include <rapidjson/document.h>
#include <rapidjson/encodedstream.h>
#include <rapidjson/memorystream.h>

#include <string>

namespace bare {

constexpr unsigned kStrict = rapidjson::kParseIterativeFlag;
constexpr unsigned kTolerant = kStrict | rapidjson::kParseCommentsFlag |
                               rapidjson::kParseTrailingCommasFlag |
                               rapidjson::kParseStopWhenDoneFlag;

// Parses all bytes. Leaves the document with an error for a text that is not accepted.
template <unsigned flags>
void parse(rapidjson::Document& document, const std::string& text) {
  rapidjson::MemoryStream bytes(text.data(), text.size());
  document.ParseStream<flags>(bytes);
}

template <unsigned flags>
void parseBehindMark(rapidjson::Document& document, const std::string& text) {
  rapidjson::MemoryStream bytes(text.data(), text.size());
  rapidjson::EncodedInputStream<rapidjson::UTF8<>, rapidjson::MemoryStream> behindMark(bytes);
  document.ParseStream<flags>(behindMark);
}

// As most readers take it: tolerant, and a byte-order mark is skipped.
inline bool isObject(const std::string& text) {
  rapidjson::Document document;
  parseBehindMark<kTolerant>(document, text);
  return !document.HasParseError() && document.IsObject();
}

inline bool isArray(const std::string& text) {
  rapidjson::Document document;
  parseBehindMark<kTolerant>(document, text);
  return !document.HasParseError() && document.IsArray();
}

}  // namespace bare

#endif  // KYDATASTRUCTURE_FUZZ_BARE_JSON_H_
