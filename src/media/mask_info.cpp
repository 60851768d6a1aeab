// The smallest record, and the pattern of the others.

#include <KyDataStructure/media.h>

#include "frame/counted.h"
#include "frame/fields.h"
#include "frame/handle.h"

namespace ZOL {
namespace {

class KyMaskInfoData final : public Counted<RefCnt<void>, Virtually<IKyMaskInfoData>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IKyMaskInfoData, IDmBaseObj>(this, name);
  }

  const char* maskText() override { return maskText_.get(); }
  int setMaskText(const char* text) override { return maskText_.set(text); }
  int maskNumber() override { return maskNumber_.get(); }
  int setMaskNumber(int number) override { return maskNumber_.set(number); }

 private:
  TextRefusingNull maskText_;
  Plain<int> maskNumber_;
};

}  // namespace
}  // namespace ZOL

ZOL::IKyMaskInfoData* createMaskInfoData() { return ZOL::makeObject<ZOL::KyMaskInfoData>(); }
