#include "input.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <memory>
#include <system_error>

#include "file_names.h"
#include "status_line.h"
#include "utf8.h"

namespace kydata {

namespace {

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

int leaveOpen(std::FILE*) { return 0; }

File open(const std::string& file) {
  if (file == "-") return File(stdin, leaveOpen);
  File opened(openFile(file, "rb"), std::fclose);
  if (!opened) throw Fault(std::string("cannot be opened: ") + std::strerror(errno));
  return opened;
}

constexpr std::size_t kMegabyte = 1000 * 1000;
constexpr std::size_t kWorthAWord = 50 * kMegabyte;

std::string megabytes(std::size_t bytes) { return std::to_string(bytes / kMegabyte) + " MB"; }

/// The size of a file as far as it can be known ahead; 0 where it cannot.
std::size_t expectedSize(const std::string& file) {
  std::error_code unknown;
  const auto size = std::filesystem::file_size(pathOf(file), unknown);
  return unknown ? 0 : static_cast<std::size_t>(size);
}

/// Tells how far the reading of a big input has got.
class ReadingStatus {
 public:
  explicit ReadingStatus(const std::string& file)
      : name_(inputName(file)), expected_(expectedSize(file)) {}

  void at(std::size_t bytes) {
    if (std::max(bytes, expected_) < kWorthAWord || bytes < next_) return;
    next_ = bytes + kMegabyte;
    showStatus(name_ + ": " + megabytes(bytes) +
               (expected_ > bytes ? " of " + megabytes(expected_) : "") + " loaded");
  }

  void finish(std::size_t bytes) {
    if (bytes >= kWorthAWord) showStatus(name_ + ": " + megabytes(bytes) + ", being read ...");
  }

 private:
  std::string name_;
  std::size_t expected_;
  std::size_t next_ = 0;
};

std::string readAll(std::FILE* file, ReadingStatus status) {
  std::string text;
  std::array<char, 65536> block;
  std::size_t count = 0;
  while ((count = std::fread(block.data(), 1, block.size(), file)) > 0) {
    text.append(block.data(), count);
    status.at(text.size());
  }
  if (std::ferror(file)) throw Fault(std::string("cannot be read: ") + std::strerror(errno));
  status.finish(text.size());
  return text;
}

}  // namespace

std::string inputName(const std::string& file) { return file == "-" ? "standard input" : file; }

Input readInput(const std::string& file) {
  Input input{inputName(file), readAll(open(file).get(), ReadingStatus(file))};
  if (input.text.empty()) throw Fault("is empty");
  return input;
}

std::vector<Input> linesOf(const Input& input) {
  std::vector<Input> lines;
  std::size_t number = 0;
  for (std::size_t begin = 0; begin < input.text.size();) {
    const std::size_t end = std::min(input.text.find('\n', begin), input.text.size());
    std::string line = input.text.substr(begin, end - begin);
    begin = end + 1;
    ++number;
    if (line.find_first_not_of(" \t\r") == std::string::npos) continue;
    lines.push_back({input.name + ":" + std::to_string(number), std::move(line)});
  }
  return lines;
}

Owned<ZOL::IZolString> zolString(const std::string& text) {
  Owned<ZOL::IZolString> holder(createZolString());
  // A length of 0 means "up to the zero", which is right behind an empty text.
  holder->setText(text.c_str(), static_cast<long long>(text.size()));
  return holder;
}

bool reportingFaults(const std::string& name, const std::function<void()>& work) {
  try {
    work();
    return true;
  } catch (const Fault& fault) {
    clearStatus();
    std::cerr << "kydata: " << printable(name) << ": " << fault.what() << '\n';
    return false;
  }
}

}  // namespace kydata
