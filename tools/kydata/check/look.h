#ifndef KYDATA_CHECK_LOOK_H_
#define KYDATA_CHECK_LOOK_H_

#include <optional>
#include <string>
#include <string_view>

#include "check/rule.h"
#include "check/value.h"

namespace kydata::check {

struct Remark {
  Code code;
  Effect effect;
  std::string message;
};

/// What there is to say about a value that has the type of its rule. `name` is that of
/// the member in which it stands, or in whose array.
std::optional<Remark> lookAt(const Value& value, const Rule& rule, std::string_view name);

/// What there is to say about an array when it has turned out to be empty.
std::optional<Remark> lookAtEmptyArray(const Rule& rule);

/// What there is to say about a name that is read as an id.
std::optional<Remark> lookAtId(std::string_view name);
/// The id that a name stands for.
int idOf(std::string_view name);

/// What a look asks for, as members of a JSON Schema; empty where that cannot be said.
const char* schemaOf(Look look);

}  // namespace kydata::check

#endif  // KYDATA_CHECK_LOOK_H_
