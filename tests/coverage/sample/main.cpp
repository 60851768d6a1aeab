// Leaves out what the letters of the argument say.

#include <cstring>

#include "src/sample.h"

int main(int, char** arguments) {
  const auto doing = [&](char letter) { return std::strchr(arguments[1], letter) == nullptr; };
  line(0);
  if (doing('l')) line(1);
  branch(true);
  if (doing('b')) branch(false);
  // Each condition comes out either way without the last of these, too.
  decide(true, true, false);
  decide(true, false, true);
  decide(false, false, false);
  if (doing('m')) decide(true, false, false);
  // Each instance alone reaches a half of it.
  isLess(1, 2);
  if (doing('t')) isLess(2.0, 1.0);
  decideWith<false>(true);
  decideWith<false>(false);
  decideWith<true>(false);
  nest(true, true, false);
  nest(true, false, true);
  nest(true, false, false);
  nest(false, false, false);
  if (doing('s')) seldom(true);
  seldom(false);
}
