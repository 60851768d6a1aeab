// Objects that a caller keeps while what they came from goes.

#ifndef KYDATASTRUCTURE_FUZZ_OUTLIVE_H_
#define KYDATASTRUCTURE_FUZZ_OUTLIVE_H_

#include <string>
#include <utility>
#include <vector>

#include "support/held.h"
#include "target.h"

// Keeps objects of one kind, and what they say.
template <class Object>
class Kept {
 public:
  // Nobody but its owner has a reference to it yet.
  void keep(Object* object) {
    require(object && object->refCount() == 1, "an object that was read has one reference");
    object->addRef();
    objects_.emplace_back(Held<Object>(object), show(*object));
  }

  template <class List>
  void keepAll(List* list) {
    require(list && list->refCount() == 1, "a list that was read has one reference");
    for (long long i = 0; i < list->size(); ++i) keep(list->at(i));
  }

  // For when the owners are gone. The objects go from both ends, the first one first.
  void letGo() {
    for (bool fromFront = true; !objects_.empty(); fromFront = !fromFront) {
      const auto at = fromFront ? objects_.begin() : objects_.end() - 1;
      require(at->first->refCount() == 1, "a kept object has its keeper's reference alone");
      require(show(*at->first) == at->second, "a kept object says what it said");
      objects_.erase(at);
    }
  }

 private:
  std::vector<std::pair<Held<Object>, std::string>> objects_;
};

#endif  // KYDATASTRUCTURE_FUZZ_OUTLIVE_H_
