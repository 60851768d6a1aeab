// mergeFrom stands in no interface: it is the operation behind the last one of
// IZolResSerializeInfo, and reached by its place.

#include <gtest/gtest.h>

#include <string>

#include "resource/description.h"
#include "resource/foreign_info.h"

// Not in the unnamed namespace: there a compiler sees that nobody implements it.
class MergingInfo : public ZOL::IZolResSerializeInfo {
 public:
  virtual int mergeFrom(ZOL::IZolResSerializeInfo* other) = 0;

 protected:
  ~MergingInfo() = default;
};

namespace {

// Not checked against the type that the object has in the library, which is another.
__attribute__((no_sanitize("undefined"))) int merge(Info* to, Info* from) {
  return static_cast<MergingInfo*>(to)->mergeFrom(from);
}

int merge(const Held<Info>& to, const Held<Info>& from) { return merge(to.get(), from.get()); }

TEST(Merge, AddsThePropertiesThatAreMissing) {
  const Held<Info> to = newInfo();
  inside(to).setIntValue("rsResState", 1);
  inside(to).setStringValue("rsResSlug", "to");
  inside(to).setStringValue("rsResRate", "of the other kind");
  const Held<Info> from = newInfo();
  inside(from).setIntValue("rsResState", 2);
  inside(from).setIntValue("rsResType", 3);
  inside(from).setIntValue("rsResRate", 4);
  inside(from).setIntValue("rsResSlug", 5);
  inside(from).setStringValue("rsResSlug", "from");
  inside(from).setStringValue("rsResOriginSlug", "origin");
  inside(from).setStringValue("rsResState", "state");
  const std::string before = show(from);
  EXPECT_EQ(merge(to, from), 0);
  EXPECT_EQ(show(to),
            "{rsResOriginSlug: \"origin\", rsResRate: 4 and \"of the other kind\", "
            "rsResSlug: 5 and \"to\", rsResState: 1 and \"state\", rsResType: 3}");
  EXPECT_EQ(show(from), before);
}

TEST(Merge, KeepsWhatIsHeldEvenIfItIsZeroOrEmpty) {
  const Held<Info> to = newInfo();
  inside(to).setIntValue("rsResState", 0);
  inside(to).setStringValue("rsResSlug", "");
  const Held<Info> from = newInfo();
  inside(from).setIntValue("rsResState", 2);
  inside(from).setStringValue("rsResSlug", "from");
  EXPECT_EQ(merge(to, from), 0);
  EXPECT_EQ(show(to), "{rsResSlug: \"\", rsResState: 0}");
}

TEST(Merge, RefusesWhatIsNoDescriptionOfTheLibrary) {
  const Held<Info> inner = single("b");
  ForeignInfo foreign(inner.get());
  ForwardingInfo forwarding(inner.get());
  const Held<Info> to = newInfo();
  EXPECT_EQ(merge(to.get(), nullptr), 1001);
  EXPECT_EQ(merge(to.get(), &foreign), 1001);
  EXPECT_EQ(merge(to.get(), &forwarding), 1001);
  EXPECT_TRUE(to->isEmpty());
}

TEST(Merge, WithItselfLeavesEverythingAsItWas) {
  const Held<Info> info = newInfo();
  ASSERT_EQ(readText(info,
                     "{\"x\":1,\"name\":\"a\",\"res_type\":3,"
                     "\"user_string\":{\"customRsMd5\":\"m\"},"
                     "\"related_res_list\":[{\"rsResSlug\":\"b\",\"rsResType\":4},"
                     "{\"rsResSlug\":\"b\",\"rsResType\":4}]}"),
            0);
  const std::string shown = show(info);
  const std::string text = written(info);
  EXPECT_EQ(merge(info, info), 0);
  EXPECT_EQ(show(info), shown);
  EXPECT_EQ(written(info), text);
  EXPECT_EQ(info->refCount(), 1);
}

// On purpose without the user strings and the host's word.
TEST(Merge, LeavesUserStringsAndTheHostsWordOut) {
  const Held<Info> to = newInfo();
  const Held<Info> from = single("b");
  from->setUserString("rsiusCustomRsMd5", "m");
  inside(from).setHostData(5);
  EXPECT_EQ(merge(to, from), 0);
  EXPECT_STREQ(to->userString("rsiusCustomRsMd5"), "");
  EXPECT_EQ(inside(to).hostData(), 0u);
  EXPECT_EQ(show(to), show(single("b")));
}

TEST(Merge, TakesTheRememberedTextOnlyIfThereIsNone) {
  const Held<Info> from = newInfo();
  readText(from, "{\"x\":1,\"name\":\"b\",\"res_type\":3}");
  const Held<Info> to = newInfo();
  EXPECT_EQ(merge(to, from), 0);
  EXPECT_EQ(written(to),
            "{\"x\":1,\"name\":\"b\",\"res_type\":3,\"infoType\":7,\"user_string\":{}}");
  const Held<Info> other = newInfo();
  readText(other, "{\"y\":1,\"name\":\"c\"}");
  EXPECT_EQ(merge(other, from), 0);
  EXPECT_EQ(written(other),
            "{\"y\":1,\"name\":\"c\",\"infoType\":7,\"res_type\":3,\"user_string\":{}}");
  const Held<Info> empty = newInfo();
  EXPECT_EQ(merge(to, empty), 0);
  EXPECT_EQ(written(to),
            "{\"x\":1,\"name\":\"b\",\"res_type\":3,\"infoType\":7,\"user_string\":{}}");
}

// Here, and only here, two lists hold the same objects: a second merge finds them.
TEST(Merge, SharesTheRelatedEntries) {
  const Held<Info> to = single("a");
  inside(to).addRelatedRes(single("own").get());
  const auto slugs = [](const Held<Info>& info) {
    const Held<InfoList> related = newInfoList();
    EXPECT_EQ(inside(info).relatedResList(related.get()), 0);
    return showBy(*related,
                  [](Info* entry) { return std::string(inside(entry).stringValue("rsResSlug")); });
  };
  {
    const Held<Info> from = single("b");
    inside(from).addRelatedRes(single("one").get());
    inside(from).addRelatedRes(single("one").get());
    EXPECT_EQ(merge(to, from), 0);
    EXPECT_EQ(slugs(to), "[own, one, one]");
    EXPECT_EQ(merge(to, from), 0);
    EXPECT_EQ(slugs(to), "[own, one, one]");
    EXPECT_EQ(merge(from, to), 0);
    EXPECT_EQ(slugs(from), "[one, one, own]");
    EXPECT_EQ(inside(from).removeRelatedRes(nullptr), 0);
    EXPECT_EQ(slugs(to), "[own, one, one]") << "each list has a reference of its own";
  }
  EXPECT_EQ(slugs(to), "[own, one, one]");
}

TEST(Merge, MakesADescriptionWithEntriesNotEmpty) {
  const Held<Info> from = newInfo();
  inside(from).addRelatedRes(single("one").get());
  const Held<Info> to = newInfo();
  EXPECT_EQ(merge(to, from), 0);
  EXPECT_FALSE(to->isEmpty());
}

}  // namespace
