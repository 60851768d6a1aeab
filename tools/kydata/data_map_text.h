#ifndef KYDATA_DATA_MAP_TEXT_H_
#define KYDATA_DATA_MAP_TEXT_H_

#include <KyDataStructure/params.h>

#include <string>
#include <vector>

#include "owned.h"

namespace kydata {

/// Reads a dataMap text, or answers with nothing where the library refuses it.
Owned<ZOL::IImageStylizesData> dataMapOf(const std::string& text);

/// Why the library refused a dataMap text.
std::string whyNoDataMap(const std::string& text);

/// The library's own text of a map.
std::string normalText(ZOL::IImageStylizesData* map);

/// The ids of a map, ascending.
std::vector<int> idsOf(ZOL::IImageStylizesData* map);

}  // namespace kydata

#endif  // KYDATA_DATA_MAP_TEXT_H_
