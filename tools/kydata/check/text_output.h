#ifndef KYDATA_CHECK_TEXT_OUTPUT_H_
#define KYDATA_CHECK_TEXT_OUTPUT_H_

#include "check/check.h"
#include "output.h"

namespace kydata::check {

/// Writes a line for each finding, as compilers do, and one for the whole.
void printChecked(const Input& input, const Checked& checked, Output& out);

}  // namespace kydata::check

#endif  // KYDATA_CHECK_TEXT_OUTPUT_H_
