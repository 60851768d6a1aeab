// Descriptions that are shared between threads. Each test lets its threads start
// together and asserts what must hold all the time and what must be so in the end.

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "resource/description.h"

namespace {

constexpr int kRounds = 2000;

// Runs all of them at once, each on a thread of its own, to their ends.
void together(const std::vector<std::function<void()>>& works) {
  std::atomic<std::size_t> ready{0};
  std::vector<std::thread> threads;
  threads.reserve(works.size());
  for (const auto& work : works) {
    threads.emplace_back([&] {
      ready.fetch_add(1);
      while (ready.load() < works.size()) std::this_thread::yield();
      work();
    });
  }
  for (std::thread& thread : threads) thread.join();
}

std::function<void()> rounds(std::function<void(int round)> work, int count = kRounds) {
  return [work, count] {
    for (int round = 0; round < count; ++round) work(round);
  };
}

// Texts of one length, each of one letter: a mixture of two would show.
std::string allOf(char letter) { return std::string(700, letter); }

bool isOneOf(const std::string& text, const std::string& letters) {
  return text.size() == 700 && letters.find(text[0]) != std::string::npos && text == allOf(text[0]);
}

std::string textProperty(Info* info, const char* key) {
  ZOL::_Property property{};
  info->getProperty(key, &property);
  return property.value;
}

TEST(Threads, SetAndGetWholeTexts) {
  const Held<Info> info = newInfo();
  inside(info).setStringValue("rsResOriginSlug", allOf('a').c_str());
  info->setUserString("rsiusCustomRsMd5", "m");
  const auto setAll = [&](char letter) {
    return rounds([&info, letter](int round) {
      const std::string text = allOf(static_cast<char>(letter + round % 3));
      EXPECT_EQ(inside(info).setStringValue("rsResOriginSlug", text.c_str()), 0);
      const ZOL::_Property property = ::textProperty(text);
      EXPECT_EQ(info->setProperty("rsResOriginSlug", &property), 0);
    });
  };
  int wrong = 0;
  together({setAll('a'), setAll('d'), rounds([&](int) {
              wrong += !isOneOf(textProperty(info.get(), "rsResOriginSlug"), "abcdef");
            })});
  EXPECT_EQ(wrong, 0);
  EXPECT_TRUE(isOneOf(inside(info).stringValue("rsResOriginSlug"), "abcdef"));
}

// The look-up is safe; what it lends is not to be read while somebody sets the key.
TEST(Threads, LookAKeyUpWhileItIsSet) {
  const Held<Info> info = single("a");
  int missing = 0;
  together({rounds([&](int round) {
              const std::string text = allOf(static_cast<char>('a' + round % 3));
              info->setUserString("rsiusCustomRsMd5", text.c_str());
              inside(info).setStringValue("rsResOriginSlug", text.c_str());
              inside(info).setIntValue("rsResOriginId", round);
            }),
            rounds([&](int) {
              missing += info->userString("rsiusCustomRsMd5") == nullptr;
              missing += inside(info).stringValue("rsResOriginSlug") == nullptr;
              missing += inside(info).intValue("rsResOriginId") < 0;
            })});
  EXPECT_EQ(missing, 0);
  EXPECT_EQ(inside(info).intValue("rsResOriginId"), kRounds - 1);
}

TEST(Threads, LoseNoPropertyThatOneOfThemSets) {
  const Held<Info> info = newInfo();
  std::vector<std::function<void()>> works;
  for (std::size_t first = 0; first < 4; ++first) {
    works.push_back(rounds(
        [&info, first](int round) {
          for (std::size_t i = first; i < 26; i += 4) {
            EXPECT_EQ(inside(info).setIntValue(kPropertyRows[i].key, round), 0);
            EXPECT_EQ(inside(info).intValue(kPropertyRows[i].key), round);
            EXPECT_EQ(inside(info).setStringValue(kPropertyRows[i].key, "text"), 0);
            EXPECT_STREQ(inside(info).stringValue(kPropertyRows[i].key), "text");
          }
          EXPECT_EQ(info->setUserString(kUserStringRows[first].key, "user"), 0);
          EXPECT_STREQ(info->userString(kUserStringRows[first].key), "user");
        },
        kRounds / 2));
  }
  together(works);
  std::string expected;
  for (const PropertyRow& row : kPropertyRows) {
    expected += std::string(row.key) + ": " + std::to_string(kRounds / 2 - 1) + " and \"text\", ";
  }
  for (const UserStringRow& row : kUserStringRows) {
    expected += std::string(row.key) + ": \"user\", ";
  }
  EXPECT_EQ(show(info), "{" + expected.substr(0, expected.size() - 2) + "}");
}

// A text is read under one lock and written under one: what is written is of one text.
TEST(Threads, ReadAndWriteWholeTexts) {
  const Held<Info> info = single("a");
  const auto textOf = [](const std::string& digit) {
    return "{\"x\":" + digit + ",\"sale_mode\":" + digit + ",\"source\":" + digit +
           ",\"resourceState\":" + digit + ",\"related_slug\":\"" + digit +
           "\",\"id\":5,\"res_type\":3,\"infoType\":7,\"related_res_list\":[{\"rsResSlug\":\"" +
           digit + "\",\"rsResType\":4}],\"user_string\":{\"customRsMd5\":\"" + digit + "\"}}";
  };
  ASSERT_EQ(readText(info, textOf("1")), 0);
  std::set<std::string> allowed;
  for (const char* const digit : {"1", "2"}) {
    const Held<Info> alone = single("a");
    readText(alone, textOf(digit));
    allowed.insert(written(alone));
  }
  int wrong = 0;
  together({rounds([&](int) { EXPECT_EQ(readText(info, textOf("1")), 0); }),
            rounds([&](int) { EXPECT_EQ(readText(info, textOf("2")), 0); }),
            rounds([&](int) { wrong += allowed.count(written(info)) == 0; })});
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(allowed.count(written(info)), 1u);
}

// The slug is read for the checks behind the lock as well, while others set it.
TEST(Threads, CheckADescriptionWhoseSlugChanges) {
  const Held<Info> info = single(allOf('a'));
  const std::string text = "{\"name\":\"" + allOf('b') + "\",\"res_type\":3}";
  const Held<Info> parent = single("parent");
  together({rounds([&](int) { EXPECT_EQ(readText(info, text), 0); }), rounds([&](int round) {
              const std::string slug = allOf(round % 2 == 0 ? 'c' : 'd');
              EXPECT_EQ(inside(info).setStringValue("rsResSlug", slug.c_str()), 0);
            }),
            rounds([&](int) { EXPECT_TRUE(info->isValid()); }), rounds([&](int) {
              EXPECT_EQ(inside(parent).addRelatedRes(info.get()), 0);
              EXPECT_EQ(inside(parent).removeRelatedRes(info.get()), 0);
              EXPECT_FALSE(parent->isEmpty());
            })});
  EXPECT_TRUE(isOneOf(inside(info).stringValue("rsResSlug"), "bcd"));
  const Held<InfoList> related = newInfoList();
  EXPECT_EQ(inside(parent).relatedResList(related.get()), 0);
  EXPECT_EQ(related->size(), 0);
}

// So are the user strings that entries are compared with.
TEST(Threads, RemoveADescriptionWhoseUserStringChanges) {
  const Held<Info> info = single("a");
  const Held<Info> parent = single("parent");
  inside(parent).addRelatedRes(single("stays").get());
  info->setUserString("rsiusCustomRsMd5", allOf('x').c_str());
  together({rounds([&](int round) {
              const std::string text = allOf(round % 2 == 0 ? 'a' : 'b');
              EXPECT_EQ(info->setUserString("rsiusCustomRsMd5", text.c_str()), 0);
            }),
            rounds([&](int) { EXPECT_EQ(inside(parent).removeRelatedRes(info.get()), 0); })});
  const Held<InfoList> related = newInfoList();
  EXPECT_EQ(inside(parent).relatedResList(related.get()), 0);
  EXPECT_EQ(related->size(), 1);
}

TEST(Threads, LoseNoRelatedEntry) {
  const Held<Info> parent = single("parent");
  std::vector<std::function<void()>> works;
  constexpr int kEntries = 150;
  for (int thread = 0; thread < 3; ++thread) {
    works.push_back(rounds(
        [&parent, thread](int round) {
          const Held<Info> entry = single(std::to_string(thread) + "-" + std::to_string(round));
          EXPECT_EQ(inside(parent).addRelatedRes(entry.get()), 0);
        },
        kEntries));
  }
  // And one that is added and goes again.
  works.push_back(rounds(
      [&parent](int) {
        const Held<Info> guest = single("guest");
        guest->setUserString("rsiusCustomRsMd5", "guest");
        EXPECT_EQ(inside(parent).addRelatedRes(guest.get()), 0);
        EXPECT_EQ(inside(parent).removeRelatedRes(guest.get()), 0);
      },
      kEntries));
  together(works);
  const Held<InfoList> related = newInfoList();
  EXPECT_EQ(inside(parent).relatedResList(related.get()), 0);
  std::set<std::string> slugs;
  std::vector<int> last(3, -1);
  for (long long i = 0; i < related->size(); ++i) {
    const std::string slug = inside(related->at(i)).stringValue("rsResSlug");
    slugs.insert(slug);
    const auto thread = static_cast<std::size_t>(slug[0] - '0');
    const int round = std::stoi(slug.substr(2));
    EXPECT_GT(round, last.at(thread)) << "in the order in which each thread added them";
    last.at(thread) = round;
  }
  EXPECT_EQ(related->size(), 3 * kEntries);
  EXPECT_EQ(slugs.size(), 3u * kEntries);
}

// Everything at once on one description.
TEST(Threads, DoAllThingsWithOneDescription) {
  const Held<Info> info = single("a");
  const Held<Info> entry = single("entry");
  const std::string text =
      "{\"x\":1,\"id\":5,\"res_type\":3,\"infoType\":7,\"sale_mode\":2,\"related_res_list\":"
      "[{\"rsResSlug\":\"b\",\"rsResType\":4}],\"user_string\":{\"customRsMd5\":\"m\"}}";
  together({
      rounds([&](int round) { EXPECT_EQ(inside(info).setIntValue("rsResState", round), 0); }),
      rounds([&](int) { EXPECT_EQ(readText(info, text), 0); }, kRounds / 4),
      rounds(
          [&](int) {
            const std::string now = written(info);
            const Held<Info> back(createZolResSerializeInfoFromBuffer(now.c_str()));
            EXPECT_NE(back.get(), nullptr) << now;
          },
          kRounds / 10),
      rounds(
          [&](int round) {
            EXPECT_EQ(inside(info).addRelatedRes(entry.get()), 0);
            Info* const gone = round % 2 == 0 ? entry.get() : nullptr;
            EXPECT_EQ(inside(info).removeRelatedRes(gone), 0);
          },
          kRounds / 4),
      rounds(
          [&](int) {
            const Held<InfoList> related = newInfoList();
            EXPECT_EQ(inside(info).relatedResList(related.get()), 0);
            for (long long i = 0; i < related->size(); ++i) {
              EXPECT_TRUE(related->at(i)->isValid());
            }
          },
          kRounds / 20),
      rounds(
          [&](int round) {
            info->addRef();
            EXPECT_EQ(info->setUserString("rsiusVST3PluginName", std::to_string(round).c_str()), 0);
            EXPECT_EQ(readRecord(info, "{\"resource_origin_id\":" + std::to_string(round) + "}", 7),
                      0);
            info->release();
          },
          kRounds / 4),
  });
  EXPECT_EQ(inside(info).removeRelatedRes(nullptr), 0);
  EXPECT_EQ(show(info),
            "{rsResId: 5, rsResInfoType: 7, rsResOriginId: " + std::to_string(kRounds / 4 - 1) +
                ", rsResSaleMode: 2, rsResSlug: \"a\", rsResState: " + std::to_string(kRounds - 1) +
                ", rsResType: 3, rsiusCustomRsMd5: \"m\", rsiusVST3PluginName: \"" +
                std::to_string(kRounds / 4 - 1) + "\"}");
  EXPECT_EQ(info->refCount(), 1);
  EXPECT_EQ(entry->refCount(), 1);
}

TEST(Threads, CopyTwoDescriptionsFromEachOther) {
  const Held<Info> one = single(allOf('a'));
  const Held<Info> two = single(allOf('b'));
  one->setUserString("rsiusCustomRsMd5", "one");
  const auto copyAndRelate = [](const Held<Info>& to, const Held<Info>& from) {
    return rounds(
        [&to, &from](int) {
          EXPECT_EQ(to->copyFrom(from.get()), 0);
          EXPECT_EQ(inside(to).addRelatedRes(from.get()), 0);
          EXPECT_EQ(inside(to).addRelatedRes(to.get()), 0);
          EXPECT_EQ(readText(to, "{\"id\":5,\"related_res_list\":[]}"), 0);
        },
        kRounds / 10);
  };
  together({copyAndRelate(one, two), copyAndRelate(two, one)});
  for (const Held<Info>* const info : {&one, &two}) {
    EXPECT_TRUE((*info)->isValid());
    EXPECT_TRUE(isOneOf(inside(*info).stringValue("rsResSlug"), "ab"));
    EXPECT_EQ((*info)->refCount(), 1);
    EXPECT_EQ(inside(*info).removeRelatedRes(nullptr), 0);
  }
}

// Each is asked for its user strings while the other is being looked through.
TEST(Threads, RemoveTwoDescriptionsFromEachOther) {
  const Held<Info> one = single("one");
  const Held<Info> two = single("two");
  const auto relateAndRemove = [](const Held<Info>& to, const Held<Info>& other) {
    return rounds([&to, &other](int) {
      EXPECT_EQ(inside(to).addRelatedRes(other.get()), 0);
      EXPECT_EQ(inside(to).removeRelatedRes(other.get()), 0);
    });
  };
  together({relateAndRemove(one, two), relateAndRemove(two, one)});
  EXPECT_EQ(show(one), show(single("one")));
  EXPECT_EQ(show(two), show(single("two")));
}

// Multiples of it have the same upper and lower half, up to the highest round.
constexpr std::uintptr_t kHalves = (std::uintptr_t{1} << (4 * sizeof(std::uintptr_t))) + 1;
static_assert(kRounds <= kHalves);

TEST(Threads, AskWhetherItIsEmptyAndForTheHostsWordWithoutTheLock) {
  const Held<Info> info = newInfo();
  std::atomic<bool> set{false};
  int emptyAgain = 0;
  int wrongWords = 0;
  std::uintptr_t largest = 0;
  together({rounds([&](int round) {
              inside(info).setIntValue("rsResState", round);
              set = true;
              inside(info).setStringValue("rsResSlug", "a");
              info->setUserString("rsiusCustomRsMd5", "m");
            }),
            rounds([&](int round) {
              inside(info).setHostData(static_cast<std::uintptr_t>(round) * kHalves);
            }),
            rounds(
                [&](int) {
                  const bool before = set;
                  emptyAgain += before && info->isEmpty();
                  const std::uintptr_t word = inside(info).hostData();
                  wrongWords += word % kHalves != 0 || word < largest;
                  largest = word;
                },
                kRounds * 4)});
  EXPECT_EQ(emptyAgain, 0);
  EXPECT_EQ(wrongWords, 0);
  EXPECT_FALSE(info->isEmpty());
  EXPECT_EQ(inside(info).hostData(), std::uintptr_t{kRounds - 1} * kHalves);
}

TEST(Threads, AskWhetherItIsEmptyWhileEntriesComeAndGo) {
  const Held<Info> info = newInfo();
  const Held<Info> entry = single("a");
  together({rounds(
                [&](int) {
                  EXPECT_EQ(inside(info).addRelatedRes(entry.get()), 0);
                  EXPECT_EQ(inside(info).removeRelatedRes(nullptr), 0);
                },
                kRounds / 2),
            rounds([&](int) { info->isEmpty(); }, kRounds * 4)});
  EXPECT_TRUE(info->isEmpty());
}

TEST(Threads, MakeDescriptionsAtTheSameTime) {
  std::atomic<int> wrong{0};
  const auto make = rounds(
      [&wrong](int round) {
        const std::string id = std::to_string(round);
        const Held<Info> stock(
            createZolResSerializeInfoFromCompletResInfo(("{\"id\":" + id + "}").c_str(), 101));
        const Held<Info> back(createZolResSerializeInfoFromBuffer(written(stock).c_str()));
        wrong += back->uniqueKey() != "pixabay/" + id + "_res_type_25_info_type_101";
        wrong += inside(back).intValue("rsResSaleMode") != -1;
      },
      kRounds / 4);
  together({make, make, make, make});
  EXPECT_EQ(wrong, 0);
}

TEST(Threads, TurnTextsIntoListsAtTheSameTime) {
  const Held<ZOL::ZOLPCharList> texts(createZOLPCharList());
  for (int i = 0; i < 200; ++i) {
    texts->add(("{\"name\":\"" + std::to_string(i % 50) + "\",\"res_type\":3}").c_str());
  }
  std::atomic<int> wrong{0};
  const auto turn = rounds(
      [&](int) {
        const Held<InfoList> out = newInfoList();
        wrong += resInfoStr2SerializeList(texts.get(), out.get()) != 0;
        wrong += out->size() != 50;
      },
      5);
  together({turn, turn, turn, turn});
  EXPECT_EQ(wrong, 0);
}

TEST(Threads, CountReferencesOfOneDescription) {
  const Held<Info> info = single("a");
  const auto count = rounds([&](int) {
    info->addRef();
    info->addRef();
    info->release();
    info->release();
  });
  together({count, count, count, count});
  EXPECT_EQ(info->refCount(), 1);
}

}  // namespace
