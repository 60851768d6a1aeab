// A named dictionary of parameter records.

#include <KyDataStructure/params.h>

#include <map>
#include <string>

#include "frame/counted.h"
#include "frame/fields.h"
#include "frame/handle.h"

namespace ZOL {
namespace {

class ZolParam final : public Counted<IZolParam, RefCnt<void>, IZolParamInternal> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IZolParam, IZolParamInternal, IDmBaseObj>(this, name);
  }

  int setProperty(const char* key, _Property value) override {
    if (!key) return kRefused;
    entries_.insert_or_assign(key, value);
    return kSuccess;
  }

  int getProperty(const char* key, _Property* out) override {
    if (!key) return kRefused;
    const auto found = entries_.find(key);
    if (found == entries_.end()) return kRefused;
    *out = found->second;
    return kSuccess;
  }

  int getKeys(ZOLPCharList* out) override {
    if (!out) return kRefused;
    out->clear();
    for (const auto& [key, value] : entries_) out->add(key.c_str());
    return kSuccess;
  }

  int setParamName(const char* name) override { return paramName_.set(name); }
  const char* paramName() override { return paramName_.get(); }
  int internalOperation3() override { return kRefused; }
  int internalOperation4() override { return kRefused; }

 private:
  std::map<std::string, _Property, std::less<>> entries_;
  TextRefusingNull paramName_;
};

}  // namespace
}  // namespace ZOL

ZOL::IZolParam* createZolParam() { return ZOL::makeObject<ZOL::ZolParam>(); }
