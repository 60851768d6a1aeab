#include "ownership/by_hand.h"

#include <KyDataStructure/ref.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "support/counted_note.h"
#include "support/heap_watch.h"

namespace {

// A text in memory of the caller's, which is overwritten once the text was handed in.
class CallersText {
 public:
  ZOL::_ZolValueUnion inUnion() {
    ZOL::_ZolValueUnion value;
    value.text = text();
    return value;
  }
  const char* text() const { return memory_.c_str(); }

  void expectCopyIn(ZOL::ZolValue& value) {
    memory_.assign(memory_.size(), '#');
    EXPECT_STREQ(value.charValue(), "a text of some length, so that it is on the heap");
  }

 private:
  std::string memory_ = "a text of some length, so that it is on the heap";
};

// The other value is overwritten, and this one stays as it is.
void expectCopy(ZOL::ZolValue& copy, ZOL::ZolValue& other) {
  EXPECT_STREQ(copy.charValue(), "old");
  EXPECT_STREQ(other.charValue(), "old") << "the source stays whole";
  other.setValue("new");
  EXPECT_STREQ(copy.charValue(), "old");
}

using Memory = ZOL::ZOLAutoVoidPtrList;

// `put` puts one block into a list, which frees it at the end.
template <class Put>
void expectOwned(Put put) {
  const WatchedBlock block;
  auto list = ZOL::make<Memory>();
  EXPECT_EQ(put(*list, block.memory()), ZOL::kSuccess);
  EXPECT_EQ(block.timesFreed(), 0);
  list.reset();
  EXPECT_EQ(block.timesFreed(), 1);
}

// `put` puts the one block of another list into a list: both then free it.
template <class Put>
void expectOwnedByBoth(Put put) {
  const WatchedBlock block;
  auto other = ZOL::make<Memory>();
  auto list = ZOL::make<Memory>();
  other->add(block.memory());
  EXPECT_EQ(put(*list, other.get()), ZOL::kSuccess);
  EXPECT_EQ(other->refCount(), 1);
  list.reset();
  EXPECT_EQ(block.timesFreed(), 1);
  other.reset();
  EXPECT_EQ(block.timesFreed(), 2);
  list = ZOL::make<Memory>();
  EXPECT_EQ(put(*list, nullptr), ZOL::kRefused);
}

// What only looks at the blocks of a list frees none.
template <class Look>
void expectLent(Look look) {
  const WatchedBlock blocks[2];
  auto list = ZOL::make<Memory>();
  for (const WatchedBlock& block : blocks) list->add(block.memory());
  look(*list, blocks[0].memory());
  for (const WatchedBlock& block : blocks) EXPECT_EQ(block.timesFreed(), 0);
}

}  // namespace

const std::map<std::string, void (*)()>& drivesByHand() {
  static const std::map<std::string, void (*)()> drives = {
      {"IDmBaseObj: IReleaseHook* releaseHook()",
       [] {
         CountingHook hook;
         auto text = ZOL::make<ZOL::IZolString>();
         text->setReleaseHook(&hook);
         EXPECT_EQ(text->releaseHook(), &hook);
         EXPECT_EQ(text->releaseHook(), &hook) << "lent each time";
       }},
      {"IDmBaseObj: void setReleaseHook(IReleaseHook* hook)",
       [] {
         auto text = ZOL::make<ZOL::IZolString>();
         CountingHook forgotten;
         text->setReleaseHook(&forgotten);
         text->setReleaseHook(nullptr);
         text.reset();
         EXPECT_EQ(forgotten.calls, 0);
       }},
      {"IDmBaseObj: void* queryInterface(const char* name)",
       [] {
         const auto text = ZOL::make<ZOL::IZolString>();
         const std::string name = "IZolString";
         EXPECT_EQ(text->queryInterface(name.c_str()), text.get());
         EXPECT_EQ(text->refCount(), 1);
       }},
      {"ZolValue: ZolValue(const char* value)",
       [] {
         CallersText text;
         ZOL::ZolValue value(text.text());
         text.expectCopyIn(value);
         const char* const none = nullptr;
         EXPECT_STREQ(ZOL::ZolValue(none).charValue(), "");
       }},
      {"ZolValue: ZolValue(_ValueType type, _ZolValueUnion value)",
       [] {
         CallersText text;
         ZOL::ZolValue value(ZOL::kStringValue, text.inUnion());
         text.expectCopyIn(value);
       }},
      {"ZolValue: ZolValue(const ZolValue& other)",
       [] {
         ZOL::ZolValue other("old");
         ZOL::ZolValue copy(other);
         expectCopy(copy, other);
       }},
      {"ZolValue: ZolValue(ZolValue&& other)",
       [] {
         ZOL::ZolValue other("old");
         ZOL::ZolValue copy(std::move(other));
         expectCopy(copy, other);
       }},
      {"ZolValue: ZolValue& operator=(const ZolValue& other)",
       [] {
         ZOL::ZolValue other("old");
         ZOL::ZolValue copy;
         copy = other;
         expectCopy(copy, other);
       }},
      {"ZolValue: ZolValue& operator=(ZolValue&& other)",
       [] {
         ZOL::ZolValue other("old");
         ZOL::ZolValue copy;
         copy = std::move(other);
         expectCopy(copy, other);
       }},
      {"ZolValue: bool operator==(const ZolValue& other)",
       [] {
         ZOL::ZolValue value("old");
         ZOL::ZolValue other("old");
         EXPECT_TRUE(value == other);
         expectCopy(value, other);
       }},
      {"ZolValue: void setValue(const char* value)",
       [] {
         CallersText text;
         ZOL::ZolValue value;
         value.setValue(text.text());
         text.expectCopyIn(value);
         const char* const none = nullptr;
         value.setValue(none);
         EXPECT_STREQ(value.charValue(), "");
       }},
      {"ZolValue: const char* charValue()",
       [] {
         ZOL::ZolValue value("old");
         const char* const lent = value.charValue();
         EXPECT_EQ(value.charValue(), lent) << "the value's own";
       }},
      {"ListInterface of raw memory: T at(long long index)",
       [] {
         expectLent([](Memory& list, void* block) {
           EXPECT_EQ(list.at(0), block);
           EXPECT_EQ(list.at(0), block);
         });
       }},
      {"ListInterface of raw memory: int add(T element)",
       [] { expectOwned([](Memory& list, void* block) { return list.add(block); }); }},
      {"ListInterface of raw memory: int insertAt(long long index, T element)",
       [] {
         expectOwned([](Memory& list, void* block) {
           EXPECT_EQ(list.insertAt(1, nullptr), ZOL::kRefused);
           return list.insertAt(0, block);
         });
       }},
      {"ListInterface of raw memory: int setAt(long long index, T element)",
       [] {
         expectOwned([](Memory& list, void* block) {
           EXPECT_EQ(list.setAt(1, nullptr), ZOL::kRefused);
           return list.setAt(0, block);
         });
       }},
      {"ListInterface of raw memory: int assign(Self* other)",
       [] { expectOwnedByBoth([](Memory& list, Memory* other) { return list.assign(other); }); }},
      {"ListInterface of raw memory: int insertListAt(long long index, Self* other)",
       [] {
         expectOwnedByBoth([](Memory& list, Memory* other) { return list.insertListAt(0, other); });
       }},
      {"ListInterface of raw memory: int sort(Compare compare)",
       [] {
         expectLent([](Memory& list, void* /*block*/) {
           EXPECT_EQ(list.sort([](void*, void*) { return false; }), ZOL::kSuccess);
           EXPECT_EQ(list.sort(nullptr), ZOL::kRefused);
         });
       }},
      {"ListInterface of raw memory: long long find(T key, Match match)",
       [] {
         expectLent([](Memory& list, void* block) {
           EXPECT_EQ(list.find(block, [](void* a, void* b) { return a == b; }), 0);
           EXPECT_EQ(list.find(block, nullptr), -1);
         });
       }},
  };
  return drives;
}
