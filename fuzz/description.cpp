// The normal form of a resource description.

#include <string>

#include "bare_json.h"
#include "rewritten_description.h"
#include "target.h"

namespace {

// An object with a name, or an id that is not 0.
bool saysWhoItIs(const std::string& text) {
  rapidjson::Document document;
  bare::parseBehindMark<bare::kTolerant>(document, text);
  if (document.HasParseError() || !document.IsObject()) return false;
  const auto name = document.FindMember("name");
  const auto id = document.FindMember("id");
  if (name != document.MemberEnd() && name->value.IsString() && *name->value.GetString()) {
    return true;
  }
  return id != document.MemberEnd() && id->value.IsInt64() && id->value.GetInt64() != 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string text = bytesIn(*zolString(textOf(bytes, size)));
  const Held<Info> info = newInfo();
  const bool valid = readText(info, text) == ZOL::kSuccess;
  require(valid == info->isValid(), "what makes a valid description is accepted");
  if (!saysWhoItIs(text)) {
    require(!valid && info->isEmpty(), "a text without name and id changes nothing");
    return 0;
  }
  requireTheSameRewritten(info.get());
  requireOwnEntries(info.get());
  require(info->uniqueKey() != nullptr, "there is always a key");

  const Held<Info> made(createZolResSerializeInfoFromBuffer(text.c_str()));
  require(text.find('\0') != std::string::npos || (made.get() != nullptr) == valid,
          "the factory makes what is valid");
  return 0;
}
