#include "check/places.h"

#include <algorithm>

#include "utf8.h"

namespace kydata::check {

Places::Places(std::string_view text)
    : text_(text), begin_(text.substr(0, 3) == "\xEF\xBB\xBF" ? 3 : 0), at_(begin_) {}

Place Places::at(std::size_t offset) {
  offset = std::min(std::max(offset, begin_), text_.size());
  if (offset < at_) {
    at_ = begin_;
    place_ = {1, 1};
  }
  std::string_view passed = text_.substr(at_, offset - at_);
  for (std::size_t end = 0; (end = passed.find('\n')) != std::string_view::npos;) {
    passed.remove_prefix(end + 1);
    place_ = {place_.line + 1, 1};
  }
  place_.column += codePointCount(passed);
  at_ = offset;
  return place_;
}

}  // namespace kydata::check
