// Writing a generated JSON text.

#ifndef KYDATASTRUCTURE_BENCH_INPUTS_JSON_TEXT_H_
#define KYDATASTRUCTURE_BENCH_INPUTS_JSON_TEXT_H_

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cstddef>
#include <string>

namespace bench {

class JsonText {
 public:
  JsonText() : writer_(buffer_) {}

  void beginObject() { writer_.StartObject(); }
  void endObject() { writer_.EndObject(); }
  void beginArray() { writer_.StartArray(); }
  void endArray() { writer_.EndArray(); }
  void key(const std::string& name) { writer_.Key(name.c_str(), sizeOf(name)); }
  void value(const std::string& text) { writer_.String(text.c_str(), sizeOf(text)); }
  void value(long long number) { writer_.Int64(number); }
  void value(double number) { writer_.Double(number); }
  void value(bool yes) { writer_.Bool(yes); }
  template <class Value>
  void member(const std::string& name, const Value& content) {
    key(name);
    value(content);
  }

  std::size_t size() const { return buffer_.GetSize(); }
  std::string text() const { return {buffer_.GetString(), buffer_.GetSize()}; }

 private:
  static rapidjson::SizeType sizeOf(const std::string& text) {
    return static_cast<rapidjson::SizeType>(text.size());
  }

  rapidjson::StringBuffer buffer_;
  rapidjson::Writer<rapidjson::StringBuffer> writer_;
};

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_INPUTS_JSON_TEXT_H_
