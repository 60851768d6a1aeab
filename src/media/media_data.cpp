// Byte blocks with dimensions. The block is always the object's own copy.

#include <KyDataStructure/media.h>

#include <utility>

#include "frame/bytes.h"
#include "frame/counted.h"
#include "frame/handle.h"

namespace ZOL {
namespace {

class ZolMediaData : public Counted<RefCnt<void>, Virtually<IZolMediaData>> {
 public:
  void* queryInterface(const char* name) override {
    return answer<IZolMediaData, IDmBaseObj>(this, name);
  }

  long long tag() final { return tag_; }
  void setTag(long long tag) final { tag_ = tag; }
  unsigned int width() final { return width_; }
  unsigned int height() final { return height_; }
  void setDimensions(unsigned int width, unsigned int height) final {
    width_ = width;
    height_ = height;
  }
  int dataSize() final { return size_; }
  unsigned char* data() final { return bytes_.get(); }

  // On purpose not the fill below: nothing is refused, and tag and dimensions stay.
  void setData(int size, const unsigned char* data) final { replaceBytes(size, data); }

  int copyFrom(IZolMediaData* other) final {
    if (!other) return kRefused;
    const long long tag = other->tag();
    const int size = other->dataSize();
    const unsigned char* const data = other->data();
    const unsigned int height = other->height();
    return fill(other->width(), height, data, size, tag);
  }

  int fill(unsigned int width, unsigned int height, const unsigned char* data, int size,
           long long tag) {
    if (width == 0 || height == 0 || size <= 0) return kRefused;
    replaceBytes(size, data);
    tag_ = tag;
    setDimensions(width, height);
    return kSuccess;
  }

 private:
  // The new block is whole before the old one goes: `data` may lie in it.
  void replaceBytes(int size, const unsigned char* data) {
    bytes_ = copyBytes<unsigned char>(data, static_cast<std::uint64_t>(size), 1);
    size_ = size;
  }

  long long tag_ = 0;
  unsigned int width_ = 0;
  unsigned int height_ = 0;
  Bytes<unsigned char> bytes_;  // `size_` bytes and a zero; null until first filled
  int size_ = 0;
};

class ZolBGRData final : public ZolMediaData, public virtual IZolBGRData {
 public:
  void* queryInterface(const char* name) override {
    if (void* const view = answer<IZolBGRData>(this, name)) return view;
    return ZolMediaData::queryInterface(name);
  }
};

class ZolBGRAData final : public ZolMediaData, public virtual IZolBGRAData {
 public:
  void* queryInterface(const char* name) override {
    if (void* const view = answer<IZolBGRAData>(this, name)) return view;
    return ZolMediaData::queryInterface(name);
  }
};

// On purpose what the fill refuses is not told: the object is then an empty one.
template <class Media>
Media* makeFilled(unsigned int width, unsigned int height, const unsigned char* data, int size,
                  long long tag) {
  Handle<Media> media = makeHandle<Media>();
  media->fill(width, height, data, size, tag);
  return media.give();
}

}  // namespace
}  // namespace ZOL

ZOL::IZolMediaData* createEmptyMediaData() { return ZOL::makeObject<ZOL::ZolMediaData>(); }

ZOL::IZolMediaData* createMediaData(unsigned int width, unsigned int height,
                                    const unsigned char* data, int size, long long tag) {
  return ZOL::makeFilled<ZOL::ZolMediaData>(width, height, data, size, tag);
}

ZOL::IZolBGRData* createBGRData(unsigned int width, unsigned int height, const unsigned char* data,
                                int size, long long tag) {
  return ZOL::makeFilled<ZOL::ZolBGRData>(width, height, data, size, tag);
}

ZOL::IZolBGRAData* createBGRAData(unsigned int width, unsigned int height,
                                  const unsigned char* data, int size, long long tag) {
  return ZOL::makeFilled<ZOL::ZolBGRAData>(width, height, data, size, tag);
}
