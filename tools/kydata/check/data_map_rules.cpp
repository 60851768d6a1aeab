#include "check/form.h"
#include "check/made.h"
#include "recognition.h"

namespace kydata::check {

const Form& dataMapForm() {
  static const Form form = {
      "datamap",
      "dataMap text",
      "The texts of an effect's parameters by their ids. Strict JSON, as no other form is.",
      {
          {"", Type::object, Missing::fine, Effect::refused, "A map of parameters.",
           "a dataMap text is an object"},
          {"dataMap", Type::object, Missing::refused, Effect::refused,
           "The texts, each under its id in decimal digits.", "there are no texts to read",
           Look::none, Members::lastOfId},
          {"dataMap.*", Type::text, Missing::fine, Effect::refused, "The text of a parameter.",
           "the whole map is refused"},
      },
      {},
      true,
      true,
      makeDataMap,
      isDataMap,
  };
  return form;
}

}  // namespace kydata::check
