// The lists of plain values, of texts, of memory, and of objects that callers make.

#include "lists/letter_list_of.h"

std::vector<ListKind> valueLists() {
  return {
      listKind<ZOL::ZOLIntList>("int"),
      listKind<ZOL::ZOLBoolList>("int"),
      listKind<ZOL::ZOLFLOATList>(),
      listKind<ZOL::ZOLREALList>(),
      listKind<ZOL::ZOLLonglongList>(),
      listKind<ZOL::ZOLULonglongList>("unsigned long long"),
      listKind<ZOL::ZOLIntPtrList>("unsigned long long"),
      listKind<ZOL::ZOLVoidPtrList>(),
      listKind<ZOL::ZOLPByteList>(),
      listKind<ZOL::ZolValueList>(),
      listKind<ZOL::ZOLPCharList>(),
      listKind<ZOL::ZOLAutoVoidPtrList>(),
      listKind<ZOL::ZOLBaseObjectList>(),
      listKind<ZOL::IGpuInfoList>(),
  };
}
