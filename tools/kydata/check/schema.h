#ifndef KYDATA_CHECK_SCHEMA_H_
#define KYDATA_CHECK_SCHEMA_H_

#include <string>

#include "check/form.h"

namespace kydata::check {

/// The rules of a form as a JSON Schema, draft 2020-12. It refuses what is found to have
/// a wrong type or to be missing, and tells in a description what each place is for.
std::string schemaOf(const Form& form);

}  // namespace kydata::check

#endif  // KYDATA_CHECK_SCHEMA_H_
