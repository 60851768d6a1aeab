#include "check/check.h"
#include "check/json_output.h"
#include "check/schema.h"
#include "check/text_output.h"
#include "commands.h"
#include "input.h"
#include "text_table.h"

namespace kydata {

namespace {

const check::Form* formAskedFor(const CheckOptions& options) {
  return options.completeType ? &check::recordForm(*options.completeType)
                              : check::formNamed(options.form);
}

bool isClean(const check::Findings& findings) {
  return findings.counted(check::Severity::error) == 0 &&
         findings.counted(check::Severity::warning) == 0;
}

void printCodes(Output& out) {
  TextTable table({{"code"}, {"severity"}, {"meaning"}});
  for (const check::CodeRow& row : check::kCodes) {
    table.add({row.name, nameOf(row.severity), row.meaning});
  }
  table.print(out);
}

}  // namespace

bool isForm(const std::string& name) { return check::formNamed(name) != nullptr; }

bool runCheck(const CheckOptions& options, Output& out) {
  const check::Form* const form = formAskedFor(options);
  if (options.listCodes) {
    printCodes(out);
    return true;
  }
  if (options.writeSchema) {
    out.text() << check::schemaOf(*form);
    return true;
  }
  const check::Ask ask{form, options.completeType, options.limit};
  check::JsonOutput json;
  bool allClean = true;
  for (const std::string& file : options.files) {
    const auto checkFile = [&] {
      try {
        const Input input = readInput(file);
        const check::Checked checked = check::check(input.text, ask);
        allClean = isClean(checked.findings) && allClean;
        if (options.writeJson) {
          json.add(input, checked);
        } else {
          check::printChecked(input, checked, out);
        }
      } catch (const Fault& fault) {
        json.addFault(inputName(file), fault.what());
        throw;
      }
    };
    allClean = reportingFaults(inputName(file), checkFile) && allClean;
  }
  if (options.writeJson) out.text() << json.text();
  return allClean;
}

}  // namespace kydata
