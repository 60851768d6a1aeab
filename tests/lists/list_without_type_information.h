// Lists from a build without run-time type information, as some hosts are.

#ifndef KYDATASTRUCTURE_TESTS_LISTS_LIST_WITHOUT_TYPE_INFORMATION_H_
#define KYDATASTRUCTURE_TESTS_LISTS_LIST_WITHOUT_TYPE_INFORMATION_H_

#include <KyDataStructure/lists.h>

// One list for the whole program, holding 8 and 9.
ZOL::ZOLIntList* listWithoutTypeInformation();

// One list for the whole program, empty.
ZOL::IGpuInfoList* gpuListWithoutTypeInformation();

#endif  // KYDATASTRUCTURE_TESTS_LISTS_LIST_WITHOUT_TYPE_INFORMATION_H_
