// What an operation is given for its arguments, where not any value will do.

#ifndef KYDATASTRUCTURE_TESTS_OWNERSHIP_CONTENTS_H_
#define KYDATASTRUCTURE_TESTS_OWNERSHIP_CONTENTS_H_

#include <string>

// One argument of one operation.
struct Place {
  std::string owner;  // the interface, or "" for a function
  std::string operation;
  std::string parameter;
};

// The text that a place asks for, or null where any text will do.
const char* textFor(const Place& place);

// A number that is taken there.
int numberFor(const Place& place);

#endif  // KYDATASTRUCTURE_TESTS_OWNERSHIP_CONTENTS_H_
