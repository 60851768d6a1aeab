#include "check/form.h"
#include "check/made.h"
#include "highlight_text.h"

namespace kydata::check {

const Form& highlightForm() {
  static const Form form = {
      "highlight",
      "highlight text",
      "A span of a clip. Each member stands by itself.",
      {
          {"", Type::object, Missing::fine, Effect::refused, "A highlight.",
           "a highlight text is an object"},
          {"HLType", Type::integer32, Missing::fine, Effect::ignored,
           "The type: 0 for emotion, 1 for any other.", "the highlight keeps its type"},
          {"trimIn", Type::integer64, Missing::fine, Effect::ignored, "Where the span starts.",
           "the highlight keeps its start"},
          {"trimOut", Type::integer64, Missing::fine, Effect::ignored, "Where the span ends.",
           "the highlight keeps its end"},
      },
      {},
      false,
      false,
      makeHighlight,
      isHighlight,
  };
  return form;
}

}  // namespace kydata::check
