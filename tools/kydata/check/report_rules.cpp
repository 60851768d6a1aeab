#include "check/form.h"
#include "check/made.h"
#include "report_model.h"

namespace kydata::check {

const Form& reportForm() {
  static const Form form = {
      "report",
      "analysis report",
      "An analysis service's report: what is seen and heard in a video, and when.",
      {
          {"", Type::object, Missing::fine, Effect::refused, "A report.",
           "an analysis report is an object"},

          {"<dimension>", Type::object, Missing::fine, Effect::ignored,
           "A dimension: spans of the video under labels.", "the report has no such dimension"},
          {"<dimension>.scores", Type::array, Missing::fine, Effect::ignored,
           "Samples, a second apart. They are kept, and not given out.",
           "the dimension has no samples", Look::samples},
          {"<dimension>.scores[]", Type::integer32, Missing::fine, Effect::ignored, "A sample.",
           "it is no sample, and takes no time"},
          {"<dimension>.labels", Type::object, Missing::fine, Effect::ignored,
           "The spans by label.", "the dimension has no spans", Look::none, Members::lastOfName},
          {"<dimension>.dimensions", Type::unread, Missing::fine, Effect::none,
           "Never read: nothing comes of it.", "nothing comes of this member"},

          {"<by label>.labels.*", Type::array, Missing::fine, Effect::ignored,
           "The spans of a label.", "the label is passed over"},
          {"<by label>.labels.*[]", Type::text, Missing::fine, Effect::ignored,
           "A span, as in 0:1:30Z-0:2:0Z.", "it is no span", Look::span},

          {"<flat>.labels", Type::object, Missing::fine, Effect::ignored,
           "The spans of one label; of several, those of the last alone remain.",
           "the dimension has no spans", Look::none, Members::lastOfAll},
          {"<flat>.labels.*", Type::array, Missing::fine, Effect::ignored,
           "The spans of the label.", "the label is passed over"},
          {"<flat>.labels.*[]", Type::text, Missing::fine, Effect::ignored,
           "A span, as in 0:1:30Z-0:2:0Z.", "it is no span", Look::span},

          {"<scored>.labels", Type::object, Missing::fine, Effect::ignored,
           "The spans of one score; of several, those of the last alone remain.",
           "the dimension has no spans", Look::none, Members::lastOfAll},
          {"<scored>.labels.*", Type::array, Missing::fine, Effect::ignored,
           "The spans of the score that is this member's name.", "the label is passed over"},
          {"<scored>.labels.*[]", Type::text, Missing::fine, Effect::ignored,
           "A span, as in 0:1:30Z-0:2:0Z.", "it is no span", Look::scoredSpan},

          {"face_image_map", Type::object, Missing::fine, Effect::ignored,
           "The images of faces, by the names of their clusters.", "no face has an image",
           Look::none, Members::lastOfName},
          {"face_image_map.*", Type::object, Missing::fine, Effect::ignored,
           "An image: rows of blue, green and red bytes.", "the face has no image"},
          {"face_image_map.*.width", Type::integer32, Missing::ownerIgnored, Effect::ownerIgnored,
           "Its width in pixels.", "the face has no image"},
          {"face_image_map.*.height", Type::integer32, Missing::ownerIgnored, Effect::ownerIgnored,
           "Its height in pixels.", "the face has no image"},
          {"face_image_map.*.base64", Type::text, Missing::ownerIgnored, Effect::ownerIgnored,
           "Its bytes in base64.", "the face has no image", Look::base64},

          {"face_cluster", Type::object, Missing::fine, Effect::ignored,
           "The spans in which a face is seen; of several faces, the last alone remains.",
           "the report has no face cluster", Look::none, Members::lastOfAll},
          {"face_cluster.*", Type::array, Missing::fine, Effect::ignored, "The spans of a face.",
           "the face is passed over"},
          {"face_cluster.*[]", Type::text, Missing::fine, Effect::ignored,
           "A span, as in 0:1:30Z-0:2:0Z.", "it is no span", Look::span},

          {"stt", Type::array, Missing::fine, Effect::ignored, "What is said, by sentences.",
           "the report has no speech"},
          {"stt[]", Type::object, Missing::fine, Effect::ignored, "A sentence.",
           "the sentence is passed over"},
          {"stt[].begin_time", Type::integer32, Missing::ownerIgnored, Effect::ownerIgnored,
           "Where it starts, in milliseconds.", "the sentence is passed over"},
          {"stt[].end_time", Type::integer32, Missing::ownerIgnored, Effect::ownerIgnored,
           "Where it ends, in milliseconds.", "the sentence is passed over"},
          {"stt[].text", Type::text, Missing::ownerIgnored, Effect::ownerIgnored, "Its words.",
           "the sentence is passed over"},

          {"keywords", Type::array, Missing::fine, Effect::ignored, "Words for the whole video.",
           "the report has no keywords"},
          {"keywords[]", Type::text, Missing::fine, Effect::ignored, "A word.",
           "the keyword is passed over"},
      },
      {
          {"dimension",
           "total|scene|object|camera|camera_quality|brightness_change|scene_text|emotion|action|"
           "shot_size"},
          {"by label", "scene|object|camera|scene_text|emotion|action|shot_size"},
          {"flat", "camera_quality"},
          {"scored", "total|brightness_change"},
      },
      false,
      true,
      makeReport,
      isReport,
  };
  return form;
}

}  // namespace kydata::check
