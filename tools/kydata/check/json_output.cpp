#include "check/json_output.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <algorithm>

#include "check/places.h"
#include "utf8.h"

namespace kydata::check {

namespace {

using Writer = rapidjson::PrettyWriter<rapidjson::StringBuffer>;

/// Texts of others may hold any bytes, and what is written must be UTF-8.
void member(Writer& writer, const char* name, const std::string& text) {
  const std::string shown = isUtf8(text) ? text : printable(text);
  writer.Key(name);
  writer.String(shown.data(), static_cast<rapidjson::SizeType>(shown.size()));
}

void member(Writer& writer, const char* name, std::size_t number) {
  writer.Key(name);
  writer.Uint64(number);
}

void write(Writer& writer, const Finding& finding, Places& places) {
  const Place place = places.at(finding.offset);
  writer.StartObject();
  member(writer, "code", rowOf(finding.code).name);
  member(writer, "severity", nameOf(finding.severity));
  member(writer, "line", place.line);
  member(writer, "column", place.column);
  member(writer, "path", finding.path);
  member(writer, "effect", nameOf(finding.effect));
  member(writer, "message", finding.message);
  writer.EndObject();
}

void writeMade(Writer& writer, const Checked& checked) {
  writer.Key("accepted");
  writer.Bool(checked.made.has_value());
  writer.Key("made");
  writer.StartObject();
  if (checked.made) {
    for (const auto& [words, count] : checked.made->counts) {
      std::string name = words;
      std::replace(name.begin(), name.end(), ' ', '_');
      writer.Key(name.c_str());
      writer.Int64(count);
    }
  }
  writer.EndObject();
}

void writeFindings(Writer& writer, const Input& input, const Findings& findings) {
  for (const Severity severity : {Severity::error, Severity::warning, Severity::note}) {
    member(writer, (std::string(nameOf(severity)) + "s").c_str(), findings.counted(severity));
  }
  member(writer, "left_out", findings.left());
  Places places(input.text);
  writer.Key("findings");
  writer.StartArray();
  for (const Finding& finding : findings.kept()) write(writer, finding, places);
  writer.EndArray();
}

/// One file, written by `rest` behind its name.
template <class Rest>
std::string fileText(const std::string& name, Rest rest) {
  rapidjson::StringBuffer buffer;
  Writer writer(buffer);
  writer.SetIndent(' ', 2);
  writer.StartObject();
  member(writer, "file", name);
  rest(writer);
  writer.EndObject();
  return buffer.GetString();
}

}  // namespace

void JsonOutput::add(const Input& input, const Checked& checked) {
  files_.push_back(fileText(input.name, [&](Writer& writer) {
    writer.Key("form");
    if (checked.form) {
      writer.String(checked.form->name);
    } else {
      writer.Null();
    }
    writeMade(writer, checked);
    writeFindings(writer, input, checked.findings);
  }));
}

void JsonOutput::addFault(const std::string& name, const std::string& fault) {
  files_.push_back(fileText(name, [&](Writer& writer) { member(writer, "unreadable", fault); }));
}

std::string JsonOutput::text() const {
  std::string text = "{\"files\": [";
  for (const std::string& file : files_) text += (&file == &files_.front() ? "" : ", ") + file;
  return text + "]}\n";
}

}  // namespace kydata::check
