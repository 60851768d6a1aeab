// The doors: descriptions and lists of them made from texts.

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "lists/foreign_list.h"
#include "resource/description.h"

namespace {

Held<Info> fromBuffer(const char* text) {
  return Held<Info>(createZolResSerializeInfoFromBuffer(text));
}

Held<Info> fromRecord(const char* text, int infoType) {
  return Held<Info>(createZolResSerializeInfoFromCompletResInfo(text, infoType));
}

Held<ZOL::ZOLPCharList> textList(const std::vector<std::string>& texts) {
  Held<ZOL::ZOLPCharList> list(createZOLPCharList());
  for (const std::string& text : texts) list->add(text.c_str());
  return list;
}

std::string slugsIn(InfoList& list) {
  return showBy(list,
                [](Info* info) { return std::string(inside(info).stringValue("rsResSlug")); });
}

TEST(EntryPoints, MakeAnEmptyDescriptionWithOneReference) {
  const Held<Info> one = newInfo();
  const Held<Info> other = newInfo();
  ASSERT_NE(one.get(), nullptr);
  EXPECT_NE(one.get(), other.get());
  EXPECT_EQ(one->refCount(), 1);
  EXPECT_TRUE(one->isEmpty());
}

TEST(EntryPoints, MakeAnEmptyListWithOneReference) {
  const Held<InfoList> list = newInfoList();
  ASSERT_NE(list.get(), nullptr);
  EXPECT_EQ(list->refCount(), 1);
  EXPECT_EQ(list->size(), 0);
  EXPECT_EQ(list->queryInterface("IZolResSerializeInfoList"), list.get());
  EXPECT_EQ(list->queryInterface("IDmBaseObj"), nullptr);
  EXPECT_EQ(list->queryInterface("listData"), nullptr);
}

TEST(EntryPoints, ShareDescriptionsBetweenLists) {
  const Held<InfoList> one = newInfoList();
  const Held<InfoList> other = newInfoList();
  const Held<Info> info = single("a");
  one->add(info.get());
  EXPECT_EQ(other->assign(one.get()), 0);
  EXPECT_EQ(other->at(0), info.get());
  EXPECT_EQ(info->refCount(), 3);
}

TEST(EntryPoints, MakeADescriptionOfANormalFormText) {
  EXPECT_EQ(show(fromBuffer("{\"name\":\"a\",\"res_type\":1}")),
            "{rsResInfoType: 7, rsResSlug: \"a\", rsResType: 1}");
  EXPECT_EQ(fromBuffer("{\"name\":\"a\",\"res_type\":1}")->refCount(), 1);
  for (const char* const text :
       {"", "null", "{}", "[]", "nonsense", "{\"name\":\"a\"}", "{\"id\":5,\"res_type\":1}",
        "{\"name\":\"a\",\"res_type\":25}", "{\"name\":\"a\",\"res_type\":1,\"infoType\":105}",
        "{\"slug\":\"a\",\"type\":1}", " ", "{\"name\":\"a\",\"res_type\":1"}) {
    EXPECT_EQ(show(fromBuffer(text)), "null") << text;
  }
  EXPECT_EQ(show(fromBuffer(nullptr)), "null");
}

TEST(EntryPoints, MakeADescriptionOfAFullRecord) {
  EXPECT_EQ(show(fromRecord("{\"slug\":\"a\",\"type\":1}", 7)),
            "{rsResInfoType: 7, rsResSlug: \"a\", rsResType: 1}");
  EXPECT_EQ(fromRecord("{\"id\":42}", 101)->refCount(), 1);
  for (const int infoType : {6, 7, 101, 106, 112, 1007}) {
    for (const char* const text : {"", "null", "{}", "[]", "nonsense", " ", "{\"name\":\"a\"}"}) {
      EXPECT_EQ(show(fromRecord(text, infoType)), "null") << infoType << ": " << text;
    }
    EXPECT_EQ(show(fromRecord(nullptr, infoType)), "null") << infoType;
  }
}

TEST(EntryPoints, MakeNothingOfAnInfoTypeThatReadsNothing) {
  for (const int infoType : {INT_MIN, -1, 0, 5, 105, 110, 111, INT_MAX}) {
    for (const char* const text :
         {"{\"slug\":\"a\",\"type\":1}", "{\"id\":42}",
          "{\"name\":\"a\",\"res_type\":1,\"infoType\":7}", "{\"res_id\":9,\"res_type\":2}"}) {
      EXPECT_EQ(show(fromRecord(text, infoType)), "null") << infoType;
    }
  }
}

TEST(EntryPoints, MakeAPackOfAFullRecordOnlyIfTheTextSaysSeven) {
  EXPECT_EQ(show(fromRecord("{\"slug\":\"a\",\"type\":1,\"pack_id\":\"12\"}", 6)), "null");
  EXPECT_EQ(show(fromRecord("{\"slug\":\"a\",\"type\":1,\"pack_id\":\"12\",\"infoType\":7}", 6)),
            "{rsResInfoType: 7, rsResPackId: \"12\", rsResSlug: \"a\", rsResType: 1}");
}

TEST(TextsToDescriptions, LeaveOutWhatIsMalformedAndWhatIsThere) {
  const Held<ZOL::ZOLPCharList> texts =
      textList({"{\"name\":\"a\",\"res_type\":1}", "malformed",
                "{\"x\":2,\"infoType\":7,\"res_type\":1,\"name\":\"a\"}"});
  const Held<InfoList> out = newInfoList();
  EXPECT_EQ(resInfoStr2SerializeList(texts.get(), out.get()), 0);
  ASSERT_EQ(out->size(), 1);
  EXPECT_EQ(written(out->at(0)),
            "{\"name\":\"a\",\"res_type\":1,\"infoType\":7,\"user_string\":{}}");
  EXPECT_EQ(out->at(0)->refCount(), 1);
}

TEST(TextsToDescriptions, AreAsManyAsTheListSaysEachTime) {
  class Shrinking final : public ForeignList<ZOL::ZOLPCharList> {
   public:
    explicit Shrinking(long long first) : said_(first) {}
    long long size() override { return std::exchange(said_, ForeignList::size()); }

   private:
    long long said_;
  };
  for (const long long first : {1LL << 50, -1LL}) {
    Shrinking texts(first);
    texts.add("{\"name\":\"a\",\"res_type\":1}");
    const Held<InfoList> out = newInfoList();
    EXPECT_EQ(resInfoStr2SerializeList(&texts, out.get()), 0);
    EXPECT_EQ(slugsIn(*out), first < 0 ? "[]" : "[a]");
  }
}

TEST(TextsToDescriptions, RefuseNull) {
  const Held<ZOL::ZOLPCharList> texts = textList({"{\"name\":\"a\",\"res_type\":1}"});
  const Held<InfoList> out = newInfoList();
  EXPECT_EQ(resInfoStr2SerializeList(nullptr, out.get()), 1001);
  EXPECT_EQ(resInfoStr2SerializeList(texts.get(), nullptr), 1001);
  EXPECT_EQ(resInfoStr2SerializeList(nullptr, nullptr), 1001);
  EXPECT_EQ(out->size(), 0);
}

TEST(TextsToDescriptions, AreNoneForNoTexts) {
  const Held<InfoList> out = newInfoList();
  EXPECT_EQ(resInfoStr2SerializeList(textList({}).get(), out.get()), 0);
  EXPECT_EQ(out->size(), 0);
  const Held<Info> info = single("a");
  out->add(info.get());
  EXPECT_EQ(resInfoStr2SerializeList(textList({}).get(), out.get()), 0);
  ASSERT_EQ(out->size(), 1);
  EXPECT_EQ(out->at(0), info.get());
}

TEST(TextsToDescriptions, DoNotLookAtWhatIsInTheList) {
  const Held<InfoList> out = newInfoList();
  out->add(single("a").get());
  out->add(nullptr);
  const Held<ZOL::ZOLPCharList> texts =
      textList({"{\"name\":\"a\",\"res_type\":3}", "{\"name\":\"a\",\"res_type\":3}"});
  EXPECT_EQ(resInfoStr2SerializeList(texts.get(), out.get()), 0);
  EXPECT_EQ(resInfoStr2SerializeList(texts.get(), out.get()), 0);
  ASSERT_EQ(out->size(), 4);
  EXPECT_EQ(show(out->at(2)), show(single("a")));
  EXPECT_EQ(show(out->at(3)), show(single("a")));
}

TEST(TextsToDescriptions, TakeSlugTypeAndInfoTypeForTheKey) {
  const Held<ZOL::ZOLPCharList> texts = textList({
      "{\"name\":\"c\",\"res_type\":1}",
      "{\"name\":\"a\",\"res_type\":1}",
      "{\"name\":\"a\",\"res_type\":2}",
      "{\"name\":\"a\",\"res_type\":1,\"pack_info\":[{\"pack_id\":1}]}",
      "{\"name\":\"a\",\"res_type\":1,\"infoType\":1007,\"id\":1}",
      "{\"name\":\"A\",\"res_type\":1}",
      "{\"name\":\"a\",\"res_type\":1,\"id\":7}",
      // The type is cut to 32 bits.
      "{\"name\":\"a\",\"res_type\":4294967297,\"id\":8}",
      "{\"name\":\"c\",\"res_type\":1,\"id\":9}",
      "{\"name\":\"b\",\"res_type\":1}",
  });
  const Held<InfoList> out = newInfoList();
  EXPECT_EQ(resInfoStr2SerializeList(texts.get(), out.get()), 0);
  EXPECT_EQ(slugsIn(*out), "[c, a, a, a, a, A, b]");
  EXPECT_EQ(showBy(*out, [](Info* info) { return show(inside(info).intValue("rsResInfoType")); }),
            "[7, 7, 7, 6, 1007, 7, 7]");
}

TEST(TextsToDescriptions, TakeTheNormalFormAlone) {
  const Held<ZOL::ZOLPCharList> texts = textList(
      {"{\"slug\":\"a\",\"type\":1}", "", "null", "{\"id\":42}", "[]", "{\"name\":\"a\"}"});
  const Held<InfoList> out = newInfoList();
  EXPECT_EQ(resInfoStr2SerializeList(texts.get(), out.get()), 0);
  EXPECT_EQ(out->size(), 0);
}

TEST(TextsToDescriptions, KeepTheOrderOfTwentyThousandTexts) {
  constexpr int kTexts = 20000;
  const Held<ZOL::ZOLPCharList> texts(createZOLPCharList());
  std::vector<std::string> expected;
  std::map<std::string, bool> known;
  unsigned state = 12345;
  for (int i = 0; i < kTexts; ++i) {
    state = state * 1103515245U + 12345U;
    if (state % 13 == 0) {
      texts->add("{\"name\":\"malformed\"");
      continue;
    }
    const std::string slug = "slug-" + std::to_string((state >> 8) % 9000);
    texts->add(("{\"id\":" + std::to_string(i) + ",\"name\":\"" + slug +
                "\",\"res_type\":3,\"infoType\":7}")
                   .c_str());
    if (known.emplace(slug, true).second) expected.push_back(slug + " " + std::to_string(i));
  }
  const Held<InfoList> out = newInfoList();
  EXPECT_EQ(resInfoStr2SerializeList(texts.get(), out.get()), 0);
  ASSERT_EQ(out->size(), static_cast<long long>(expected.size()));
  EXPECT_GT(expected.size(), 7000u);
  for (std::size_t i = 0; i < expected.size(); ++i) {
    auto& info = inside(out->at(static_cast<long long>(i)));
    ASSERT_EQ(
        info.stringValue("rsResSlug") + std::string(" ") + std::to_string(info.intValue("rsResId")),
        expected[i]);
  }
  EXPECT_EQ(texts->size(), kTexts);
}

// A list of a caller's own: each description that comes in puts another text behind
// the last one.
class GrowingList final : public InfoList {
 public:
  GrowingList(ZOL::ZOLPCharList* texts, int more) : texts_(texts), more_(more) {}

  int addRef() override { return 1; }
  int release() override { return 1; }
  int refCount() override { return 1; }
  ZOL::IReleaseHook* releaseHook() override { return nullptr; }
  void setReleaseHook(ZOL::IReleaseHook*) override {}
  void* queryInterface(const char*) override { return nullptr; }

  long long size() override { return 0; }
  Info* at(long long) override { return nullptr; }
  int add(Info* info) override {
    slugs += inside(info).stringValue("rsResSlug");
    if (more_-- > 0) {
      texts_->add(("{\"name\":\"more" + std::to_string(more_) + "\",\"res_type\":1}").c_str());
    }
    return ZOL::kSuccess;
  }
  int removeAt(long long) override { return ZOL::kRefused; }
  int insertAt(long long, Info*) override { return ZOL::kRefused; }
  int setAt(long long, Info*) override { return ZOL::kRefused; }
  int clear() override { return ZOL::kRefused; }
  int assign(InfoList*) override { return ZOL::kRefused; }
  int insertListAt(long long, InfoList*) override { return ZOL::kRefused; }
  int sort(Compare) override { return ZOL::kRefused; }
  long long find(Info*, Match) override { return -1; }

  std::string slugs;

 private:
  ZOL::ZOLPCharList* const texts_;
  int more_;
};

TEST(TextsToDescriptions, AskForTheNumberOfTextsEachTime) {
  const Held<ZOL::ZOLPCharList> texts = textList({"{\"name\":\"first \",\"res_type\":1}"});
  GrowingList out(texts.get(), 3);
  EXPECT_EQ(resInfoStr2SerializeList(texts.get(), &out), 0);
  EXPECT_EQ(out.slugs, "first more2more1more0");
}

}  // namespace
