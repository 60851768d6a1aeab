#include "inputs/cut_reply.h"

#include "inputs/json_text.h"
#include "inputs/numbers.h"
#include "inputs/words.h"

namespace bench {
namespace {

constexpr int kRowsOfScript = 400;

void writeSpan(JsonText& json, Numbers& numbers) {
  const int start = numbers.between(0, 600000);
  json.member("start_time", static_cast<long long>(start));
  json.member("end_time", static_cast<long long>(start) + numbers.between(800, 20000));
}

std::string someFile(Numbers& numbers, const char* folder) {
  return std::string(folder) + "/day_" + std::to_string(numbers.between(1, 9)) + "/clip_" +
         std::to_string(numbers.between(1000, 9999)) + ".mp4";
}

void writeText(JsonText& json, Numbers& numbers) {
  json.beginObject();
  writeSpan(json, numbers);
  json.member("text", someSentence(numbers, 44));
  json.key("broll");
  json.beginObject();
  json.member("file_name", someFile(numbers, "footage/broll"));
  writeSpan(json, numbers);
  json.endObject();
  json.endObject();
}

const char* scriptClass(int row) {
  if (row == 0) return "title";
  if (row % 25 == 1) return "chapter";
  return row % 40 == 7 ? "frame" : "plain";
}

void writeRow(JsonText& json, Numbers& numbers, int row) {
  json.beginObject();
  json.member("script_class", std::string(scriptClass(row)));
  writeSpan(json, numbers);
  json.member("title", someSentence(numbers, 24));
  json.member("subtitle", someSentence(numbers, 36));
  json.member("description", someSentence(numbers, 150));
  json.member("file_name", someFile(numbers, "footage/main"));
  json.key("text");
  json.beginArray();
  for (int i = 0; i < 2; ++i) writeText(json, numbers);
  json.endArray();
  json.key("highlight");
  json.beginArray();
  json.beginObject();
  writeSpan(json, numbers);
  json.member("class", std::string(numbers.below(2) == 0 ? "emotion" : "action"));
  json.endObject();
  json.endArray();
  json.endObject();
}

}  // namespace

CutReply cutReply(std::size_t bytes) {
  Numbers numbers(21);
  JsonText json;
  std::size_t rows = 0;
  json.beginArray();
  for (int script = 0; json.size() < bytes; ++script) {
    json.beginObject();
    json.member("title", someSentence(numbers, 30));
    json.member("music", std::string(script % 2 == 0 ? "t2m" : "library"));
    json.member("overall_description", someSentence(numbers, 120));
    json.key("script");
    json.beginArray();
    for (int row = 0; row < kRowsOfScript && json.size() < bytes; ++row, ++rows) {
      writeRow(json, numbers, row);
    }
    json.endArray();
    json.endObject();
  }
  json.endArray();
  return {json.text(), rows};
}

}  // namespace bench
