// Reads documents through every reader of the library, writes what came of them through
// every writer, and puts down all of it, in bytes that are the same on every platform:
//
//   texts OUT FOLDER
//
// The folder is one that documents.py wrote; OUT gets, for each document, its name behind
// "== " and then what came of it.

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "platforms/readers.h"

namespace {

namespace fs = std::filesystem;

std::vector<std::string> namesIn(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string contentOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::string unlessThrown(Reader reader, const std::string& document) {
  try {
    return reader(document);
  } catch (const std::exception& exception) {
    return std::string("throws: ") + exception.what() + "\n";
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) {
    std::fprintf(stderr, "usage: texts OUT FOLDER\n");
    return 2;
  }
  const fs::path folder = arguments[2];
  std::ofstream out(arguments[1], std::ios::binary);
  for (const std::string& kind : namesIn(folder)) {
    const auto readers = readersOf(kind);
    if (readers.empty()) {
      std::fprintf(stderr, "texts: nothing reads %s\n", kind.c_str());
      return 1;
    }
    for (const std::string& name : namesIn(folder / kind)) {
      const std::string document = contentOf(folder / kind / name);
      out << "== " << kind << '/' << name << '\n';
      for (const Reader reader : readers) out << unlessThrown(reader, document);
    }
  }
  out << "== words\n" << words();
  out.close();
  return out ? 0 : 1;
}
