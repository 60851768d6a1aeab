#ifndef KYDATA_CHECK_JSON_OUTPUT_H_
#define KYDATA_CHECK_JSON_OUTPUT_H_

#include <string>
#include <vector>

#include "check/check.h"

namespace kydata::check {

/// The same as the text tells, for other programs: a JSON document in which files are
/// added one after the other.
class JsonOutput {
 public:
  void add(const Input& input, const Checked& checked);
  /// A file that could not be read.
  void addFault(const std::string& name, const std::string& fault);
  std::string text() const;

 private:
  std::vector<std::string> files_;
};

}  // namespace kydata::check

#endif  // KYDATA_CHECK_JSON_OUTPUT_H_
