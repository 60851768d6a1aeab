// The one place where RapidJSON's headers are included, and how they are set up:
//
// - under a namespace of our own, so that a host with another RapidJSON in another
//   build of it cannot clash;
// - with allocators that throw, as it does not look at what malloc answers;
// - with sizes that are not cut to 32 bits;
// - without its SSE2 code: that lets the control characters 0x1A to 0x1F pass in a
//   string. Plain runs are skipped here instead.

#ifndef KYDATASTRUCTURE_JSON_RAPIDJSON_H_
#define KYDATASTRUCTURE_JSON_RAPIDJSON_H_

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

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
  static void* Realloc(void* memory, std::size_t /*oldSize*/, std::size_t newSize) {
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

// How many readable bytes a text must have behind its terminating zero.
constexpr std::size_t kScanPadding = 16;

// How many plain characters stand at `text`, which has its padding. May say less, at
// most by one step, where the order of bytes is not that of x86.
inline std::size_t plainRun(const char* text) {
  const char* at = text;
#if defined(__SSE2__)
  const __m128i quote = _mm_set1_epi8('"');
  const __m128i backslash = _mm_set1_epi8('\\');
  const __m128i lastControl = _mm_set1_epi8(0x1F);
  for (;; at += sizeof(__m128i)) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    const __m128i ends =
        _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(bytes, quote), _mm_cmpeq_epi8(bytes, backslash)),
                     _mm_cmpeq_epi8(_mm_min_epu8(bytes, lastControl), bytes));
    const auto mask = static_cast<unsigned>(_mm_movemask_epi8(ends));
    if (mask != 0) return static_cast<std::size_t>(at - text + __builtin_ctz(mask));
  }
#else
  for (;; at += sizeof(std::uint64_t)) {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, at, sizeof(bytes));
    if (endsOfPlainRun(bytes) != 0) return static_cast<std::size_t>(at - text);
  }
#endif
}

}  // namespace ZOL::json

namespace ZOL::rapidjson {

// RapidJSON's own hook for skipping the plain characters of a string in place.
template <>
template <>
inline void json::Reader::ScanCopyUnescapedString(InsituStringStream& in, InsituStringStream&) {
  const std::size_t plain = json::plainRun(in.src_);
  if (in.dst_ != in.src_) std::memmove(in.dst_, in.src_, plain);
  in.src_ += plain;
  in.dst_ += plain;
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
