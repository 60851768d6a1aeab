#include "support/release_buffer.h"

namespace {

// An explicit instantiation may name what is private.
template <void (ZOL::ZolValue::*operation)()>
struct Opened {
  friend void release(ZOL::ZolValue& value) { (value.*operation)(); }
};
void release(ZOL::ZolValue& value);
template struct Opened<&ZOL::ZolValue::releaseBuffer>;

}  // namespace

void releaseBufferOf(ZOL::ZolValue& value) { release(value); }
