#include "check/check.h"

#include "check/outline.h"
#include "check/walk.h"

namespace kydata::check {

namespace {

/// Asks the library. Its refusal is told where no finding has told it already.
void make(const std::string& text, const Ask& ask, Checked& checked) {
  try {
    checked.made = checked.form->read(text, ask.completeType);
  } catch (const Fault& fault) {
    if (checked.findings.counted(Severity::error) > 0) return;
    checked.findings.add(Code::refused, 0, std::string("the text ") + fault.what(),
                         Effect::refused);
  }
}

/// Whatever its form would be, a text must be JSON.
void lookForSyntax(const std::string& text, Findings& findings) {
  Findings all(0);
  walk(text, highlightForm(), all);
  for (const Finding& finding : all.kept()) {
    if (finding.code == Code::syntax)
      findings.add(finding.code, finding.offset, finding.message, finding.effect);
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
    lookForSyntax(text, checked.findings);
    if (checked.findings.counted(Severity::error) == 0) {
      checked.findings.add(Code::noForm, 0,
                           "no member tells which form this is; --form or --complete says it",
                           Effect::refused);
    }
  }
  checked.findings.sort();
  return checked;
}

}  // namespace kydata::check
