// Objects of every kind, for a debugger to look at.

#include <KyDataStructure/KyDataStructure.h>

#include <cstdint>
#include <cstring>

namespace {

// Not this library's: a debugger shows it as it shows any object.
class ForeignGpu final : public ZOL::IGpuInfo {
 public:
  int addRef() override { return ++count_; }
  int release() override { return --count_; }
  int refCount() override { return count_; }
  ZOL::IReleaseHook* releaseHook() override { return nullptr; }
  void setReleaseHook(ZOL::IReleaseHook*) override {}
  void* queryInterface(const char*) override { return nullptr; }

 private:
  int count_ = 1;
};

}  // namespace

namespace ZOL {

// Made as this library's classes are, but with nothing of what is in them.
template <class Interface>
class Counted : public Interface {
 protected:
  ~Counted() = default;
};

class StrangeGpu final : public Counted<IGpuInfo> {
 public:
  int addRef() override { return 1; }
  int release() override { return 1; }
  int refCount() override { return 1; }
  IReleaseHook* releaseHook() override { return nullptr; }
  void setReleaseHook(IReleaseHook*) override {}
  void* queryInterface(const char*) override { return nullptr; }

 private:
  int temperature_ = 40;
};

}  // namespace ZOL

// Where the debugger stops, one frame above what it looks at.
extern "C" __attribute__((noinline)) void lookAround() {
  static volatile int calls = 0;
  calls = calls + 1;
}

// Names what nothing else in the program uses.
template <class... Things>
void forTheDebugger(const Things&...) {}

int main() {
  // Values.
  ZOL::ZolValue emptyValue;
  ZOL::ZolValue boolValue(true);
  ZOL::ZolValue doubleValue(1.5);
  ZOL::ZolValue floatValue(0.25F);
  ZOL::ZolValue longlongValue(-7LL);
  ZOL::ZolValue intValue(12);
  ZOL::ZolValue uintValue(4000000000U);
  ZOL::ZolValue textValue("harbour \"bell\"");
  ZOL::ZolValue emptyText("");
  ZOL::_ZolValueUnion bits;
  bits.longInteger = 255;
  ZOL::ZolValue unusedType(static_cast<ZOL::_ValueType>(9), bits);

  // Strings and buffers.
  ZOL::IZolString* string = createZolString();
  string->setText("two\0parts", 9);
  string->addRef();
  ZOL::IZolPChar* pchar = createZolPChar();
  pchar->setData("abcdef", 6);
  ZOL::IZolPChar* emptyPChar = createZolPChar();
  ZOL::IDataSizeBuffer* buffer = createDataSizeBuffer();
  buffer->setData("\x01\x02\x03", 3);
  const unsigned char pixels[4] = {1, 2, 3, 4};
  ZOL::IZolBGRAData* picture = createBGRAData(1, 1, pixels, 4, 77);

  // Lists.
  ZOL::ZOLIntList* ints = createZOLIntList();
  for (int number = 1; number <= 3; ++number) ints->add(number * 10);
  ZOL::ZOLREALList* emptyList = createZOLREALList();
  ZOL::ZOLPCharList* texts = createZOLPCharList();
  texts->add("door");
  texts->add("");
  ZOL::ZolValueList* values = createZolValueList();
  values->add(intValue);
  values->add(textValue);
  ZOL::ZOLRangeList* ranges = createZOLRangeList();
  ranges->add(ZOL::_Range{40, 80});
  ZOL::PropertyList* properties = createPropertyList();
  ZOL::_Property property = {};
  properties->add(property);
  property.present = 1;
  property.type = ZOL::kPropertyInteger;
  const std::int64_t number = -5;
  std::memcpy(property.value, &number, sizeof number);
  properties->add(property);
  property.type = ZOL::kPropertyText;
  std::strcpy(property.value, "slug");
  properties->add(property);
  ZOL::ZOLAutoVoidPtrList* blocks = createZOLAutoVoidPtrList();
  blocks->add(nullptr);
  ZOL::ZOLVoidPtrList* pointers = createZOLVoidPtrList();
  pointers->add(nullptr);
  ForeignGpu gpu;
  ZOL::IGpuInfoList* gpus = createIGpuInfoList();
  gpus->add(nullptr);
  gpus->add(&gpu);
  ZOL::ZOLBaseObjectList* objects = createZOLBaseObjectList();
  objects->add(string);
  objects->add(ints);

  // Records.
  ZOL::IZolTextInfo* text = createTextInfo();
  auto* textWriter = ZOL::query<ZOL::IZolTextInfoInternal>(text);
  textWriter->setStart(40);
  textWriter->setEnd(900);
  textWriter->setText("Gulls");
  ZOL::IZolTextInfoList* textInfos = createIZolTextInfoList();
  textInfos->add(text);
  ZOL::IZolSmartCutClipInfo* clip = createSmartCutClipInfo();
  auto* clipWriter = ZOL::query<ZOL::IZolSmartCutClipInfoInternal>(clip);
  clipWriter->setTitle("Pier");
  clipWriter->setTextInfoList(textInfos);
  ZOL::IKyMaskInfoData* mask = createMaskInfoData();
  mask->setMaskText("oval");
  mask->setMaskNumber(3);
  ZOL::IZolStageReportData* stage = createStageReportData(1, "cut", 2, 0, "done", "");
  ZOL::IZolParam* param = createZolParam();
  ZOL::query<ZOL::IZolParamInternal>(param)->setParamName("blur");
  param->setProperty("radius", property);

  // What the readers make.
  ZOL::IZolCutScripts* cut = createCutScripts(R"([{"title": "Weekend", "script": [
      {"script_class": "chapter", "start_time": 0, "end_time": 5000, "title": "Arrival"}]}])");
  ZOL::IZolKeyMatrixInfo* report = createKeyMatrixInfo(R"({"keywords": ["harbour", "dawn"]})");
  ZOL::IZolSliceItem* slice = createSliceItem();
  ZOL::query<ZOL::IZolSliceItemInternal>(slice)->setLabel("gull");
  ZOL::IZolSliceItemList* slices = createIZolSliceItemList();
  slices->add(slice);
  ZOL::IZolDemensionsItem* dimension = createDemensionsItem();
  ZOL::query<ZOL::IZolDemensionsItemInternal>(dimension)->setLabelSliceItems("birds", slices);

  // Descriptions.
  ZOL::IZolResSerializeInfo* photo =
      createZolResSerializeInfoFromCompletResInfo(R"({"id": 42, "tags": "harbour"})", 101);
  photo->setUserString("rsiusCustomRsMd5", "c0ffee");
  ZOL::IZolResSerializeInfo* emptyPhoto = createZolResSerializeInfo();
  ZOL::IZolResSerializeInfo* title =
      createZolResSerializeInfoFromBuffer(R"({"id": 1, "name": "sail", "res_type": 1,
          "related_res_list": [{"rsResSlug": "mast", "rsResType": 2}]})");

  // What a debugger may meet as well: null, memory that is no object, and an object of which
  // only the beginning is whole.
  ZOL::StrangeGpu strange;
  ZOL::IGpuInfo* strangeGpu = &strange;
  ZOL::IZolString* nullString = nullptr;
  ZOL::IZolString* wildString = reinterpret_cast<ZOL::IZolString*>(std::uintptr_t{16});
  unsigned char noise[1024];
  std::memset(noise, 0xa5, sizeof noise);
  ZOL::IZolString* noString = reinterpret_cast<ZOL::IZolString*>(noise);
  ZOL::ZolValue* noValue = reinterpret_cast<ZOL::ZolValue*>(noise);
  alignas(void*) unsigned char overwritten[1024];
  std::memset(overwritten, 0xa5, sizeof overwritten);
  std::memcpy(overwritten, ints, sizeof(void*));
  ZOL::ZOLIntList* brokenList = reinterpret_cast<ZOL::ZOLIntList*>(overwritten);

  forTheDebugger(emptyPChar, picture, emptyList, stage, cut, report, emptyPhoto, title, nullString,
                 wildString, noString, noValue, strangeGpu, brokenList);
  lookAround();
  return 0;
}
