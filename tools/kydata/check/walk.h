#ifndef KYDATA_CHECK_WALK_H_
#define KYDATA_CHECK_WALK_H_

#include <string>

#include "check/findings.h"
#include "check/form.h"

namespace kydata::check {

/// Goes over a text by the library's own grammar, and finds what the rules of the form
/// say about it. Takes no stack, however deep the text goes.
void walk(const std::string& text, const Form& form, Findings& findings);

}  // namespace kydata::check

#endif  // KYDATA_CHECK_WALK_H_
