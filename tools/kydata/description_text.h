#ifndef KYDATA_DESCRIPTION_TEXT_H_
#define KYDATA_DESCRIPTION_TEXT_H_

#include <KyDataStructure/resource.h>

#include <optional>
#include <string>

#include "owned.h"

namespace kydata {

/// Reads a description in the normal form, or in the complete form of an info type.
/// \throws Fault when the library refuses it.
Owned<ZOL::IZolResSerializeInfo> readDescription(const std::string& text,
                                                 std::optional<int> completeType);

}  // namespace kydata

#endif  // KYDATA_DESCRIPTION_TEXT_H_
