// The text holder, here for the rooms that make one for themselves.

#ifndef KYDATASTRUCTURE_FRAME_ZOL_STRING_H_
#define KYDATASTRUCTURE_FRAME_ZOL_STRING_H_

#include <KyDataStructure/frame.h>

#include <cstring>
#include <string>

#include "frame/counted.h"

namespace ZOL {

class ZolString final : public Counted<IZolString, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IZolString, IDmBaseObj>(this, name);
  }

  int setText(const char* text, long long length) override {
    if (!text) return kRefused;
    text_.assign(text, bytesOf(text, length));
    return kSuccess;
  }

  const char* text() override { return text_.c_str(); }

  int appendText(const char* text, long long length) override {
    if (!text) return kRefused;
    text_.append(text, bytesOf(text, length));
    return kSuccess;
  }

  bool equals(const char* text) override { return text && sameText(text_.c_str(), text); }
  unsigned long long length() override { return text_.size(); }

 private:
  static std::size_t bytesOf(const char* text, long long length) {
    return length > 0 ? static_cast<std::size_t>(length) : std::strlen(text);
  }

  std::string text_;
};

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_FRAME_ZOL_STRING_H_
