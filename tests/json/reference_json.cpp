#include "json/reference_json.h"

#include <rapidjson/document.h>
#include <rapidjson/encodedstream.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include "support/zol_text.h"

namespace {

constexpr unsigned kTolerant = rapidjson::kParseCommentsFlag | rapidjson::kParseTrailingCommasFlag |
                               rapidjson::kParseStopWhenDoneFlag;

std::string quotedBytes(const rapidjson::Value& text) {
  return "\"" + escaped(std::string(text.GetString(), text.GetStringLength())) + "\"";
}

std::string shape(const rapidjson::Value& value) {
  if (value.IsNull()) return "null";
  if (value.IsBool()) return value.GetBool() ? "true" : "false";
  if (value.IsInt()) return "int " + std::to_string(value.GetInt());
  if (value.IsInt64()) return "long " + std::to_string(value.GetInt64());
  if (value.IsNumber()) return "number";
  if (value.IsString()) return quotedBytes(value);
  std::string text;
  if (value.IsArray()) {
    for (const rapidjson::Value& element : value.GetArray()) {
      text += (text.empty() ? "" : ", ") + shape(element);
    }
    return "[" + text + "]";
  }
  for (const auto& member : value.GetObject()) {
    text += (text.empty() ? "" : ", ") + quotedBytes(member.name) + ": " + shape(member.value);
  }
  return "{" + text + "}";
}

template <unsigned flags>
void parse(rapidjson::Document& document, const std::string& text, bool skipsMark) {
  rapidjson::MemoryStream bytes(text.data(), text.size());
  if (skipsMark) {
    rapidjson::EncodedInputStream<rapidjson::UTF8<>, rapidjson::MemoryStream> behindMark(bytes);
    document.ParseStream<flags>(behindMark);
  } else {
    document.ParseStream<flags>(bytes);
  }
}

template <class Writer>
std::string writtenBy(const std::string& text) {
  rapidjson::Document document;
  document.Parse(text.data(), text.size());
  rapidjson::StringBuffer buffer;
  Writer writer(buffer);
  document.Accept(writer);
  return std::string(buffer.GetString(), buffer.GetSize());
}

}  // namespace

std::string shapeByReference(const std::string& text, Setting setting) {
  rapidjson::Document document;
  if (setting.tolerant) {
    parse<kTolerant>(document, text, setting.skipsMark);
  } else {
    parse<rapidjson::kParseDefaultFlags>(document, text, setting.skipsMark);
  }
  return document.HasParseError() ? "refused" : shape(document);
}

std::string compactByReference(const std::string& text) {
  return writtenBy<rapidjson::Writer<rapidjson::StringBuffer>>(text);
}

std::string prettyByReference(const std::string& text) {
  return writtenBy<rapidjson::PrettyWriter<rapidjson::StringBuffer>>(text);
}
