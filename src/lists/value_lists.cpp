// The lists of plain values, one name and one factory each.

#include <KyDataStructure/lists.h>

#include "frame/ref.h"
#include "lists/list.h"
#include "lists/stores.h"

namespace ZOL {
namespace {

using _ZOLIntList = List<ZOLIntList, ZOLTemplateList<int>>;
using _ZOLBoolList = List<ZOLBoolList, ZOLTemplateList<int>>;
using _ZOLFLOATList = List<ZOLFLOATList, ZOLTemplateList<float>>;
using _ZOLREALList = List<ZOLREALList, ZOLTemplateList<double>>;
using _ZOLLonglongList = List<ZOLLonglongList, ZOLTemplateList<long long>>;
using _ZOLULonglongList = List<ZOLULonglongList, ZOLTemplateList<unsigned long long>>;
using _ZOLIntPtrList = List<ZOLIntPtrList, ZOLTemplateList<unsigned long long>>;
using _ZOLVoidPtrList = List<ZOLVoidPtrList, ZOLTemplateList<void*>>;
using _ZOLPByteList = List<ZOLPByteList, ZOLTemplateList<unsigned char*>>;
using _ZolValueList = List<ZolValueList, ZOLTemplateList<ZolValue>>;

}  // namespace
}  // namespace ZOL

ZOL::ZOLIntList* createZOLIntList() { return ZOL::make<ZOL::_ZOLIntList>(); }
ZOL::ZOLBoolList* createZOLBoolList() { return ZOL::make<ZOL::_ZOLBoolList>(); }
ZOL::ZOLFLOATList* createZOLFLOATList() { return ZOL::make<ZOL::_ZOLFLOATList>(); }
ZOL::ZOLREALList* createZOLREALList() { return ZOL::make<ZOL::_ZOLREALList>(); }
ZOL::ZOLLonglongList* createZOLLonglongList() { return ZOL::make<ZOL::_ZOLLonglongList>(); }
ZOL::ZOLULonglongList* createZOLULonglongList() { return ZOL::make<ZOL::_ZOLULonglongList>(); }
ZOL::ZOLIntPtrList* createZOLIntPtrList() { return ZOL::make<ZOL::_ZOLIntPtrList>(); }
ZOL::ZOLVoidPtrList* createZOLVoidPtrList() { return ZOL::make<ZOL::_ZOLVoidPtrList>(); }
ZOL::ZOLPByteList* createZOLPByteList() { return ZOL::make<ZOL::_ZOLPByteList>(); }
ZOL::ZolValueList* createZolValueList() { return ZOL::make<ZOL::_ZolValueList>(); }
