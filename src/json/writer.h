// JSON text out: compact, or indented by four blanks. Nothing here recurses.

#ifndef KYDATASTRUCTURE_JSON_WRITER_H_
#define KYDATASTRUCTURE_JSON_WRITER_H_

#include <KyDataStructure/frame.h>

#include <string_view>
#include <vector>

#include "json/document.h"
#include "json/rapidjson.h"

namespace ZOL::json {

template <class Format>
class TextWriter {
 public:
  TextWriter() : format_(text_) {}

  void beginObject() { format_.StartObject(); }
  void endObject() { format_.EndObject(); }
  void beginArray() { format_.StartArray(); }
  void endArray() { format_.EndArray(); }
  void key(std::string_view name) { format_.Key(name.data(), name.size()); }
  void text(std::string_view text) { format_.String(text.data(), text.size()); }
  void integer(long long number) { format_.Int64(number); }

  void member(std::string_view name, std::string_view value) {
    key(name);
    text(value);
  }
  void member(std::string_view name, long long value) {
    key(name);
    integer(value);
  }
  // A text up to its zero; without this one a pointer would do for a length.
  void member(std::string_view name, const char* value) { member(name, std::string_view(value)); }

  // A value out of a document, with all that is in it. A number is written with the
  // very characters that it was read from.
  void copy(Value value) {
    std::vector<const Node*> open;  // the containers around, innermost last
    const Node* const end = value.node()->next();
    for (const Node* node = value.node(); node != end || !open.empty();) {
      if (!open.empty() && node == open.back()->next()) {
        close(open.back()->kind());
        open.pop_back();
        continue;
      }
      if (node->kind() >= Kind::array) open.push_back(node);
      put(*node);
      ++node;
    }
  }

  // Puts the finished text in the place of what `out` holds, which measures it.
  int giveTo(IZolString* out) { return out->setText(text_.GetString(), -1); }
  // The same, and tells its length.
  int giveWithLengthTo(IZolString* out) {
    return out->setText(text_.GetString(), static_cast<long long>(text_.GetSize()));
  }

 private:
  void put(const Node& node) {
    const auto size = static_cast<std::size_t>(node.size());
    switch (node.kind()) {
      case Kind::null:
        format_.Null();
        break;
      case Kind::no:
      case Kind::yes:
        format_.Bool(node.kind() == Kind::yes);
        break;
      case Kind::number:
        format_.RawValue(node.text, size, rapidjson::kNumberType);
        break;
      case Kind::string:
        format_.String(node.text, size);
        break;
      case Kind::key:
        format_.Key(node.text, size);
        break;
      case Kind::array:
        beginArray();
        break;
      case Kind::object:
        beginObject();
        break;
    }
  }

  void close(Kind kind) {
    if (kind == Kind::array) {
      endArray();
    } else {
      endObject();
    }
  }

  TextBuffer text_;
  Format format_;
};

using CompactWriter = TextWriter<Writer>;
using PrettyWriter =
    TextWriter<rapidjson::PrettyWriter<TextBuffer, Encoding, Encoding, ThrowingAllocator>>;

}  // namespace ZOL::json

#endif  // KYDATASTRUCTURE_JSON_WRITER_H_
