// The rules of a text form, as data: which members there are, of which type, and what
// comes of one that is missing or of another type. A form is one table of them; the
// walk over a text and the JSON Schema are both made from it.

#ifndef KYDATA_CHECK_RULE_H_
#define KYDATA_CHECK_RULE_H_

#include <cstddef>

#include "check/finding.h"

namespace kydata::check {

enum class Type {
  object,
  array,
  text,
  integer32,
  integer64,
  integerOrText,
  unread,  ///< whatever stands here, nothing comes of it
};

/// What comes of a member that is not there.
enum class Missing {
  fine,
  surprising,    ///< as the rule's `otherwise` tells
  ownerIgnored,  ///< the object that it is missing in counts as not there
  refused,       ///< the whole text is refused
};

/// A further look at a value of the right type.
enum class Look {
  none,
  notEmpty,         ///< an empty text or array counts as a missing member
  scriptClass,      ///< one of three words; any other makes a plain row
  storyboardClass,  ///< 0 to 3; any other counts as 0
  clipStart,        ///< comes off the row's end as well
  highlightClass,   ///< only an integer is looked at
  span,             ///< "0:1:30Z-0:2:0Z"
  scoredSpan,       ///< the same, and the label around it is a score
  base64,
  samples,       ///< kept, and not given out
  knownType,     ///< -1 counts as no resource type
  stockId,       ///< a text is reduced to a sum
  propertyText,  ///< given out up to 1023 bytes
  propertySlug,  ///< the same, and not empty
};

/// How the members of an object stand to each other, and to the rules.
enum class Members {
  plain,        ///< unknown ones are passed over; of two with one name the first counts
  passedOn,     ///< the same, but unknown ones are kept in the text
  ofAProvider,  ///< most of them are unknown, as must be
  lastOfName,   ///< of two with one name the last counts
  lastOfId,     ///< names are numbers, and of equal ones the last counts
  lastOfAll,    ///< the last array takes the place of all before it
};

/// The elements of an array that are looked at.
enum class Elements { all, first };

struct Rule {
  /// Members behind points, elements as [], any name as *, one of several as a|b, and a
  /// group of names of the form as <group>: "<dimension>.labels.*[]". The root's is empty.
  const char* path;
  Type type;
  Missing missing;
  Effect wrongType;
  const char* meaning;    ///< for the reader of a schema
  const char* otherwise;  ///< what comes of a value of another type; a main clause
  Look look = Look::none;
  Members members = Members::plain;
  Elements elements = Elements::all;
};

/// Names that share their rules.
struct NameGroup {
  const char* name;
  const char* names;  ///< divided by |
};

}  // namespace kydata::check

#endif  // KYDATA_CHECK_RULE_H_
