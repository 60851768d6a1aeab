#ifndef KYDATA_HIGHLIGHT_TEXT_H_
#define KYDATA_HIGHLIGHT_TEXT_H_

#include <string>

#include "input.h"
#include "output.h"

namespace kydata {

/// True for a highlight text with at least one of its three members.
bool isHighlight(const std::string& text);

/// Shows a highlight text as a table.
void showHighlight(const Input& input, Output& out);

}  // namespace kydata

#endif  // KYDATA_HIGHLIGHT_TEXT_H_
