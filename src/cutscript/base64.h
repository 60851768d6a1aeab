// Base64 by the rule of the analysis reports.

#ifndef KYDATASTRUCTURE_CUTSCRIPT_BASE64_H_
#define KYDATASTRUCTURE_CUTSCRIPT_BASE64_H_

#include <cstddef>
#include <string_view>

#include "frame/bytes.h"

namespace ZOL {

struct DecodedBytes {
  Bytes<unsigned char> bytes;
  std::size_t size;
};

// The standard alphabet; every other character counts as 0 and is no error. The walk
// goes in groups, and a running count, not the place in the text, ends it:
//
// - A line break where a group would begin is stepped over and counts one.
// - A group takes two characters for a byte, a third for a second byte unless it is
//   "=", and then a fourth for a third byte unless that is "=". It counts four,
//   whatever it took. On purpose a "=" is looked at and not stepped over, so one that
//   stands early is the first character of the next group, too.
//
// Behind its end the text reads as zeros.
DecodedBytes decodeBase64(std::string_view text);

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_CUTSCRIPT_BASE64_H_
