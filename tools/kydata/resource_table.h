#ifndef KYDATA_RESOURCE_TABLE_H_
#define KYDATA_RESOURCE_TABLE_H_

#include <KyDataStructure/resource.h>

#include <string>

#include "output.h"

namespace kydata {

/// How much a description holds.
struct Held {
  long long properties = 0;
  long long userStrings = 0;  ///< that are not empty
  long long related = 0;
};
Held heldBy(ZOL::IZolResSerializeInfo* info);

/// Prints everything that a description holds, under its name.
void printDescription(const std::string& name, ZOL::IZolResSerializeInfo* info, Output& out);

}  // namespace kydata

#endif  // KYDATA_RESOURCE_TABLE_H_
