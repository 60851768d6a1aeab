// The readers of the library by the kinds of documents that they read. Each answers a text:
// what was answered, what came of the document, and what the writers make of that.

#ifndef KYDATASTRUCTURE_TESTS_PLATFORMS_READERS_H_
#define KYDATASTRUCTURE_TESTS_PLATFORMS_READERS_H_

#include <string>
#include <vector>

using Reader = std::string (*)(const std::string& document);

// None for a kind that is not known.
std::vector<Reader> readersOf(const std::string& kind);

// What the library says without having read anything: the words for each code.
std::string words();

#endif  // KYDATASTRUCTURE_TESTS_PLATFORMS_READERS_H_
