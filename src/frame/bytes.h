// An owned block of bytes, and the one way to ask for one.

#ifndef KYDATASTRUCTURE_FRAME_BYTES_H_
#define KYDATASTRUCTURE_FRAME_BYTES_H_

#include <cstdint>
#include <cstring>
#include <memory>
#include <new>

namespace ZOL {

template <class Byte>
using Bytes = std::unique_ptr<Byte[]>;

// `size` bytes and `spare` zero bytes behind them; the bytes are those of `data`,
// or zeros when it is null. A size that no memory could hold, which is what a
// negative one becomes, fails as every allocation does.
template <class Byte>
Bytes<Byte> copyBytes(const void* data, std::uint64_t size, std::uint64_t spare) {
  if (size > static_cast<std::uint64_t>(PTRDIFF_MAX) - spare) throw std::bad_alloc();
  const auto taken = static_cast<std::size_t>(size);
  Bytes<Byte> bytes(new Byte[taken + static_cast<std::size_t>(spare)]);
  if (data) {
    std::memcpy(bytes.get(), data, taken);
  } else {
    std::memset(bytes.get(), 0, taken);
  }
  std::memset(bytes.get() + taken, 0, static_cast<std::size_t>(spare));
  return bytes;
}

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_FRAME_BYTES_H_
