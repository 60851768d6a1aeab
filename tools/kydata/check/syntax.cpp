#include "check/syntax.h"

#include <string_view>

#include "utf8.h"

namespace kydata::check {

namespace {

const char* expectedBy(rapidjson::ParseErrorCode code) {
  switch (code) {
    case rapidjson::kParseErrorDocumentEmpty:
      return "a value";
    case rapidjson::kParseErrorDocumentRootNotSingular:
      return "nothing more behind the root value";
    case rapidjson::kParseErrorValueInvalid:
      return "a value";
    case rapidjson::kParseErrorObjectMissName:
      return "a name in quotation marks";
    case rapidjson::kParseErrorObjectMissColon:
      return "a colon behind the name";
    case rapidjson::kParseErrorObjectMissCommaOrCurlyBracket:
      return "a comma or } behind the member";
    case rapidjson::kParseErrorArrayMissCommaOrSquareBracket:
      return "a comma or ] behind the element";
    case rapidjson::kParseErrorStringUnicodeEscapeInvalidHex:
      return "four hexadecimal digits behind \\u";
    case rapidjson::kParseErrorStringUnicodeSurrogateInvalid:
      return "the two halves of a surrogate pair";
    case rapidjson::kParseErrorStringEscapeInvalid:
      return "an escape that JSON knows behind the backslash";
    case rapidjson::kParseErrorStringMissQuotationMark:
      return "a closing quotation mark";
    case rapidjson::kParseErrorStringInvalidEncoding:
      return "a character of a text; control characters are written as escapes";
    case rapidjson::kParseErrorNumberTooBig:
      return "a number that is not as big";
    case rapidjson::kParseErrorNumberMissFraction:
      return "a digit behind the point";
    case rapidjson::kParseErrorNumberMissExponent:
      return "a digit in the exponent";
    default:
      return "JSON";
  }
}

std::string foundAt(const std::string& text, std::size_t offset) {
  if (offset >= text.size()) return "the end of the text";
  const std::string_view rest = std::string_view(text).substr(offset);
  return "'" + printable(rest.substr(0, firstCodePoint(rest).bytes)) + "'";
}

}  // namespace

std::string syntaxMessage(const std::string& text, std::size_t offset,
                          rapidjson::ParseErrorCode code) {
  return std::string(expectedBy(code)) + " expected, " + foundAt(text, offset) +
         " found; the whole text is refused";
}

}  // namespace kydata::check
