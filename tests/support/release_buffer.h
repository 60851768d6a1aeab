// What a value does by itself when its text goes. The header keeps the operation to the
// value, but its name is exported, and a program may call it.

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_RELEASE_BUFFER_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_RELEASE_BUFFER_H_

#include <KyDataStructure/frame.h>

// The text of `value` is null afterwards, and its type stays.
void releaseBufferOf(ZOL::ZolValue& value);

// An explicit instantiation may name what is private.
template <void (ZOL::ZolValue::*operation)()>
struct Opened {
  friend void releaseBufferOf(ZOL::ZolValue& value) { (value.*operation)(); }
};
template struct Opened<&ZOL::ZolValue::releaseBuffer>;

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_RELEASE_BUFFER_H_
