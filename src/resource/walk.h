// The walk of a reader over a schema table.

#ifndef KYDATASTRUCTURE_RESOURCE_WALK_H_
#define KYDATASTRUCTURE_RESOURCE_WALK_H_

#include "resource/res_serialize_info.h"

namespace ZOL {

// A member that is missing or of another type leaves what the object had; no type is
// an error.
inline void ZolResSerializeInfo::read(Prop prop, ValueKind kind, json::Value value) {
  if (kind == ValueKind::integer) {
    if (const auto number = value.integer64()) intProps_.set(prop, *number);
  } else if (kind == ValueKind::text) {
    if (const char* const text = value.text()) stringProps_.set(prop, text);
  }
}

template <class Table>
void ZolResSerializeInfo::walk(const Table& table, json::Value object) {
  for (const auto& row : table) read(row.prop, row.valueKind, object.member(row.jsonKey));
}

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_RESOURCE_WALK_H_
