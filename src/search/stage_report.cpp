// What a stage reports, fixed when it is made.

#include <KyDataStructure/search.h>

#include <string>

#include "frame/counted.h"
#include "frame/handle.h"

namespace ZOL {
namespace {

std::string textOrEmpty(const char* text) { return text ? text : std::string(); }

class ZolStageReportData final : public Counted<IZolStageReportData, RefCnt<void>> {
 public:
  ZolStageReportData(int type, const char* name, int status, int code, const char* message,
                     const char* detail)
      : stageType_(type),
        stageName_(textOrEmpty(name)),
        stageStatus_(status),
        stageCode_(code),
        stageMessage_(textOrEmpty(message)),
        stageDetail_(textOrEmpty(detail)) {}

  void* queryInterface(const char* name) override {
    return answer<IZolStageReportData, IDmBaseObj>(this, name);
  }

  int stageType() override { return stageType_; }
  const char* stageName() override { return stageName_.c_str(); }
  int stageStatus() override { return stageStatus_; }
  int stageCode() override { return stageCode_; }
  const char* stageMessage() override { return stageMessage_.c_str(); }
  const char* stageDetail() override { return stageDetail_.c_str(); }

 private:
  const int stageType_;
  const std::string stageName_;
  const int stageStatus_;
  const int stageCode_;
  const std::string stageMessage_;
  const std::string stageDetail_;
};

}  // namespace
}  // namespace ZOL

ZOL::IZolStageReportData* createStageReportData(int stageType, const char* stageName,
                                                int stageStatus, int stageCode,
                                                const char* stageMessage, const char* stageDetail) {
  return ZOL::makeObject<ZOL::ZolStageReportData>(stageType, stageName, stageStatus, stageCode,
                                                  stageMessage, stageDetail);
}
