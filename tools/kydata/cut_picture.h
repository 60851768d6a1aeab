#ifndef KYDATA_CUT_PICTURE_H_
#define KYDATA_CUT_PICTURE_H_

#include <string>

#include "cut_model.h"

namespace kydata {

/// The script as a picture of its timeline: an SVG text.
std::string drawCut(const CutScript& script);

}  // namespace kydata

#endif  // KYDATA_CUT_PICTURE_H_
