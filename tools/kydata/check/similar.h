#ifndef KYDATA_CHECK_SIMILAR_H_
#define KYDATA_CHECK_SIMILAR_H_

#include <cstddef>
#include <string_view>

namespace kydata::check {

/// How many letters have to be put in, taken out, changed or swapped with their neighbour
/// to make one name of the other; capitals count as small letters.
std::size_t distance(std::string_view a, std::string_view b);

/// True if one name may well be a slip for the other.
bool areSimilar(std::string_view a, std::string_view b);

}  // namespace kydata::check

#endif  // KYDATA_CHECK_SIMILAR_H_
