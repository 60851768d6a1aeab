#include "svg.h"

#include <array>
#include <cstdio>

#include "utf8.h"

namespace kydata {

namespace {

constexpr std::string_view kEllipsis = "\u2026";

bool isOneOf(std::string_view letters, char32_t point) {
  return point < 0x80 && letters.find(static_cast<char>(point)) != std::string_view::npos;
}

/// In parts of the font size.
double widestWidth(char32_t point) {
  if (isOneOf("ijl.,:;'|! ", point)) return 0.36;
  if (isOneOf("ftr()[]-/\"", point)) return 0.5;
  if (isOneOf("mwMW@%", point)) return 1.02;
  if (point >= 'A' && point <= 'Z') return 0.8;
  if (point < 0x80) return 0.67;
  if (point < 0x1100) return 0.9;
  return point < 0x1F000 ? 1.05 : 1.4;
}

}  // namespace

std::string xmlText(std::string_view text) {
  std::string safe;
  for (const char letter : text) {
    switch (letter) {
      case '&':
        safe += "&amp;";
        break;
      case '<':
        safe += "&lt;";
        break;
      case '>':
        safe += "&gt;";
        break;
      case '"':
        safe += "&quot;";
        break;
      default:
        safe += letter;
    }
  }
  return safe;
}

std::string coordinate(double value) {
  std::array<char, 40> text;
  std::snprintf(text.data(), text.size(), "%.2f", value);
  std::string shortened = text.data();
  while (shortened.back() == '0') shortened.pop_back();
  if (shortened.back() == '.') shortened.pop_back();
  return shortened == "-0" ? "0" : shortened;
}

double widestWidth(std::string_view text, double fontSize) {
  double width = 0;
  while (!text.empty()) {
    const CodePoint point = firstCodePoint(text);
    width += widestWidth(point.value) * fontSize;
    text.remove_prefix(point.bytes);
  }
  return width;
}

std::string fitted(std::string_view text, double room, double fontSize) {
  if (widestWidth(text, fontSize) <= room) return std::string(text);
  double free = room - widestWidth(kEllipsis, fontSize);
  std::string begin;
  while (!text.empty()) {
    const CodePoint point = firstCodePoint(text);
    free -= widestWidth(point.value) * fontSize;
    if (free < 0) break;
    begin += text.substr(0, point.bytes);
    text.remove_prefix(point.bytes);
  }
  while (!begin.empty() && begin.back() == ' ') begin.pop_back();
  return begin.empty() ? "" : begin + std::string(kEllipsis);
}

}  // namespace kydata
