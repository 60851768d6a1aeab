#include "check/between.h"

#include <algorithm>

namespace kydata::check {

void Between::look(std::size_t begin, std::size_t end, bool isInFrontOfClosing) {
  for (std::size_t at = begin; at < end;) {
    if (text_[at] == '/') {
      findings_.add(Code::comment, at, "a comment, which strict readers refuse");
      at = std::max(at + 1, behindComment(at));
      continue;
    }
    if (text_[at] == ',' && isInFrontOfClosing) {
      findings_.add(Code::trailingComma, at,
                    "a comma in front of the bracket, which strict readers refuse");
    }
    ++at;
  }
}

std::size_t Between::skip(std::size_t at) const {
  for (;;) {
    at = std::min(text_.find_first_not_of(" \t\r\n", at), text_.size());
    const std::size_t end = behindComment(at);
    if (end == at) return at;
    at = end;
  }
}

std::size_t Between::behindComment(std::size_t at) const {
  const bool isBlock = text_.compare(at, 2, "/*") == 0;
  if (!isBlock && text_.compare(at, 2, "//") != 0) return at;
  const std::size_t end = isBlock ? text_.find("*/", at + 2) : text_.find('\n', at);
  return end == std::string::npos ? text_.size() : end + (isBlock ? 2 : 1);
}

}  // namespace kydata::check
