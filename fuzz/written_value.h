// What the library's writers make of a value. Their headers and RapidJSON's own, as
// bare_json.h includes them, are not for one source file.

#ifndef KYDATASTRUCTURE_FUZZ_WRITTEN_VALUE_H_
#define KYDATASTRUCTURE_FUZZ_WRITTEN_VALUE_H_

#include <string>

#include "json/document.h"

std::string compactText(ZOL::json::Value value);
std::string prettyText(ZOL::json::Value value);

#endif  // KYDATASTRUCTURE_FUZZ_WRITTEN_VALUE_H_
