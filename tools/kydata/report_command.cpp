#include "commands.h"
#include "counted.h"
#include "input.h"
#include "report_model.h"
#include "report_picture.h"
#include "text_table.h"
#include "utf8.h"

namespace kydata {

namespace {

std::string noteOf(const Slice& slice) {
  std::string note;
  if (slice.face) {
    note = "face " + std::to_string(slice.face->width()) + " x " +
           std::to_string(slice.face->height());
  }
  for (const auto& [key, value] : slice.keyValues) {
    note += (note.empty() ? "" : ", ") + key + " = " + value;
  }
  return note;
}

std::string titleOf(const Dimension& dimension) {
  std::size_t slices = 0;
  for (const SliceGroup& group : dimension.groups) slices += group.slices.size();
  return std::to_string(dimension.type) + " " + dimension.name + ": " +
         (dimension.hasLabels ? counted(dimension.groups.size(), "label") + ", " : "") +
         counted(slices, "slice");
}

void printDimension(const Dimension& dimension, Output& out) {
  out.text() << '\n' << out.heading(titleOf(dimension)) << '\n';
  TextTable table({{"label", false, 48}, {"time"}, {"length", true}, {"score", true}, {"notes"}});
  for (const SliceGroup& group : dimension.groups) {
    if (group.slices.empty() && dimension.hasLabels) table.add({group.label, "", "", "", ""});
    for (const Slice& slice : group.slices) {
      table.add({slice.label, spanText(slice.time),
                 timeText(minus(slice.time.end, slice.time.start)), std::to_string(slice.score),
                 noteOf(slice)});
    }
  }
  if (!table.isEmpty()) table.print(out);
}

void printReport(const std::string& name, const Report& report, Output& out) {
  out.text() << out.heading(printable(name)) << '\n'
             << "  " << counted(report.dimensions.size(), "dimension") << ", "
             << counted(report.keywords.size(), "keyword") << '\n';
  for (const std::string& keyword : report.keywords) {
    out.text() << "  - " << printable(keyword) << '\n';
  }
  for (const Dimension& dimension : report.dimensions) printDimension(dimension, out);
}

}  // namespace

void showReport(const Input& input, Output& out) {
  printReport(input.name, readReport(input.text), out);
}

bool runReport(const ReportOptions& options, Output& out) {
  std::string picture;
  const bool isRead = reportingFaults(inputName(options.file), [&] {
    const Input input = readInput(options.file);
    if (options.svg.empty()) {
      showReport(input, out);
    } else {
      picture = drawReport(readReport(input.text));
    }
  });
  if (!isRead || options.svg.empty()) return isRead;
  return reportingFaults(options.svg, [&] { writeFile(out, options.svg, picture); });
}

}  // namespace kydata
