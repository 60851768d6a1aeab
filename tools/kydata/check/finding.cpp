#include "check/finding.h"

namespace kydata::check {

constexpr std::array<CodeRow, 28> kCodes = {{
    {Code::syntax, "syntax", Severity::error, "the text is not the JSON that the library reads"},
    {Code::noForm, "no-form", Severity::error, "nothing in the text tells which form it is"},
    {Code::refused, "refused", Severity::error,
     "the library refuses the whole, although each member can be read"},
    {Code::wrongType, "wrong-type", Severity::warning,
     "a value is of another type than the one that is read"},
    {Code::notAnInteger, "not-an-integer", Severity::warning,
     "a number has a fraction or an exponent where an integer is read"},
    {Code::outOfRange, "out-of-range", Severity::warning,
     "an integer does not fit the bits that it is read into"},
    {Code::missingMember, "missing-member", Severity::warning,
     "a member is not there, and its object is read otherwise for it"},
    {Code::unknownMember, "unknown-member", Severity::note,
     "a member has a name that this form does not know"},
    {Code::duplicateName, "duplicate-name", Severity::warning,
     "a name stands twice in one object, and one of the two counts"},
    {Code::neverRead, "never-read", Severity::note,
     "a member is known, and yet on purpose nothing comes of its value"},
    {Code::replaced, "replaced", Severity::warning, "a later member takes the place of this one"},
    {Code::unknownValue, "unknown-value", Severity::warning,
     "a value of the right type is taken for another one"},
    {Code::emptyValue, "empty-value", Severity::warning,
     "an empty text or array counts as a missing one"},
    {Code::shortenedRow, "shortened-row", Severity::note,
     "a row's clip starts behind 0, and the row is that much shorter"},
    {Code::noSpan, "no-span", Severity::warning, "a time text has no hyphen, and is no span"},
    {Code::oddTime, "odd-time", Severity::warning,
     "a time text is not written as 0:1:30Z-0:2:0Z, and is read as other times"},
    {Code::oddBase64, "odd-base64", Severity::warning,
     "a picture's text is not clean base64, and becomes other bytes"},
    {Code::labelWithoutNumber, "label-without-number", Severity::error,
     "a label that is a score does not begin with a 32-bit number"},
    {Code::oddId, "odd-id", Severity::warning,
     "a name is not a plain decimal id, and stands for another id"},
    {Code::checksumId, "checksum-id", Severity::note,
     "an id that is a text is reduced to the sum of its bytes"},
    {Code::cutText, "cut-text", Severity::warning, "a text ends at its first zero byte"},
    {Code::longText, "long-text", Severity::warning,
     "a property's text is longer than what getProperty gives out"},
    {Code::notUtf8, "not-utf8", Severity::note,
     "a text holds bytes that are no UTF-8, and they are passed on"},
    {Code::byteOrderMark, "byte-order-mark", Severity::note,
     "a byte-order mark is skipped, which other readers may not do"},
    {Code::comment, "comment", Severity::note, "a comment is skipped, which strict readers refuse"},
    {Code::trailingComma, "trailing-comma", Severity::note,
     "a comma in front of a closing bracket is skipped, which strict readers refuse"},
    {Code::deepNesting, "deep-nesting", Severity::note,
     "more than 500 levels are open, which many readers do not take"},
    {Code::textBehind, "text-behind", Severity::warning,
     "what stands behind the end of the root value is not looked at"},
}};

namespace {

constexpr bool rowsStandAtTheirCodes() {
  for (std::size_t i = 0; i < kCodes.size(); ++i) {
    if (kCodes[i].code != static_cast<Code>(i)) return false;
  }
  return true;
}
static_assert(rowsStandAtTheirCodes());

}  // namespace

const CodeRow& rowOf(Code code) { return kCodes.at(static_cast<std::size_t>(code)); }

Severity severityOf(Code code, Effect effect) {
  return effect == Effect::refused ? Severity::error : rowOf(code).severity;
}

const char* nameOf(Severity severity) {
  switch (severity) {
    case Severity::note:
      return "note";
    case Severity::warning:
      return "warning";
    case Severity::error:
      break;
  }
  return "error";
}

const char* nameOf(Effect effect) {
  switch (effect) {
    case Effect::none:
      return "none";
    case Effect::ignored:
      return "ignored";
    case Effect::ownerIgnored:
      return "owner-ignored";
    case Effect::emptyObject:
      return "empty-object";
    case Effect::changed:
      return "changed";
    case Effect::refused:
      break;
  }
  return "refused";
}

}  // namespace kydata::check
