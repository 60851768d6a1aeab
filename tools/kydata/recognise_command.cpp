#include <array>
#include <filesystem>
#include <system_error>

#include "commands.h"
#include "file_names.h"
#include "highlight_text.h"
#include "recognition.h"
#include "refused_text.h"
#include "report_model.h"

namespace kydata {

namespace {

void showStoryboardText(const Input& input, Output& out) { showStoryboard(input, 1, out); }

struct Form {
  bool (*holds)(const std::string& text);
  void (*show)(const Input& input, Output& out);
};

/// The one that asks for most comes first: a description passes members through that
/// it does not know, and a highlight asks for a single one. The help tells this order.
constexpr std::array<Form, 6> kForms = {{
    {isCutReply, showCut},
    {isDataMap, showDataMap},
    {isStoryboard, showStoryboardText},
    {isDescription, showResource},
    {isReport, showReport},
    {isHighlight, showHighlight},
}};

bool isMissing(const std::string& file) {
  std::error_code ignored;
  return std::filesystem::status(pathOf(file), ignored).type() ==
         std::filesystem::file_type::not_found;
}

const Form& formOf(const std::string& text) {
  for (const Form& form : kForms) {
    if (form.holds(text)) return form;
  }
  const char opening = beginsAs(text, '[') ? '[' : '{';
  throw Fault("is none of the six text forms: it " +
              (isJsonObject(text) ? "is a JSON object that lacks what each of them asks for"
                                  : whyNoJson(text, opening)));
}

}  // namespace

bool runRecognise(const std::string& file, Output& out) {
  return reportingFaults(inputName(file), [&] {
    if (file != "-" && isMissing(file)) throw Fault("is neither a command nor a file");
    const Input input = readInput(file);
    formOf(input.text).show(input, out);
  });
}

}  // namespace kydata
