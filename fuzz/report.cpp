// An analysis report: read, walked over, and its slices kept beyond its end.

#include <KyDataStructure/cutscript.h>

#include <sstream>
#include <stdexcept>
#include <string>

#include "bare_json.h"
#include "cutscript/report_state.h"
#include "expected_report.h"
#include "support/held.h"
#include "target.h"

namespace {

constexpr int kFirstType = -1;
constexpr int kLastType = 14;

// What `make` makes; "throws" for a label that must be a number and is none.
template <class Make>
std::string unlessThrown(Make make) {
  try {
    return make();
  } catch (const std::invalid_argument&) {
    return "throws\n";
  } catch (const std::out_of_range&) {
    return "throws\n";
  }
}

// Without the line of the faces, which are not worked out here.
std::string withoutFaces(const std::string& shown) {
  std::istringstream lines(shown);
  std::string rest;
  for (std::string line; std::getline(lines, line);) {
    if (line.rfind("10: ", 0) != 0) rest += line + "\n";
  }
  return rest;
}

std::string expectedOf(const std::string& text) {
  rapidjson::Document document;
  bare::parseBehindMark<bare::kTolerant>(document, text);
  if (document.HasParseError() || !document.IsObject()) return "null\n";
  return unlessThrown([&document] { return expected::report(document); });
}

// Asks for what a walk over the slices does not.
void requireTheRest(ZOL::IZolDemensionsItem& item) {
  const Held<ZOL::ZOLLonglongList> times(createZOLLonglongList());
  const Held<ZOL::ZOLIntList> scores(createZOLIntList());
  require(item.refCount() == 1, "a dimension has one reference");
  require(item.getScores(times.get(), scores.get()) == ZOL::kSuccess, "scores are asked for");
  require(!item.hasScores() && times->size() == 0, "samples that were read are never given");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string text = textOf(bytes, size).c_str();  // up to a zero byte
  Held<ZOL::IZolKeyMatrixInfo> report(nullptr);
  const std::string said = unlessThrown([&] {
    report = Held<ZOL::IZolKeyMatrixInfo>(createKeyMatrixInfo(text.c_str()));
    return report.get() ? show(*report) : "null\n";
  });
  require(withoutFaces(said) == expectedOf(text), "a report holds what its text says");
  if (!report.get()) return 0;

  const Held<ZOL::IZolSliceItemList> some(createIZolSliceItemList());
  const Held<ZOL::IZolSliceItemList> all(createIZolSliceItemList());
  for (int type = kFirstType; type <= kLastType; ++type) {
    ZOL::IZolDemensionsItem* const item = report->dimensionItem(type);
    if (!item) continue;
    requireTheRest(*item);
    require(item->getSliceItems(some.get()) == ZOL::kSuccess, "each dimension gives its slices");
    require(all->insertListAt(all->size(), some.get()) == ZOL::kSuccess, "slices are gathered");
  }
  some->clear();
  require(show(*report) == said, "looking changes nothing");
  const std::string slices = show(*all);
  require(report.reset() == 0, "the report had one reference");

  // What shares memory with what is gone is still whole, until the last of it goes.
  require(show(*all) == slices, "kept slices say what they said");
  for (bool fromFront = false; all->size() > 0; fromFront = !fromFront) {
    const long long at = fromFront ? 0 : all->size() - 1;
    require(all->at(at)->refCount() == 1, "a kept slice has its keeper's reference alone");
    all->removeAt(at);
  }
  return 0;
}
