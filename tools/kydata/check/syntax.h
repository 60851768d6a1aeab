#ifndef KYDATA_CHECK_SYNTAX_H_
#define KYDATA_CHECK_SYNTAX_H_

#include <rapidjson/error/error.h>

#include <cstddef>
#include <string>

namespace kydata::check {

/// What the reader expected where it gave up, and what it found there.
std::string syntaxMessage(const std::string& text, std::size_t offset,
                          rapidjson::ParseErrorCode code);

}  // namespace kydata::check

#endif  // KYDATA_CHECK_SYNTAX_H_
