// Normal-form texts of resource descriptions.

#ifndef KYDATASTRUCTURE_BENCH_INPUTS_RESOURCE_TEXTS_H_
#define KYDATASTRUCTURE_BENCH_INPUTS_RESOURCE_TEXTS_H_

#include <cstddef>
#include <string>

namespace bench {

// About 1 KB: most properties, the groups, two related entries and two members that
// the library does not know.
std::string plainResource();
// The same properties, and members that the library does not know until the text has
// that many bytes.
std::string resourceWithPayload(std::size_t bytes);
// The same properties, and related entries until the text has that many bytes.
std::string resourceWithRelated(std::size_t bytes);
// About 150 bytes, and no two with the same number alike.
std::string shortResource(int number);

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_INPUTS_RESOURCE_TEXTS_H_
