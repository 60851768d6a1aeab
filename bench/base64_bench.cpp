// How fast is base64 decoded, next to a decoder that looks each character up in a table
// of 256 and does no more?

#include <KyDataStructure/cutscript.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "cutscript/base64.h"
#include "inputs/analysis_report.h"
#include "support/bare_json.h"
#include "support/owned.h"
#include "support/ratio.h"
#include "support/require.h"

namespace {

std::array<unsigned char, 256> alphabetTable() {
  std::array<unsigned char, 256> table{};
  const char* const alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  for (unsigned char value = 0; value < 64; ++value) {
    table[static_cast<unsigned char>(alphabet[value])] = value;
  }
  return table;
}

// Follows the same rule: line breaks are stepped over, a "=" ends its group early.
std::vector<unsigned char> decodeSimply(const char* text, std::size_t size) {
  static const std::array<unsigned char, 256> table = alphabetTable();
  std::vector<unsigned char> bytes;
  bytes.reserve(size / 4 * 3 + 3);
  const auto valueOf = [](char c) { return table[static_cast<unsigned char>(c)]; };
  for (std::size_t count = 0; count < size;) {
    if (*text == '\r' || *text == '\n') {
      ++text;
      ++count;
      continue;
    }
    unsigned bits = static_cast<unsigned>(valueOf(*text++)) << 18;
    bits |= static_cast<unsigned>(valueOf(*text++)) << 12;
    bytes.push_back(static_cast<unsigned char>(bits >> 16));
    if (*text != '=') {
      bits |= static_cast<unsigned>(valueOf(*text++)) << 6;
      bytes.push_back(static_cast<unsigned char>(bits >> 8));
      if (*text != '=') {
        bits |= valueOf(*text++);
        bytes.push_back(static_cast<unsigned char>(bits));
      }
    }
    count += 4;
  }
  return bytes;
}

void proveReport(const std::string& report, const std::vector<unsigned char>& bytes) {
  const auto info = bench::owned(createKeyMatrixInfo(report.c_str()));
  const auto slices = bench::owned(createIZolSliceItemList());
  info->dimensionItem(10)->getSliceItems(slices.get());
  auto* const image = slices->at(0)->faceImage();
  bench::require(image && image->dataSize() == static_cast<int>(bytes.size()) &&
                     std::memcmp(image->data(), bytes.data(), bytes.size()) == 0,
                 "the report has the image");
}

}  // namespace

int main(int argc, char** argv) {
  const auto bytes = bench::imageBytes(bench::kImageBytes);
  const std::string text = bench::base64Of(bytes);
  const std::string report = bench::imageReport(text);
  const ZOL::DecodedBytes decoded = ZOL::decodeBase64(text);
  bench::require(decoded.size == bytes.size() &&
                     std::memcmp(decoded.bytes.get(), bytes.data(), bytes.size()) == 0,
                 "the bytes come out");
  bench::require(decodeSimply(text.data(), text.size()) == bytes, "the yardstick agrees");
  proveReport(report, bytes);

  bench::RatioTable table(bench::Heap::kept);
  table.measure("base64/decoder", [&text](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(ZOL::decodeBase64(text).bytes.get());
  });
  table.measure("base64/simple decoder", [&text](benchmark::State& state) {
    for (auto _ : state) {
      benchmark::DoNotOptimize(decodeSimply(text.data(), text.size()).data());
    }
  });
  table.measure("base64/report", [&report](benchmark::State& state) {
    for (auto _ : state) bench::owned(createKeyMatrixInfo(report.c_str()));
  });
  table.measure("base64/parse and simple decoder", [&report](benchmark::State& state) {
    for (auto _ : state) {
      const auto document = bench::bareDocument(report);
      const auto& base64 = (*document)["face_image_map"]["person 1"]["base64"];
      benchmark::DoNotOptimize(decodeSimply(base64.GetString(), base64.GetStringLength()).data());
    }
  });
  table.compare({"3 MB of base64, the decoder alone", "a simple table decoder", "base64/decoder",
                 "base64/simple decoder", bench::atMost(0.6)});
  table.compare({"createKeyMatrixInfo of a report with nothing else",
                 "bare parse and the simple decoder", "base64/report",
                 "base64/parse and simple decoder", bench::atMost(0.6)});
  return table.run(argc, argv);
}
