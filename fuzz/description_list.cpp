// Texts of descriptions, one a line, made a list without doubles.

#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "resource/description.h"
#include "target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const Held<ZOL::ZOLPCharList> texts(createZOLPCharList());
  std::vector<std::string> expected;
  std::set<std::string> keys;
  std::istringstream lines(textOf(bytes, size));
  for (std::string line; std::getline(lines, line);) {
    texts->add(line.c_str());
    const Held<Info> info(createZolResSerializeInfoFromBuffer(line.c_str()));
    if (info.get() && keys.insert(info->uniqueKey()).second) expected.push_back(show(info));
  }
  const Held<InfoList> infos = newInfoList();
  require(resInfoStr2SerializeList(texts.get(), infos.get()) == ZOL::kSuccess,
          "any texts are taken");
  require(infos->size() == static_cast<long long>(expected.size()), "one for each key");
  for (std::size_t i = 0; i < expected.size(); ++i) {
    Info* const info = infos->at(static_cast<long long>(i));
    require(info->refCount() == 1, "a description has the list's reference alone");
    require(show(info) == expected[i], "the first of each key, in their order");
  }
  return 0;
}
