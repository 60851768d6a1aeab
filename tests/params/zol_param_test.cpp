// The parameter store.

#include <KyDataStructure/params.h>
#include <gtest/gtest.h>

#include <cstring>

#include "support/held.h"
#include "support/show.h"

namespace {

ZOL::_Property textRecord(const char* text) {
  ZOL::_Property record{};
  record.present = 1;
  record.type = ZOL::kPropertyText;
  std::strncpy(record.value, text, sizeof(record.value) - 1);
  return record;
}

Held<ZOL::IZolParam> newStore() { return Held<ZOL::IZolParam>(createZolParam()); }

std::string keysOf(ZOL::IZolParam& store) {
  const Held<ZOL::ZOLPCharList> keys(createZOLPCharList());
  keys->add("what was here before");
  EXPECT_EQ(store.getKeys(keys.get()), 0);
  return show(keys.get());
}

}  // namespace

TEST(ParameterStore, ANewOneHoldsNoKeyAndEmptiesTheListForThem) {
  const auto store = newStore();
  EXPECT_EQ(keysOf(*store), "[]");
  ZOL::_Property out{};
  EXPECT_EQ(store->getProperty("a", &out), 1001);
  EXPECT_EQ(store->getProperty("", &out), 1001);
}

TEST(ParameterStore, TakesTheEmptyKey) {
  const auto store = newStore();
  EXPECT_EQ(store->setProperty("", textRecord("x")), 0);
  EXPECT_EQ(keysOf(*store), R"([""])");
}

TEST(ParameterStore, KeepsTheLastRecordOfAKeyWithAllItsBytes) {
  const auto store = newStore();
  EXPECT_EQ(store->setProperty("a", textRecord("first")), 0);
  ZOL::_Property odd;
  std::memset(&odd, 0xA5, sizeof(odd));  // of a type that the store has never seen
  EXPECT_EQ(store->setProperty("a", odd), 0);
  EXPECT_EQ(keysOf(*store), R"(["a"])");
  ZOL::_Property out{};
  EXPECT_EQ(store->getProperty("a", &out), 0);
  EXPECT_EQ(std::memcmp(&out, &odd, sizeof(out)), 0);
}

TEST(ParameterStore, GivesItsKeysAscendingByUnsignedBytes) {
  const auto store = newStore();
  for (const char* key : {"\x80", "a", "B", "aa", "\xff", "z"}) {
    store->setProperty(key, textRecord(key));
  }
  EXPECT_EQ(keysOf(*store), "[\"B\", \"a\", \"aa\", \"z\", \"\x80\", \"\xff\"]");
}

TEST(ParameterStore, LeavesTheCallersRecordByteForByteForAnAbsentKey) {
  const auto store = newStore();
  store->setProperty("a", textRecord("x"));
  ZOL::_Property out;
  std::memset(&out, 0x5A, sizeof(out));
  const ZOL::_Property before = out;
  EXPECT_EQ(store->getProperty("b", &out), 1001);
  EXPECT_EQ(store->getProperty(nullptr, &out), 1001);
  EXPECT_EQ(std::memcmp(&out, &before, sizeof(out)), 0);
}

TEST(ParameterStore, RefusesNullKeysAndANullList) {
  const auto store = newStore();
  EXPECT_EQ(store->setProperty(nullptr, textRecord("x")), 1001);
  EXPECT_EQ(store->getKeys(nullptr), 1001);
  EXPECT_EQ(keysOf(*store), "[]");
}

TEST(ParameterStore, ItsNameIsEmptyUntilSetAndRefusesNull) {
  const auto store = newStore();
  auto* const inside = ZOL::query<ZOL::IZolParamInternal>(store.get());
  ASSERT_NE(inside, nullptr);
  EXPECT_STREQ(inside->paramName(), "");
  EXPECT_EQ(inside->setParamName("glow"), 0);
  EXPECT_EQ(inside->setParamName(nullptr), 1001);
  EXPECT_STREQ(inside->paramName(), "glow");
}

TEST(ParameterStore, ItsTwoPlaceholdersRefuseInEveryState) {
  const auto store = newStore();
  auto* const inside = ZOL::query<ZOL::IZolParamInternal>(store.get());
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(inside->internalOperation3(), 1001);
    EXPECT_EQ(inside->internalOperation4(), 1001);
    store->setProperty("a", textRecord("x"));
    inside->setParamName("n");
  }
}
