#include "lists/list_without_type_information.h"

#include "lists/foreign_list.h"

#if defined(__GXX_RTTI)
#error "this file is about builds with -fno-rtti"
#endif

namespace {

// A type of this file's own, so that no table with type information takes the place
// of the one that is made here.
struct WithoutTypeInformation {};

}  // namespace

ZOL::ZOLIntList* listWithoutTypeInformation() {
  static ForeignList<ZOL::ZOLIntList, WithoutTypeInformation> list;
  if (list.size() == 0) {
    list.add(8);
    list.add(9);
  }
  return &list;
}

ZOL::IGpuInfoList* gpuListWithoutTypeInformation() {
  static ForeignList<ZOL::IGpuInfoList, WithoutTypeInformation> list;
  return &list;
}
