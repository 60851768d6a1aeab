// What a value does by itself when its text goes. The header keeps the operation to the
// value, but its name is exported, and a program may call it.

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_RELEASE_BUFFER_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_RELEASE_BUFFER_H_

#include <KyDataStructure/frame.h>

// The text of `value` is null afterwards, and its type stays.
void releaseBufferOf(ZOL::ZolValue& value);

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_RELEASE_BUFFER_H_
