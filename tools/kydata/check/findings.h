#ifndef KYDATA_CHECK_FINDINGS_H_
#define KYDATA_CHECK_FINDINGS_H_

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "check/finding.h"

namespace kydata::check {

/// What has been found in one text. Of findings that are alike only so many are kept,
/// and all are counted.
class Findings {
 public:
  /// Keeps at most `limit` of a kind; all of them for 0.
  explicit Findings(std::size_t limit) : limit_(limit) {}

  /// Counts a finding; true if it is to be handed to keep(). Alike are those of one code
  /// and one rule.
  bool count(Code code, Severity severity, const void* rule);
  void keep(Finding finding) { kept_.push_back(std::move(finding)); }

  /// Both at once, for a finding about the text and not about one of its members.
  void add(Code code, std::size_t offset, std::string message, Effect effect = Effect::none);

  /// Puts what was kept in the order of the text.
  void sort();

  const std::vector<Finding>& kept() const { return kept_; }
  std::size_t counted(Severity severity) const {
    return counts_[static_cast<std::size_t>(severity)];
  }
  std::size_t left() const { return left_; }

 private:
  std::size_t limit_;
  std::size_t left_ = 0;  ///< how many were counted and not kept
  std::array<std::size_t, 3> counts_{};
  std::map<std::pair<Code, const void*>, std::size_t> alike_;
  std::vector<Finding> kept_;
};

}  // namespace kydata::check

#endif  // KYDATA_CHECK_FINDINGS_H_
