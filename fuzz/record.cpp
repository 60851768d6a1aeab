// A provider's full record. The first byte picks the provider.

#include <iterator>
#include <string>

#include "bare_json.h"
#include "rewritten_description.h"
#include "target.h"

namespace {

constexpr int kInfoTypes[] = {6,   7,   101, 102, 103, 104, 106,  107,  108, 109,
                              112, 113, 100, 105, 110, 114, 1007, 1008, 0,   -1};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  if (size == 0) return 0;
  const int infoType = kInfoTypes[*bytes % std::size(kInfoTypes)];
  const std::string text = bytesIn(*zolString(textOf(bytes + 1, size - 1)));
  const Held<Info> info = newInfo();
  const bool valid = readRecord(info, text, infoType) == ZOL::kSuccess;
  require(valid == info->isValid(), "what makes a valid description is accepted");
  if (!bare::isObject(text)) {
    require(!valid && info->isEmpty(), "what is no object changes nothing");
    return 0;
  }
  if (!valid) return 0;
  // Not all that a record says is in the normal form: a pack's id, which is a text here,
  // for one. What says which resource it is must be.
  const Held<Info> again = newInfo();
  require(readText(again, written(info)) == ZOL::kSuccess, "what was written is read");
  require(std::string(again->uniqueKey()) == info->uniqueKey(), "the key is the same again");
  requireTheSameRewritten(again.get());
  return 0;
}
