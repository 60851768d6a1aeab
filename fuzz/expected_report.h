// What a report must hold, worked out from RapidJSON's document of it by plain rules: all
// but the faces.

#ifndef KYDATASTRUCTURE_FUZZ_EXPECTED_REPORT_H_
#define KYDATASTRUCTURE_FUZZ_EXPECTED_REPORT_H_

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "bare_json.h"
#include "cutscript/time_text.h"
#include "support/zol_text.h"

namespace expected {

using Json = rapidjson::Value;

// The first member of that name, if it is of that type; null for none.
inline const Json* member(const Json& object, const char* name, bool (Json::*isOfType)() const) {
  if (!object.IsObject()) return nullptr;
  const auto found = object.FindMember(name);
  return found != object.MemberEnd() && (found->value.*isOfType)() ? &found->value : nullptr;
}

// As show() writes them.
inline std::string quoted(const char* text) { return "\"" + escaped(text) + "\""; }
inline std::string slice(const char* label, long long start, long long end) {
  return quoted(label) + " " + std::to_string(start) + ".." + std::to_string(end);
}
inline std::string list(const std::vector<std::string>& elements) {
  std::string text;
  for (const std::string& element : elements) text += (text.empty() ? "" : ", ") + element;
  return "[" + text + "]";
}

using Slices = std::vector<std::string>;

inline Slices slices(const char* label, const Json& spans) {
  Slices slices;
  for (const Json& element : spans.GetArray()) {
    ZOL::Span span{};
    if (!element.IsString() || !ZOL::readSpan(element.GetString(), span)) continue;
    slices.push_back(slice(label, span.start, span.end));
  }
  return slices;
}

// {"stt": [{"begin_time": 0, "end_time": 900, "text": "..."}]}
inline std::string speech(const Json& sentences) {
  Slices slices;
  for (const Json& sentence : sentences.GetArray()) {
    const Json* const begin = member(sentence, "begin_time", &Json::IsInt);
    const Json* const end = member(sentence, "end_time", &Json::IsInt);
    const Json* const text = member(sentence, "text", &Json::IsString);
    if (begin && end && text) {
      slices.push_back(slice(text->GetString(), begin->GetInt(), end->GetInt()));
    }
  }
  return "slices " + list(slices);
}

// {"camera": {"labels": {"pan": ["0:0:1Z-0:0:4Z"]}}}: the slices of all labels, and of
// several with one name those of the last.
inline std::string byLabel(const Json& dimension) {
  std::map<std::string, Slices> labels;
  if (const Json* const in = member(dimension, "labels", &Json::IsObject)) {
    for (const auto& label : in->GetObject()) {
      const char* const name = label.name.GetString();
      if (label.value.IsArray()) labels[name] = slices(name, label.value);
    }
  }
  Slices names;
  Slices all;
  for (const auto& [name, slices] : labels) {
    names.push_back(quoted(name.c_str()));
    all.insert(all.end(), slices.begin(), slices.end());
  }
  return (names.empty() ? "" : "labels " + list(names) + ", ") + "slices " + list(all);
}

// The slices of the last label alone.
inline std::string flat(const Json& dimension) {
  Slices last;
  if (const Json* const in = member(dimension, "labels", &Json::IsObject)) {
    for (const auto& label : in->GetObject()) {
      if (label.value.IsArray()) last = slices(label.name.GetString(), label.value);
    }
  }
  return "slices " + list(last);
}

// The same where the label is the score; throws for one with slices that is no number.
inline std::string flatWithScores(const Json& dimension) {
  Slices last;
  if (const Json* const in = member(dimension, "labels", &Json::IsObject)) {
    for (const auto& label : in->GetObject()) {
      if (!label.value.IsArray()) continue;
      last = slices(label.name.GetString(), label.value);
      const int score = last.empty() ? 100 : std::stoi(label.name.GetString());
      for (std::string& slice : last) {
        if (score != 100) slice += " score " + std::to_string(score);
      }
    }
  }
  return "slices " + list(last);
}

struct Dimension {
  int type;
  const char* member;
  bool (Json::*isOfType)() const;
  std::string (*read)(const Json& dimension);
};

// By type.
constexpr Dimension kDimensions[] = {
    {1, "stt", &Json::IsArray, speech},
    {2, "total", &Json::IsObject, flatWithScores},
    {3, "scene", &Json::IsObject, byLabel},
    {4, "object", &Json::IsObject, byLabel},
    {5, "camera", &Json::IsObject, byLabel},
    {6, "camera_quality", &Json::IsObject, flat},
    {7, "brightness_change", &Json::IsObject, flatWithScores},
    {8, "scene_text", &Json::IsObject, byLabel},
    {9, "emotion", &Json::IsObject, byLabel},
    {11, "action", &Json::IsObject, byLabel},
    {12, "shot_size", &Json::IsObject, byLabel},
};

// A line for each dimension, and one for the keywords if there are any. Throws as the
// reader does.
inline std::string report(const Json& root) {
  std::string text;
  for (const Dimension& dimension : kDimensions) {
    const Json* const in = member(root, dimension.member, dimension.isOfType);
    if (in) text += std::to_string(dimension.type) + ": " + dimension.read(*in) + "\n";
  }
  std::vector<std::string> keywords;
  if (const Json* const words = member(root, "keywords", &Json::IsArray)) {
    for (const Json& word : words->GetArray()) {
      if (word.IsString()) keywords.push_back(quoted(word.GetString()));
    }
  }
  return keywords.empty() ? text : text + "keywords " + list(keywords) + "\n";
}

}  // namespace expected

#endif  // KYDATASTRUCTURE_FUZZ_EXPECTED_REPORT_H_
