// A string object of a caller's own making, which remembers how it was called.

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_FOREIGN_STRING_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_FOREIGN_STRING_H_

#include <KyDataStructure/frame.h>

#include <string>
#include <vector>

// Lives on the stack: its counter answers and ends nothing. Holds exactly its bytes:
// there is no zero behind the last. setText() answers `result` and takes nothing when
// that is not kSuccess.
class ForeignString final : public ZOL::IZolString {
 public:
  explicit ForeignString(const std::string& bytes = "") { take(bytes); }
  virtual ~ForeignString() = default;

  int addRef() override { return 2; }
  int release() override { return 1; }
  int refCount() override { return 1; }
  ZOL::IReleaseHook* releaseHook() override { return nullptr; }
  void setReleaseHook(ZOL::IReleaseHook*) override {}
  void* queryInterface(const char*) override { return nullptr; }

  int setText(const char* text, long long length) override {
    calls += "setText(" + std::string(text) + ", " + std::to_string(length) + ")";
    if (result == ZOL::kSuccess) take(text);
    return result;
  }
  const char* text() override { return bytes_.data(); }
  int appendText(const char*, long long) override {
    calls += "appendText";
    return ZOL::kRefused;
  }
  bool equals(const char* text) override { return text && bytes() == text; }
  unsigned long long length() override { return bytes_.size(); }

  std::string bytes() const { return std::string(bytes_.begin(), bytes_.end()); }

  int result = ZOL::kSuccess;
  std::string calls;

 private:
  void take(const std::string& bytes) {
    bytes_.assign(bytes.begin(), bytes.end());
    bytes_.shrink_to_fit();
  }

  std::vector<char> bytes_;
};

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_FOREIGN_STRING_H_
