// A string object of a caller's own, which remembers how it was called.

#ifndef KYDATASTRUCTURE_TESTS_RESOURCE_FOREIGN_TEXT_H_
#define KYDATASTRUCTURE_TESTS_RESOURCE_FOREIGN_TEXT_H_

#include <KyDataStructure/frame.h>

#include <string>

// Lives on the stack: its counter answers and ends nothing.
class ForeignText final : public ZOL::IZolString {
 public:
  explicit ForeignText(std::string bytes = "") : bytes_(std::move(bytes)) {}

  int addRef() override { return 1; }
  int release() override { return 1; }
  int refCount() override { return 1; }
  ZOL::IReleaseHook* releaseHook() override { return nullptr; }
  void setReleaseHook(ZOL::IReleaseHook*) override {}
  void* queryInterface(const char*) override { return nullptr; }

  int setText(const char* text, long long length) override {
    calls += "setText(" + std::string(text) + ", " + std::to_string(length) + ")";
    bytes_ = text;
    return ZOL::kSuccess;
  }
  const char* text() override { return bytes_.c_str(); }
  int appendText(const char*, long long) override {
    calls += "appendText";
    return ZOL::kSuccess;
  }
  bool equals(const char* text) override { return text && bytes_ == text; }
  unsigned long long length() override { return bytes_.size(); }

  std::string calls;

 private:
  std::string bytes_;
};

#endif  // KYDATASTRUCTURE_TESTS_RESOURCE_FOREIGN_TEXT_H_
