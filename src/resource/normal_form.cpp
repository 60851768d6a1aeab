// The library's own text of a description:
//
//   {"id": 12, "infoType": 6, "res_type": 3, "name": "a-slug", ...,
//    "related_res_list": [{"rsResSlug": "b", "rsResType": 3, "user_string": {...}}],
//    "extension_info": [{"openFx_sub_element_type": 1}],
//    "pack_info": [{"pack_id": 5, "pack_name": "p"}],
//    "user_string": {"customRsMd5": "..."}}

#include <algorithm>
#include <vector>

#include "frame/batch.h"
#include "json/writer.h"
#include "resource/res_serialize_info.h"
#include "resource/walk.h"

namespace ZOL {
namespace {

using json::Value;

// The members of the normal form that somebody reads: the rows of resPropTable at
// their places, and the groups behind them. The rows of kind `group` read nothing
// here, so a group's place is all they share with the top level.
enum : std::size_t { kPackPlace = kPropCount, kExtensionPlace, kRelatedPlace, kUserPlace, kPlaces };

template <std::size_t... Is>
constexpr auto memberNames(std::index_sequence<Is...>) {
  return json::Names<kPlaces>(
      {resPropTable[Is].jsonKey..., kPackInfo, kExtensionInfo, kRelatedResList, kUserStrings});
}
constexpr auto kMemberNames = memberNames(std::make_index_sequence<kPropCount>());

// The first element of an array; none when it is empty or no array.
Value firstOf(Value array) {
  if (!array.isArray() || array.size() == 0) return Value();
  return *array.elements().begin();
}

// The name of a row of kind `group` in its group.
std::string_view groupName(Prop prop) { return resPropTable[prop].jsonKey; }

}  // namespace

int ZolResSerializeInfo::setFromBuffer(IZolString* text) {
  if (!text) return kRefused;
  const std::string_view bytes(text->text(), static_cast<std::size_t>(text->length()));
  const json::Document document(bytes);
  const Value root = document.root();
  if (!root.isObject()) return kRefused;
  const auto members = json::sortIn(kMemberNames, root);
  const char* const slug = members[kResSlug].text();
  if ((!slug || *slug == '\0') && members[kResId].integer64().value_or(0) == 0) return kRefused;
  {
    const Lock lock(stateMutex_);
    sourceText_ = bytes;
    readPackInfo(members[kPackPlace]);
    readExtensionInfo(members[kExtensionPlace]);
    readRelatedRes(members[kRelatedPlace]);
    readUserStrings(members[kUserPlace]);
    for (const ResProp& row : resPropTable) read(row.prop, row.valueKind, members[row.prop]);
  }
  deduceInfoType();
  return isValid() ? kSuccess : kRefused;
}

// [{"pack_id": 5, "pack_name": "p"}]; further elements are not looked at.
void ZolResSerializeInfo::readPackInfo(Value group) {
  const Value pack = firstOf(group);
  read(kResPackId, ValueKind::integer, pack.member(groupName(kResPackId)));
  read(kResPackSlug, ValueKind::text, pack.member(groupName(kResPackSlug)));
}

// [{"openFx_sub_element_type": 1}]
void ZolResSerializeInfo::readExtensionInfo(Value group) {
  read(kResOpenFxSubType, ValueKind::integer, firstOf(group).member(groupName(kResOpenFxSubType)));
}

// [{"rsResSlug": "b", "rsResType": 3, "user_string": {...}}]: an array, even an empty
// one, puts its entries in the place of those that are here.
void ZolResSerializeInfo::readRelatedRes(Value list) {
  enum : std::size_t { kSlug, kType, kUser };
  static constexpr json::Names<3> kMembers(
      {resPropTable[kResSlug].key, resPropTable[kResType].key, kUserStrings});

  if (!list.isArray()) return;
  removeRelatedRes(nullptr);
  relatedRes_.reserve(list.size());
  for (const Value element : list.elements()) {
    const auto in = json::sortIn(kMembers, element);
    const char* const slug = in[kSlug].text();
    const long long type = in[kType].integer64().value_or(kNoType);
    if (!slug || *slug == '\0' || type == kNoType) continue;
    const auto userStrings = json::sortIn(kUserStringMembers, in[kUser]);
    std::size_t room = Batch::room<ZolResSerializeInfo>() + SharedText::room(in[kSlug].bytes());
    for (const Value text : userStrings) room += SharedText::room(text.bytes());
    Batch batch(room);
    Handle<ZolResSerializeInfo> entry = batch.make<ZolResSerializeInfo>();
    entry->intProps_.set(kResInfoType, kSingleInfoType);
    entry->intProps_.set(kResType, type);
    entry->stringProps_.set(kResSlug, batch.put(in[kSlug].bytes()));
    for (std::size_t row = 0; row < userStrings.size(); ++row) {
      if (!userStrings[row].isString()) continue;
      entry->userStrings_.set(row, batch.put(userStrings[row].bytes()));
    }
    // Valid as it stands, and nobody else's: the copy through text that
    // addRelatedRes() makes of a caller's object would be the same object again.
    relatedRes_.push_back(std::move(entry));
    hasRelatedRes_ = true;
  }
}

// {"customRsMd5": "...", ...}; a row without a member leaves its earlier text.
void ZolResSerializeInfo::readUserStrings(Value object) {
  const auto userStrings = json::sortIn(kUserStringMembers, object);
  for (std::size_t row = 0; row < userStrings.size(); ++row) {
    if (const char* const text = userStrings[row].text()) userStrings_.set(row, text);
  }
}

void ZolResSerializeInfo::deduceInfoType() {
  if (intValue(kResInfoType) != kUnknownInfo || !holdsText(kResSlug)) return;
  const long long type = intValue(kResType);
  if (type == kNoType || type == kStockType || type == kVcgType) return;
  const long long deduced = intValue(kResPackId) >= 1 ? kPackInfoType : kSingleInfoType;
  setIntValue(resSerializeInfoPropKey::rsResInfoType, deduced);
}

// One writing of a description, on top of the text that it was read from. The base
// document's members stand in a row; only the outermost object ever changes.
class NormalFormWriter {
 public:
  explicit NormalFormWriter(ZolResSerializeInfo& info) : info_(info), base_(info.sourceText_) {}

  int writeTo(IZolString* out) {
    takeBaseMembers();
    putProperties();
    if (!info_.relatedRes_.empty()) putGroup(kRelatedResList, What::relatedRes);
    if (info_.intProps_.has(kResOpenFxSubType)) putGroup(kExtensionInfo, What::extensionInfo);
    if (info_.intProps_.has(kResPackId) && info_.stringProps_.has(kResPackSlug)) {
      putGroup(kPackInfo, What::packInfo);
    }
    putGroup(kUserStrings, What::userStrings);

    writer_.beginObject();
    for (const OutMember& member : members_) {
      writer_.key(member.name);
      write(member);
    }
    writer_.endObject();
    writer_.giveTo(out);
    return kSuccess;
  }

 private:
  enum class What { base, integer, text, relatedRes, extensionInfo, packInfo, userStrings };

  struct OutMember {
    std::string_view name;
    What what;
    Prop prop = kPropCount;  // of an integer or a text
    Value value;             // of the base document
  };

  void takeBaseMembers() {
    places_.fill(-1);
    members_.reserve(base_.root().size() + kPlaces);
    for (const json::Member member : base_.root().members()) {
      const int place = kMemberNames.find(member.name());
      if (place >= 0 && placeOf(place) < 0) placeOf(place) = static_cast<int>(members_.size());
      members_.push_back({member.name(), What::base, kPropCount, member.value});
    }
  }

  // A member that is there keeps its place, a new one comes last. A property held as
  // both is written as a text: the texts come second.
  void putProperties() {
    for (const ResProp& row : resPropTable) {
      if (row.valueKind != ValueKind::group && info_.intProps_.has(row.prop)) {
        putProperty(row, What::integer);
      }
    }
    for (const ResProp& row : resPropTable) {
      if (row.valueKind != ValueKind::group && info_.stringProps_.has(row.prop)) {
        putProperty(row, What::text);
      }
    }
  }

  void putProperty(const ResProp& row, What what) {
    int& place = placeOf(row.prop);
    if (place < 0) {
      place = static_cast<int>(members_.size());
      members_.push_back({row.jsonKey, what, row.prop, Value()});
    } else {
      OutMember& member = members_[static_cast<std::size_t>(place)];
      member.what = what;
      member.prop = row.prop;
    }
  }

  // A group always comes last; into the hole of the old one moves the last member.
  void putGroup(std::string_view name, What what) {
    const auto old = std::find_if(members_.begin(), members_.end(),
                                  [name](const OutMember& member) { return member.name == name; });
    if (old != members_.end()) {
      *old = members_.back();
      members_.pop_back();
    }
    members_.push_back({name, what, kPropCount, Value()});
  }

  void write(const OutMember& member) {
    switch (member.what) {
      case What::base:
        writer_.copy(member.value);
        break;
      case What::integer:
        writer_.integer(info_.intProps_.get(member.prop));
        break;
      case What::text:
        writer_.text(info_.stringProps_.get(member.prop));
        break;
      case What::relatedRes:
        writeRelatedRes();
        break;
      case What::extensionInfo:
        writer_.beginArray();
        writer_.beginObject();
        writer_.member(groupName(kResOpenFxSubType), info_.intProps_.get(kResOpenFxSubType));
        writer_.endObject();
        writer_.endArray();
        break;
      case What::packInfo:
        writer_.beginArray();
        writer_.beginObject();
        writer_.member(groupName(kResPackId), info_.intProps_.get(kResPackId));
        writer_.member(groupName(kResPackSlug), info_.stringProps_.get(kResPackSlug));
        writer_.endObject();
        writer_.endArray();
        break;
      case What::userStrings:
        writer_.beginObject();
        for (std::size_t row = 0; row < userStringTable.size(); ++row) {
          if (!info_.userStrings_.has(row)) continue;
          writer_.member(userStringTable[row].jsonKey, info_.userStrings_.get(row));
        }
        writer_.endObject();
        break;
    }
  }

  // The entries, which are valid, go through their own locks, inside that of the
  // description.
  void writeRelatedRes() {
    writer_.beginArray();
    for (const auto& entry : info_.relatedRes_) {
      writer_.beginObject();
      writer_.member(resPropTable[kResSlug].key, entry->stringValue(kResSlug));
      writer_.member(resPropTable[kResType].key, entry->intValue(kResType));
      writer_.key(kUserStrings);
      writer_.beginObject();
      for (const UserString& row : userStringTable) {
        writer_.member(row.jsonKey, entry->userString(row.key.data()));
      }
      writer_.endObject();
      writer_.endObject();
    }
    writer_.endArray();
  }

  int& placeOf(int place) { return places_[static_cast<std::size_t>(place)]; }

  ZolResSerializeInfo& info_;
  const json::Document base_;  // no members when there is none
  std::vector<OutMember> members_;
  std::array<int, kPlaces> places_{};  // in members_, of the first of each name; -1 for none
  json::CompactWriter writer_;
};

int ZolResSerializeInfo::toBuffer(IZolString* out) {
  if (!out) return kRefused;
  {
    const Lock lock(stateMutex_);
    if (!hasName()) return kRefused;
  }
  const Lock lock(stateMutex_);
  return NormalFormWriter(*this).writeTo(out);
}

}  // namespace ZOL
