// The same texts in other hands: RapidJSON's recursive parser with its own document,
// in a source file that sees none of the library's JSON headers.

#ifndef KYDATASTRUCTURE_TESTS_JSON_REFERENCE_JSON_H_
#define KYDATASTRUCTURE_TESTS_JSON_REFERENCE_JSON_H_

#include <string>

struct Setting {
  bool tolerant;   // comments, trailing commas, nothing read behind the root
  bool skipsMark;  // a byte-order mark at the start
};

// What a text says, by type and value:
//
//   {"a": [int 1, long 5000000000, number, "x"], "b": null}
//
// "refused" for a text that is not accepted.
std::string shapeByReference(const std::string& text, Setting setting);

// A text as RapidJSON's writers put it out again. It must be one that is accepted.
std::string compactByReference(const std::string& text);
std::string prettyByReference(const std::string& text);

#endif  // KYDATASTRUCTURE_TESTS_JSON_REFERENCE_JSON_H_
