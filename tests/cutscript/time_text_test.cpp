// Times and scores as text, against the standard library's own scanning.

#include <gtest/gtest.h>

#include <KyDataStructure/cutscript.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/held.h"
#include "support/json_tree.h"

namespace {

// Every text of up to `longest` letters out of these.
std::vector<std::string> everyText(const std::string& letters, std::size_t longest) {
  std::vector<std::string> texts = {""};
  for (std::size_t begin = 0, size = 0; size < longest; ++size) {
    const std::size_t end = texts.size();
    for (; begin < end; ++begin) {
      for (const char letter : letters) texts.push_back(texts[begin] + letter);
    }
  }
  return texts;
}

long long scannedTime(const std::string& text) {
  long long hours = 0;
  long long minutes = 0;
  long long seconds = 0;
  static_cast<void>(std::sscanf(text.c_str(), "%lld:%lld:%lldZ", &hours, &minutes, &seconds));
  // In 32 bits that wrap around.
  const std::uint64_t milliseconds = static_cast<std::uint64_t>(hours) * 3600000U +
                                     static_cast<std::uint64_t>(minutes) * 60000U +
                                     static_cast<std::uint64_t>(seconds) * 1000U;
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(milliseconds));
}

// The times of the slices that come of these spans, one line each.
std::string times(const std::vector<std::string>& spans) {
  std::string text;
  for (const std::string& span : spans) text += (text.empty() ? "" : ",") + quoted(span);
  text = "{\"camera\":{\"labels\":{\"a\":[" + text + "]}}}";
  const Held<ZOL::IZolKeyMatrixInfo> report(createKeyMatrixInfo(text.c_str()));
  const Held<ZOL::IZolSliceItemList> slices(createIZolSliceItemList());
  report->dimensionItem(5)->getSliceItems(slices.get());
  std::string lines;
  for (long long i = 0; i < slices->size(); ++i) {
    lines += std::to_string(slices->at(i)->startTime()) + " " +
             std::to_string(slices->at(i)->endTime()) + "\n";
  }
  return lines;
}

std::string scannedTimes(const std::vector<std::string>& spans) {
  std::string lines;
  for (const std::string& span : spans) {
    const std::size_t hyphen = span.find('-');
    if (hyphen == std::string::npos) continue;
    lines += std::to_string(scannedTime(span.substr(0, hyphen))) + " " +
             std::to_string(scannedTime(span.substr(hyphen + 1))) + "\n";
  }
  return lines;
}

// A thousand texts at a time, so that a difference is found in a short text.
void expectTimesAsScanned(const std::vector<std::string>& spans) {
  for (std::size_t begin = 0; begin < spans.size(); begin += 1000) {
    const std::size_t end = begin + 1000 < spans.size() ? begin + 1000 : spans.size();
    const std::vector<std::string> some(spans.begin() + static_cast<std::ptrdiff_t>(begin),
                                        spans.begin() + static_cast<std::ptrdiff_t>(end));
    ASSERT_EQ(times(some), scannedTimes(some));
  }
}

TEST(TimeText, IsScannedForHoursMinutesAndSeconds) {
  expectTimesAsScanned(everyText("17:Z -+x", 5));
}

TEST(TimeText, IsScannedWithAnyNumbersOf32Bits) {
  static const std::vector<std::string> numbers = {
      "0",   "1",    "59",       "60",         "007",         "+3", "-4",         "596",
      "597", "1193", "71582788", "2147483647", "-2147483648", " 5", "\t\n\v\f\r6"};
  static const std::vector<std::string> ends = {"Z", "", " Z", "z", ":1Z", ".5Z", "ZZ", "Z "};
  Dice dice(60);
  std::vector<std::string> spans;
  const auto moment = [&dice] {
    std::string text = dice.from(numbers);
    for (int i = 0; i < 2; ++i) text += (dice.one(20) ? " :" : ":") + dice.from(numbers);
    return text + dice.from(ends);
  };
  for (int i = 0; i < 20000; ++i) spans.push_back(moment() + "-" + moment());
  expectTimesAsScanned(spans);
}

std::string converted(const std::string& label) {
  try {
    return std::to_string(std::stoi(label));
  } catch (const std::invalid_argument&) {
    return "invalid stoi argument";
  } catch (const std::out_of_range&) {
    return "stoi argument out of range";
  }
}

std::string scored(const std::string& label) {
  const std::string text = "{\"total\":{\"labels\":{" + quoted(label) + ":[\"-\"]}}}";
  try {
    const Held<ZOL::IZolKeyMatrixInfo> report(createKeyMatrixInfo(text.c_str()));
    const Held<ZOL::IZolSliceItemList> slices(createIZolSliceItemList());
    report->dimensionItem(2)->getSliceItems(slices.get());
    return std::to_string(slices->at(0)->score());
  } catch (const std::invalid_argument& error) {
    return error.what();
  } catch (const std::out_of_range& error) {
    return error.what();
  }
}

TEST(ScoreLabel, IsConvertedAsTheStandardConversionDoes) {
  std::vector<std::string> labels = everyText("09-+ x\t.", 4);
  for (const char* const number :
       {"2147483647", "2147483648", "-2147483648", "-2147483649", "4294967296", "+2147483647",
        "+2147483648", "0000000000000000000000000000012", "9223372036854775807",
        "9223372036854775808", "-9223372036854775808", "-9223372036854775809",
        "99999999999999999999999999999999999999", "2147483647.9", "2147483648x", "0x10", "1e5",
        "\v\f\r\n 5",
        "\xC2\xA0"
        "5"}) {
    labels.push_back(number);
  }
  for (const std::string& label : labels) ASSERT_EQ(scored(label), converted(label)) << label;
}

}  // namespace
