#include "check/form.h"
#include "check/made.h"
#include "recognition.h"

namespace kydata::check {

const Form& storyboardForm() {
  static const Form form = {
      "storyboard",
      "storyboard text",
      "The rows of a storyboard. A row that is not complete is dropped.",
      {
          {"", Type::object, Missing::fine, Effect::refused, "A storyboard.",
           "a storyboard text is an object"},
          {"storyboard_infos", Type::array, Missing::refused, Effect::refused,
           "The rows, in their order.", "there are no rows to read"},
          {"storyboard_infos[]", Type::object, Missing::fine, Effect::ignored, "A row.",
           "the row is dropped"},
          {"storyboard_infos[].script_class", Type::integer32, Missing::ownerIgnored,
           Effect::ownerIgnored, "0 plain, 1 title, 2 chapter, 3 frame.", "the row is dropped",
           Look::storyboardClass},
          {"storyboard_infos[].start", Type::integer64, Missing::ownerIgnored, Effect::ownerIgnored,
           "Where the row starts on the timeline.", "the row is dropped"},
          {"storyboard_infos[].end", Type::integer64, Missing::ownerIgnored, Effect::ownerIgnored,
           "Where the row ends on the timeline.", "the row is dropped"},
          {"storyboard_infos[].title", Type::text, Missing::ownerIgnored, Effect::ownerIgnored,
           "The title; may be empty.", "the row is dropped"},
          {"storyboard_infos[].subtitle", Type::text, Missing::ownerIgnored, Effect::ownerIgnored,
           "The subtitle; may be empty.", "the row is dropped"},
          {"storyboard_infos[].description", Type::text, Missing::ownerIgnored,
           Effect::ownerIgnored, "The description; may be empty.", "the row is dropped"},
      },
      {},
      false,
      true,
      makeStoryboard,
      isStoryboard,
  };
  return form;
}

}  // namespace kydata::check
