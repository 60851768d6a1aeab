#include "check/findings.h"

#include <algorithm>

namespace kydata::check {

bool Findings::count(Code code, Severity severity, const void* rule) {
  ++counts_[static_cast<std::size_t>(severity)];
  if (limit_ == 0 || ++alike_[{code, rule}] <= limit_) return true;
  ++left_;
  return false;
}

void Findings::add(Code code, std::size_t offset, std::string message, Effect effect) {
  const Severity severity = severityOf(code, effect);
  if (count(code, severity, nullptr)) {
    keep({code, severity, offset, "", std::move(message), effect});
  }
}

void Findings::sort() {
  std::stable_sort(kept_.begin(), kept_.end(),
                   [](const Finding& a, const Finding& b) { return a.offset < b.offset; });
}

}  // namespace kydata::check
