// A description, written as a text, read and written again.

#ifndef KYDATASTRUCTURE_FUZZ_REWRITTEN_DESCRIPTION_H_
#define KYDATASTRUCTURE_FUZZ_REWRITTEN_DESCRIPTION_H_

#include <algorithm>
#include <string>
#include <vector>

#include "json/document.h"
#include "resource/description.h"
#include "target.h"
#include "written_value.h"

// The members of the outermost object in no order: the groups change their places with
// each writing, on purpose.
inline std::vector<std::string> membersOf(const std::string& text) {
  const ZOL::json::Document document(text);
  std::vector<std::string> members;
  for (const ZOL::json::Member member : document.root().members()) {
    members.push_back(std::string(member.name()) + '\0' + compactText(member.value));
  }
  std::sort(members.begin(), members.end());
  return members;
}

// Of a group that stands twice, reading looks at the first and writing takes the first
// away, on purpose. So the next reading sees the other one.
inline bool namesAGroupTwice(const std::string& text) {
  static constexpr const char* kGroups[] = {"pack_info", "extension_info", "related_res_list",
                                            "user_string"};
  const ZOL::json::Document document(text);
  for (const char* const group : kGroups) {
    int times = 0;
    for (const ZOL::json::Member member : document.root().members()) {
      if (member.name() == group) ++times;
    }
    if (times > 1) return true;
  }
  return false;
}

// For one that says who it is, without which no text is read.
inline void requireTheSameRewritten(Info* info) {
  const std::string text = written(info);
  if (namesAGroupTwice(text)) return;
  const Held<Info> again = newInfo();
  require((readText(again, text) == ZOL::kSuccess) == info->isValid(), "valid stays valid");
  require(show(again) == show(info), "a description is the same again");
  require(membersOf(written(again)) == membersOf(text), "a description is written as before");
  const Held<Info> copy = newInfo();
  if (copy->copyFrom(info) == ZOL::kSuccess) {
    require(show(copy) == show(info), "a copy, which goes by the text, says the same");
  }
}

// The entries that a caller is given are copies of the caller's own.
inline void requireOwnEntries(Info* info) {
  const Held<InfoList> entries = newInfoList();
  require(inside(info).relatedResList(entries.get()) == ZOL::kSuccess, "entries are listed");
  for (long long i = 0; i < entries->size(); ++i) {
    require(entries->at(i)->refCount() == 1, "an entry has the list's reference alone");
    require(entries->at(i)->isValid(), "an entry is valid");
  }
}

#endif  // KYDATASTRUCTURE_FUZZ_REWRITTEN_DESCRIPTION_H_
