// The one place where RapidJSON's headers are included, and how they are set up:
//
// - under a namespace of our own, so that a host with another RapidJSON in another
//   build of it cannot clash;
// - with allocators that throw, as it does not look at what malloc answers;
// - with sizes that are not cut to 32 bits;
// - without its SSE2 code: that lets the control characters 0x1A to 0x1F pass in a
//   string. Plain runs are skipped eight bytes at a time here instead.

#ifndef KYDATASTRUCTURE_JSON_RAPIDJSON_H_
#define KYDATASTRUCTURE_JSON_RAPIDJSON_H_

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

#define RAPIDJSON_NAMESPACE ZOL::rapidjson
#define RAPIDJSON_NAMESPACE_BEGIN namespace ZOL::rapidjson {
#define RAPIDJSON_NAMESPACE_END }
#define RAPIDJSON_NO_SIZETYPEDEFINE
#define RAPIDJSON_ASSERT(condition) static_cast<void>(0)

namespace ZOL::rapidjson {
using SizeType = std::size_t;
}

#include <rapidjson/prettywriter.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace ZOL::json {

// Memory for RapidJSON's stacks and for ours. Grows in place where it can.
class ThrowingAllocator {
 public:
  static const bool kNeedFree = true;

  // The names are those that RapidJSON calls.
  static void* Malloc(std::size_t size) { return Realloc(nullptr, 0, size); }
  static void* Realloc(void* memory, std::size_t /*oldSize*/, std::size_t newSize) {
    if (newSize == 0) {
      Free(memory);
      return nullptr;
    }
    void* const grown = std::realloc(memory, newSize);
    if (!grown) throw std::bad_alloc();
    return grown;
  }
  static void Free(void* memory) { std::free(memory); }
};

using Encoding = rapidjson::UTF8<>;
using Reader = rapidjson::GenericReader<Encoding, Encoding, ThrowingAllocator>;
using TextBuffer = rapidjson::GenericStringBuffer<Encoding, ThrowingAllocator>;
using Writer = rapidjson::Writer<TextBuffer, Encoding, Encoding, ThrowingAllocator>;

// How many readable bytes a text must have behind its terminating zero.
constexpr std::size_t kScanPadding = sizeof(std::uint64_t);

// The bytes, of eight, that end a run of plain characters: a quotation mark, a backslash
// or a control character. Their top bits are set; above the first of them, in order of
// arithmetic, others may be, too.
inline std::uint64_t endsOfPlainRun(std::uint64_t bytes) {
  constexpr std::uint64_t ones = 0x0101010101010101U;
  constexpr std::uint64_t tops = 0x8080808080808080U;
  const std::uint64_t quote = bytes ^ (ones * '"');
  const std::uint64_t backslash = bytes ^ (ones * '\\');
  const std::uint64_t below = (bytes - ones * 0x20) & ~bytes;
  return (below | ((quote - ones) & ~quote) | ((backslash - ones) & ~backslash)) & tops;
}

}  // namespace ZOL::json

namespace ZOL::rapidjson {

// RapidJSON's own hook for skipping the plain characters of a string in place.
template <>
template <>
inline void json::Reader::ScanCopyUnescapedString(InsituStringStream& in, InsituStringStream&) {
  char* from = in.src_;
  char* to = in.dst_;
  for (;;) {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, from, sizeof(bytes));
    const std::uint64_t ends = json::endsOfPlainRun(bytes);
    if (ends != 0) {
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
      // The first in memory is the first in order of arithmetic: up to there at once.
      const auto plain = static_cast<std::size_t>(__builtin_ctzll(ends)) / 8;
      if (to != from) std::memmove(to, from, plain);
      from += plain;
      to += plain;
#endif
      break;
    }
    std::memcpy(to, &bytes, sizeof(bytes));
    from += sizeof(bytes);
    to += sizeof(bytes);
  }
  in.src_ = from;
  in.dst_ = to;
}

// And the one for writing them, which is the indenting writer's, too.
template <>
inline bool json::Writer::ScanWriteUnescapedString(StringStream& in, std::size_t length) {
  const char* const end = in.head_ + length;
  while (end - in.src_ >= static_cast<std::ptrdiff_t>(sizeof(std::uint64_t))) {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, in.src_, sizeof(bytes));
    if (json::endsOfPlainRun(bytes) != 0) break;
    std::memcpy(os_->Push(sizeof(bytes)), &bytes, sizeof(bytes));
    in.src_ += sizeof(bytes);
  }
  return in.src_ != end;
}

}  // namespace ZOL::rapidjson

#endif  // KYDATASTRUCTURE_JSON_RAPIDJSON_H_
