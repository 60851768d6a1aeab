// The library's own reading of JSON against RapidJSON's: the same texts are accepted, in
// each grammar, and say the same; and what is written of them says it again.

#include "json/document.h"

#include <string>
#include <string_view>

#include "bare_json.h"
#include "target.h"
#include "written_value.h"

namespace {

using ZOL::json::ByteOrderMark;
using ZOL::json::Document;
using ZOL::json::Grammar;
using ZOL::json::Kind;
using ZOL::json::Value;

bool sameText(std::string_view text, const rapidjson::Value& expected) {
  return text == std::string_view(expected.GetString(), expected.GetStringLength()) &&
         text.data()[text.size()] == '\0';
}

bool sameNumber(Value value, const rapidjson::Value& expected) {
  const auto integer = value.integer64();
  if (!expected.IsInt64()) return !integer && !value.integer32();
  return integer == expected.GetInt64() && value.integer32().has_value() == expected.IsInt();
}

bool same(Value value, const rapidjson::Value& expected);

bool sameElements(Value array, const rapidjson::Value& expected) {
  if (!array.isArray() || array.size() != expected.Size()) return false;
  const rapidjson::Value* at = expected.Begin();
  for (const Value element : array.elements()) {
    if (!same(element, *at++)) return false;
  }
  return at == expected.End();
}

bool sameMembers(Value object, const rapidjson::Value& expected) {
  if (!object.isObject() || object.size() != expected.MemberCount()) return false;
  auto at = expected.MemberBegin();
  for (const ZOL::json::Member member : object.members()) {
    if (!sameText(member.name(), at->name) || !same(member.value, at->value)) return false;
    ++at;
  }
  return at == expected.MemberEnd();
}

bool same(Value value, const rapidjson::Value& expected) {
  if (!value) return false;
  switch (expected.GetType()) {
    case rapidjson::kNullType:
      return value.node()->kind() == Kind::null;
    case rapidjson::kFalseType:
      return value.node()->kind() == Kind::no;
    case rapidjson::kTrueType:
      return value.node()->kind() == Kind::yes;
    case rapidjson::kNumberType:
      return value.isNumber() && sameNumber(value, expected);
    case rapidjson::kStringType:
      return value.isString() && sameText(value.bytes(), expected);
    case rapidjson::kArrayType:
      return sameElements(value, expected);
    case rapidjson::kObjectType:
      return sameMembers(value, expected);
  }
  return false;
}

// A writer's text of a value is that value again, and is written the same.
void requireTheSameWritten(std::string (*written)(Value), Value root,
                           const rapidjson::Value& expected) {
  const std::string text = written(root);
  const Document again(text, Grammar::strict);
  require(same(again.root(), expected), "what is written says what was read");
  require(written(again.root()) == text, "what is read again is written as before");
}

rapidjson::Document bareDocument(const std::string& text, Grammar grammar, ByteOrderMark mark) {
  rapidjson::Document document;
  const bool skipped = mark == ByteOrderMark::skipped;
  if (grammar == Grammar::tolerant) {
    skipped ? bare::parseBehindMark<bare::kTolerant>(document, text)
            : bare::parse<bare::kTolerant>(document, text);
  } else {
    skipped ? bare::parseBehindMark<bare::kStrict>(document, text)
            : bare::parse<bare::kStrict>(document, text);
  }
  return document;
}

// Takes every child, every other or none off the tape, and sees each of them whole.
class Watcher final : public ZOL::json::RootWatcher {
 public:
  Watcher(const rapidjson::Document& expected, std::size_t takesOneOf)
      : expected_(expected), takesOneOf_(takesOneOf) {}

  void begin() override { seen_ = taken_ = 0; }

  bool takes(const ZOL::json::Node* key, Value child) override {
    if (!expected_.HasParseError()) requireExpected(key, child);
    const bool takes = takesOneOf_ != 0 && seen_ % takesOneOf_ == 0;
    ++seen_;
    if (takes) ++taken_;
    return takes;
  }

  std::size_t seen() const { return seen_; }
  std::size_t taken() const { return taken_; }

 private:
  void requireExpected(const ZOL::json::Node* key, Value child) const {
    const bool isObject = expected_.IsObject();
    require(isObject == (key != nullptr), "children of an object, and they alone, have a key");
    require(seen_ < (isObject ? expected_.MemberCount() : expected_.Size()), "no child too many");
    if (!isObject) {
      require(same(child, expected_[static_cast<rapidjson::SizeType>(seen_)]), "the same element");
      return;
    }
    const auto member = expected_.MemberBegin() + static_cast<std::ptrdiff_t>(seen_);
    require(sameText(ZOL::json::Member{key, child}.name(), member->name), "the same key");
    require(same(child, member->value), "the same member");
  }

  const rapidjson::Document& expected_;
  const std::size_t takesOneOf_;
  std::size_t seen_ = 0;
  std::size_t taken_ = 0;
};

void requireTheSameWatched(const std::string& text, const rapidjson::Document& expected) {
  for (const std::size_t takesOneOf : {0U, 1U, 2U}) {
    Watcher watcher(expected, takesOneOf);
    const Document watched(text, watcher);
    require(static_cast<bool>(watched.root()) == !expected.HasParseError(),
            "a watched text is accepted as one that is not");
    if (!watched.root()) continue;
    std::size_t left = 0;
    for ([[maybe_unused]] const Value element : watched.root().elements()) ++left;
    for ([[maybe_unused]] const auto member : watched.root().members()) ++left;
    require(left == watched.root().size() && left + watcher.taken() == watcher.seen(),
            "what is not taken is left");
    if (takesOneOf == 0) require(same(watched.root(), expected), "looking on changes nothing");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string text = textOf(bytes, size);
  for (const Grammar grammar : {Grammar::tolerant, Grammar::strict}) {
    for (const ByteOrderMark mark : {ByteOrderMark::skipped, ByteOrderMark::error}) {
      const rapidjson::Document expected = bareDocument(text, grammar, mark);
      const Document document(text, grammar, mark);
      require(static_cast<bool>(document.root()) == !expected.HasParseError(),
              "the same texts are accepted");
      if (grammar == Grammar::tolerant && mark == ByteOrderMark::skipped) {
        requireTheSameWatched(text, expected);
      }
      if (!document.root()) continue;
      require(same(document.root(), expected), "a text says the same");
      requireTheSameWritten(compactText, document.root(), expected);
      requireTheSameWritten(prettyText, document.root(), expected);
    }
  }
  return 0;
}
