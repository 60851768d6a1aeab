#include "commands.h"
#include "counted.h"
#include "data_map_text.h"
#include "text_table.h"
#include "utf8.h"

namespace kydata {

namespace {

Owned<ZOL::IImageStylizesData> readDataMap(const std::string& text) {
  auto map = dataMapOf(text);
  if (!map) throw Fault(whyNoDataMap(text));
  return map;
}

void printDataMap(const std::string& name, ZOL::IImageStylizesData* map, Output& out) {
  const std::vector<int> ids = idsOf(map);
  TextTable table({{"id", true}, {"text"}});
  for (const int id : ids) {
    const std::string text = map->param(id);
    table.add({std::to_string(id), text.empty() ? "\"\"" : text});
  }
  out.text() << out.heading(printable(name)) << "\n  " << counted(ids.size(), "text") << '\n';
  if (!table.isEmpty()) table.print(out);
}

}  // namespace

void showDataMap(const Input& input, Output& out) {
  printDataMap(input.name, readDataMap(input.text).get(), out);
}

bool runDataMap(const DataMapOptions& options, Output& out) {
  bool allGood = true;
  bool isFirst = true;
  for (const std::string& file : options.files) {
    const auto print = [&] {
      const Input input = readInput(file);
      const auto map = readDataMap(input.text);
      if (options.writeNormal) {
        out.text() << normalText(map.get()) << '\n';
        return;
      }
      if (!isFirst) out.text() << '\n';
      isFirst = false;
      printDataMap(input.name, map.get(), out);
    };
    allGood = reportingFaults(inputName(file), print) && allGood;
  }
  return allGood;
}

}  // namespace kydata
