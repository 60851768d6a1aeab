// An analysis report as a test compares it: a line for each dimension.
//
//   5: labels ["pan", "tilt"], slices ["pan" 1000..2000, "tilt" 3000..4000]
//   10: slices ["ann" 0..900 face 8x8 "abc"]
//   keywords ["sea"]

#ifndef KYDATASTRUCTURE_TESTS_CUTSCRIPT_REPORT_STATE_H_
#define KYDATASTRUCTURE_TESTS_CUTSCRIPT_REPORT_STATE_H_

#include <KyDataStructure/cutscript.h>

#include <initializer_list>
#include <string>

#include "support/held.h"

// A score is shown when it is not 100, an image when there is one.
std::string show(ZOL::IZolSliceItem& slice);
std::string show(ZOL::IZolSliceItemList& slices);
std::string show(ZOL::ZOLPCharList& texts);
// The labels when there are any, the slices of all, and the slices by label where they
// do not add up to those.
std::string show(ZOL::IZolDemensionsItem& item);
std::string show(ZOL::IZolKeyMatrixInfo& report);

// A list of these texts.
Held<ZOL::ZOLPCharList> textList(std::initializer_list<const char*> texts);

// What comes of a report, and "null" for one that is not taken.
std::string showReport(const std::string& text);

#endif  // KYDATASTRUCTURE_TESTS_CUTSCRIPT_REPORT_STATE_H_
