// Descriptions as a test handles them: made, read, written and shown.

#ifndef KYDATASTRUCTURE_TESTS_RESOURCE_DESCRIPTION_H_
#define KYDATASTRUCTURE_TESTS_RESOURCE_DESCRIPTION_H_

#include <KyDataStructure/resource.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "resource/property_rows.h"
#include "support/held.h"
#include "support/show.h"
#include "support/zol_text.h"

using Info = ZOL::IZolResSerializeInfo;
using InfoList = ZOL::IZolResSerializeInfoList;

inline Held<Info> newInfo() { return Held<Info>(createZolResSerializeInfo()); }

inline Held<InfoList> newInfoList() { return Held<InfoList>(createIZolResSerializeInfoList()); }

inline ZOL::IZolResSerializeInfoInternal& inside(Info* info) {
  return *ZOL::query<ZOL::IZolResSerializeInfoInternal>(info);
}

inline ZOL::IZolResSerializeInfoInternal& inside(const Held<Info>& info) {
  return inside(info.get());
}

inline std::string inQuotes(const std::string& text) { return "\"" + escaped(text) + "\""; }

// The properties that are held, then the user strings that are not empty, then the
// related entries:
//
//   {rsResInfoType: 7, rsResSlug: "a", rsResType: 3, related: [{rsResSlug: "b"}]}
//
// A key that is held as both reads `rsResType: 3 and "x"`.
inline std::string show(Info* info) {
  std::string text;
  const auto add = [&text](const std::string& name, const std::string& value) {
    text += (text.empty() ? "" : ", ") + name + ": " + value;
  };
  for (const PropertyRow& row : kPropertyRows) {
    ZOL::_Property property{};
    if (info->getProperty(row.key, &property) != ZOL::kSuccess) continue;
    const std::string whole = inQuotes(inside(info).stringValue(row.key));
    if (property.type == ZOL::kPropertyText) {
      add(row.key, whole);
    } else {
      add(row.key, std::to_string(inside(info).intValue(row.key)) +
                       (whole == "\"\"" ? "" : " and " + whole));
    }
  }
  for (const UserStringRow& row : kUserStringRows) {
    const std::string value = info->userString(row.key);
    if (!value.empty()) add(row.key, inQuotes(value));
  }
  const Held<InfoList> related = newInfoList();
  if (inside(info).relatedResList(related.get()) != ZOL::kSuccess) add("related", "refused");
  if (related->size() > 0)
    add("related", showBy(*related, [](Info* entry) { return show(entry); }));
  return "{" + text + "}";
}

inline std::string show(const Held<Info>& info) { return info.get() ? show(info.get()) : "null"; }

inline int readText(Info* info, const std::string& text) {
  return info->setFromBuffer(zolString(text).get());
}

inline int readText(const Held<Info>& info, const std::string& text) {
  return readText(info.get(), text);
}

inline int readRecord(const Held<Info>& info, const std::string& text, int infoType) {
  return info->setFromCompletResInfo(zolString(text).get(), infoType);
}

// The normal-form text, or "refused".
inline std::string written(Info* info) {
  const Held<ZOL::IZolString> out(createZolString());
  return info->toBuffer(out.get()) == ZOL::kSuccess ? bytesIn(*out) : "refused";
}

inline std::string written(const Held<Info>& info) { return written(info.get()); }

// What reading a text into a new description answers and gives: `0 {rsResId: 5}`.
inline std::string afterReading(const std::string& text) {
  const Held<Info> info = newInfo();
  const int result = readText(info, text);
  return std::to_string(result) + " " + show(info);
}

inline std::string afterReadingRecord(const std::string& text, int infoType) {
  const Held<Info> info = newInfo();
  const int result = readRecord(info, text, infoType);
  return std::to_string(result) + " " + show(info);
}

// A text that is read into a new description and written out of it again.
inline std::string rewritten(const std::string& text) {
  const Held<Info> info = newInfo();
  readText(info, text);
  return written(info);
}

// A valid description of a single resource.
inline Held<Info> single(const std::string& slug, long long type = 3) {
  Held<Info> info = newInfo();
  inside(info).setStringValue("rsResSlug", slug.c_str());
  inside(info).setIntValue("rsResType", type);
  inside(info).setIntValue("rsResInfoType", 7);
  return info;
}

inline ZOL::_Property integerProperty(long long value) {
  ZOL::_Property property{};
  property.present = 1;
  property.type = ZOL::kPropertyInteger;
  std::memcpy(property.value, &value, sizeof value);
  return property;
}

inline ZOL::_Property textProperty(const std::string& text) {
  ZOL::_Property property{};
  property.present = 1;
  property.type = ZOL::kPropertyText;
  std::memcpy(property.value, text.data(), std::min(text.size(), sizeof property.value));
  return property;
}

#endif  // KYDATASTRUCTURE_TESTS_RESOURCE_DESCRIPTION_H_
