// A cut service's reply becomes rows on the finished timeline, and a row is changed
// through its writing side.

#include <KyDataStructure/KyDataStructure.h>

#include <cstdio>

int main() {
  ZOL::IZolCutScripts* cut = createCutScripts(R"([{"title": "Weekend", "script": [
      {"script_class": "chapter", "start_time": 0, "end_time": 5000, "title": "Arrival"},
      {"script_class": "frame", "start_time": 2000, "end_time": 6000, "title": "Harbour"}]}])");
  ZOL::IZolStoryboardInfoList* rows = cut->storyboardInfoList(0);  // lent: nothing to release
  for (long long i = 0; i < rows->size(); ++i) {
    ZOL::IZolStoryboardInfo* row = rows->at(i);
    std::printf("%5lld to %5lld  %s\n", row->start(), row->end(), row->title());
  }
  std::printf("%s lasts %lld\n", cut->scriptTitle(0), cut->scriptDuration(0));

  ZOL::query<ZOL::IZolStoryboardInfoInternal>(rows->at(1))->setTitle("The harbour");
  std::printf("%s\n", rows->at(1)->title());
  cut->release();  // and with it the lists and the rows
}
