// The rows of the ownership table that no call of a general kind can show.

#ifndef KYDATASTRUCTURE_TESTS_OWNERSHIP_BY_HAND_H_
#define KYDATASTRUCTURE_TESTS_OWNERSHIP_BY_HAND_H_

#include <map>
#include <string>

// By "section: signature", as the page has them.
const std::map<std::string, void (*)()>& drivesByHand();

#endif  // KYDATASTRUCTURE_TESTS_OWNERSHIP_BY_HAND_H_
