#include "platforms/readers.h"

#include <KyDataStructure/KyDataStructure.h>

#include <cstdint>
#include <cstring>
#include <exception>
#include <map>
#include <sstream>
#include <type_traits>

#include "cutscript/report_state.h"
#include "cutscript/script_state.h"
#include "resource/description.h"
#include "support/held.h"
#include "support/json_tree.h"
#include "support/zol_text.h"

namespace {

std::string line(const std::string& name, const std::string& value) {
  return name + ": " + escaped(value) + "\n";
}

std::string line(const std::string& name, long long value) {
  return line(name, std::to_string(value));
}

std::vector<std::string> linesOf(const std::string& document) {
  std::istringstream in(document);
  std::vector<std::string> lines;
  for (std::string each; std::getline(in, each);) lines.push_back(each);
  return lines;
}

// Resource descriptions.

std::string told(const Held<Info>& info) {
  if (!info.get()) return "none\n";
  const std::string key = info->uniqueKey();
  return line("holds", show(info)) + line("writes", written(info)) +
         line("again", rewritten(written(info))) + line("key", key) +
         line("valid", info->isValid()) + line("empty", info->isEmpty());
}

std::string readDescription(const std::string& document) {
  const Held<Info> info = newInfo();
  const Held<Info> made(createZolResSerializeInfoFromBuffer(document.c_str()));
  const int result = readText(info, document);
  return line("answers", result) + told(info) + "factory: " + told(made);
}

std::string readDescriptionList(const std::string& document) {
  const Held<ZOL::ZOLPCharList> texts(createZOLPCharList());
  for (const std::string& each : linesOf(document)) texts->add(each.c_str());
  const Held<InfoList> infos = newInfoList();
  const int result = resInfoStr2SerializeList(texts.get(), infos.get());
  return line("answers", result) +
         line("holds", showBy(*infos, [](Info* info) { return show(info) + written(info); }));
}

// In the layout of every code, whichever the first byte picks elsewhere.
std::string readRecordOf(const std::string& document) {
  std::string said;
  for (const int code : {6,   7,   101, 102, 103, 104, 106,  107,  108, 109,
                         112, 113, 100, 105, 110, 114, 1007, 1008, 0,   -1}) {
    const Held<Info> info = newInfo();
    const int result = readRecord(info, document.substr(document.empty() ? 0 : 1), code);
    said += line("code " + std::to_string(code), result);
    if (!info->isEmpty()) said += told(info);
  }
  return said;
}

// Cuts, and the texts of storyboards and highlights.

std::string writtenRows(ZOL::IZolStoryboardInfoList& rows) {
  const Held<ZOL::IZolString> out(createZolString());
  const int result = storyboardInfoListToJsonBuffer(&rows, out.get());
  return line("writes", result) + line("text", bytesIn(*out));
}

std::string writtenHighlight(ZOL::IZolHighlightInfo& highlight) {
  const Held<ZOL::IZolString> out(createZolString());
  const int result = highlight.toJson(out.get());
  return line("writes", result) + line("text", bytesIn(*out));
}

std::string readCut(const std::string& document) {
  const Held<ZOL::IZolCutScripts> scripts(createCutScripts(document.c_str()));
  if (!scripts.get()) return "none\n";
  std::string said = show(*scripts);
  for (int i = 0; i < scripts->scriptCount(); ++i) {
    said += writtenRows(*scripts->storyboardInfoList(i));
    ZOL::IZolSmartCutClipInfoList& clips = *scripts->smartCutClipInfoList(i);
    for (long long c = 0; c < clips.size(); ++c) {
      ZOL::IZolHighlightInfoList* const highlights = clips.at(c)->highlightInfoList();
      for (long long h = 0; highlights && h < highlights->size(); ++h) {
        said += writtenHighlight(*highlights->at(h));
      }
    }
  }
  return said;
}

std::string readStoryboard(const std::string& document) {
  const Held<ZOL::IZolStoryboardInfoList> rows(createIZolStoryboardInfoList());
  const int result = jsonBufferToStoryboardInfoList(zolString(document).get(), rows.get());
  return line("answers", result) + show(*rows) + writtenRows(*rows);
}

std::string readHighlight(const std::string& document) {
  const Held<ZOL::IZolHighlightInfo> highlight(createHighlightInfo());
  const int result = highlight->fromJson(document.c_str());
  return line("answers", result) + line("holds", show(*highlight)) + writtenHighlight(*highlight);
}

// Reports, and what stands in them.

std::string readReport(const std::string& document) { return line("report", showReport(document)); }

std::string readImage(const std::string& document) {
  return readReport(R"({"face_cluster": {"a": ["0:0:1Z-0:0:2Z"]}, "face_image_map": {"a": )"
                    R"({"width": 4, "height": 4, "base64": )" +
                    quoted(document) + "}}}");
}

std::string readSpan(const std::string& document) {
  return readReport(R"({"scene": {"labels": {"a": [)" + quoted(document) + "]}}}");
}

// Parameters.

std::string readParameters(const std::string& document) {
  const Held<ZOL::IImageStylizesData> data(createImageStylizesData());
  data->setParam(1, "old");
  std::string said = line("answers", data->readDataMap(zolString(document).get()));
  const Held<ZOL::IZolString> out(createZolString());
  said += line("writes", data->writeDataMap(out.get()));
  said += line("text", bytesIn(*out)) + line("type", data->resourceType());
  for (int id = -1; id < 10; ++id) said += line("id " + std::to_string(id), data->param(id));
  const Held<ZOL::IResourceMediaData> media(createResourceMediaData());
  said += line("answers", media->setParam(1, document.c_str()));
  return said + line("derived", media->param(2));
}

std::string readKeys(const std::string& document) {
  const Held<ZOL::IZolParam> store(createZolParam());
  std::string labels;
  for (const std::string& key : linesOf(document)) {
    store->setProperty(key.c_str(), integerProperty(static_cast<long long>(key.size())));
    labels += (labels.empty() ? "" : ",") + quoted(key) + R"(: ["0:0:1Z-0:0:2Z"])";
  }
  const Held<ZOL::ZOLPCharList> keys(createZOLPCharList());
  const int result = store->getKeys(keys.get());
  return line("answers", result) + line("keys", show(*keys)) +
         readReport(R"({"object": {"labels": {)" + labels + "}}}");
}

// Tagged values.

template <class Number>
std::string bitsOf(Number number) {
  static_assert(sizeof(Number) == 4 || sizeof(Number) == 8, "a float or a double");
  std::conditional_t<sizeof(Number) == 4, std::uint32_t, std::uint64_t> bits;
  std::memcpy(&bits, &number, sizeof bits);
  return std::to_string(bits);
}

std::string told(ZOL::ZolValue& value) {
  const Held<ZOL::IZolString> out(createZolString());
  const int result = ZOLValueToString(&value, out.get());
  return line("writes", result) + line("text", bytesIn(*out)) +
         line("bits", bitsOf(value.doubleValue()) + " " + bitsOf(value.floatValue()));
}

// As a value of every type, whichever the first byte picks elsewhere.
std::string readValue(const std::string& document) {
  const std::string text = document.substr(document.empty() ? 0 : 1);
  std::string said;
  for (const ZOL::ZolValue& kind :
       {ZOL::ZolValue(), ZOL::ZolValue(true), ZOL::ZolValue(2.5), ZOL::ZolValue(2.5F),
        ZOL::ZolValue(6LL), ZOL::ZolValue(-7), ZOL::ZolValue(8U), ZOL::ZolValue("nine")}) {
    ZOL::ZolValue value = kind;
    said += line("type", value.type());
    try {
      said += line("answers", ZOLStringToZolValue(text.c_str(), &value));
    } catch (const std::exception& exception) {
      said += line("throws", exception.what());
    }
    said += told(value);
  }
  return said;
}

}  // namespace

std::vector<Reader> readersOf(const std::string& kind) {
  static const std::map<std::string, std::vector<Reader>> readers = {
      {"base64", {readImage}},
      {"cut_reply", {readCut}},
      {"description", {readDescription}},
      {"description_list", {readDescriptionList}},
      {"highlight", {readHighlight}},
      {"json",
       {readCut, readDescription, readHighlight, readParameters, readRecordOf, readReport,
        readStoryboard}},
      {"keys", {readKeys}},
      {"parameters", {readParameters}},
      {"record", {readRecordOf}},
      {"report", {readReport}},
      {"storyboard", {readStoryboard}},
      {"time_text", {readSpan}},
      {"value_text", {readValue}},
  };
  const auto found = readers.find(kind);
  return found == readers.end() ? std::vector<Reader>() : found->second;
}

std::string words() {
  std::string said;
  const Held<ZOL::IZolString> folder(createZolString());
  for (int code = -2; code < 1200; ++code) {
    getResourceFolderString(code, folder.get());
    said += line(std::to_string(code), bytesIn(*folder) + ", " + getProductlineString(code) + ", " +
                                           getResourceRateStr(code));
  }
  return said;
}
