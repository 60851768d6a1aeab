#ifndef KYDATA_SVG_H_
#define KYDATA_SVG_H_

#include <string>
#include <string_view>

namespace kydata {

/// A printable text, made safe between tags and inside quotes.
std::string xmlText(std::string_view text);

/// A coordinate with at most two decimals.
std::string coordinate(double value);

/// How wide a text gets at most, in the widest of the usual fonts.
double widestWidth(std::string_view text, double fontSize);

/// The text, cut and ended by an ellipsis where it would be wider than `room`; empty
/// where not even one letter finds place.
std::string fitted(std::string_view text, double room, double fontSize);

}  // namespace kydata

#endif  // KYDATA_SVG_H_
