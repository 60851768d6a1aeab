#include "check/check.h"

#include "check/walk.h"

namespace kydata::check {

namespace {

void addError(Code code, const std::string& message, Findings& findings) {
  if (!findings.count(code, Severity::error, nullptr)) return;
  findings.add({code, Severity::error, 0, "", message, Effect::refused});
}

/// Asks the library. Its refusal is told where no finding has told it already.
void make(const std::string& text, const Ask& ask, Checked& checked) {
  try {
    checked.made = checked.form->read(text, ask.completeType);
  } catch (const Fault& fault) {
    if (checked.findings.counted(Severity::error) > 0) return;
    addError(Code::refused, std::string("the text ") + fault.what(), checked.findings);
  }
}

}  // namespace

Checked check(const std::string& text, const Ask& ask) {
  Checked checked{ask.form, !ask.form, Findings(ask.limit), std::nullopt};
  if (!checked.form) {
    const Outline outline = outlineOf(text);
    checked.form = formOf(text, outline.isArray, outline.names);
  }
  if (checked.form) {
    walk(text, *checked.form, checked.findings);
    make(text, ask, checked);
  } else {
    // Whatever the form would be, its text must be JSON; a highlight is the plainest.
    Findings syntax(0);
    walk(text, highlightForm(), syntax);
    for (const Finding& finding : syntax.kept()) {
      if (finding.code != Code::syntax) continue;
      checked.findings.count(finding.code, finding.severity, nullptr);
      checked.findings.add(finding);
    }
    addError(Code::noForm, "no member tells which form this is; --form or --complete says it",
             checked.findings);
  }
  checked.findings.sort();
  return checked;
}

}  // namespace kydata::check
