#ifndef KYDATA_REFUSED_TEXT_H_
#define KYDATA_REFUSED_TEXT_H_

#include <KyDataStructure/resource.h>

#include <optional>
#include <string>

namespace kydata {

/// True if the library can read the text as a JSON object, whatever it holds.
bool isJsonObject(const std::string& text);

/// True if the text's first letter, behind white space, is this one.
bool beginsAs(const std::string& text, char opening);

/// Why a text is not the JSON object ('{') or array ('[') that was asked for: as
/// much as its first character tells.
std::string whyNoJson(const std::string& text, char opening);

/// Why the library refused a description. `partly` is the object as the refusal left
/// it; `completeType` the info type when the complete form was read.
std::string whyRefused(const std::string& text, ZOL::IZolResSerializeInfo* partly,
                       std::optional<int> completeType);

}  // namespace kydata

#endif  // KYDATA_REFUSED_TEXT_H_
