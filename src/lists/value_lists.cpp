// The lists of plain values, one name and one factory each.

#include <KyDataStructure/lists.h>

#include "frame/ref.h"
#include "lists/list.h"
#include "lists/stores.h"

namespace ZOL {
namespace {

class _ZOLIntList final : public List<ZOLIntList, ZOLTemplateList<int>> {};
class _ZOLBoolList final : public List<ZOLBoolList, ZOLTemplateList<int>> {};
class _ZOLFLOATList final : public List<ZOLFLOATList, ZOLTemplateList<float>> {};
class _ZOLREALList final : public List<ZOLREALList, ZOLTemplateList<double>> {};
class _ZOLLonglongList final : public List<ZOLLonglongList, ZOLTemplateList<long long>> {};
class _ZOLULonglongList final : public List<ZOLULonglongList, ZOLTemplateList<unsigned long long>> {};
class _ZOLIntPtrList final : public List<ZOLIntPtrList, ZOLTemplateList<unsigned long long>> {};
class _ZOLVoidPtrList final : public List<ZOLVoidPtrList, ZOLTemplateList<void*>> {};
class _ZOLPByteList final : public List<ZOLPByteList, ZOLTemplateList<unsigned char*>> {};
class _ZolValueList final : public List<ZolValueList, ZOLTemplateList<ZolValue>> {};

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
