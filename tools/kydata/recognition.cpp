#include "recognition.h"

#include <KyDataStructure/cutscript.h>
#include <KyDataStructure/resource.h>

#include "data_map_text.h"
#include "input.h"
#include "owned.h"

namespace kydata {

bool isCutReply(const std::string& text) {
  return static_cast<bool>(Owned<ZOL::IZolCutScripts>(createCutScripts(text.c_str())));
}

bool isDataMap(const std::string& text) { return static_cast<bool>(dataMapOf(text)); }

bool isStoryboard(const std::string& text) {
  Owned<ZOL::IZolStoryboardInfoList> rows(createIZolStoryboardInfoList());
  return jsonBufferToStoryboardInfoList(zolString(text).get(), rows.get()) == ZOL::kSuccess;
}

bool isDescription(const std::string& text) {
  Owned<ZOL::IZolResSerializeInfo> info(createZolResSerializeInfo());
  return info->setFromBuffer(zolString(text).get()) == ZOL::kSuccess;
}

}  // namespace kydata
