#ifndef KYDATA_COUNTED_H_
#define KYDATA_COUNTED_H_

#include <cstddef>
#include <string>

namespace kydata {

/// "1 row", "2 rows".
inline std::string counted(std::size_t count, const std::string& one) {
  return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

}  // namespace kydata

#endif  // KYDATA_COUNTED_H_
