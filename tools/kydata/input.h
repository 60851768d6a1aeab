#ifndef KYDATA_INPUT_H_
#define KYDATA_INPUT_H_

#include <KyDataStructure/frame.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "owned.h"

namespace kydata {

/// What is wrong with one input or output, as the end of "kydata: NAME: ...".
class Fault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A text and the name under which messages speak of it.
struct Input {
  std::string name;
  std::string text;
};

/// The name of a file for messages: "standard input" for "-".
std::string inputName(const std::string& file);

/// Reads a file whole, byte for byte; "-" is standard input.
/// \throws Fault when it cannot be opened or read, or holds nothing.
Input readInput(const std::string& file);

/// The lines of an input that hold more than white space, each named "FILE:LINE".
std::vector<Input> linesOf(const Input& input);

/// The text as the library takes it, whatever bytes it holds.
Owned<ZOL::IZolString> zolString(const std::string& text);

/// Runs `work`. A Fault from it becomes one line on standard error, and the answer false.
bool reportingFaults(const std::string& name, const std::function<void()>& work);

}  // namespace kydata

#endif  // KYDATA_INPUT_H_
