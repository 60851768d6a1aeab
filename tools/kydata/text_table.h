#ifndef KYDATA_TEXT_TABLE_H_
#define KYDATA_TEXT_TABLE_H_

#include <cstddef>
#include <string>
#include <vector>

#include "output.h"

namespace kydata {

/// A table of text in aligned columns. Widths are counted in code points, and every
/// cell is shown whole: a long one goes on in the lines below.
class TextTable {
 public:
  struct Column {
    std::string title;
    bool isNumber = false;    ///< numbers stand at the right edge
    std::size_t widest = 28;  ///< a longer cell is wrapped; the last column never is
  };

  explicit TextTable(std::vector<Column> columns) : columns_(std::move(columns)) {}

  /// One cell for each column. Cells are made printable here.
  void add(const std::vector<std::string>& cells);
  bool isEmpty() const { return rows_.empty(); }
  /// Writes the titles and all rows, indented by two blanks. A column without a single
  /// entry is left out.
  void print(Output& out) const;

 private:
  using Lines = std::vector<std::string>;

  std::vector<std::size_t> widths() const;  // 0 for a column without an entry
  std::string line(const std::vector<std::size_t>& widths,
                   const std::vector<std::string>& cells) const;

  std::vector<Column> columns_;
  std::vector<std::vector<Lines>> rows_;  // row, column, wrapped lines
};

}  // namespace kydata

#endif  // KYDATA_TEXT_TABLE_H_
