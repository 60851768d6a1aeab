#ifndef KYDATA_CHECK_WALK_H_
#define KYDATA_CHECK_WALK_H_

#include <string>
#include <vector>

#include "check/findings.h"
#include "check/form.h"

namespace kydata::check {

/// Goes over a text by the library's own grammar, and finds what the rules of the form
/// say about it. Takes no stack, however deep the text goes.
void walk(const std::string& text, const Form& form, Findings& findings);

/// The beginning of a text: what it is, and the names of its outermost object.
struct Outline {
  bool isArray = false;
  std::vector<std::string> names;
};

/// As far as the text can be read.
Outline outlineOf(const std::string& text);

}  // namespace kydata::check

#endif  // KYDATA_CHECK_WALK_H_
