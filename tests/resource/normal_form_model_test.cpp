// The normal form against a plain second implementation: maps for what is held, a row
// of members for the text, one member of it replaced or moved at a time.

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "resource/description.h"
#include "support/json_tree.h"

namespace {

using Texts = std::map<std::string, std::string>;

struct Entry {
  std::string slug;
  long long type;
  Texts userStrings;
};

class Model {
 public:
  int read(const Json& text) {
    const auto slug = textOf(memberOf(text, "name"));
    const auto id = integerOf(memberOf(text, "id"));
    if (slug.value_or("").empty() && id.value_or(0) == 0) return 1001;
    source_ = text;
    if (const Json* const pack = firstOf(memberOf(text, "pack_info"))) {
      readInteger(*pack, "pack_id", "rsResPackId");
      readText(*pack, "pack_name", "rsResPackSlug");
    }
    if (const Json* const extension = firstOf(memberOf(text, "extension_info"))) {
      readInteger(*extension, "openFx_sub_element_type", "rsResOpenFxSubType");
    }
    const Json* const list = memberOf(text, "related_res_list");
    if (list && list->kind == Json::Kind::array) {
      related.clear();
      for (const Json& element : list->values) readEntry(element);
    }
    if (const Json* const users = memberOf(text, "user_string")) readUsers(*users, userStrings);
    for (const PropertyRow& row : kPropertyRows) {
      if (row.travels == Travels::asInteger) readInteger(text, row.jsonName, row.key);
      if (row.travels == Travels::asText) readText(text, row.jsonName, row.key);
    }
    const long long type = integer("rsResType");
    if (integer("rsResInfoType") == 0 && type != -1 && type != 25 && type != 39 &&
        !heldText("rsResSlug").empty()) {
      integers["rsResInfoType"] = integer("rsResPackId") >= 1 ? 6 : 7;
    }
    return isValid() ? 0 : 1001;
  }

  std::string write() const {
    if (heldText("rsResSlug").empty() && integer("rsResId") == 0) return "refused";
    Json text = source_;
    for (const auto& [key, value] : integers) put(text, key, Json::number(value));
    for (const auto& [key, value] : texts) put(text, key, Json::string(value));
    if (!related.empty()) {
      Json list = Json::array();
      for (const Entry& entry : related) {
        Json users = Json::object();
        for (const UserStringRow& row : kUserStringRows) {
          const auto found = entry.userStrings.find(row.key);
          users.with(row.jsonName,
                     Json::string(found == entry.userStrings.end() ? "" : found->second));
        }
        list.values.push_back(Json::object()
                                  .with("rsResSlug", Json::string(entry.slug))
                                  .with("rsResType", Json::number(entry.type))
                                  .with("user_string", users));
      }
      putGroup(text, "related_res_list", list);
    }
    const auto extension = integers.find("rsResOpenFxSubType");
    if (extension != integers.end()) {
      putGroup(text, "extension_info",
               Json::array({Json::object().with("openFx_sub_element_type",
                                                Json::number(extension->second))}));
    }
    const auto packId = integers.find("rsResPackId");
    const auto packSlug = texts.find("rsResPackSlug");
    if (packId != integers.end() && packSlug != texts.end()) {
      putGroup(text, "pack_info",
               Json::array({Json::object()
                                .with("pack_id", Json::number(packId->second))
                                .with("pack_name", Json::string(packSlug->second))}));
    }
    Json users = Json::object();
    for (const UserStringRow& row : kUserStringRows) {
      const auto found = userStrings.find(row.key);
      if (found != userStrings.end()) users.with(row.jsonName, Json::string(found->second));
    }
    putGroup(text, "user_string", users);
    return compact(text);
  }

  bool isValid() const {
    static const std::vector<long long> stock = {101, 102, 103, 104, 106, 107, 108, 109, 112, 113};
    if (heldText("rsResSlug").empty() || integer("rsResType") == -1) return false;
    const long long infoType = integer("rsResInfoType");
    if (infoType == 6) return integer("rsResType") != 0 && integer("rsResPackId") >= 1;
    if (infoType == 1007) return integer("rsResId") >= 1;
    for (const long long code : stock) {
      if (code == infoType) return !heldText("rsResStockMediaStrId").empty();
    }
    return infoType == 7;
  }

  std::map<std::string, long long> integers;
  Texts texts;
  Texts userStrings;
  std::vector<Entry> related;

 private:
  static const Json* firstOf(const Json* group) {
    const bool any = group && group->kind == Json::Kind::array && !group->values.empty();
    return any ? &group->values.front() : nullptr;
  }

  long long integer(const std::string& key) const {
    const auto found = integers.find(key);
    if (found != integers.end()) return found->second;
    return key == "rsResType" ? -1 : 0;
  }

  std::string heldText(const std::string& key) const {
    const auto found = texts.find(key);
    return found == texts.end() ? "" : found->second;
  }

  void readInteger(const Json& object, const char* name, const char* key) {
    if (const auto number = integerOf(memberOf(object, name))) integers[key] = *number;
  }

  void readText(const Json& object, const char* name, const char* key) {
    if (const auto text = textOf(memberOf(object, name))) texts[key] = *text;
  }

  static void readUsers(const Json& object, Texts& users) {
    for (const UserStringRow& row : kUserStringRows) {
      if (const auto text = textOf(memberOf(object, row.jsonName))) users[row.key] = *text;
    }
  }

  void readEntry(const Json& element) {
    const auto slug = textOf(memberOf(element, "rsResSlug"));
    const auto type = integerOf(memberOf(element, "rsResType"));
    if (slug.value_or("").empty() || type.value_or(-1) == -1) return;
    Entry entry{*slug, *type, {}};
    if (const Json* const users = memberOf(element, "user_string")) {
      readUsers(*users, entry.userStrings);
    }
    related.push_back(entry);
  }

  static void put(Json& text, const std::string& key, const Json& value) {
    for (const PropertyRow& row : kPropertyRows) {
      if (key != row.key || row.travels == Travels::inGroup) continue;
      for (std::size_t i = 0; i < text.names.size(); ++i) {
        if (text.names[i] != row.jsonName) continue;
        text.values[i] = value;
        return;
      }
      text.with(row.jsonName, value);
    }
  }

  static void putGroup(Json& text, const std::string& name, const Json& value) {
    for (std::size_t i = 0; i < text.names.size(); ++i) {
      if (text.names[i] != name) continue;
      text.names[i] = text.names.back();
      text.values[i] = Json(text.values.back());
      text.names.pop_back();
      text.values.pop_back();
      break;
    }
    text.with(name, value);
  }

  Json source_ = Json::object();
};

// Documents with members that the library knows and others, in any order, of right
// and wrong types, some of them twice.
class Documents {
 public:
  explicit Documents(unsigned seed) : dice_(seed) {}

  Json next() {
    Json text = Json::object();
    if (!dice_.one(8)) text.with("name", Json::string(dice_.from(slugs())));
    if (!dice_.one(4)) text.with("res_type", Json::number(dice_.from(types())));
    for (std::size_t count = dice_.below(9); count > 0; --count) {
      const std::string name = dice_.from(names());
      text.with(name, dice_.one(5) ? anyValue(dice_, 3) : fitting(name));
    }
    for (std::size_t i = text.names.size(); i > 1; --i) {
      const std::size_t other = dice_.below(i);
      std::swap(text.names[i - 1], text.names[other]);
      std::swap(text.values[i - 1], text.values[other]);
    }
    return text;
  }

  std::string spelt(const Json& text) {
    return noise(dice_) + noisy(text, dice_) + (dice_.one(4) ? "garbage" : noise(dice_));
  }

  Dice& dice() { return dice_; }
  static const std::vector<std::string>& slugs() {
    static const std::vector<std::string> slugs = {"a",      "b",           "a-slug",
                                                   "",       "caf\xC3\xA9", "\"q\"",
                                                   "line\n", "\xFF\x80",    std::string("x\0y", 3)};
    return slugs;
  }

 private:
  static const std::vector<long long>& types() {
    static const std::vector<long long> types = {3, 3, 4, 0, -1, 25, 39, 167, 5000000000};
    return types;
  }

  static const std::vector<std::string>& names() {
    static const std::vector<std::string> names = [] {
      std::vector<std::string> all = {"x", "y", "x", "z", "", "slug", "Name", "rsResSlug"};
      for (const PropertyRow& row : kPropertyRows) all.push_back(row.jsonName);
      for (int i = 0; i < 4; ++i) {
        for (const char* const group :
             {"user_string", "pack_info", "extension_info", "related_res_list"}) {
          all.push_back(group);
        }
      }
      return all;
    }();
    return names;
  }

  Json users() {
    Json users = Json::object();
    for (const UserStringRow& row : kUserStringRows) {
      if (dice_.one(2)) users.with(row.jsonName, Json::string(dice_.from(slugs())));
      if (dice_.one(8)) users.with(row.jsonName, anyValue(dice_, 1));
    }
    return users;
  }

  // A value of the type that belongs there.
  Json fitting(const std::string& name) {
    static const std::vector<long long> infoTypes = {0, 0, 6, 7, 101, 106, 112, 1007, 105};
    static const std::vector<long long> numbers = {0, 1, -1, 5, 42, 9223372036854775807};
    if (name == "user_string") return users();
    if (name == "infoType") return Json::number(dice_.from(infoTypes));
    if (name == "res_type") return Json::number(dice_.from(types()));
    if (name == "related_res_list") return relatedList();
    if (name == "pack_info" || name == "extension_info") {
      Json element = Json::object();
      if (!dice_.one(4)) element.with("pack_id", Json::number(dice_.from(numbers)));
      if (!dice_.one(4)) element.with("pack_name", Json::string(dice_.from(slugs())));
      if (!dice_.one(4)) {
        element.with("openFx_sub_element_type", Json::number(dice_.from(numbers)));
      }
      Json group = Json::array();
      if (!dice_.one(8)) group.values.push_back(element);
      if (dice_.one(4)) group.values.push_back(anyValue(dice_, 2));
      return group;
    }
    for (const PropertyRow& row : kPropertyRows) {
      if (name != row.jsonName) continue;
      return row.travels == Travels::asText ? Json::string(dice_.from(slugs()))
                                            : Json::number(dice_.from(numbers));
    }
    return anyValue(dice_, 3);
  }

  Json relatedList() {
    Json list = Json::array();
    for (std::size_t count = dice_.below(4); count > 0; --count) {
      if (dice_.one(6)) {
        list.values.push_back(anyValue(dice_, 2));
        continue;
      }
      Json element = Json::object();
      if (!dice_.one(8)) element.with("rsResSlug", Json::string(dice_.from(slugs())));
      if (!dice_.one(8)) element.with("rsResType", Json::number(dice_.from(types())));
      if (!dice_.one(4)) element.with("user_string", users());
      if (dice_.one(4)) element.with("x", anyValue(dice_, 2));
      list.values.push_back(element);
    }
    return list;
  }

  Dice dice_;
};

// A setter now and then, on both.
void changeBoth(Dice& dice, const Held<Info>& info, Model& model) {
  for (std::size_t count = dice.below(4); count > 0; --count) {
    const PropertyRow& row = kPropertyRows[dice.below(26)];
    const UserStringRow& user = kUserStringRows[dice.below(4)];
    const auto number = static_cast<long long>(dice.below(9));
    const std::string text = dice.from(Documents::slugs()).c_str();
    switch (dice.below(5)) {
      case 0:
      case 1:
        ASSERT_EQ(inside(info).setIntValue(row.key, number), 0);
        model.integers[row.key] = number;
        break;
      case 2:
        ASSERT_EQ(inside(info).setStringValue(row.key, text.c_str()), 0);
        model.texts[row.key] = text;
        break;
      case 3:
        ASSERT_EQ(info->setUserString(user.key, text.c_str()), 0);
        model.userStrings[user.key] = text;
        break;
      default:
        ASSERT_EQ(inside(info).removeRelatedRes(nullptr), 0);
        model.related.clear();
        break;
    }
  }
}

TEST(NormalFormModel, AgreesOnGeneratedDocuments) {
  Documents documents(4711);
  int valid = 0;
  int refused = 0;
  for (int i = 0; i < 600; ++i) {
    const Held<Info> info = newInfo();
    Model model;
    std::string texts;
    for (std::size_t count = 1 + documents.dice().below(3); count > 0; --count) {
      const Json document = documents.next();
      const std::string text = documents.spelt(document);
      texts += "\n" + escaped(text);
      const int expected = model.read(document);
      ASSERT_EQ(readText(info, text), expected) << texts;
      ++(expected == 0 ? valid : refused);
      ASSERT_EQ(info->isValid(), model.isValid()) << texts;
      ASSERT_EQ(escaped(written(info)), escaped(model.write())) << texts;
      changeBoth(documents.dice(), info, model);
      ASSERT_EQ(escaped(written(info)), escaped(model.write())) << texts;
    }
  }
  EXPECT_GT(valid, 200);
  EXPECT_GT(refused, 200);
}

// A copy is what reading the written text gives.
TEST(NormalFormModel, AgreesOnCopiesOfGeneratedDocuments) {
  Documents documents(815);
  int copies = 0;
  for (int i = 0; i < 400; ++i) {
    const Held<Info> first = newInfo();
    readText(first, documents.spelt(documents.next()));
    const std::string text = written(first);
    if (text == "refused") continue;
    const Held<Info> copy = newInfo();
    const int result = copy->copyFrom(first.get());
    const Held<Info> read = newInfo();
    EXPECT_EQ(readText(read, text), result) << text;
    EXPECT_EQ(show(copy), show(read)) << text;
    EXPECT_EQ(written(copy), written(read)) << text;
    ++copies;
  }
  EXPECT_GT(copies, 200);
}

}  // namespace
