// The lists of plain values, one name and one factory each.

#include <KyDataStructure/lists.h>

#include "frame/handle.h"
#include "lists/list.h"
#include "lists/made_lists.h"
#include "lists/stores.h"

namespace ZOL {

template class List<ZOLIntList, ZOLTemplateList<int>>;
template class List<ZOLLonglongList, ZOLTemplateList<long long>>;

namespace {

using _ZOLIntList = ValueList<ZOLIntList>;
using _ZOLBoolList = List<ZOLBoolList, ZOLTemplateList<int>>;
using _ZOLFLOATList = ValueList<ZOLFLOATList>;
using _ZOLREALList = ValueList<ZOLREALList>;
using _ZOLLonglongList = ValueList<ZOLLonglongList>;
using _ZOLULonglongList = ValueList<ZOLULonglongList>;
using _ZOLIntPtrList = List<ZOLIntPtrList, ZOLTemplateList<unsigned long long>>;
using _ZOLVoidPtrList = ValueList<ZOLVoidPtrList>;
using _ZOLPByteList = ValueList<ZOLPByteList>;
using _ZolValueList = ValueList<ZolValueList>;

}  // namespace
}  // namespace ZOL

ZOL::ZOLIntList* createZOLIntList() { return ZOL::makeObject<ZOL::_ZOLIntList>(); }
ZOL::ZOLBoolList* createZOLBoolList() { return ZOL::makeObject<ZOL::_ZOLBoolList>(); }
ZOL::ZOLFLOATList* createZOLFLOATList() { return ZOL::makeObject<ZOL::_ZOLFLOATList>(); }
ZOL::ZOLREALList* createZOLREALList() { return ZOL::makeObject<ZOL::_ZOLREALList>(); }
ZOL::ZOLLonglongList* createZOLLonglongList() { return ZOL::makeObject<ZOL::_ZOLLonglongList>(); }
ZOL::ZOLULonglongList* createZOLULonglongList() {
  return ZOL::makeObject<ZOL::_ZOLULonglongList>();
}
ZOL::ZOLIntPtrList* createZOLIntPtrList() { return ZOL::makeObject<ZOL::_ZOLIntPtrList>(); }
ZOL::ZOLVoidPtrList* createZOLVoidPtrList() { return ZOL::makeObject<ZOL::_ZOLVoidPtrList>(); }
ZOL::ZOLPByteList* createZOLPByteList() { return ZOL::makeObject<ZOL::_ZOLPByteList>(); }
ZOL::ZolValueList* createZolValueList() { return ZOL::makeObject<ZOL::_ZolValueList>(); }
