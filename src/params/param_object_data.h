// The map from parameter id to text that all effect data are.

#ifndef KYDATASTRUCTURE_PARAMS_PARAM_OBJECT_DATA_H_
#define KYDATASTRUCTURE_PARAMS_PARAM_OBJECT_DATA_H_

#include <KyDataStructure/params.h>

#include <map>
#include <string>

#include "frame/counted.h"
#include "frame/handle.h"

namespace ZOL {

class ParamObjectData : public Counted<RefCnt<void>, Virtually<IParamObjectData>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IParamObjectData, IDmDeepClonableObj, IDmBaseObj>(this, name);
  }

  const char* param(int id) override;
  int setParam(int id, const char* text) override;
  int copyFrom(IParamObjectData* other) override;
  int clearParams() override;

 protected:
  // A new object of that class with the same parameters, owned.
  template <class Class>
  IParamObjectData* cloneAs() {
    Handle<Class> clone = makeHandle<Class>();
    clone->copyFrom(this);
    return clone.give();
  }

  // What clearParams() is in the classes with ids of their own: these are set to the
  // empty text, and any others stay.
  int emptyParams(int firstId, int lastId);

  // The text form (data_map.cpp).
  int writeParams(IZolString* target);
  int readParams(IZolString* source);

 private:
  std::map<int, std::string> params_;
};

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_PARAMS_PARAM_OBJECT_DATA_H_
