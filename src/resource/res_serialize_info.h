// The description of one resource. Its two text forms stand in normal_form.cpp and
// complete_form.cpp, everything else in res_serialize_info.cpp.

#ifndef KYDATASTRUCTURE_RESOURCE_RES_SERIALIZE_INFO_H_
#define KYDATASTRUCTURE_RESOURCE_RES_SERIALIZE_INFO_H_

#include <KyDataStructure/resource.h>

#include <array>
#include <atomic>
#include <mutex>
#include <string>
#include <vector>

#include "frame/counted.h"
#include "frame/handle.h"
#include "json/document.h"
#include "resource/property_bag.h"
#include "resource/property_tables.h"

namespace ZOL {

// The info types with a rule of their own.
enum InfoType : int {
  kUnknownInfo = 0,
  kPackInfoType = 6,
  kSingleInfoType = 7,
  kVcgInfoType = 1007,
};

// A provider of stock items, by info type.
struct StockProvider {
  int firstInfoType, lastInfoType;
  int subType;
  const char* slugPrefix;
  bool namesItsSlugs;  // the slug comes from the record, not from its id
};
const StockProvider* stockProviderOf(long long infoType);

// The resource types that the library knows by number.
enum : long long { kNoType = -1, kStockType = 25, kVcgType = 39 };

// mergeFrom() has its place behind the main interface and stands in none.
class IMergingResSerializeInfo : public IZolResSerializeInfo {
 public:
  // Takes over what is missing here: properties, related entries (the very objects,
  // here and only here), and the remembered text if there is none. On purpose not
  // the user strings and the host's word. Refused for anything but a description of
  // this library. `other` is read without its lock.
  virtual int mergeFrom(IZolResSerializeInfo* other) = 0;

 protected:
  ~IMergingResSerializeInfo() = default;
};

class ZolResSerializeInfo final
    : public Counted<IMergingResSerializeInfo, IZolResSerializeInfoInternal, RefCnt<void>> {
 public:
  using Counted::Counted;

  void* queryInterface(const char* name) override;

  int setFromCompletResInfo(IZolString* text, int infoType) override;
  bool isValid() override;
  int setFromBuffer(IZolString* text) override;
  int toBuffer(IZolString* out) override;
  int getProperty(const char* key, _Property* out) override;
  int setProperty(const char* key, const _Property* value) override;
  int copyFrom(IZolResSerializeInfo* other) override;
  const char* uniqueKey() override;
  const char* userString(const char* key) override;
  int setUserString(const char* key, const char* value) override;
  bool isEmpty() override;
  int mergeFrom(IZolResSerializeInfo* other) override;

  long long intValue(const char* key) override;
  int setIntValue(const char* key, const long long& value) override;
  const char* stringValue(const char* key) override;
  int setStringValue(const char* key, const char* value) override;
  std::uintptr_t hostData() override;
  int setHostData(std::uintptr_t value) override;
  int addRelatedRes(IZolResSerializeInfo* info) override;
  int removeRelatedRes(IZolResSerializeInfo* info) override;
  int relatedResList(IZolResSerializeInfoList* out) override;

 private:
  // MinGW's standard library leaves a mutex without an end, and what its first lock has taken
  // from the heap would stay there.
  struct Mutex : std::recursive_mutex {
#if defined(_WIN32) && defined(__GTHREAD_RECURSIVE_MUTEX_INIT)
    ~Mutex() { pthread_mutex_destroy(native_handle()); }
#endif
  };
  using Lock = std::lock_guard<std::recursive_mutex>;

  // The value by row, under the lock for the lookup.
  long long intValue(Prop prop);
  const char* stringValue(Prop prop);
  // True if the text is not empty; another thread may set it at the same time.
  bool holdsText(Prop prop);
  // True if the slug is not empty or the id not 0: what reader and writer ask for.
  bool hasName() const;
  static bool mayBeRelated(IZolResSerializeInfo* info);
  // Copies, of one moment if the description is ours: another thread may set them.
  using UserStrings = std::array<std::string, userStringTable.size()>;
  static UserStrings userStringsOf(IZolResSerializeInfo* info);

  // The steps of the readers, all of them under the lock.
  void read(Prop prop, ValueKind kind, json::Value value);
  void readPackInfo(json::Value group);
  void readExtensionInfo(json::Value group);
  void readRelatedRes(json::Value list);
  void readUserStrings(json::Value object);
  template <class Table>
  void walk(const Table& table, json::Value object);
  void readStock(const StockProvider& provider, int infoType, json::Value record);
  void readVcg(json::Value record);
  void deduceInfoType();

  friend class NormalFormWriter;

  IntegerSlots<kPropCount> intProps_;
  TextSlots<kPropCount> stringProps_;
  std::string sourceText_;  // the normal-form text that was last accepted, byte for byte
  Mutex stateMutex_;
  std::atomic<std::uintptr_t> hostWord_{0};
  std::vector<Handle<ZolResSerializeInfo>> relatedRes_;
  std::atomic<bool> hasRelatedRes_{false};  // for isEmpty(), which takes no lock
  TextSlots<userStringTable.size()> userStrings_;
  std::string uniqueKeyCache_;
};

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_RESOURCE_RES_SERIALIZE_INFO_H_
