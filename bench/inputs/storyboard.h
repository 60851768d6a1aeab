// The rows of a storyboard: as plain values, as the library keeps them, and as text.

#ifndef KYDATASTRUCTURE_BENCH_INPUTS_STORYBOARD_H_
#define KYDATASTRUCTURE_BENCH_INPUTS_STORYBOARD_H_

#include <KyDataStructure/cutscript.h>
#include <rapidjson/stringbuffer.h>

#include <string>
#include <vector>

#include "support/owned.h"

namespace bench {

struct StoryboardRow {
  int scriptClass;
  long long start, end;
  std::string title, subtitle, description;
};

std::vector<StoryboardRow> storyboardRows(int count);

Owned<ZOL::IZolStoryboardInfoList> storyboardList(const std::vector<StoryboardRow>& rows);
bool holds(ZOL::IZolStoryboardInfoList* list, const std::vector<StoryboardRow>& rows);

// With RapidJSON's indenting writer and nothing else.
void writeBare(rapidjson::StringBuffer& buffer, const std::vector<StoryboardRow>& rows);

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_INPUTS_STORYBOARD_H_
