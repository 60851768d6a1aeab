// The holders of text and bytes.

#include <KyDataStructure/frame.h>

#include "frame/bytes.h"
#include "frame/counted.h"
#include "frame/handle.h"
#include "frame/zol_string.h"

namespace ZOL {
namespace {

class ZolPChar final : public Counted<IZolPChar, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IZolPChar, IDmBaseObj>(this, name);
  }

  int setData(const char* data, int size) override {
    // Gone in every case, but not before it was copied: `data` may lie in it.
    const Bytes<char> old = std::move(data_);
    size_ = 0;
    if (!data) return kSuccess;
    if (size == 0) return kRefused;  // on purpose: only null clears
    data_ = copyBytes<char>(data, static_cast<std::uint64_t>(size), 0);
    size_ = size;
    return kSuccess;
  }

  const char* data() override { return data_.get(); }
  int size() override { return size_; }

 private:
  Bytes<char> data_;
  int size_ = 0;
};

class DataSizeBuffer final : public Counted<IDataSizeBuffer, RefCnt<void>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IDataSizeBuffer, IDmBaseObj>(this, name);
  }

  unsigned char* data() override { return data_.get(); }
  unsigned long long size() override { return size_; }

  int setData(const void* data, unsigned long long size) override {
    const Bytes<unsigned char> old = std::move(data_);
    size_ = 0;
    data_ = copyBytes<unsigned char>(data, size, 1);
    size_ = size;
    return kSuccess;
  }

 private:
  Bytes<unsigned char> data_;
  unsigned long long size_ = 0;
};

}  // namespace
}  // namespace ZOL

ZOL::IZolString* createZolString() { return ZOL::makeObject<ZOL::ZolString>(); }
ZOL::IZolPChar* createZolPChar() { return ZOL::makeObject<ZOL::ZolPChar>(); }
ZOL::IDataSizeBuffer* createDataSizeBuffer() { return ZOL::makeObject<ZOL::DataSizeBuffer>(); }
