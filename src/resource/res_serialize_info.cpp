#include "resource/res_serialize_info.h"

#include <algorithm>
#include <unordered_set>

#include "frame/zol_string.h"

namespace ZOL {
namespace {

// The row of a caller's key, or -1 for null and for an unknown key.
template <class Keys>
int rowOf(const Keys& keys, const char* key) {
  return key ? keys.find(key) : -1;
}

Prop propAt(int row) { return static_cast<Prop>(row); }

// The integer in a record, whatever its type says.
long long integerIn(const _Property& record) {
  long long number = 0;
  std::memcpy(&number, record.value, sizeof(number));
  return number;
}

}  // namespace

void* ZolResSerializeInfo::queryInterface(const char* name) {
  if (sameText(name, "ZolResSerializeInfo")) return static_cast<IZolResSerializeInfo*>(this);
  return answer<IZolResSerializeInfo, IZolResSerializeInfoInternal, IDmBaseObj>(this, name);
}

bool ZolResSerializeInfo::isValid() {
  const long long infoType = intValue(kResInfoType);
  const long long type = intValue(kResType);
  if (!holdsText(kResSlug) || type == kNoType) return false;
  switch (infoType) {
    case kPackInfoType:  // on purpose alone in refusing the type 0
      return type != 0 && intValue(kResPackId) >= 1;
    case kSingleInfoType:
      return true;
    case kVcgInfoType:
      return intValue(kResId) >= 1;
    default:
      return stockProviderOf(infoType) && holdsText(kResStockMediaStrId);
  }
}

int ZolResSerializeInfo::getProperty(const char* key, _Property* out) {
  const int row = rowOf(kPropKeys, key);
  if (row < 0) return kRefused;
  const Prop prop = propAt(row);
  const Lock lock(stateMutex_);
  if (intProps_.has(prop)) {
    out->present = 1;
    out->type = kPropertyInteger;
    const long long value = intProps_.get(prop);
    std::memcpy(out->value, &value, sizeof(value));  // on purpose the other bytes stay
    return kSuccess;
  }
  if (!stringProps_.has(prop)) return kRefused;  // on purpose no default here
  const char* const text = stringProps_.get(prop);
  out->present = 1;
  out->type = kPropertyText;
  std::memset(out->value, 0, sizeof(out->value));
  std::memcpy(out->value, text, std::min(std::strlen(text), sizeof(out->value) - 1));
  return kSuccess;
}

int ZolResSerializeInfo::setProperty(const char* key, const _Property* value) {
  const int row = rowOf(kPropKeys, key);
  if (row < 0 || !value || value->present == 0) return kRefused;
  const Lock lock(stateMutex_);
  if (value->type == kPropertyInteger) {
    intProps_.set(propAt(row), integerIn(*value));
    return kSuccess;
  }
  if (value->type == kPropertyText) {
    const char* const end = std::find(std::begin(value->value), std::end(value->value), '\0');
    stringProps_.set(propAt(row), std::string(value->value, end).c_str());
    return kSuccess;
  }
  return kRefused;
}

// Through text: what `other` writes is read on top of what is here.
int ZolResSerializeInfo::copyFrom(IZolResSerializeInfo* other) {
  if (!other) return kRefused;
  const Handle<ZolString> text = makeHandle<ZolString>();
  if (other->toBuffer(text.get()) != kSuccess) return kRefused;
  return setFromBuffer(text.get());
}

const char* ZolResSerializeInfo::uniqueKey() {
  _Property slug{};
  getProperty(resSerializeInfoPropKey::rsResSlug, &slug);
  if (slug.value[0] == '\0') return uniqueKeyCache_.c_str();
  // A property that is not held reads as 0 here, not as its default.
  _Property type{};
  getProperty(resSerializeInfoPropKey::rsResType, &type);
  _Property infoType{};
  getProperty(resSerializeInfoPropKey::rsResInfoType, &infoType);
  // With room for the whole at once: without memory for it the last key stays.
  constexpr std::size_t kLongestTail = sizeof("_res_type_-2147483648_info_type_-2147483648");
  uniqueKeyCache_.reserve(std::strlen(slug.value) + kLongestTail);
  uniqueKeyCache_.assign(slug.value);
  uniqueKeyCache_.append("_res_type_");
  uniqueKeyCache_.append(std::to_string(static_cast<int>(integerIn(type))));
  uniqueKeyCache_.append("_info_type_");
  uniqueKeyCache_.append(std::to_string(static_cast<int>(integerIn(infoType))));
  return uniqueKeyCache_.c_str();
}

const char* ZolResSerializeInfo::userString(const char* key) {
  const int row = rowOf(kUserStringKeys, key);
  if (row < 0) return "";
  const Lock lock(stateMutex_);
  return userStrings_.get(static_cast<std::size_t>(row));
}

int ZolResSerializeInfo::setUserString(const char* key, const char* value) {
  const int row = rowOf(kUserStringKeys, key);
  if (row < 0 || !value) return kRefused;
  const Lock lock(stateMutex_);
  userStrings_.set(static_cast<std::size_t>(row), value);
  return kSuccess;
}

bool ZolResSerializeInfo::isEmpty() {
  return intProps_.none() && stringProps_.none() && userStrings_.none() && !hasRelatedRes_;
}

int ZolResSerializeInfo::mergeFrom(IZolResSerializeInfo* other) {
  const auto* const source = own<ZolResSerializeInfo>(other);
  if (!source) return kRefused;
  const Lock lock(stateMutex_);
  for (std::size_t prop = 0; prop < kPropCount; ++prop) {
    if (source->intProps_.has(prop) && !intProps_.has(prop)) {
      intProps_.set(prop, source->intProps_.get(prop));
    }
    if (source->stringProps_.has(prop) && !stringProps_.has(prop)) {
      stringProps_.set(prop, source->stringProps_.get(prop));
    }
  }
  std::unordered_set<const ZolResSerializeInfo*> held;
  for (const auto& entry : relatedRes_) held.insert(entry.get());
  std::vector<Handle<ZolResSerializeInfo>> missing;
  for (const auto& entry : source->relatedRes_) {
    if (held.insert(entry.get()).second) missing.push_back(entry);
  }
  relatedRes_.insert(relatedRes_.end(), std::make_move_iterator(missing.begin()),
                     std::make_move_iterator(missing.end()));
  hasRelatedRes_ = !relatedRes_.empty();
  if (sourceText_.empty()) sourceText_ = source->sourceText_;
  return kSuccess;
}

long long ZolResSerializeInfo::intValue(Prop prop) {
  const Lock lock(stateMutex_);
  return intProps_.has(prop) ? intProps_.get(prop) : resPropTable[prop].unset;
}

long long ZolResSerializeInfo::intValue(const char* key) {
  const int row = rowOf(kPropKeys, key);
  return row < 0 ? 0 : intValue(propAt(row));
}

int ZolResSerializeInfo::setIntValue(const char* key, const long long& value) {
  const int row = rowOf(kPropKeys, key);
  if (row < 0) return kRefused;
  const Lock lock(stateMutex_);
  intProps_.set(propAt(row), value);
  return kSuccess;
}

const char* ZolResSerializeInfo::stringValue(Prop prop) {
  const Lock lock(stateMutex_);
  return stringProps_.get(prop);
}

bool ZolResSerializeInfo::holdsText(Prop prop) {
  const Lock lock(stateMutex_);
  return *stringProps_.get(prop) != '\0';
}

const char* ZolResSerializeInfo::stringValue(const char* key) {
  const int row = rowOf(kPropKeys, key);
  return row < 0 ? "" : stringValue(propAt(row));
}

int ZolResSerializeInfo::setStringValue(const char* key, const char* value) {
  const int row = rowOf(kPropKeys, key);
  if (row < 0 || !value) return kRefused;
  const Lock lock(stateMutex_);
  stringProps_.set(propAt(row), value);
  return kSuccess;
}

std::uintptr_t ZolResSerializeInfo::hostData() { return hostWord_; }

int ZolResSerializeInfo::setHostData(std::uintptr_t value) {
  hostWord_ = value;
  return kSuccess;
}

bool ZolResSerializeInfo::hasName() const {
  return *stringProps_.get(kResSlug) != '\0' ||
         (intProps_.has(kResId) && intProps_.get(kResId) != 0);
}

bool ZolResSerializeInfo::mayBeRelated(IZolResSerializeInfo* info) {
  if (!info || !info->isValid() || !info->queryInterface("ZolResSerializeInfo")) return false;
  // Of one that forwards, that behind it: what is asked here is looked at behind its lock.
  auto* const ours = own<ZolResSerializeInfo>(query<IZolResSerializeInfoInternal>(info));
  return ours && ours->intValue(kResIsCustom) == 0 && ours->holdsText(kResSlug);
}

ZolResSerializeInfo::UserStrings ZolResSerializeInfo::userStringsOf(IZolResSerializeInfo* info) {
  UserStrings texts;
  auto* const ours = own<ZolResSerializeInfo>(info);
  std::unique_lock<std::recursive_mutex> lock;
  if (ours) lock = std::unique_lock<std::recursive_mutex>(ours->stateMutex_);
  for (std::size_t row = 0; row < texts.size(); ++row) {
    texts[row] = info->userString(userStringTable[row].key.data());
  }
  return texts;
}

int ZolResSerializeInfo::addRelatedRes(IZolResSerializeInfo* info) {
  if (!mayBeRelated(info)) return kRefused;
  Handle<ZolResSerializeInfo> entry = makeHandle<ZolResSerializeInfo>();
  if (entry->copyFrom(info) != kSuccess) return kRefused;
  const Lock lock(stateMutex_);
  relatedRes_.push_back(std::move(entry));
  hasRelatedRes_ = true;
  return kSuccess;
}

int ZolResSerializeInfo::removeRelatedRes(IZolResSerializeInfo* info) {
  std::vector<Handle<ZolResSerializeInfo>> gone;  // given back when the lock is let go
  if (!info) {
    const Lock lock(stateMutex_);
    gone.swap(relatedRes_);
    hasRelatedRes_ = false;
    return kSuccess;
  }
  if (!mayBeRelated(info)) return kRefused;
  // Asked ahead of the lock: `info` is the caller's, and has a lock of its own.
  const UserStrings texts = userStringsOf(info);
  const Lock lock(stateMutex_);
  gone.reserve(relatedRes_.size());  // now, while the entries stand in their order
  // On purpose the slugs are not compared.
  const auto sameUserStrings = [&texts](const Handle<ZolResSerializeInfo>& entry) {
    for (std::size_t row = 0; row < texts.size(); ++row) {
      if (texts[row] != entry->userString(userStringTable[row].key.data())) return false;
    }
    return true;
  };
  const auto staying = std::stable_partition(
      relatedRes_.begin(), relatedRes_.end(),
      [&](const Handle<ZolResSerializeInfo>& entry) { return !sameUserStrings(entry); });
  gone.assign(std::make_move_iterator(staying), std::make_move_iterator(relatedRes_.end()));
  relatedRes_.erase(staying, relatedRes_.end());
  hasRelatedRes_ = !relatedRes_.empty();
  return kSuccess;
}

int ZolResSerializeInfo::relatedResList(IZolResSerializeInfoList* out) {
  if (!out) return kRefused;
  const Lock lock(stateMutex_);
  for (const auto& entry : relatedRes_) {
    const Handle<ZolResSerializeInfo> copy = makeHandle<ZolResSerializeInfo>();
    if (copy->copyFrom(entry.get()) != kSuccess) return kRefused;
    out->add(copy.get());
  }
  return kSuccess;
}

}  // namespace ZOL
