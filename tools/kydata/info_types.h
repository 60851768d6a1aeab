#ifndef KYDATA_INFO_TYPES_H_
#define KYDATA_INFO_TYPES_H_

#include <array>

namespace kydata {

constexpr int kPackResource = 6;
constexpr int kSingleResource = 7;
constexpr int kVcgLibrary = 1007;

struct InfoType {
  int code;
  const char* meaning;
};

/// The info types whose complete form the library reads.
constexpr std::array<InfoType, 13> kInfoTypes = {{
    {kPackResource, "resource of a pack"},
    {kSingleResource, "single resource"},
    {101, "pixabay"},
    {102, "pixabay"},
    {103, "unsplash"},
    {104, "unsplash"},
    {106, "giphy"},
    {107, "giphy"},
    {108, "giphy"},
    {109, "giphy"},
    {112, "pexels"},
    {113, "pexels"},
    {kVcgLibrary, "VCG library"},
}};

/// The meaning of an info type, or null for one that is not in the table.
inline const char* infoTypeMeaning(long long code) {
  for (const InfoType& type : kInfoTypes) {
    if (type.code == code) return type.meaning;
  }
  return nullptr;
}

inline bool isStock(long long code) {
  return code >= 101 && code <= 113 && infoTypeMeaning(code) != nullptr;
}

}  // namespace kydata

#endif  // KYDATA_INFO_TYPES_H_
