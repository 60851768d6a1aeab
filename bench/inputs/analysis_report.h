// An analysis service's report.

#ifndef KYDATASTRUCTURE_BENCH_INPUTS_ANALYSIS_REPORT_H_
#define KYDATASTRUCTURE_BENCH_INPUTS_ANALYSIS_REPORT_H_

#include <cstddef>
#include <string>
#include <vector>

namespace bench {

// About 10 MB: the ten labelled dimensions, each with a score for every second of a long
// video and a slice for every fifth, a sentence for every fourth, keywords, and 48 faces
// with 3 MB of base64 for their images.
std::string analysisReport();

// The bytes of an image of that many, and as base64.
std::vector<unsigned char> imageBytes(std::size_t count);
std::string base64Of(const std::vector<unsigned char>& bytes);

// A report of nothing but one face and its image, 1024 by 768, of three bytes a pixel.
constexpr int kImageWidth = 1024;
constexpr int kImageHeight = 768;
constexpr std::size_t kImageBytes = std::size_t{3} * kImageWidth * kImageHeight;
std::string imageReport(const std::string& base64);

}  // namespace bench

#endif  // KYDATASTRUCTURE_BENCH_INPUTS_ANALYSIS_REPORT_H_
