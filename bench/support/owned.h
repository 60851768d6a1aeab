// One reference of the caller's, given up at the end.

#ifndef KYDATASTRUCTURE_BENCH_SUPPORT_OWNED_H_
#define KYDATASTRUCTURE_BENCH_SUPPORT_OWNED_H_

#include <memory>

namespace bench {

struct Release {
  template <class Object>
  void operator()(Object* object) const {
    object->release();
  }
};

template <class Object>
using Owned = std::unique_ptr<Object, Release>;

// Takes over what a factory gave.
template <class Object>
Owned<Object> owned(Object* object) {
  return Owned<Object>(object);
}

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_SUPPORT_OWNED_H_
