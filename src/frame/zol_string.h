// The text holder, here for the rooms that make one for themselves.

#ifndef KYDATASTRUCTURE_FRAME_ZOL_STRING_H_
#define KYDATASTRUCTURE_FRAME_ZOL_STRING_H_

#include <KyDataStructure/frame.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <limits>
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
  // A length beyond what memory could hold stays one, for the string to throw at.
  static std::size_t bytesOf(const char* text, long long length) {
    if (length <= 0) return std::strlen(text);
    constexpr unsigned long long most = std::numeric_limits<std::size_t>::max();
    return static_cast<std::size_t>(std::min(static_cast<unsigned long long>(length), most));
  }

  std::string text_;
};

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_FRAME_ZOL_STRING_H_
