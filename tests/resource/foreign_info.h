// Descriptions that are not the library's.

#ifndef KYDATASTRUCTURE_TESTS_RESOURCE_FOREIGN_INFO_H_
#define KYDATASTRUCTURE_TESTS_RESOURCE_FOREIGN_INFO_H_

#include <KyDataStructure/resource.h>

#include <cstring>
#include <string>

// Stands before a description of the library and passes on what it is asked, but for
// the query of its names. Lives on the stack: its counter answers and ends nothing.
class StandIn : public ZOL::IZolResSerializeInfo {
 public:
  explicit StandIn(ZOL::IZolResSerializeInfo* inner) : inner_(inner) {}

  int addRef() override { return 1; }
  int release() override { return 1; }
  int refCount() override { return 1; }
  ZOL::IReleaseHook* releaseHook() override { return nullptr; }
  void setReleaseHook(ZOL::IReleaseHook*) override {}
  void* queryInterface(const char* name) override {
    return std::strcmp(name, interfaceName) == 0 ? this : nullptr;
  }

  int setFromCompletResInfo(ZOL::IZolString* text, int infoType) override {
    return inner_->setFromCompletResInfo(text, infoType);
  }
  bool isValid() override { return inner_->isValid(); }
  int setFromBuffer(ZOL::IZolString* text) override { return inner_->setFromBuffer(text); }
  int toBuffer(ZOL::IZolString* out) override {
    ++writings;
    return inner_->toBuffer(out);
  }
  int getProperty(const char* key, ZOL::_Property* out) override {
    return inner_->getProperty(key, out);
  }
  int setProperty(const char* key, const ZOL::_Property* value) override {
    return inner_->setProperty(key, value);
  }
  int copyFrom(ZOL::IZolResSerializeInfo* other) override { return inner_->copyFrom(other); }
  const char* uniqueKey() override { return inner_->uniqueKey(); }
  const char* userString(const char* key) override { return inner_->userString(key); }
  int setUserString(const char* key, const char* value) override {
    return inner_->setUserString(key, value);
  }
  bool isEmpty() override { return inner_->isEmpty(); }

  int writings = 0;

 protected:
  ~StandIn() = default;

  ZOL::IZolResSerializeInfo* const inner_;
};

// Answers the name of its interface alone.
class ForeignInfo final : public StandIn {
 public:
  using StandIn::StandIn;
};

// Passes the query on as well, and so answers as a description of the library.
class ForwardingInfo final : public StandIn {
 public:
  using StandIn::StandIn;
  void* queryInterface(const char* name) override { return inner_->queryInterface(name); }
};

// Writes one text, whatever it is.
class WritingInfo final : public StandIn {
 public:
  WritingInfo(ZOL::IZolResSerializeInfo* inner, std::string text, int result)
      : StandIn(inner), text_(std::move(text)), result_(result) {}
  int toBuffer(ZOL::IZolString* out) override {
    out->setText(text_.data(), static_cast<long long>(text_.size()));
    return result_;
  }

 private:
  const std::string text_;
  const int result_;
};

#endif  // KYDATASTRUCTURE_TESTS_RESOURCE_FOREIGN_INFO_H_
