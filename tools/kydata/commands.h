#ifndef KYDATA_COMMANDS_H_
#define KYDATA_COMMANDS_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "input.h"
#include "output.h"

namespace kydata {

// What the command line asked for, and the run of it. A run answers true when every
// file could be handled; what could not has been reported on standard error.

struct ResourceOptions {
  std::vector<std::string> files;
  std::optional<int> completeType;  ///< reads the complete form of that info type
  bool linesAreTexts = false;       ///< each line is a text of its own
  bool writeNormal = false;
  bool unique = false;
};
bool runResource(const ResourceOptions& options, Output& out);

struct CutOptions {
  std::string file;
  std::optional<int> script;  ///< counted from 1
  std::string svg;            ///< the picture's file; empty for tables
};
bool runCut(const CutOptions& options, Output& out);

struct ReportOptions {
  std::string file;
  std::string svg;  ///< the picture's file; empty for tables
};
bool runReport(const ReportOptions& options, Output& out);

struct StoryboardOptions {
  std::string file;
  int script = 1;  ///< of a cut reply, counted from 1
};
bool runStoryboard(const StoryboardOptions& options, Output& out);

struct DataMapOptions {
  std::vector<std::string> files;
  bool writeNormal = false;
};
bool runDataMap(const DataMapOptions& options, Output& out);

struct CheckOptions {
  std::vector<std::string> files;
  std::string form;                 ///< its name; empty to tell it from the text
  std::optional<int> completeType;  ///< the complete form of that info type instead
  std::size_t limit = 10;           ///< of findings that are alike; 0 for none
  bool writeJson = false;
  bool writeSchema = false;
  bool listCodes = false;
};
/// True when nothing worse than a note was found.
bool runCheck(const CheckOptions& options, Output& out);
/// True for the name of a form that CheckOptions may hold.
bool isForm(const std::string& name);

/// Finds out which of the library's text forms a file holds, and shows it as the
/// command for that form does.
bool runRecognise(const std::string& file, Output& out);

// One text as its command shows it without options. They throw a Fault where the text
// is not of that form.
void showResource(const Input& input, Output& out);
void showCut(const Input& input, Output& out);
void showReport(const Input& input, Output& out);
void showStoryboard(const Input& input, int script, Output& out);
void showDataMap(const Input& input, Output& out);

}  // namespace kydata

#endif  // KYDATA_COMMANDS_H_
