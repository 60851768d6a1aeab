#ifndef KYDATA_CHECK_FINDING_H_
#define KYDATA_CHECK_FINDING_H_

#include <array>
#include <cstddef>
#include <string>

namespace kydata::check {

enum class Severity {
  note,     ///< worth knowing; nothing that another text would mend
  warning,  ///< something is lost, or read as something else
  error,    ///< the library makes nothing of the whole text
};

/// What comes of the place that a finding speaks of.
enum class Effect {
  none,          ///< it is read as it stands
  ignored,       ///< the same as if it were not there
  ownerIgnored,  ///< the same as if the object that holds it were not there
  emptyObject,   ///< the same as an object without members
  changed,       ///< it is read as something else
  refused,       ///< the whole text is refused
};

/// What may be found. The names are stable: docs/findings.md explains each of them.
enum class Code {
  syntax,
  noForm,
  refused,
  wrongType,
  notAnInteger,
  outOfRange,
  missingMember,
  unknownMember,
  duplicateName,
  neverRead,
  replaced,
  unknownValue,
  emptyValue,
  shortenedRow,
  noSpan,
  oddTime,
  oddBase64,
  labelWithoutNumber,
  oddId,
  checksumId,
  cutText,
  longText,
  notUtf8,
  byteOrderMark,
  comment,
  trailingComma,
  deepNesting,
  textBehind,
};

struct CodeRow {
  Code code;
  const char* name;
  Severity severity;  ///< unless the whole text is refused
  const char* meaning;
};

extern const std::array<CodeRow, 28> kCodes;

const CodeRow& rowOf(Code code);
Severity severityOf(Code code, Effect effect);
const char* nameOf(Severity severity);
const char* nameOf(Effect effect);

struct Finding {
  Code code;
  Severity severity;
  std::size_t offset;  ///< of the place, in bytes from the beginning of the text
  std::string path;    ///< "[0].script[3].start_time"; empty for the root
  std::string message;
  Effect effect;
};

}  // namespace kydata::check

#endif  // KYDATA_CHECK_FINDING_H_
