#include "resource_table.h"

#include <array>
#include <cstring>

#include "info_types.h"
#include "input.h"
#include "owned.h"
#include "text_table.h"
#include "utf8.h"

namespace kydata {

namespace {

namespace key = ZOL::resSerializeInfoPropKey;
namespace user_key = ZOL::resSerializeInfoUserStringKey;
using ZOL::IZolResSerializeInfo;
using ZOL::IZolResSerializeInfoInternal;

const std::array<const char*, 26>& propertyKeys() {
  static const std::array<const char*, 26> keys = {
      key::rsResSlug,
      key::rsResType,
      key::rsResInfoType,
      key::rsResId,
      key::rsResSubType,
      key::rsResStockMediaStrId,
      key::rsResPackId,
      key::rsResPackSlug,
      key::rsResSourceType,
      key::rsResOpenFxSubType,
      key::rsResRate,
      key::rsResSaleMode,
      key::rsResState,
      key::rsResIsCustom,
      key::rsResIsMultiFunctional,
      key::rsResMeidaType,
      key::rsResMeidaSize,
      key::rsResMeidaSizeFormat,
      key::rsResMeidaFilePath,
      key::rsResMultiOriginFile,
      key::rsResRelatedSlug,
      key::rsResRelatedTemplateSlug,
      key::rsResRelatedTemplateType,
      key::rsResRelatedPresetSlug,
      key::rsResOriginSlug,
      key::rsResOriginId,
  };
  return keys;
}

const std::array<const char*, 4>& userStringKeys() {
  static const std::array<const char*, 4> keys = {
      user_key::rsiusAnimatedSttStateType,
      user_key::rsiusOpenFxPluginName,
      user_key::rsiusVST3PluginName,
      user_key::rsiusCustomRsMd5,
  };
  return keys;
}

std::string typeMeaning(long long type) {
  Owned<ZOL::IZolString> folder(createZolString());
  getResourceFolderString(type, folder.get());
  return folder->text();
}

/// What an integer stands for, where there is a name for it.
std::string meaning(const char* property, long long value) {
  if (std::strcmp(property, key::rsResType) == 0) return typeMeaning(value);
  if (std::strcmp(property, key::rsResInfoType) == 0) {
    const char* text = infoTypeMeaning(value);
    return text ? text : "";
  }
  if (std::strcmp(property, key::rsResRate) == 0 && value >= 0 && value <= 100) {
    return getResourceRateStr(static_cast<int>(value));
  }
  return "";
}

std::string withMeaning(const char* property, long long value) {
  const std::string text = meaning(property, value);
  return std::to_string(value) + (text.empty() ? "" : " (" + text + ")");
}

std::string textOrQuotes(const std::string& text) { return text.empty() ? "\"\"" : text; }

void printProperties(IZolResSerializeInfo* info, Output& out) {
  auto* inside = ZOL::query<IZolResSerializeInfoInternal>(info);
  TextTable table({{"property"}, {"kind"}, {"value"}});
  for (const char* property : propertyKeys()) {
    ZOL::_Property held = {};
    if (info->getProperty(property, &held) != ZOL::kSuccess) continue;
    const bool isInteger = held.type == ZOL::kPropertyInteger;
    if (isInteger) {
      table.add({property, "integer", withMeaning(property, inside->intValue(property))});
    }
    // Where both are held, getProperty() tells the integer alone. The text is asked
    // for here, because the record's copy is cut to 1023 bytes.
    const std::string text = inside->stringValue(property);
    if (!isInteger || !text.empty()) table.add({property, "text", textOrQuotes(text)});
  }
  table.print(out);
}

void printUserStrings(IZolResSerializeInfo* info, Output& out) {
  TextTable table({{"user string"}, {"value"}});
  for (const char* name : userStringKeys()) {
    const std::string value = info->userString(name);
    if (!value.empty()) table.add({name, value});
  }
  if (table.isEmpty()) return;
  out.text() << '\n';
  table.print(out);
}

std::string userStringsOnOneLine(IZolResSerializeInfo* info) {
  std::string text;
  for (const char* name : userStringKeys()) {
    const std::string value = info->userString(name);
    if (!value.empty()) text += (text.empty() ? "" : ", ") + std::string(name) + " = " + value;
  }
  return text;
}

Owned<ZOL::IZolResSerializeInfoList> relatedTo(IZolResSerializeInfo* info) {
  Owned<ZOL::IZolResSerializeInfoList> related(createIZolResSerializeInfoList());
  ZOL::query<IZolResSerializeInfoInternal>(info)->relatedResList(related.get());
  return related;
}

void printRelated(IZolResSerializeInfo* info, Output& out) {
  const auto related = relatedTo(info);
  if (related->size() == 0) return;
  TextTable table({{"related", false, 40}, {"type"}, {"user strings"}});
  for (long long i = 0; i < related->size(); ++i) {
    auto* entry = ZOL::query<IZolResSerializeInfoInternal>(related->at(i));
    table.add({entry->stringValue(key::rsResSlug),
               withMeaning(key::rsResType, entry->intValue(key::rsResType)),
               userStringsOnOneLine(related->at(i))});
  }
  out.text() << '\n';
  table.print(out);
}

}  // namespace

Held heldBy(IZolResSerializeInfo* info) {
  Held held;
  for (const char* property : propertyKeys()) {
    ZOL::_Property value = {};
    if (info->getProperty(property, &value) == ZOL::kSuccess) ++held.properties;
  }
  for (const char* name : userStringKeys()) {
    if (*info->userString(name) != '\0') ++held.userStrings;
  }
  held.related = relatedTo(info)->size();
  return held;
}

void printDescription(const std::string& name, IZolResSerializeInfo* info, Output& out) {
  out.text() << out.heading(printable(name)) << '\n';
  printProperties(info, out);
  printUserStrings(info, out);
  printRelated(info, out);
  out.text() << "\n  " << out.faint("valid") << "       " << (info->isValid() ? "yes" : "no")
             << "\n  " << out.faint("unique key") << "  " << printable(info->uniqueKey()) << '\n';
}

}  // namespace kydata
