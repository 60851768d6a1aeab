// Gives a target the texts of its corpus, one after the other, without a fuzzer:
//
//   fuzz_cut_reply fuzz/corpus/cut_reply
//
// The last name that was printed is that of the text which ended the program. Each text
// is given twice: whatever the second time leaves allocated was left over by the target
// or the library, and fails.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "support/heap_watch.h"
#include "target.h"

namespace {

std::string contentOf(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::vector<std::filesystem::path> textsIn(const char* directory) {
  std::vector<std::filesystem::path> texts;
  for (const auto& entry : std::filesystem::directory_iterator(directory)) {
    texts.push_back(entry.path());
  }
  std::sort(texts.begin(), texts.end());
  return texts;
}

// Whether it leaves nothing allocated.
bool replay(const std::filesystem::path& file) {
  const std::string content = contentOf(file);
  const auto* const bytes = reinterpret_cast<const std::uint8_t*>(content.data());
  LLVMFuzzerTestOneInput(bytes, content.size());
  const long long blocks = liveBlocks();
  LLVMFuzzerTestOneInput(bytes, content.size());
  return liveBlocks() == blocks;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "usage: " << arguments[0] << " CORPUS-DIRECTORY\n";
    return 2;
  }
  const auto texts = textsIn(arguments[1]);
  for (const auto& text : texts) {
    std::cout << text.filename().string() << std::endl;
    if (replay(text)) continue;
    std::cout << "something is left allocated" << std::endl;
    return 1;
  }
  std::cout << texts.size() << " texts" << std::endl;
  return texts.empty() ? 1 : 0;
}
