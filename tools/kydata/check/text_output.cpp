#include "check/text_output.h"

#include "check/places.h"
#include "counted.h"
#include "utf8.h"

namespace kydata::check {

namespace {

std::string severityText(Severity severity, const Output& out) {
  const std::string name = nameOf(severity);
  if (severity == Severity::error) return out.alarm(name);
  return severity == Severity::warning ? out.heading(name) : out.faint(name);
}

/// "1 error, 2 notes".
std::string countsOf(const Findings& findings) {
  std::string text;
  for (const Severity severity : {Severity::error, Severity::warning, Severity::note}) {
    const std::size_t count = findings.counted(severity);
    if (count > 0) text += (text.empty() ? "" : ", ") + counted(count, nameOf(severity));
  }
  return text.empty() ? "nothing found" : text;
}

}  // namespace

void printChecked(const Input& input, const Checked& checked, Output& out) {
  const std::string name = printable(input.name);
  Places places(input.text);
  for (const Finding& finding : checked.findings.kept()) {
    const Place place = places.at(finding.offset);
    out.text() << name << ':' << place.line << ':' << place.column << ": "
               << severityText(finding.severity, out) << ": "
               << (finding.path.empty() ? "" : finding.path + ": ") << finding.message << ' '
               << out.faint("[" + std::string(rowOf(finding.code).name) + "]") << '\n';
  }
  out.text() << out.heading(name) << ": "
             << (checked.form ? checked.form->title : "of no form that can be told") << ": "
             << (checked.made ? checked.made->text : "refused by the library") << "; "
             << countsOf(checked.findings);
  if (checked.findings.left() > 0) {
    out.text() << " (" << checked.findings.left() << " like those above are left out)";
  }
  if (checked.form && checked.isTold && !checked.made) {
    out.text() << "; --form or --complete takes it as another form";
  }
  out.text() << '\n';
}

}  // namespace kydata::check
