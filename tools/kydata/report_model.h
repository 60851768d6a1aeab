#ifndef KYDATA_REPORT_MODEL_H_
#define KYDATA_REPORT_MODEL_H_

#include <KyDataStructure/cutscript.h>

#include <string>
#include <utility>
#include <vector>

#include "owned.h"
#include "times.h"

namespace kydata {

struct Slice {
  std::string label;
  Span time;
  int score;
  std::vector<std::pair<std::string, std::string>> keyValues;
  ZOL::IZolBGRData* face;  ///< lent by the report; null if none
};

/// The slices under one label, or all slices of a dimension without labels.
struct SliceGroup {
  std::string label;
  std::vector<Slice> slices;
};

struct Dimension {
  int type;
  const char* name;
  bool hasLabels;
  std::vector<SliceGroup> groups;
};

/// An analysis report, copied out of the library's objects but for the pictures.
struct Report {
  Owned<ZOL::IZolKeyMatrixInfo> info;
  std::vector<Dimension> dimensions;
  std::vector<std::string> keywords;
};

/// Reads an analysis report.
/// \throws Fault when it is none.
Report readReport(const std::string& text);

/// True for a JSON object with a dimension or a keyword of a report, also if a label
/// then keeps it from being read.
bool isReport(const std::string& text);

}  // namespace kydata

#endif  // KYDATA_REPORT_MODEL_H_
