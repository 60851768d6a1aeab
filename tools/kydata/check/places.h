#ifndef KYDATA_CHECK_PLACES_H_
#define KYDATA_CHECK_PLACES_H_

#include <cstddef>
#include <string_view>

namespace kydata::check {

/// Both counted from 1; the column in code points, as editors do.
struct Place {
  std::size_t line;
  std::size_t column;
};

/// Lines and columns of a text. Quick for places that are asked for in the text's order.
class Places {
 public:
  explicit Places(std::string_view text);
  Place at(std::size_t offset);

 private:
  std::string_view text_;
  std::size_t begin_;  ///< behind a byte-order mark, which no editor counts
  std::size_t at_;     ///< the offset asked for last, and its place
  Place place_{1, 1};
};

}  // namespace kydata::check

#endif  // KYDATA_CHECK_PLACES_H_
