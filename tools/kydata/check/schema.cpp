#include "check/schema.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>

#include <cstdint>
#include <limits>

#include "check/look.h"
#include "check/rule_tree.h"

namespace kydata::check {

namespace {

using Writer = rapidjson::PrettyWriter<rapidjson::StringBuffer>;

class SchemaWriter {
 public:
  SchemaWriter() : writer_(buffer_) { writer_.SetIndent(' ', 2); }

  std::string write(const Form& form) {
    const RuleTree rules(form);
    writer_.StartObject();
    text("$schema", "https://json-schema.org/draft/2020-12/schema");
    text("$comment", "Written by kydata check --schema.");
    text("title", form.title);
    text("description", form.meaning);
    writeType(rules.root());
    writer_.EndObject();
    return std::string(buffer_.GetString()) + '\n';
  }

 private:
  // The schema of what stands below is written inside that of what stands above; a form
  // is a few levels deep.
  void writeNode(const Node& node) {
    writer_.StartObject();
    text("description", node.rule->meaning);
    writeType(node);
    writer_.EndObject();
  }

  void writeType(const Node& node) {
    switch (node.rule->type) {
      case Type::object:
        text("type", "object");
        writeMembers(node);
        break;
      case Type::array:
        text("type", "array");
        writeElements(node);
        break;
      case Type::text:
        text("type", "string");
        break;
      case Type::integer32:
        writeInteger<std::int32_t>(*node.rule);
        break;
      case Type::integer64:
        writeInteger<std::int64_t>(*node.rule);
        break;
      case Type::integerOrText:
        writer_.Key("type");
        writer_.StartArray();
        writer_.String("integer");
        writer_.String("string");
        writer_.EndArray();
        writeRange<std::int64_t>();
        break;
      case Type::unread:
        break;
    }
    writeLook(node.rule->look);
  }

  template <class Integer>
  void writeInteger(const Rule& rule) {
    text("type", "integer");
    if (rule.look != Look::storyboardClass) writeRange<Integer>();
  }

  template <class Integer>
  void writeRange() {
    writer_.Key("minimum");
    writer_.Int64(std::numeric_limits<Integer>::min());
    writer_.Key("maximum");
    writer_.Int64(std::numeric_limits<Integer>::max());
  }

  void writeMembers(const Node& node) {
    if (!node.members.empty()) {
      writer_.Key("properties");
      writer_.StartObject();
      for (const auto& [name, member] : node.members) {
        writer_.Key(name.c_str());
        writeNode(*member);
      }
      writer_.EndObject();
    }
    if (node.anyMember) {
      if (node.rule->members == Members::lastOfId) {
        writer_.Key("propertyNames");
        writer_.StartObject();
        text("pattern", "^(0|-?[1-9][0-9]*)$");
        writer_.EndObject();
      }
      writer_.Key("additionalProperties");
      writeNode(*node.anyMember);
    }
    writeRequired(node);
  }

  void writeRequired(const Node& node) {
    bool isFirst = true;
    for (const auto& [name, member] : node.members) {
      if (member->rule->missing == Missing::fine) continue;
      if (isFirst) {
        writer_.Key("required");
        writer_.StartArray();
      }
      isFirst = false;
      writer_.String(name.c_str());
    }
    if (!isFirst) writer_.EndArray();
  }

  void writeElements(const Node& node) {
    if (node.rule->elements == Elements::first) {
      writer_.Key("maxItems");
      writer_.Int(1);
    }
    if (!node.element) return;
    writer_.Key("items");
    writeNode(*node.element);
  }

  /// The members are read and written again, so that they stand as all others do.
  void writeLook(Look look) {
    const std::string object = "{" + std::string(schemaOf(look)) + "}";
    MembersOnly members(writer_);
    rapidjson::StringStream stream(object.c_str());
    rapidjson::Reader().Parse(stream, members);
  }

  /// Passes an object on without its own brackets.
  class MembersOnly {
   public:
    explicit MembersOnly(Writer& writer) : writer_(writer) {}

    // The names are those that RapidJSON calls.
    bool Null() { return writer_.Null(); }
    bool Bool(bool value) { return writer_.Bool(value); }
    bool Int(int value) { return writer_.Int(value); }
    bool Uint(unsigned value) { return writer_.Uint(value); }
    bool Int64(std::int64_t value) { return writer_.Int64(value); }
    bool Uint64(std::uint64_t value) { return writer_.Uint64(value); }
    bool Double(double value) { return writer_.Double(value); }
    bool RawNumber(const char* text, rapidjson::SizeType size, bool copy) {
      return writer_.RawNumber(text, size, copy);
    }
    bool String(const char* text, rapidjson::SizeType size, bool copy) {
      return writer_.String(text, size, copy);
    }
    bool Key(const char* text, rapidjson::SizeType size, bool copy) {
      return writer_.Key(text, size, copy);
    }
    bool StartObject() { return depth_++ == 0 || writer_.StartObject(); }
    bool EndObject(rapidjson::SizeType) { return --depth_ == 0 || writer_.EndObject(); }
    bool StartArray() { return writer_.StartArray(); }
    bool EndArray(rapidjson::SizeType) { return writer_.EndArray(); }

   private:
    Writer& writer_;
    int depth_ = 0;
  };

  void text(const char* name, const char* value) {
    writer_.Key(name);
    writer_.String(value);
  }

  rapidjson::StringBuffer buffer_;
  Writer writer_;
};

}  // namespace

std::string schemaOf(const Form& form) { return SchemaWriter().write(form); }

}  // namespace kydata::check
