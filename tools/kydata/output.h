#ifndef KYDATA_OUTPUT_H_
#define KYDATA_OUTPUT_H_

#include <iostream>
#include <ostream>
#include <string>

namespace kydata {

enum class Colour {
  automatic,  ///< on a terminal that is not dumb, unless the environment holds NO_COLOR
  always,
  never,
};

/// Standard output, and the little colour that is used on it.
class Output {
 public:
  explicit Output(Colour colour);

  std::ostream& text();
  std::string heading(const std::string& text) const { return coloured("1", text); }
  std::string alarm(const std::string& text) const { return coloured("1;31", text); }
  std::string faint(const std::string& text) const { return coloured("2", text); }

  /// Writes what is still held back.
  /// \throws Fault when standard output takes no more.
  void finish();

 private:
  std::string coloured(const char* code, const std::string& text) const;
  void noteFault();

  bool hasColour_;
  int fault_ = 0;  ///< the system's number of what went wrong first
};

/// Writes a whole file; "-" is standard output.
/// \throws Fault when that is not possible.
void writeFile(Output& out, const std::string& file, const std::string& text);

}  // namespace kydata

#endif  // KYDATA_OUTPUT_H_
