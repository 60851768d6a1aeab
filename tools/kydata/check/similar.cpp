#include "check/similar.h"

#include <algorithm>
#include <vector>

namespace kydata::check {

namespace {

constexpr std::size_t kLongestName = 40;  // and a longer one is no slip

char small(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

}  // namespace

std::size_t distance(std::string_view a, std::string_view b) {
  // The distances of all beginnings of b to the beginnings of a that end at a letter, at
  // the one before it and at the one before that.
  std::vector<std::size_t> rows[3];
  for (auto& row : rows) row.resize(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) rows[1][j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    rows[2][0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const bool isSame = small(a[i - 1]) == small(b[j - 1]);
      std::size_t best = std::min({rows[1][j] + 1, rows[2][j - 1] + 1, rows[1][j - 1] + !isSame});
      const bool isSwapped = i > 1 && j > 1 && small(a[i - 1]) == small(b[j - 2]) &&
                             small(a[i - 2]) == small(b[j - 1]);
      if (isSwapped) best = std::min(best, rows[0][j - 2] + 1);
      rows[2][j] = best;
    }
    std::rotate(rows, rows + 1, rows + 3);
  }
  return rows[1][b.size()];
}

bool areSimilar(std::string_view a, std::string_view b) {
  if (a.size() > kLongestName || b.size() > kLongestName) return false;
  return distance(a, b) <= (std::min(a.size(), b.size()) < 6 ? 1U : 2U);
}

}  // namespace kydata::check
