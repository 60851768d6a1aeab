#ifndef KYDATA_CHECK_SYNTAX_H_
#define KYDATA_CHECK_SYNTAX_H_

#include <rapidjson/error/error.h>

#include <cstddef>
#include <string>

#include "check/finding.h"

namespace kydata::check {

/// Where the reader gave up, what it found there and what it expected.
Finding syntaxFinding(const std::string& text, std::size_t offset, rapidjson::ParseErrorCode code);

}  // namespace kydata::check

#endif  // KYDATA_CHECK_SYNTAX_H_
