#ifndef KYDATA_CHECK_PATH_H_
#define KYDATA_CHECK_PATH_H_

#include <deque>
#include <string>
#include <string_view>

namespace kydata::check {

/// A place in a JSON text as one writes it: [0].script[3].labels["slow pan"]. Of a very
/// long one the middle is left out.
class Path {
 public:
  void addName(std::string_view name);
  void addIndex(long long index);
  std::string text() const;

 private:
  void add(std::string step);

  std::string front_;
  std::size_t steps_ = 0;
  std::deque<std::string> back_;
};

}  // namespace kydata::check

#endif  // KYDATA_CHECK_PATH_H_
