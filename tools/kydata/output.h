#ifndef KYDATA_OUTPUT_H_
#define KYDATA_OUTPUT_H_

#include <iostream>
#include <ostream>
#include <string>

namespace kydata {

/// Standard output, and the little colour that is used on it: only where it is a
/// terminal, and never where the environment holds NO_COLOR.
class Output {
 public:
  Output();

  std::ostream& text() { return std::cout; }
  std::string heading(const std::string& text) const { return coloured("1", text); }
  std::string faint(const std::string& text) const { return coloured("2", text); }

  /// Writes what is still held back.
  /// \throws Fault when standard output takes no more.
  void finish();

 private:
  std::string coloured(const char* code, const std::string& text) const;

  bool hasColour_;
};

/// Writes a whole file; "-" is standard output.
/// \throws Fault when that is not possible.
void writeFile(Output& out, const std::string& file, const std::string& text);

}  // namespace kydata

#endif  // KYDATA_OUTPUT_H_
