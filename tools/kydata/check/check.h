#ifndef KYDATA_CHECK_CHECK_H_
#define KYDATA_CHECK_CHECK_H_

#include <optional>
#include <string>

#include "check/findings.h"
#include "check/form.h"
#include "input.h"

namespace kydata::check {

/// What is to be known of a text besides the text.
struct Ask {
  const Form* form = nullptr;       ///< null: to be told from the text
  std::optional<int> completeType;  ///< of a record
  std::size_t limit = 0;            ///< how many findings of a kind to keep; 0 for all
};

struct Checked {
  const Form* form;  ///< null where nothing tells it
  bool isTold;       ///< by the text itself, which may be wrong
  Findings findings;
  std::optional<Made> made;  ///< nothing where the library refuses the text
};

Checked check(const std::string& text, const Ask& ask);

}  // namespace kydata::check

#endif  // KYDATA_CHECK_CHECK_H_
