// What a program does that uses the library, for the compilers and standards that such
// programs are built with.

#include <KyDataStructure/KyDataStructure.h>

namespace {

class Hook final : public ZOL::IReleaseHook {
 public:
  void onLastRelease() override { ++calls; }
  int calls = 0;
};

// An object of the program's own, for the lists that take such.
class Gpu final : public ZOL::IGpuInfo {
 public:
  int addRef() override { return ++count_; }
  int release() override { return --count_; }
  int refCount() override { return count_; }
  ZOL::IReleaseHook* releaseHook() override { return nullptr; }
  void setReleaseHook(ZOL::IReleaseHook*) override {}
  void* queryInterface(const char*) override { return static_cast<ZOL::IGpuInfo*>(this); }

 private:
  int count_ = 1;
};

bool shorter(const char* a, const char* b) { return a[0] == 0 && b[0] != 0; }

}  // namespace

int useTheLibrary() {
  Hook hook;
  Gpu gpu;
  ZOL::IGpuInfoList* const gpus = createIGpuInfoList();
  gpus->setReleaseHook(&hook);
  gpus->add(&gpu);
  gpus->release();

  ZOL::ZOLPCharList* const texts = createZOLPCharList();
  texts->add("text");
  texts->sort(&shorter);
  texts->sort([](const char*, const char*) { return false; });
  auto* const same = ZOL::query<ZOL::ZOLPCharList>(texts);
  const bool found = same == texts && texts->queryInterface(ZOL::kListData) != nullptr;
  texts->release();

  ZOL::ZolValue value("12");
  value = ZOL::ZolValue(12);
  const ZOL::ZolValue copy = value;
  ZOL::_Property property = {};
  property.type = ZOL::kPropertyText;
  ZOL::_Range range;
  ZOL::IZolMusicInfo* const music = createMusicInfo();
  auto* const writer = ZOL::query<ZOL::IZolMusicInfoInternal>(music);
  const int result = writer ? writer->setStart(range.start) : ZOL::kRefused;
  music->release();
  const bool right = found && result == ZOL::kSuccess && copy.type() == ZOL::kIntValue &&
                     property.type != ZOL::kPropertyInteger;
  return right ? hook.calls : -1;
}
