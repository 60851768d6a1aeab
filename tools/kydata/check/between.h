#ifndef KYDATA_CHECK_BETWEEN_H_
#define KYDATA_CHECK_BETWEEN_H_

#include <cstddef>
#include <string>

#include "check/findings.h"

namespace kydata::check {

/// What stands between two tokens of a text: white space, colons, commas and comments.
class Between {
 public:
  Between(const std::string& text, Findings& findings) : text_(text), findings_(findings) {}

  /// Looks at the bytes in front of a token, which may be a closing bracket.
  void look(std::size_t begin, std::size_t end, bool isInFrontOfClosing);

  /// Where the next token is, behind white space and comments.
  std::size_t skip(std::size_t at) const;

 private:
  /// Where a comment ends, or where it stands if it is none.
  std::size_t behindComment(std::size_t at) const;

  const std::string& text_;
  Findings& findings_;
};

}  // namespace kydata::check

#endif  // KYDATA_CHECK_BETWEEN_H_
