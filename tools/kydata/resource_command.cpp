#include <KyDataStructure/resource.h>

#include <map>

#include "commands.h"
#include "description_text.h"
#include "input.h"
#include "owned.h"
#include "resource_table.h"
#include "text_table.h"
#include "utf8.h"

namespace kydata {

namespace {

using ZOL::IZolResSerializeInfo;

void printNormalForm(IZolResSerializeInfo* info, Output& out) {
  Owned<ZOL::IZolString> text(createZolString());
  if (info->toBuffer(text.get()) != ZOL::kSuccess) {
    throw Fault("has no normal form: there is neither a slug nor an id");
  }
  out.text() << text->text() << '\n';
}

/// The texts of all files. Those that cannot be read are reported and left out.
bool readTexts(const ResourceOptions& options, std::vector<Input>& texts) {
  bool allRead = true;
  for (const std::string& file : options.files) {
    const auto read = [&] {
      Input input = readInput(file);
      if (!options.linesAreTexts) {
        texts.push_back(std::move(input));
        return;
      }
      std::vector<Input> lines = linesOf(input);
      if (lines.empty()) throw Fault("holds nothing but white space");
      for (Input& line : lines) texts.push_back(std::move(line));
    };
    allRead = reportingFaults(inputName(file), read) && allRead;
  }
  return allRead;
}

bool printEach(const ResourceOptions& options, const std::vector<Input>& texts, Output& out) {
  bool allGood = true;
  bool isFirst = true;
  for (const Input& input : texts) {
    const auto print = [&] {
      const auto info = readDescription(input.text, options.completeType);
      if (options.writeNormal) {
        printNormalForm(info.get(), out);
        return;
      }
      if (!isFirst) out.text() << '\n';
      isFirst = false;
      printDescription(input.name, info.get(), out);
    };
    allGood = reportingFaults(input.name, print) && allGood;
  }
  return allGood;
}

Owned<ZOL::IZolResSerializeInfoList> listWithoutDoubles(const std::vector<Input>& texts) {
  Owned<ZOL::ZOLPCharList> list(createZOLPCharList());
  for (const Input& input : texts) list->add(input.text.c_str());
  Owned<ZOL::IZolResSerializeInfoList> kept(createIZolResSerializeInfoList());
  resInfoStr2SerializeList(list.get(), kept.get());
  return kept;
}

/// Tells for each text what the list made of it. The kept descriptions stand in the
/// order of their texts, so one walk over both finds the text of each.
bool printFates(const std::vector<Input>& texts, ZOL::IZolResSerializeInfoList* kept, Output& out) {
  TextTable table({{"no.", true}, {"text", false, 60}, {"kept"}, {"unique key"}});
  std::map<std::string, std::string> firstOfKey;  // its number
  bool allRead = true;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const Input& input = texts[i];
    const std::string number = std::to_string(i + 1);
    const auto judge = [&] {
      const auto info = readDescription(input.text, std::nullopt);
      const std::string key = info->uniqueKey();
      const auto known = firstOfKey.find(key);
      if (known != firstOfKey.end()) {
        table.add({number, input.name, "no, double of " + known->second, key});
        return;
      }
      const auto place = static_cast<long long>(firstOfKey.size());
      const bool isKept = place < kept->size() && key == kept->at(place)->uniqueKey();
      if (!isKept) throw Fault("is not in the list, although no text before it has its key");
      firstOfKey.emplace(key, number);
      table.add({number, input.name, "yes", key});
    };
    if (!reportingFaults(input.name, judge)) {
      allRead = false;
      table.add({number, input.name, "no, unreadable", ""});
    }
  }
  table.print(out);
  out.text() << "\n  " << kept->size() << " of " << texts.size() << " kept\n";
  return allRead;
}

bool printUnique(const ResourceOptions& options, const std::vector<Input>& texts, Output& out) {
  const auto kept = listWithoutDoubles(texts);
  if (!options.writeNormal) return printFates(texts, kept.get(), out);
  bool allRead = true;
  for (const Input& input : texts) {
    const auto read = [&] { readDescription(input.text, std::nullopt); };
    allRead = reportingFaults(input.name, read) && allRead;
  }
  for (long long i = 0; i < kept->size(); ++i) printNormalForm(kept->at(i), out);
  return allRead;
}

}  // namespace

void showResource(const Input& input, Output& out) {
  printDescription(input.name, readDescription(input.text, std::nullopt).get(), out);
}

bool runResource(const ResourceOptions& options, Output& out) {
  std::vector<Input> texts;
  const bool allRead = readTexts(options, texts);
  const bool allGood =
      options.unique ? printUnique(options, texts, out) : printEach(options, texts, out);
  return allRead && allGood;
}

}  // namespace kydata
