#include "refused_text.h"

#include <vector>

#include "info_types.h"
#include "input.h"
#include "owned.h"
#include "utf8.h"

namespace kydata {

namespace {

namespace key = ZOL::resSerializeInfoPropKey;

/// Behind a byte-order mark and white space.
std::string_view withoutLeadingBlanks(std::string_view text) {
  if (text.substr(0, 3) == "\xEF\xBB\xBF") text.remove_prefix(3);
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::string joined(const std::vector<std::string>& reasons) {
  std::string text;
  for (const std::string& reason : reasons) text += (text.empty() ? "" : "; ") + reason;
  return text;
}

/// What a description lacks; reads it and forms one sentence of all that is missing.
class Lacks {
 public:
  Lacks(ZOL::IZolResSerializeInfo* partly, std::optional<int> completeType)
      : info_(ZOL::query<ZOL::IZolResSerializeInfoInternal>(partly)),
        completeType_(completeType),
        infoType_(info_->intValue(key::rsResInfoType)),
        type_(info_->intValue(key::rsResType)) {}

  std::string text() {
    if (isStock(infoType_)) {
      lookAtStock();
    } else if (infoType_ == kVcgLibrary) {
      lookAtVcg();
    } else {
      lookAtResource();
    }
    return joined(reasons_);
  }

 private:
  bool hasSlug() const { return *info_->stringValue(key::rsResSlug) != '\0'; }

  std::string infoTypeText() const { return "info type " + std::to_string(infoType_); }

  void lookAtStock() {
    const bool hasStockId = *info_->stringValue(key::rsResStockMediaStrId) != '\0';
    if (!hasStockId) {
      reasons_.push_back(
          infoTypeText() + " asks for " +
          (completeType_ ? "an \"id\" that is an integer or a text" : "a stock id in \"real_id\""));
    }
    if (!hasSlug() && (hasStockId || !completeType_)) {
      reasons_.push_back(completeType_ ? "the slug of " + infoTypeText() +
                                             " comes from \"slug\", which is missing or no text"
                                       : noName());
    }
    if (type_ == -1) reasons_.push_back(noType());
  }

  void lookAtVcg() {
    if (info_->intValue(key::rsResId) < 1) {
      reasons_.push_back("info type 1007 asks for an id of 1 or more in \"" +
                         std::string(completeType_ ? "res_id" : "id") + "\"");
    }
    if (!hasSlug()) {
      reasons_.push_back(completeType_ ? "the slug is made of \"res_type\" and \"res_id\", and "
                                         "one of them is missing or no integer"
                                       : noName());
    }
    if (type_ == -1) reasons_.push_back(noType());
  }

  void lookAtResource() {
    if (!hasSlug()) reasons_.push_back(noName());
    if (type_ == -1) {
      reasons_.push_back(noType() + (infoType_ == 0 ? ", so no info type can be deduced" : ""));
    } else if (infoType_ == 0 && hasSlug()) {
      reasons_.push_back("it has no info type, and from resource type " + std::to_string(type_) +
                         " none can be deduced");
    }
    if (infoType_ == kPackResource) lookAtPack();
    if (infoType_ != 0 && infoType_ != kPackResource && infoType_ != kSingleResource) {
      reasons_.push_back("there is no " + infoTypeText());
    }
  }

  void lookAtPack() {
    if (type_ == 0) reasons_.push_back("info type 6 does not take resource type 0");
    if (info_->intValue(key::rsResPackId) >= 1) return;
    reasons_.push_back(completeType_ ? "info type 6 asks for a pack id, and the complete form "
                                       "holds none that counts: use the normal form"
                                     : "info type 6 asks for a pack id of 1 or more in "
                                       "\"pack_info\"");
  }

  std::string noName() const {
    return completeType_ ? "it has no slug: neither \"name\" nor \"slug\" holds a text"
                         : "it has no slug: \"name\" is missing, empty or no text";
  }

  std::string noType() const {
    return completeType_ ? "it has no resource type: neither \"res_type\" nor \"type\" is an "
                           "integer"
                         : "it has no resource type: \"res_type\" is missing or no integer";
  }

  ZOL::IZolResSerializeInfoInternal* info_;
  std::optional<int> completeType_;
  long long infoType_;
  long long type_;
  std::vector<std::string> reasons_;
};

}  // namespace

bool isJsonObject(const std::string& text) {
  // The complete form of a single resource stores its info type for every JSON
  // object, even an empty one, and nothing for any other text.
  Owned<ZOL::IZolResSerializeInfo> probe(createZolResSerializeInfo());
  probe->setFromCompletResInfo(zolString(text).get(), kSingleResource);
  return !probe->isEmpty();
}

bool beginsAs(const std::string& text, char opening) {
  const std::string_view rest = withoutLeadingBlanks(text);
  return !rest.empty() && rest[0] == opening;
}

std::string whyNoJson(const std::string& text, char opening) {
  const std::string asked = opening == '{' ? "JSON object" : "JSON array";
  const std::string_view rest = withoutLeadingBlanks(text);
  if (rest.empty()) return "holds nothing but white space";
  if (rest[0] == opening) {
    return "is not valid JSON: it begins as " +
           std::string(opening == '{' ? "an object" : "an array") +
           " and cannot be read to its end";
  }
  if (rest[0] == '/') return "is not a " + asked + ", or not valid JSON";
  return "is not a " + asked + ": it begins with '" +
         printable(rest.substr(0, firstCodePoint(rest).bytes)) + "'";
}

std::string whyRefused(const std::string& text, ZOL::IZolResSerializeInfo* partly,
                       std::optional<int> completeType) {
  if (!isJsonObject(text)) return whyNoJson(text, '{');
  if (partly->isEmpty()) return "has neither a \"name\" nor an \"id\" other than 0";
  return "is not a valid description: " + Lacks(partly, completeType).text();
}

}  // namespace kydata
