// Lists of ints with a given content.

#ifndef KYDATASTRUCTURE_BENCH_INPUTS_INT_LISTS_H_
#define KYDATASTRUCTURE_BENCH_INPUTS_INT_LISTS_H_

#include <KyDataStructure/lists.h>

#include <algorithm>
#include <vector>

#include "support/owned.h"

namespace bench {

inline Owned<ZOL::ZOLIntList> listOf(const std::vector<int>& numbers) {
  auto list = owned(createZOLIntList());
  for (const int number : numbers) list->add(number);
  return list;
}

// A list of its own with the elements of another, and no room for more.
inline Owned<ZOL::ZOLIntList> copyOf(ZOL::ZOLIntList* list) {
  auto copy = owned(createZOLIntList());
  copy->assign(list);
  return copy;
}

// True if the list's array holds just these.
inline bool holds(ZOL::ZOLIntList* list, const std::vector<int>& numbers) {
  if (list->size() != static_cast<long long>(numbers.size())) return false;
  const auto* const array = static_cast<const int*>(list->queryInterface(ZOL::kListData));
  return std::equal(numbers.begin(), numbers.end(), array);
}

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_INPUTS_INT_LISTS_H_
