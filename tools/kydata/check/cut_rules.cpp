#include "check/form.h"
#include "check/made.h"
#include "recognition.h"

namespace kydata::check {

const Form& cutForm() {
  static const Form form = {
      "cut",
      "cut reply",
      "A cut service's reply: scripts, whose items become the rows of a timeline.",
      {
          {"", Type::array, Missing::fine, Effect::refused, "The scripts, one after the other.",
           "a cut reply is an array of scripts"},
          {"[]", Type::object, Missing::fine, Effect::ignored,
           "A script, which becomes a storyboard, its clips and its music.",
           "the script is passed over"},
          {"[].script", Type::array, Missing::ownerIgnored, Effect::ownerIgnored,
           "The items, each of which becomes a row and a clip. A script without any is passed "
           "over.",
           "the script is passed over", Look::notEmpty},
          {"[].music", Type::text, Missing::fine, Effect::ignored,
           "\"t2m\" makes music of type 0, any other text of type 1.", "the music's type is 0"},
          {"[].title", Type::text, Missing::fine, Effect::ignored, "The title of the script.",
           "the script has no title"},
          {"[].overall_description", Type::text, Missing::fine, Effect::ignored,
           "Describes the one section of music of a script without chapters.",
           "the music has no description"},

          {"[].script[]", Type::object, Missing::fine, Effect::emptyObject,
           "An item: a row of the timeline and the clip that it shows.",
           "it counts as an item without members"},
          {"[].script[].script_class", Type::text, Missing::fine, Effect::ignored,
           "\"title\", \"chapter\" or \"frame\"; any other text makes a plain row. A chapter opens "
           "a "
           "section of music.",
           "the row is a plain one", Look::scriptClass},
          {"[].script[].start_time", Type::integer64, Missing::surprising, Effect::ignored,
           "Where the clip starts in its file. The row starts that much later and ends that much "
           "sooner.",
           "the row and its clip start at 0", Look::clipStart},
          {"[].script[].end_time", Type::integer64, Missing::surprising, Effect::ignored,
           "Where the clip ends in its file.", "the row and its clip end at 0"},
          {"[].script[].title", Type::text, Missing::fine, Effect::ignored,
           "The title of the row and its clip.", "they have no title"},
          {"[].script[].subtitle", Type::text, Missing::fine, Effect::ignored,
           "The subtitle of the row and its clip.", "they have no subtitle"},
          {"[].script[].description", Type::text, Missing::fine, Effect::ignored,
           "Describes the row, and the music of a chapter.", "the row has no description"},
          {"[].script[].file_name", Type::text, Missing::fine, Effect::ignored,
           "The file of the clip.", "the clip has no file"},

          {"[].script[].text", Type::array, Missing::fine, Effect::ignored,
           "What is said in the clip.", "the clip has no list of texts"},
          {"[].script[].text[]", Type::object, Missing::fine, Effect::emptyObject,
           "A text at its time in the clip.", "it counts as a text without members"},
          {"[].script[].text[].start_time", Type::integer64, Missing::surprising, Effect::ignored,
           "Where the text starts in the clip.", "the text starts at 0"},
          {"[].script[].text[].end_time", Type::integer64, Missing::surprising, Effect::ignored,
           "Where the text ends in the clip.", "the text ends at 0"},
          {"[].script[].text[].text", Type::unread, Missing::fine, Effect::none,
           "Never read: the text of a text item is always empty.",
           "a text here is never read, and the item's text is empty"},
          {"[].script[].text[].broll", Type::object, Missing::fine, Effect::ignored,
           "Pictures to show while the text is heard.", "the text has no b-roll"},
          {"[].script[].text[].broll.file_name", Type::text, Missing::surprising, Effect::ignored,
           "The file of the b-roll.", "the text has no b-roll"},
          {"[].script[].text[].broll.start_time", Type::integer64, Missing::surprising,
           Effect::ignored, "Where the b-roll starts in its file.", "the b-roll starts at 0"},
          {"[].script[].text[].broll.end_time", Type::integer64, Missing::surprising,
           Effect::ignored, "Where the b-roll ends in its file.", "the b-roll ends at 0"},

          {"[].script[].highlight", Type::array, Missing::fine, Effect::ignored,
           "The spans of the clip that are worth showing.", "the clip has no list of highlights"},
          {"[].script[].highlight[]", Type::object, Missing::fine, Effect::emptyObject,
           "A span of the clip.", "it counts as a highlight without members"},
          {"[].script[].highlight[].start_time", Type::integer64, Missing::surprising,
           Effect::ignored, "Where the span starts in the clip.", "the highlight starts at 0"},
          {"[].script[].highlight[].end_time", Type::integer64, Missing::surprising,
           Effect::ignored, "Where the span ends in the clip.", "the highlight ends at 0"},
          {"[].script[].highlight[].class", Type::unread, Missing::fine, Effect::none,
           "Never read as a text: the type is 0 whatever stands here, but 1 for an integer.",
           "a class is never read, and the highlight's type is 0", Look::highlightClass},
      },
      {},
      false,
      true,
      makeCut,
      isCutReply,
  };
  return form;
}

}  // namespace kydata::check
