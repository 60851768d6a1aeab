#include "input.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <memory>

#include "utf8.h"

namespace kydata {

namespace {

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

int leaveOpen(std::FILE*) { return 0; }

File open(const std::string& file) {
  if (file == "-") return File(stdin, leaveOpen);
  File opened(std::fopen(file.c_str(), "rb"), std::fclose);
  if (!opened) throw Fault(std::string("cannot be opened: ") + std::strerror(errno));
  return opened;
}

std::string readAll(std::FILE* file) {
  std::string text;
  std::array<char, 65536> block;
  std::size_t count = 0;
  while ((count = std::fread(block.data(), 1, block.size(), file)) > 0) {
    text.append(block.data(), count);
  }
  if (std::ferror(file)) throw Fault(std::string("cannot be read: ") + std::strerror(errno));
  return text;
}

}  // namespace

std::string inputName(const std::string& file) { return file == "-" ? "standard input" : file; }

Input readInput(const std::string& file) {
  Input input{inputName(file), readAll(open(file).get())};
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
    std::cerr << "kydata: " << printable(name) << ": " << fault.what() << '\n';
    return false;
  }
}

}  // namespace kydata
