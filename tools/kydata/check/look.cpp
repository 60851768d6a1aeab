#include "check/look.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include "check/made.h"
#include "utf8.h"

namespace kydata::check {

namespace {

using Found = std::optional<Remark>;

constexpr std::size_t kGivenOut = 1023;  // bytes of a text in a _Property

std::string quoted(std::string_view text) { return '"' + printable(text) + '"'; }

Found lookAtCut(const Value& value) {
  const std::string_view read = value.untilZero();
  if (read.size() == value.text.size()) return std::nullopt;
  return Remark{Code::cutText, Effect::changed,
                "the text ends at its zero byte, and " + std::to_string(read.size()) + " of " +
                    std::to_string(value.text.size()) + " bytes are read"};
}

bool differsInCase(std::string_view text, std::string_view word) {
  const auto sameLetter = [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a + 32 : a) == b; };
  return text != word && std::equal(text.begin(), text.end(), word.begin(), word.end(), sameLetter);
}

/// Any text makes a row, so that only one which comes near to another class is odd.
Found lookAtScriptClass(const Value& value) {
  const std::string_view text = value.untilZero();
  const std::size_t first = std::min(text.find_first_not_of(' '), text.size());
  const std::string_view bare = text.substr(first, text.find_last_not_of(' ') + 1 - first);
  for (const std::string_view word : {"title", "chapter", "frame"}) {
    if (!differsInCase(bare, word) && (bare != word || bare == text)) continue;
    return Remark{Code::unknownValue, Effect::changed,
                  quoted(text) + " is not " + quoted(word) + ", and the row is a plain one"};
  }
  return std::nullopt;
}

Found lookAtStoryboardClass(const Value& value) {
  const long long scriptClass = *value.integer();
  if (scriptClass >= 0 && scriptClass <= 3) return std::nullopt;
  return Remark{Code::unknownValue, Effect::changed,
                std::to_string(scriptClass) + " is no script class, and counts as 0"};
}

Found lookAtClipStart(const Value& value) {
  const long long start = *value.integer();
  if (start == 0) return std::nullopt;
  return Remark{Code::shortenedRow, Effect::none,
                "the clip's start of " + std::to_string(start) +
                    " comes off the row's end, too, and the row is " +
                    (start > 0 ? "shorter" : "longer") + " than its clip"};
}

Found lookAtHighlightClass(const Value& value) {
  if (!value.integer()) return std::nullopt;
  return Remark{Code::unknownValue, Effect::changed,
                "an integer is never the text \"emotion\", and the highlight's type is 1"};
}

/// Takes one to nine digits off the front.
bool takeDigits(std::string_view& text, long long& number) {
  const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
  if (count < 1 || count > 9) return false;
  std::from_chars(text.data(), text.data() + count, number);
  text.remove_prefix(count);
  return true;
}

bool takeColon(std::string_view& text) {
  if (text.empty() || text.front() != ':') return false;
  text.remove_prefix(1);
  return true;
}

/// "0:1:30", with or without "Z", and of no more milliseconds than 32 bits hold.
bool isTime(std::string_view text) {
  long long hours = 0;
  long long minutes = 0;
  long long seconds = 0;
  if (!takeDigits(text, hours) || !takeColon(text) || !takeDigits(text, minutes) ||
      !takeColon(text) || !takeDigits(text, seconds) || (!text.empty() && text != "Z")) {
    return false;
  }
  return (hours * 60 + minutes) * 60 + seconds <= std::numeric_limits<int>::max() / 1000;
}

Found lookAtSpan(const Value& value) {
  const std::string_view text = value.untilZero();
  const std::size_t hyphen = text.find('-');
  if (hyphen == std::string_view::npos) {
    return Remark{Code::noSpan, Effect::ignored,
                  "there is no hyphen, so it is no span and is passed over"};
  }
  if (isTime(text.substr(0, hyphen)) && isTime(text.substr(hyphen + 1))) return std::nullopt;
  const auto [start, end] = spanMadeOf(std::string(text));
  return Remark{Code::oddTime, Effect::changed,
                quoted(text) + " is not written as 0:1:30Z-0:2:0Z, and is read as " +
                    std::to_string(start) + " to " + std::to_string(end) + " milliseconds"};
}

/// As the standard conversion takes it: blanks, a sign, digits, and whatever follows.
bool beginsWithInt(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
  if (!text.empty() && text.front() == '+') {
    text.remove_prefix(1);
    if (!text.empty() && text.front() == '-') return false;
  }
  int number = 0;
  return std::from_chars(text.data(), text.data() + text.size(), number).ec == std::errc();
}

Found lookAtScoredSpan(const Value& value, std::string_view label) {
  const std::string_view read = label.substr(0, label.find('\0'));
  Found remark = lookAtSpan(value);
  if (remark && remark->code == Code::noSpan) return remark;  // no slice asks for the score
  if (beginsWithInt(read)) return remark;
  return Remark{Code::labelWithoutNumber, Effect::refused,
                "the label " + quoted(read) +
                    " is a score, and does not begin with a 32-bit number; the report is refused"};
}

bool isBase64Letter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '+' ||
         c == '/';
}

/// Whole groups of four, with line breaks between them and padding at the end alone.
bool isCleanBase64(std::string_view text) {
  while (!text.empty()) {
    if (text.front() == '\r' || text.front() == '\n') {
      text.remove_prefix(1);
      continue;
    }
    const std::string_view group = text.substr(0, 4);
    const auto letters = static_cast<std::size_t>(
        std::find_if_not(group.begin(), group.end(), isBase64Letter) - group.begin());
    if (letters < 4) {
      return group == text &&
             (letters == 2 ? group.substr(2) == "==" : letters == 3 && group.substr(3) == "=");
    }
    text.remove_prefix(4);
  }
  return true;
}

Found lookAtBase64(const Value& value) {
  if (isCleanBase64(value.text)) return std::nullopt;
  return Remark{Code::oddBase64, Effect::changed,
                "this is not clean base64: characters outside the alphabet count as 0, and what is "
                "lacking at the end, too"};
}

Found lookAtKnownType(const Value& value, const Rule& rule) {
  if (*value.integer() != -1) return std::nullopt;
  return Remark{Code::unknownValue, rule.wrongType,
                "-1 is no resource type; " + std::string(rule.otherwise)};
}

Found lookAtStockId(const Value& value) {
  if (value.kind != Kind::text) return std::nullopt;
  return Remark{Code::checksumId, Effect::changed,
                "an id that is a text is reduced to the sum of its bytes"};
}

Found lookAtPropertyText(const Value& value) {
  const std::size_t size = value.untilZero().size();
  if (size <= kGivenOut) return std::nullopt;
  return Remark{Code::longText, Effect::none,
                "of a text of " + std::to_string(size) +
                    " bytes, getProperty gives out the first " + std::to_string(kGivenOut)};
}

Found lookAtPropertySlug(const Value& value, const Rule& rule) {
  if (!value.untilZero().empty()) return lookAtPropertyText(value);
  return Remark{Code::emptyValue, rule.wrongType,
                "an empty text counts as none; " + std::string(rule.otherwise)};
}

struct SchemaRow {
  Look look;
  const char* members;
};

constexpr std::array<SchemaRow, 9> kSchemas = {{
    {Look::notEmpty, R"("minItems": 1)"},
    {Look::scriptClass, R"("examples": ["title", "chapter", "frame", "plain"])"},
    {Look::storyboardClass, R"("minimum": 0, "maximum": 3)"},
    {Look::span, R"("pattern": "^[0-9]+:[0-9]+:[0-9]+Z?-[0-9]+:[0-9]+:[0-9]+Z?$")"},
    {Look::scoredSpan, R"("pattern": "^[0-9]+:[0-9]+:[0-9]+Z?-[0-9]+:[0-9]+:[0-9]+Z?$")"},
    {Look::base64, R"("contentEncoding": "base64")"},
    {Look::knownType, R"("not": {"const": -1})"},
    {Look::propertyText, R"("maxLength": 1023)"},
    {Look::propertySlug, R"("minLength": 1, "maxLength": 1023)"},
}};

}  // namespace

Found lookAt(const Value& value, const Rule& rule, std::string_view name) {
  if (rule.type == Type::text && rule.look != Look::base64) {
    if (Found remark = lookAtCut(value)) return remark;
  }
  switch (rule.look) {
    case Look::none:
    case Look::notEmpty:
      return std::nullopt;
    case Look::scriptClass:
      return lookAtScriptClass(value);
    case Look::storyboardClass:
      return lookAtStoryboardClass(value);
    case Look::clipStart:
      return lookAtClipStart(value);
    case Look::highlightClass:
      return lookAtHighlightClass(value);
    case Look::span:
      return lookAtSpan(value);
    case Look::scoredSpan:
      return lookAtScoredSpan(value, name);
    case Look::base64:
      return lookAtBase64(value);
    case Look::samples:
      return Remark{Code::neverRead, Effect::ignored,
                    "the samples are kept, and the library does not give them out"};
    case Look::knownType:
      return lookAtKnownType(value, rule);
    case Look::stockId:
      return lookAtStockId(value);
    case Look::propertyText:
      return lookAtPropertyText(value);
    case Look::propertySlug:
      break;
  }
  return lookAtPropertySlug(value, rule);
}

Found lookAtEmptyArray(const Rule& rule) {
  if (rule.look != Look::notEmpty) return std::nullopt;
  return Remark{Code::emptyValue, rule.wrongType,
                "an empty array counts as none; " + std::string(rule.otherwise)};
}

int idOf(std::string_view name) {
  int id = 0;
  const char* const end = name.data() + name.size();
  const auto read = std::from_chars(name.data(), end, id);
  if (read.ec == std::errc() && read.ptr == end) return id;
  return idMadeOf(std::string(name.substr(0, name.find('\0'))));
}

Found lookAtId(std::string_view name) {
  const int id = idOf(name);
  if (std::to_string(id) == name) return std::nullopt;
  return Remark{
      Code::oddId, Effect::changed,
      quoted(name) + " is no plain decimal id, and stands for the id " + std::to_string(id)};
}

const char* schemaOf(Look look) {
  const auto* const row = std::find_if(kSchemas.begin(), kSchemas.end(),
                                       [&](const SchemaRow& known) { return known.look == look; });
  return row == kSchemas.end() ? "" : row->members;
}

}  // namespace kydata::check
