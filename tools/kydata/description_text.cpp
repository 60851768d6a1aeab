#include "description_text.h"

#include "input.h"
#include "refused_text.h"

namespace kydata {

Owned<ZOL::IZolResSerializeInfo> readDescription(const std::string& text,
                                                 std::optional<int> completeType) {
  Owned<ZOL::IZolResSerializeInfo> info(createZolResSerializeInfo());
  const Owned<ZOL::IZolString> source = zolString(text);
  const int result = completeType ? info->setFromCompletResInfo(source.get(), *completeType)
                                  : info->setFromBuffer(source.get());
  if (result != ZOL::kSuccess) throw Fault(whyRefused(text, info.get(), completeType));
  return info;
}

}  // namespace kydata
