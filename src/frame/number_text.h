// The standard conversions from text to number, with failures in fixed words that
// no standard library of this platform uses.

#ifndef KYDATASTRUCTURE_FRAME_NUMBER_TEXT_H_
#define KYDATASTRUCTURE_FRAME_NUMBER_TEXT_H_

namespace ZOL {

// Leading white space is skipped, a sign is taken, and what follows the number is
// ignored. Throw std::invalid_argument "invalid stoi argument" when there is no
// number, and std::out_of_range "stoi argument out of range", with the name of the
// conversion in the place of stoi.
int textToInt(const char* text);             // stoi
long long textToLonglong(const char* text);  // stoll
double textToDouble(const char* text);       // stod

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_FRAME_NUMBER_TEXT_H_
