#include "check/places.h"

#include <algorithm>

#include "utf8.h"

namespace kydata::check {

Places::Places(std::string_view text)
    : text_(text), begin_(text.substr(0, 3) == "\xEF\xBB\xBF" ? 3 : 0), lineBegin_(begin_) {}

Place Places::at(std::size_t offset) {
  offset = std::min(std::max(offset, begin_), text_.size());
  if (offset < lineBegin_) {
    line_ = 1;
    lineBegin_ = begin_;
  }
  for (;;) {
    const std::size_t end = text_.find('\n', lineBegin_);
    if (end >= offset) break;  // also where there is none
    lineBegin_ = end + 1;
    ++line_;
  }
  return {line_, 1 + codePointCount(text_.substr(lineBegin_, offset - lineBegin_))};
}

}  // namespace kydata::check
