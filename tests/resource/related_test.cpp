// The related descriptions: copies that go in, copies that come out.

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "resource/description.h"
#include "resource/foreign_info.h"

namespace {

std::string relatedTo(const Held<Info>& info) {
  const Held<InfoList> related = newInfoList();
  EXPECT_EQ(inside(info).relatedResList(related.get()), 0);
  return showBy(*related, [](Info* entry) { return show(entry); });
}

// The slugs alone: "b c".
std::string slugsRelatedTo(const Held<Info>& info) {
  const Held<InfoList> related = newInfoList();
  EXPECT_EQ(inside(info).relatedResList(related.get()), 0);
  std::string slugs;
  for (long long i = 0; i < related->size(); ++i) {
    slugs += (i == 0 ? "" : " ") + std::string(inside(related->at(i)).stringValue("rsResSlug"));
  }
  return slugs;
}

Held<Info> withUserStrings(const std::string& slug, const std::vector<std::string>& values) {
  Held<Info> info = single(slug);
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (values[i] != "-") info->setUserString(kUserStringRows[i].key, values[i].c_str());
  }
  return info;
}

// Descriptions that can be no related entry, each for one reason.
std::vector<Held<Info>> unfitInfos() {
  std::vector<Held<Info>> unfit;
  unfit.push_back(newInfo());
  unfit.push_back(single(""));
  unfit.push_back(single("b", -1));
  for (const long long infoType : {0, 6, 101, 105, 1007}) {
    unfit.push_back(single("b"));
    inside(unfit.back()).setIntValue("rsResInfoType", infoType);
  }
  for (const long long custom : {1, -1, 2}) {
    unfit.push_back(single("b"));
    inside(unfit.back()).setIntValue("rsResIsCustom", custom);
  }
  return unfit;
}

TEST(RelatedRes, RefusesWhatIsNotValidOrTheUsersOwn) {
  for (const Held<Info>& unfit : unfitInfos()) {
    const Held<Info> info = single("a");
    inside(info).addRelatedRes(single("c").get());
    EXPECT_EQ(inside(info).addRelatedRes(unfit.get()), 1001) << show(unfit);
    EXPECT_EQ(inside(info).removeRelatedRes(unfit.get()), 1001) << show(unfit);
    EXPECT_EQ(slugsRelatedTo(info), "c") << show(unfit);
    EXPECT_EQ(unfit->refCount(), 1);
  }
  const Held<Info> info = single("a");
  EXPECT_EQ(inside(info).addRelatedRes(nullptr), 1001);
  EXPECT_EQ(relatedTo(info), "[]");
}

TEST(RelatedRes, TakesAResourceThatIsMarkedAsNotTheUsersOwn) {
  const Held<Info> entry = single("b");
  inside(entry).setIntValue("rsResIsCustom", 0);
  inside(entry).setStringValue("rsResIsCustom", "1");
  const Held<Info> info = single("a");
  EXPECT_EQ(inside(info).addRelatedRes(entry.get()), 0);
}

TEST(RelatedRes, TakesAnyValidInfoType) {
  const Held<Info> pack = single("pack");
  inside(pack).setIntValue("rsResInfoType", 6);
  inside(pack).setIntValue("rsResPackId", 5);
  inside(pack).setStringValue("rsResPackSlug", "p");
  const Held<Info> stock(createZolResSerializeInfoFromCompletResInfo("{\"id\":42}", 101));
  const Held<Info> vcg(
      createZolResSerializeInfoFromCompletResInfo("{\"res_id\":9,\"res_type\":2}", 1007));
  const Held<Info> info = newInfo();
  EXPECT_EQ(inside(info).addRelatedRes(pack.get()), 0);
  EXPECT_EQ(inside(info).addRelatedRes(stock.get()), 0);
  EXPECT_EQ(inside(info).addRelatedRes(vcg.get()), 0);
  EXPECT_EQ(relatedTo(info), "[" + show(pack) + ", " + show(stock) + ", " + show(vcg) + "]");
}

TEST(RelatedRes, RefusesADescriptionThatDoesNotSurviveItsText) {
  // The pack's id is written only together with its slug.
  const Held<Info> pack = single("b");
  inside(pack).setIntValue("rsResInfoType", 6);
  inside(pack).setIntValue("rsResPackId", 5);
  ASSERT_TRUE(pack->isValid());
  // A type that is held as a text as well is written as that.
  const Held<Info> typed = single("b");
  inside(typed).setStringValue("rsResType", "3");
  ASSERT_TRUE(typed->isValid());
  const Held<Info> info = single("a");
  EXPECT_EQ(inside(info).addRelatedRes(pack.get()), 1001);
  EXPECT_EQ(inside(info).addRelatedRes(typed.get()), 1001);
  EXPECT_EQ(relatedTo(info), "[]");
}

TEST(RelatedRes, RefusesAForeignDescription) {
  const Held<Info> inner = single("b");
  ForeignInfo foreign(inner.get());
  ASSERT_TRUE(foreign.isValid());
  const Held<Info> info = single("a");
  inside(info).addRelatedRes(single("c").get());
  EXPECT_EQ(inside(info).addRelatedRes(&foreign), 1001);
  EXPECT_EQ(inside(info).removeRelatedRes(&foreign), 1001);
  EXPECT_EQ(slugsRelatedTo(info), "c");
  EXPECT_EQ(foreign.writings, 0);
}

// What answers as one of the library's is taken for one.
TEST(RelatedRes, TakesADescriptionThatForwardsTheQueryOfItsName) {
  const Held<Info> inner = single("b");
  ForwardingInfo forwarding(inner.get());
  const Held<Info> info = single("a");
  EXPECT_EQ(inside(info).addRelatedRes(&forwarding), 0);
  EXPECT_EQ(forwarding.writings, 1);
  EXPECT_EQ(slugsRelatedTo(info), "b");
  EXPECT_EQ(inside(info).removeRelatedRes(&forwarding), 0);
  EXPECT_EQ(slugsRelatedTo(info), "");
  EXPECT_EQ(inner->refCount(), 1);
}

// Whether it is the user's own can be asked at the internal interface alone.
TEST(RelatedRes, RefusesADescriptionThatCannotBeAskedWhetherItIsTheUsersOwn) {
  class ClosedInfo final : public StandIn {
   public:
    using StandIn::StandIn;
    void* queryInterface(const char* name) override {
      const bool isOurs = std::strcmp(name, "ZolResSerializeInfo") == 0;
      return isOurs ? inner_->queryInterface(name) : nullptr;
    }
  };
  const Held<Info> inner = single("b");
  ClosedInfo closed(inner.get());
  ASSERT_TRUE(closed.isValid());
  const Held<Info> info = single("a");
  inside(info).addRelatedRes(inner.get());
  EXPECT_EQ(inside(info).addRelatedRes(&closed), 1001);
  EXPECT_EQ(inside(info).removeRelatedRes(&closed), 1001);
  EXPECT_EQ(slugsRelatedTo(info), "b");
}

// A valid one of the library's has a slug; one that forwards may say what it likes.
TEST(RelatedRes, RefusesADescriptionWithoutASlug) {
  class ValidInfo final : public StandIn {
   public:
    using StandIn::StandIn;
    void* queryInterface(const char* name) override { return inner_->queryInterface(name); }
    bool isValid() override { return true; }
  };
  const Held<Info> inner = newInfo();
  inside(inner).setIntValue("rsResId", 4);
  ValidInfo nameless(inner.get());
  const Held<Info> info = single("a");
  inside(info).addRelatedRes(single("b").get());
  EXPECT_EQ(inside(info).addRelatedRes(&nameless), 1001);
  EXPECT_EQ(nameless.writings, 0) << "refused ahead of the copy";
  EXPECT_EQ(inside(info).removeRelatedRes(&nameless), 1001);
  EXPECT_EQ(slugsRelatedTo(info), "b");
}

TEST(RelatedRes, HoldsACopyAndNeverTheCallersObject) {
  const Held<Info> entry = single("b");
  const Held<Info> info = single("a");
  EXPECT_EQ(inside(info).addRelatedRes(entry.get()), 0);
  EXPECT_EQ(inside(info).addRelatedRes(entry.get()), 0);
  EXPECT_EQ(slugsRelatedTo(info), "b b");
  EXPECT_EQ(entry->refCount(), 1);
  inside(entry).setStringValue("rsResSlug", "changed");
  EXPECT_EQ(slugsRelatedTo(info), "b b");
}

TEST(RelatedRes, HoldsAllThatTheTextCarries) {
  const Held<Info> entry = newInfo();
  readText(entry,
           "{\"x\":1,\"name\":\"b\",\"res_type\":4,\"sale_mode\":2,\"id\":9,"
           "\"user_string\":{\"customRsMd5\":\"m\"},"
           "\"related_res_list\":[{\"rsResSlug\":\"c\",\"rsResType\":5}]}");
  inside(entry).setHostData(5);
  const Held<Info> info = single("a");
  EXPECT_EQ(inside(info).addRelatedRes(entry.get()), 0);
  const Held<InfoList> related = newInfoList();
  EXPECT_EQ(inside(info).relatedResList(related.get()), 0);
  EXPECT_EQ(show(related->at(0)), show(entry));
  EXPECT_EQ(written(related->at(0)).substr(0, 7), "{\"x\":1,");
  EXPECT_EQ(inside(related->at(0)).hostData(), 0u);
}

TEST(RelatedRes, KeepsTheOrderAndEveryDouble) {
  const Held<Info> info = single("a");
  for (const char* const slug : {"c", "b", "c", "a", "b"}) {
    EXPECT_EQ(inside(info).addRelatedRes(single(slug).get()), 0);
  }
  EXPECT_EQ(slugsRelatedTo(info), "c b c a b");
  EXPECT_EQ(inside(info).addRelatedRes(info.get()), 0);
  EXPECT_EQ(slugsRelatedTo(info), "c b c a b a");
}

TEST(RelatedRes, ThatIsTheDescriptionItselfIsACopyAsItWas) {
  const Held<Info> info = single("a");
  EXPECT_EQ(inside(info).addRelatedRes(info.get()), 0);
  EXPECT_EQ(relatedTo(info), "[" + show(single("a")) + "]");
  EXPECT_EQ(inside(info).removeRelatedRes(info.get()), 0);
  EXPECT_EQ(relatedTo(info), "[]");
}

// On purpose the slugs are not compared.
TEST(RelatedRes, RemovesAllEntriesWithTheSameUserStrings) {
  const Held<Info> info = single("a");
  inside(info).addRelatedRes(single("b").get());
  inside(info).addRelatedRes(single("c", 8).get());
  EXPECT_EQ(inside(info).removeRelatedRes(single("b").get()), 0);
  EXPECT_EQ(slugsRelatedTo(info), "");
  EXPECT_TRUE(inside(info).intValue("rsResType") == 3 && !info->isEmpty());

  inside(info).addRelatedRes(single("b").get());
  inside(info).addRelatedRes(single("c").get());
  EXPECT_EQ(inside(info).removeRelatedRes(single("neither").get()), 0);
  EXPECT_EQ(slugsRelatedTo(info), "");
}

TEST(RelatedRes, ComparesEachOfTheFourUserStrings) {
  const std::vector<std::vector<std::string>> sets = {
      {"-", "-", "-", "-"}, {"u", "-", "-", "-"},  {"-", "u", "-", "-"},    {"-", "-", "u", "-"},
      {"-", "-", "-", "u"}, {"u", "u", "u", "u"},  {"u", "u", "u", "v"},    {"v", "u", "u", "u"},
      {"U", "-", "-", "-"}, {"ux", "-", "-", "-"}, {"\x80", "-", "-", "-"}, {"\x7F", "-", "-", "-"},
  };
  for (std::size_t gone = 0; gone < sets.size(); ++gone) {
    const Held<Info> info = single("a");
    std::string expected;
    for (std::size_t i = 0; i < sets.size(); ++i) {
      const std::string slug = "e" + std::to_string(i);
      inside(info).addRelatedRes(withUserStrings(slug, sets[i]).get());
      if (i != gone) expected += (expected.empty() ? "" : " ") + slug;
    }
    EXPECT_EQ(inside(info).removeRelatedRes(withUserStrings("other", sets[gone]).get()), 0);
    EXPECT_EQ(slugsRelatedTo(info), expected);
    // None left that matches: no error.
    EXPECT_EQ(inside(info).removeRelatedRes(withUserStrings("other", sets[gone]).get()), 0);
    EXPECT_EQ(slugsRelatedTo(info), expected);
  }
}

TEST(RelatedRes, TakesAnEmptyUserStringForNone) {
  const Held<Info> info = single("a");
  inside(info).addRelatedRes(withUserStrings("b", {"", "-", "", "-"}).get());
  inside(info).addRelatedRes(withUserStrings("c", {"-", "-", "-", "-"}).get());
  EXPECT_EQ(inside(info).removeRelatedRes(withUserStrings("d", {"-", "", "-", "-"}).get()), 0);
  EXPECT_EQ(slugsRelatedTo(info), "");
}

TEST(RelatedRes, KeepsTheOrderOfWhatStays) {
  const Held<Info> info = single("a");
  const struct {
    const char* slug;
    const char* userString;
  } entries[] = {{"1", "x"}, {"2", "y"}, {"3", "x"}, {"4", "x"},
                 {"5", "y"}, {"6", "z"}, {"7", "x"}};
  for (const auto& entry : entries) {
    inside(info).addRelatedRes(withUserStrings(entry.slug, {"-", entry.userString}).get());
  }
  EXPECT_EQ(inside(info).removeRelatedRes(withUserStrings("b", {"-", "x"}).get()), 0);
  EXPECT_EQ(slugsRelatedTo(info), "2 5 6");
}

TEST(RelatedRes, OfNullRemovesAll) {
  const Held<Info> info = single("a");
  EXPECT_EQ(inside(info).removeRelatedRes(nullptr), 0);
  inside(info).addRelatedRes(withUserStrings("b", {"u"}).get());
  inside(info).addRelatedRes(single("c").get());
  EXPECT_EQ(inside(info).removeRelatedRes(nullptr), 0);
  EXPECT_EQ(relatedTo(info), "[]");
}

TEST(RelatedResList, AddsBehindWhatIsInTheList) {
  const Held<Info> info = single("a");
  inside(info).addRelatedRes(single("b").get());
  inside(info).addRelatedRes(single("c").get());
  const Held<InfoList> out = newInfoList();
  const Held<Info> first = single("first");
  out->add(first.get());
  EXPECT_EQ(inside(info).relatedResList(out.get()), 0);
  EXPECT_EQ(inside(info).relatedResList(out.get()), 0);
  std::string slugs;
  for (long long i = 0; i < out->size(); ++i) {
    slugs += inside(out->at(i)).stringValue("rsResSlug");
    slugs += ' ';
  }
  EXPECT_EQ(slugs, "first b c b c ");
  EXPECT_EQ(out->at(0), first.get());
}

TEST(RelatedResList, OfNoEntriesIsNoError) {
  const Held<InfoList> out = newInfoList();
  EXPECT_EQ(inside(newInfo()).relatedResList(out.get()), 0);
  EXPECT_EQ(out->size(), 0);
  EXPECT_EQ(inside(newInfo()).relatedResList(nullptr), 1001);
  const Held<Info> info = single("a");
  inside(info).addRelatedRes(single("b").get());
  EXPECT_EQ(inside(info).relatedResList(nullptr), 1001);
}

TEST(RelatedResList, GivesCopiesWithOneReferenceEach) {
  const Held<Info> info = single("a");
  inside(info).addRelatedRes(single("b").get());
  const Held<InfoList> one = newInfoList();
  const Held<InfoList> other = newInfoList();
  EXPECT_EQ(inside(info).relatedResList(one.get()), 0);
  EXPECT_EQ(inside(info).relatedResList(other.get()), 0);
  EXPECT_NE(one->at(0), other->at(0));
  EXPECT_EQ(one->at(0)->refCount(), 1);
  inside(one->at(0)).setStringValue("rsResSlug", "changed");
  EXPECT_EQ(slugsRelatedTo(info), "b");
  EXPECT_STREQ(inside(other->at(0)).stringValue("rsResSlug"), "b");
}

TEST(RelatedResList, OutlivesTheDescription) {
  const Held<InfoList> out = newInfoList();
  {
    const Held<Info> info = single("a");
    inside(info).addRelatedRes(single("b").get());
    EXPECT_EQ(inside(info).relatedResList(out.get()), 0);
  }
  EXPECT_EQ(show(out->at(0)), show(single("b")));
}

// With some members twice, the moves of the group rule bring another "pack_info" to
// the front each time this text is written, and the third has no pack id: the entry
// is valid, and the copy of it is not.
TEST(RelatedResList, StopsAtACopyThatFailsAndKeepsWhatItAdded) {
  const Held<Info> entry = newInfo();
  ASSERT_EQ(readText(entry,
                     "{\"infoType\":6,\"name\":\"b\",\"res_type\":3,"
                     "\"pack_info\":[{\"pack_id\":5,\"pack_name\":\"p\"}],"
                     "\"user_string\":{},\"pack_info\":[],"
                     "\"extension_info\":[{\"openFx_sub_element_type\":1}],"
                     "\"related_res_list\":[{\"rsResSlug\":\"r\",\"rsResType\":1}]}"),
            0);
  const Held<Info> info = single("a");
  EXPECT_EQ(inside(info).addRelatedRes(single("first").get()), 0);
  EXPECT_EQ(inside(info).addRelatedRes(entry.get()), 0);
  EXPECT_EQ(inside(info).addRelatedRes(single("last").get()), 0);
  const Held<InfoList> out = newInfoList();
  EXPECT_EQ(inside(info).relatedResList(out.get()), 1001);
  ASSERT_EQ(out->size(), 1);
  EXPECT_EQ(show(out->at(0)), show(single("first")));
}

}  // namespace
