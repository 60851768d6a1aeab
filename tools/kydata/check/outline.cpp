#include "check/outline.h"

#include <utility>

#include "check/reader.h"

namespace kydata::check {

namespace {

/// The members of the outermost object.
class OutlineReader : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, OutlineReader> {
 public:
  // The names are those that RapidJSON calls.
  bool Default() { return depth_ > 0; }
  bool RawNumber(const char*, rapidjson::SizeType, bool) { return Default(); }
  bool Key(const char* text, rapidjson::SizeType size, bool) {
    if (depth_ == 1) outline_.names.emplace_back(text, size);
    return true;
  }
  bool StartObject() { return ++depth_ > 0; }
  bool EndObject(rapidjson::SizeType) { return --depth_ >= 0; }
  bool StartArray() {
    if (++depth_ > 1) return true;
    outline_.isArray = true;
    return false;  // that is all
  }
  bool EndArray(rapidjson::SizeType) { return --depth_ >= 0; }

  Outline& outline() { return outline_; }

 private:
  long long depth_ = 0;
  Outline outline_;
};

}  // namespace

Outline outlineOf(const std::string& text) {
  ReadCopy source(text, true);
  OutlineReader handler;
  rapidjson::Reader reader;
  reader.Parse<kTolerantJson>(source.stream(), handler);
  return std::move(handler.outline());
}

}  // namespace kydata::check
