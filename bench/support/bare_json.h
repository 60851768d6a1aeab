// The yardstick of everything that reads or writes JSON: RapidJSON as it comes, and
// nothing around it. A parse goes into a document, from a pointer and a length, with
// comments, trailing commas and a stop at the end of the root.

#ifndef KYDATASTRUCTURE_BENCH_SUPPORT_BARE_JSON_H_
#define KYDATASTRUCTURE_BENCH_SUPPORT_BARE_JSON_H_

#include <rapidjson/document.h>

#include <memory>
#include <string>

namespace bench {

inline void bareParse(rapidjson::Document& document, const std::string& text) {
  document.Parse<rapidjson::kParseCommentsFlag | rapidjson::kParseTrailingCommasFlag |
                 rapidjson::kParseStopWhenDoneFlag>(text.data(), text.size());
}

inline std::unique_ptr<rapidjson::Document> bareDocument(const std::string& text) {
  auto document = std::make_unique<rapidjson::Document>();
  bareParse(*document, text);
  return document;
}

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_SUPPORT_BARE_JSON_H_
