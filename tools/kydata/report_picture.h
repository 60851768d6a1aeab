#ifndef KYDATA_REPORT_PICTURE_H_
#define KYDATA_REPORT_PICTURE_H_

#include <string>

#include "report_model.h"

namespace kydata {

/// The spans of all dimensions over time: an SVG text.
std::string drawReport(const Report& report);

}  // namespace kydata

#endif  // KYDATA_REPORT_PICTURE_H_
