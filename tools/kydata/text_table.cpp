#include "text_table.h"

#include <algorithm>
#include <string_view>

#include "utf8.h"

namespace kydata {

namespace {

/// The bytes of the first `count` code points.
std::size_t bytesOf(std::string_view text, std::size_t count) {
  std::size_t bytes = 0;
  for (; count > 0 && bytes < text.size(); --count) {
    bytes += firstCodePoint(text.substr(bytes)).bytes;
  }
  return bytes;
}

/// Breaks at blanks where there are any, and within a word where there is none.
std::vector<std::string> wrapped(std::string_view text, std::size_t width) {
  std::vector<std::string> lines;
  while (codePointCount(text) > width) {
    const std::size_t full = bytesOf(text, width);
    const std::size_t blank = text.rfind(' ', full);
    const bool hasBlank = blank != std::string_view::npos && blank > 0;
    const std::size_t end = hasBlank ? blank : full;
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(hasBlank ? end + 1 : end);
  }
  lines.emplace_back(text);
  return lines;
}

void padTo(std::string& text, std::size_t column) {
  const std::size_t width = codePointCount(text);
  if (width < column) text.append(column - width, ' ');
}

}  // namespace

void TextTable::add(const std::vector<std::string>& cells) {
  std::vector<Lines> row;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const bool isLast = i + 1 == columns_.size();
    const std::string shown = printable(cells.at(i));
    row.push_back(isLast ? Lines{shown} : wrapped(shown, columns_[i].widest));
  }
  rows_.push_back(std::move(row));
}

std::vector<std::size_t> TextTable::widths() const {
  std::vector<std::size_t> widths(columns_.size(), 0);
  for (const auto& row : rows_) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      for (const std::string& text : row[i]) widths[i] = std::max(widths[i], codePointCount(text));
    }
  }
  for (std::size_t i = 0; i < widths.size(); ++i) {
    if (widths[i] > 0) widths[i] = std::max(widths[i], codePointCount(columns_[i].title));
  }
  return widths;
}

std::string TextTable::line(const std::vector<std::size_t>& widths,
                            const std::vector<std::string>& cells) const {
  std::string text;
  std::size_t column = 2;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (widths[i] == 0) continue;
    const std::size_t free = widths[i] - codePointCount(cells[i]);
    if (!cells[i].empty()) {
      padTo(text, column + (columns_[i].isNumber ? free : 0));
      text += cells[i];
    }
    column += widths[i] + 2;
  }
  return text;
}

void TextTable::print(Output& out) const {
  const std::vector<std::size_t> widths = this->widths();
  std::vector<std::string> cells;
  for (const Column& column : columns_) cells.push_back(column.title);
  out.text() << out.faint(line(widths, cells)) << '\n';
  for (const auto& row : rows_) {
    std::size_t height = 0;
    for (const Lines& lines : row) height = std::max(height, lines.size());
    for (std::size_t i = 0; i < height; ++i) {
      cells.clear();
      for (const Lines& lines : row) cells.push_back(i < lines.size() ? lines[i] : "");
      out.text() << line(widths, cells) << '\n';
    }
  }
}

}  // namespace kydata
