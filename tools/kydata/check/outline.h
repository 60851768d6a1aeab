#ifndef KYDATA_CHECK_OUTLINE_H_
#define KYDATA_CHECK_OUTLINE_H_

#include <string>
#include <vector>

namespace kydata::check {

/// What a text is, and the names of its outermost object.
struct Outline {
  bool isArray = false;
  std::vector<std::string> names;
};

/// As far as the text can be read.
Outline outlineOf(const std::string& text);

}  // namespace kydata::check

#endif  // KYDATA_CHECK_OUTLINE_H_
