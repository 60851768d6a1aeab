#include "inputs/analysis_report.h"

#include "inputs/json_text.h"
#include "inputs/numbers.h"
#include "inputs/words.h"

namespace bench {
namespace {

constexpr int kFaces = 48;
constexpr int kFaceSide = 128;
constexpr int kSeconds = 70000;  // of the video
constexpr int kSecondsOfSlice = 5;
constexpr int kSecondsOfSentence = 4;

std::string timeText(int second) {
  return std::to_string(second / 3600) + ":" + std::to_string(second / 60 % 60) + ":" +
         std::to_string(second % 60) + "Z";
}

std::string someSpan(Numbers& numbers) {
  const int start = numbers.between(0, kSeconds);
  return timeText(start) + "-" + timeText(start + numbers.between(1, 40));
}

void writeSpans(JsonText& json, Numbers& numbers, int count) {
  json.beginArray();
  for (int i = 0; i < count; ++i) json.value(someSpan(numbers));
  json.endArray();
}

// {"scores": [...], "labels": {"boat 1": ["0:0:1Z-0:0:4Z", ...], ...}}
void writeDimension(JsonText& json, Numbers& numbers, const std::string& name, bool labelIsScore) {
  constexpr int kLabels = 40;
  json.key(name);
  json.beginObject();
  json.key("scores");
  json.beginArray();
  for (int i = 0; i < kSeconds; ++i) json.value(static_cast<long long>(numbers.between(0, 100)));
  json.endArray();
  json.key("labels");
  json.beginObject();
  for (int label = 0; label < kLabels; ++label) {
    const std::string number = std::to_string(label + 50);
    json.key(labelIsScore ? number : std::string(someWord(numbers)) + " " + number);
    writeSpans(json, numbers, kSeconds / kSecondsOfSlice / kLabels);
  }
  json.endObject();
  json.endObject();
}

void writeImage(JsonText& json, int width, int height, const std::string& base64) {
  json.beginObject();
  json.member("width", static_cast<long long>(width));
  json.member("height", static_cast<long long>(height));
  json.member("base64", base64);
  json.endObject();
}

void writeSpeech(JsonText& json, Numbers& numbers) {
  json.key("stt");
  json.beginArray();
  for (int second = 0; second < kSeconds; second += kSecondsOfSentence) {
    const long long start = second * 1000LL;
    json.beginObject();
    json.member("begin_time", start);
    json.member("end_time", start + numbers.between(500, 3900));
    json.member("text", someSentence(numbers, 50));
    json.endObject();
  }
  json.endArray();
}

std::string faceName(int face) { return "person " + std::to_string(face + 1); }

}  // namespace

std::vector<unsigned char> imageBytes(std::size_t count) {
  Numbers numbers(31);
  std::vector<unsigned char> bytes(count);
  for (unsigned char& byte : bytes) byte = static_cast<unsigned char>(numbers.below(256));
  return bytes;
}

// For whole groups of three bytes, so without a "=" at the end.
std::string base64Of(const std::vector<unsigned char>& bytes) {
  static const char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  text.reserve(bytes.size() / 3 * 4);
  for (std::size_t i = 0; i + 2 < bytes.size(); i += 3) {
    const unsigned bits = static_cast<unsigned>(bytes[i]) << 16 |
                          static_cast<unsigned>(bytes[i + 1]) << 8 | bytes[i + 2];
    for (int shift = 18; shift >= 0; shift -= 6) text += alphabet[bits >> shift & 63];
  }
  return text;
}

std::string analysisReport() {
  Numbers numbers(32);
  JsonText json;
  json.beginObject();
  json.key("keywords");
  json.beginArray();
  for (int i = 0; i < 200; ++i) json.value(std::string(someWord(numbers)));
  json.endArray();

  const std::string image = base64Of(imageBytes(std::size_t{3} * kFaceSide * kFaceSide));
  json.key("face_image_map");
  json.beginObject();
  for (int face = 0; face < kFaces; ++face) {
    json.key(faceName(face));
    writeImage(json, kFaceSide, kFaceSide, image);
  }
  json.endObject();
  json.key("face_cluster");
  json.beginObject();
  for (int face = 0; face < kFaces; ++face) {
    json.key(faceName(face));
    writeSpans(json, numbers, 100);
  }
  json.endObject();

  for (const char* const name : {"camera", "object", "shot_size", "emotion", "scene", "scene_text",
                                 "camera_quality", "action"}) {
    writeDimension(json, numbers, name, false);
  }
  for (const char* const name : {"brightness_change", "total"}) {
    writeDimension(json, numbers, name, true);
  }
  writeSpeech(json, numbers);
  json.endObject();
  return json.text();
}

std::string imageReport(const std::string& base64) {
  JsonText json;
  json.beginObject();
  json.key("face_image_map");
  json.beginObject();
  json.key(faceName(0));
  writeImage(json, kImageWidth, kImageHeight, base64);
  json.endObject();
  json.key("face_cluster");
  json.beginObject();
  json.key(faceName(0));
  json.beginArray();
  json.value(std::string("0:0:1Z-0:0:4Z"));
  json.endArray();
  json.endObject();
  json.endObject();
  return json.text();
}

}  // namespace bench
