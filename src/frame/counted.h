// The one layer between a concrete class and its interfaces.
//
//   class Cue final : public Counted<ICue, ICueInternal, RefCnt<void>> {
//    public:
//     void* queryInterface(const char* name) override {   // compared in this order
//       return answer<ICue, ICueInternal, IDmBaseObj>(this, name);
//     }
//   };

#ifndef KYDATASTRUCTURE_FRAME_COUNTED_H_
#define KYDATASTRUCTURE_FRAME_COUNTED_H_

#include <KyDataStructure/frame.h>

#include <cstring>

#include "frame/ref_cnt.h"

namespace ZOL {

// A base that is taken virtually.
template <class Base>
class Virtually : public virtual Base {
 protected:
  ~Virtually() = default;
};

// Inherits the bases in the order given, one of them the counting mixin, and
// forwards the five counter operations to it; nothing else.
template <class... Bases>
class Counted : public Bases... {
 public:
  // The block comes first. Were it allocated between the bases, the compiler would have
  // to keep a table of pure operations for each of them, for whom the allocation might
  // show the half-made object to.
  Counted() : Counted(new CounterBlock) {}
  // A block that is there already.
  explicit Counted(CounterBlock* block) { RefCnt<void>::countIn(block); }

  int addRef() override { return RefCnt<void>::addRef(); }
  int release() override { return RefCnt<void>::release(); }
  int refCount() override { return RefCnt<void>::refCount(); }
  IReleaseHook* releaseHook() override { return RefCnt<void>::releaseHook(); }
  void setReleaseHook(IReleaseHook* hook) override { RefCnt<void>::setReleaseHook(hook); }
};

inline bool sameText(const char* a, const char* b) { return std::strcmp(a, b) == 0; }

// The object viewed as the first interface of that name, or null. Converts to the
// interface before the pointer loses its type.
template <class... Interfaces, class Object>
void* answer(Object* object, const char* name) {
  void* view = nullptr;
  static_cast<void>(((sameText(name, Interfaces::interfaceName) &&
                      (view = static_cast<Interfaces*>(object), true)) ||
                     ...));
  return view;
}

// A concrete class of this library behind an interface pointer, or null. A caller
// may hand in an implementation of its own, also one from a build without run-time
// type information, whose table has no type to ask for.
template <class Class, class Interface>
Class* own(Interface* object) {
  if (!object) return nullptr;
#if !defined(_MSC_VER)
  const void* const* const table = *reinterpret_cast<const void* const* const*>(object);
  if (!table[-1]) return nullptr;  // where this object layout keeps the type
#endif
  return dynamic_cast<Class*>(object);
}

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_FRAME_COUNTED_H_
