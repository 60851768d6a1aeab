// The forms in which a class takes its interfaces and the counting mixin. Whatever
// the form, a caller sees one object, one count, and the views that it asks for.

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "frame/counted.h"
#include "frame/handle.h"
#include "frame/ref_cnt.h"
#include "support/heap_watch.h"

namespace {

class IPlain : public ZOL::IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IPlain";

  virtual int number() = 0;

 protected:
  ~IPlain() = default;
};

// An interface that stands alone, without the counter operations.
class IWriter {
 public:
  static constexpr const char* interfaceName = "IWriter";

  virtual void setNumber(int number) = 0;

 protected:
  ~IWriter() = default;
};

class IRooted : public virtual ZOL::IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IRooted";

  virtual int number() = 0;

 protected:
  ~IRooted() = default;
};

class IRootedWriter : public virtual ZOL::IDmBaseObj {
 public:
  static constexpr const char* interfaceName = "IRootedWriter";

  virtual void setNumber(int number) = 0;

 protected:
  ~IRootedWriter() = default;
};

class IWide : public virtual IRooted {
 public:
  static constexpr const char* interfaceName = "IWide";

  virtual int width() = 0;

 protected:
  ~IWide() = default;
};

// No such writer: for the forms without one.
class INone {
 public:
  [[maybe_unused]] static constexpr const char* interfaceName = "INone";
};

std::string diary;

// What the forms have in common: a number, on the heap so that its end shows.
class Number {
 public:
  ~Number() { diary += "gone "; }
  int get() const { return std::stoi(text_); }
  void set(int number) { text_ = std::to_string(number); }

 private:
  std::string text_ = "00000000000000000000000000000000000042";
};

class Plain final : public ZOL::Counted<IPlain, ZOL::RefCnt<void>> {
 public:
  using Main = IPlain;
  using Writer = INone;
  void* queryInterface(const char* name) override {
    return ZOL::answer<IPlain, ZOL::IDmBaseObj>(this, name);
  }
  int number() override { return number_.get(); }

 private:
  Number number_;
};

class PlainWithWriter final : public ZOL::Counted<IPlain, IWriter, ZOL::RefCnt<void>> {
 public:
  using Main = IPlain;
  using Writer = IWriter;
  void* queryInterface(const char* name) override {
    return ZOL::answer<IPlain, IWriter, ZOL::IDmBaseObj>(this, name);
  }
  int number() override { return number_.get(); }
  void setNumber(int number) override { number_.set(number); }

 private:
  Number number_;
};

class PlainWithWriterBehind final : public ZOL::Counted<IPlain, ZOL::RefCnt<void>, IWriter> {
 public:
  using Main = IPlain;
  using Writer = IWriter;
  void* queryInterface(const char* name) override {
    return ZOL::answer<IPlain, IWriter, ZOL::IDmBaseObj>(this, name);
  }
  int number() override { return number_.get(); }
  void setNumber(int number) override { number_.set(number); }

 private:
  Number number_;
};

class VirtualInterface : public ZOL::Counted<ZOL::RefCnt<void>, ZOL::Virtually<IRooted>> {
 public:
  using Main = IRooted;
  using Writer = INone;
  void* queryInterface(const char* name) override {
    return ZOL::answer<IRooted, ZOL::IDmBaseObj>(this, name);
  }
  int number() override { return number_.get(); }

 private:
  Number number_;
};

// Implements its base's interface and a wider one with the same object.
class WideVirtualInterface final : public VirtualInterface, public virtual IWide {
 public:
  using Main = IWide;
  using Writer = INone;
  void* queryInterface(const char* name) override {
    if (void* const own = ZOL::answer<IWide>(this, name)) return own;
    return VirtualInterface::queryInterface(name);
  }
  int width() override { return 7; }
};

class VirtualRoot final : public ZOL::Counted<IRooted, ZOL::RefCnt<void>> {
 public:
  using Main = IRooted;
  using Writer = INone;
  void* queryInterface(const char* name) override {
    return ZOL::answer<IRooted, ZOL::IDmBaseObj>(this, name);
  }
  int number() override { return number_.get(); }

 private:
  Number number_;
};

class VirtualRootWithWriter final : public ZOL::Counted<IRooted, IWriter, ZOL::RefCnt<void>> {
 public:
  using Main = IRooted;
  using Writer = IWriter;
  void* queryInterface(const char* name) override {
    return ZOL::answer<IRooted, IWriter, ZOL::IDmBaseObj>(this, name);
  }
  int number() override { return number_.get(); }
  void setNumber(int number) override { number_.set(number); }

 private:
  Number number_;
};

class VirtualRootWithRootedWriter final
    : public ZOL::Counted<IRooted, IRootedWriter, ZOL::RefCnt<void>> {
 public:
  using Main = IRooted;
  using Writer = IRootedWriter;
  void* queryInterface(const char* name) override {
    return ZOL::answer<IRooted, IRootedWriter, ZOL::IDmBaseObj>(this, name);
  }
  int number() override { return number_.get(); }
  void setNumber(int number) override { number_.set(number); }

 private:
  Number number_;
};

class VirtualMixin final
    : public ZOL::Counted<ZOL::Virtually<IRooted>, ZOL::Virtually<ZOL::RefCnt<void>>> {
 public:
  using Main = IRooted;
  using Writer = INone;
  void* queryInterface(const char* name) override {
    return ZOL::answer<IRooted, ZOL::IDmBaseObj>(this, name);
  }
  int number() override { return number_.get(); }

 private:
  Number number_;
};

// Looks at the object through its interface when the object is about to end.
template <class Interface>
class Witness final : public ZOL::IReleaseHook {
 public:
  explicit Witness(Interface* object) : object_(object) {}
  void onLastRelease() override { diary += "hook " + std::to_string(object_->number()) + " "; }

 private:
  Interface* const object_;
};

template <class Form>
class InheritanceForm : public testing::Test {
 protected:
  using Main = typename Form::Main;
  using Writer = typename Form::Writer;
  static constexpr bool kWritable = !std::is_same<Writer, INone>::value;

  void SetUp() override { diary.clear(); }
};

using Forms = testing::Types<Plain, PlainWithWriter, PlainWithWriterBehind, VirtualInterface,
                             WideVirtualInterface, VirtualRoot, VirtualRootWithWriter,
                             VirtualRootWithRootedWriter, VirtualMixin>;

// Names a case by the interface that its class implements.
struct MainInterface {
  template <class Form>
  static std::string GetName(int index) {
    return Form::Main::interfaceName + std::to_string(index);
  }
};
TYPED_TEST_SUITE(InheritanceForm, Forms, MainInterface);

TYPED_TEST(InheritanceForm, AnswersItsInterfacesByName) {
  TypeParam* const object = ZOL::makeObject<TypeParam>();
  typename TypeParam::Main* const main = object;
  ZOL::IDmBaseObj* const root = object;
  EXPECT_EQ(ZOL::query<typename TypeParam::Main>(root), main);
  EXPECT_EQ(ZOL::query<ZOL::IDmBaseObj>(main), root);
  EXPECT_EQ(main->queryInterface("IDmBaseObj"), root);
  EXPECT_EQ(root->queryInterface(""), nullptr);
  EXPECT_EQ(root->queryInterface("idmbaseobj"), nullptr);
  EXPECT_EQ(root->queryInterface("IDmDeepClonableObj"), nullptr);
  EXPECT_EQ(root->queryInterface("listData"), nullptr);
  EXPECT_EQ(root->queryInterface("INone"), nullptr);
  EXPECT_EQ(object->refCount(), 1) << "a query adds no reference";
  object->release();
}

TYPED_TEST(InheritanceForm, AnswersAViewThatWorks) {
  TypeParam* const object = ZOL::makeObject<TypeParam>();
  ZOL::IDmBaseObj* const root = object;
  EXPECT_EQ(ZOL::query<typename TypeParam::Main>(root)->number(), 42);
  if constexpr (TestFixture::kWritable) {
    auto* const writer = ZOL::query<typename TypeParam::Writer>(root);
    ASSERT_NE(writer, nullptr);
    EXPECT_EQ(writer, static_cast<typename TypeParam::Writer*>(object));
    writer->setNumber(43);
    EXPECT_EQ(ZOL::query<typename TypeParam::Main>(root)->number(), 43);
  }
  object->release();
}

TYPED_TEST(InheritanceForm, CountsThroughEveryView) {
  TypeParam* const object = ZOL::makeObject<TypeParam>();
  typename TypeParam::Main* const main = object;
  ZOL::IDmBaseObj* const root = object;
  ZOL::RefCnt<void>* const mixin = object;
  EXPECT_EQ(main->addRef(), 2);
  EXPECT_EQ(root->addRef(), 3);
  EXPECT_EQ(mixin->addRef(), 4);
  EXPECT_EQ(object->refCount(), 4);
  EXPECT_EQ(main->release(), 3);
  EXPECT_EQ(root->release(), 2);
  EXPECT_EQ(mixin->release(), 1);
  EXPECT_EQ(root->refCount(), 1);
  EXPECT_EQ(root->release(), 0);
}

TYPED_TEST(InheritanceForm, EndsOnceWithTheHookAheadOfItsDestructor) {
  const long long before = liveBlocks();
  TypeParam* const object = ZOL::makeObject<TypeParam>();
  Witness<typename TypeParam::Main> witness(object);
  ZOL::IDmBaseObj* const root = object;
  root->setReleaseHook(&witness);
  EXPECT_EQ(object->releaseHook(), &witness);
  EXPECT_EQ(root->release(), 0);
  EXPECT_EQ(diary, "hook 42 gone ");
  diary = std::string();
  EXPECT_EQ(liveBlocks(), before) << "object, number and counter block are gone";
}

TEST(WideForm, SharesOneInterfaceObjectWithItsBase) {
  auto* const object = ZOL::makeObject<WideVirtualInterface>();
  IWide* const wide = object;
  IRooted* const throughWide = wide;
  IRooted* const throughBase = static_cast<VirtualInterface*>(object);
  EXPECT_EQ(throughWide, throughBase);
  EXPECT_EQ(ZOL::query<IRooted>(wide), throughBase);
  EXPECT_EQ(wide->width(), 7);
  EXPECT_EQ(wide->number(), 42);
  object->release();
}

TEST(Query, OfNullIsNull) {
  EXPECT_EQ(ZOL::query<IPlain>(static_cast<ZOL::IDmBaseObj*>(nullptr)), nullptr);
}

}  // namespace
