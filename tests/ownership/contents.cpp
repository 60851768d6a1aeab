#include "ownership/contents.h"

#include <KyDataStructure/resource.h>

namespace {

// Empty parts of a place stand for any.
struct TextRow {
  Place place;
  const char* text;
};

constexpr char kNormalForm[] = R"({"name": "a", "res_type": 2, "info_type": 7})";

const TextRow kTexts[] = {
    {{"IZolResSerializeInfo", "getProperty", "key"}, ZOL::resSerializeInfoPropKey::rsResSlug},
    {{"IZolResSerializeInfo", "setProperty", "key"}, ZOL::resSerializeInfoPropKey::rsResSlug},
    {{"", "intValue", "key"}, ZOL::resSerializeInfoPropKey::rsResRate},
    {{"", "setIntValue", "key"}, ZOL::resSerializeInfoPropKey::rsResRate},
    {{"", "stringValue", "key"}, ZOL::resSerializeInfoPropKey::rsResPackSlug},
    {{"", "setStringValue", "key"}, ZOL::resSerializeInfoPropKey::rsResPackSlug},
    {{"", "userString", "key"}, ZOL::resSerializeInfoUserStringKey::rsiusCustomRsMd5},
    {{"", "setUserString", "key"}, ZOL::resSerializeInfoUserStringKey::rsiusCustomRsMd5},
    // A key or a label is the same whenever it is asked for.
    {{"", "", "key"}, "the key"},
    {{"", "", "label"}, "the label"},
    {{"", "setFromCompletResInfo", ""}, R"({"id": 42})"},
    {{"", "createZolResSerializeInfoFromCompletResInfo", ""}, R"({"id": 42})"},
    {{"", "setFromBuffer", ""}, kNormalForm},
    {{"", "createZolResSerializeInfoFromBuffer", ""}, kNormalForm},
    {{"", "readDataMap", ""}, R"({"dataMap": {"1": "a"}})"},
    {{"", "fromJson", ""}, R"({"HLType": 1})"},
    {{"", "createCutScripts", ""}, R"([{"title": "a", "script": [{"end_time": 5}]}])"},
    {{"", "createKeyMatrixInfo", ""}, "{}"},
    {{"", "jsonBufferToStoryboardInfoList", ""}, R"({"storyboard_infos": []})"},
    {{"", "ZOLStringToZolValue", ""}, "1"},
};

struct NumberRow {
  const char* parameter;
  int number;
};

const NumberRow kNumbers[] = {
    {"index", 0},
    {"length", 0},  // up to the text's zero
    {"size", 4},    // as many bytes as the test has
    {"infoType", 101},
};

bool covers(const std::string& row, const std::string& asked) {
  return row.empty() || row == asked;
}

}  // namespace

const char* textFor(const Place& place) {
  for (const TextRow& row : kTexts) {
    if (covers(row.place.owner, place.owner) && covers(row.place.operation, place.operation) &&
        covers(row.place.parameter, place.parameter)) {
      return row.text;
    }
  }
  return nullptr;
}

int numberFor(const Place& place) {
  for (const NumberRow& row : kNumbers) {
    if (row.parameter == place.parameter) return row.number;
  }
  return 1;
}
