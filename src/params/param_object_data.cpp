#include "params/param_object_data.h"

namespace ZOL {

const char* ParamObjectData::param(int id) {
  const auto found = params_.find(id);
  return found != params_.end() ? found->second.c_str() : "";
}

int ParamObjectData::setParam(int id, const char* text) {
  if (!text) return kRefused;
  params_.insert_or_assign(id, std::string(text));
  return kSuccess;
}

// On purpose emptied before anything is looked at: a null that is refused and a copy
// onto itself have lost the old parameters.
int ParamObjectData::copyFrom(IParamObjectData* other) {
  params_.clear();
  const auto* const source = own<ParamObjectData>(other);
  if (!source) return kRefused;
  auto copy = source->params_;  // all of them or, where memory runs out, none
  params_.swap(copy);
  return kSuccess;
}

int ParamObjectData::clearParams() {
  params_.clear();
  return kSuccess;
}

int ParamObjectData::emptyParams(int firstId, int lastId) {
  for (int id = firstId; id <= lastId; ++id) setParam(id, "");
  return kSuccess;
}

}  // namespace ZOL
