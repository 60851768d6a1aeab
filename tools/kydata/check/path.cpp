#include "check/path.h"

#include <algorithm>

#include "utf8.h"

namespace kydata::check {

namespace {

constexpr std::size_t kFrontSteps = 16;
constexpr std::size_t kBackSteps = 4;

bool isPlain(std::string_view name) {
  return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
  });
}

}  // namespace

void Path::add(std::string step) {
  if (++steps_ <= kFrontSteps) {
    front_ += step;
    return;
  }
  back_.push_back(std::move(step));
  if (back_.size() > kBackSteps) back_.pop_front();
}

void Path::addName(std::string_view name) {
  if (isPlain(name)) {
    add((steps_ == 0 ? "" : ".") + std::string(name));
    return;
  }
  std::string quoted;
  for (const char c : printable(name)) {
    if (c == '"') quoted += '\\';
    quoted += c;
  }
  add("[\"" + quoted + "\"]");
}

void Path::addIndex(long long index) { add("[" + std::to_string(index) + "]"); }

std::string Path::text() const {
  std::string text = front_;
  if (steps_ > kFrontSteps + kBackSteps) text += "...";
  for (const std::string& step : back_) text += step;
  return text;
}

}  // namespace kydata::check
