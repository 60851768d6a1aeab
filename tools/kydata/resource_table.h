#ifndef KYDATA_RESOURCE_TABLE_H_
#define KYDATA_RESOURCE_TABLE_H_

#include <KyDataStructure/resource.h>

#include <string>

#include "output.h"

namespace kydata {

/// Prints everything that a description holds, under its name.
void printDescription(const std::string& name, ZOL::IZolResSerializeInfo* info, Output& out);

}  // namespace kydata

#endif  // KYDATA_RESOURCE_TABLE_H_
