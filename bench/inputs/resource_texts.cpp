#include "inputs/resource_texts.h"

#include "inputs/json_text.h"
#include "inputs/numbers.h"
#include "inputs/words.h"

namespace bench {
namespace {

void writeProperties(JsonText& json) {
  json.member("id", 482913LL);
  json.member("infoType", 6LL);
  json.member("is_custom", 0LL);
  json.member("smart_resource", 1LL);
  json.member("res_media_size", 7340032LL);
  json.member("mediaType", 2LL);
  json.member("resourceRate", 3LL);
  json.member("sale_mode", 1LL);
  json.member("source", 4LL);
  json.member("res_sub_type", 12LL);
  json.member("res_type", 3LL);
  json.member("name", std::string("summer-title-lower-third-07"));
  json.member("related_slug", std::string("summer-title-lower-third-06"));
  json.member("vcg_media_path", std::string("library/titles/summer/lower_third_07.pack"));
  json.key("pack_info");
  json.beginArray();
  json.beginObject();
  json.member("pack_id", 93LL);
  json.member("pack_name", std::string("summer-titles"));
  json.endObject();
  json.endArray();
  json.key("user_string");
  json.beginObject();
  json.member("animated_stt_state_type", std::string("1"));
  json.member("customRsMd5", std::string("9e107d9d372bb6826bd81d3542a419d6"));
  json.endObject();
}

void writeRelated(JsonText& json, Numbers& numbers, int number) {
  json.beginObject();
  json.member("rsResSlug", "related-title-" + std::to_string(number));
  json.member("rsResType", static_cast<long long>(numbers.between(1, 40)));
  json.key("user_string");
  json.beginObject();
  json.member("animated_stt_state_type", std::to_string(numbers.between(0, 9)));
  json.member("customRsMd5", std::string());
  json.member("openfx_plugin_name", std::string("org.example.glow"));
  json.member("vst3_plugin_name", std::string());
  json.endObject();
  json.endObject();
}

// An object that some other program put there.
void writePayload(JsonText& json, Numbers& numbers) {
  json.beginObject();
  json.member("track", someSentence(numbers, 20));
  json.member("note", someSentence(numbers, 90));
  json.member("opacity", numbers.between(0, 1000) / 1000.0);
  json.member("enabled", numbers.below(2) == 0);
  json.key("keys");
  json.beginArray();
  for (int i = 0; i < 8; ++i) json.value(static_cast<long long>(numbers.between(0, 100000)));
  json.endArray();
  json.endObject();
}

}  // namespace

std::string plainResource() {
  Numbers numbers(11);
  JsonText json;
  json.beginObject();
  writeProperties(json);
  json.key("related_res_list");
  json.beginArray();
  for (int i = 0; i < 2; ++i) writeRelated(json, numbers, i);
  json.endArray();
  json.member("author", someSentence(numbers, 24));
  json.key("preview");
  writePayload(json, numbers);
  json.endObject();
  return json.text();
}

std::string resourceWithPayload(std::size_t bytes) {
  Numbers numbers(12);
  JsonText json;
  json.beginObject();
  writeProperties(json);
  json.key("timeline");
  json.beginArray();
  while (json.size() < bytes) writePayload(json, numbers);
  json.endArray();
  json.endObject();
  return json.text();
}

std::string resourceWithRelated(std::size_t bytes) {
  Numbers numbers(13);
  JsonText json;
  json.beginObject();
  writeProperties(json);
  json.key("related_res_list");
  json.beginArray();
  for (int i = 0; json.size() < bytes; ++i) writeRelated(json, numbers, i);
  json.endArray();
  json.endObject();
  return json.text();
}

std::string shortResource(int number) {
  JsonText json;
  json.beginObject();
  json.member("id", static_cast<long long>(number) + 1);
  json.member("infoType", 7LL);
  json.member("res_type", static_cast<long long>(number % 20) + 1);
  json.member("res_sub_type", 2LL);
  json.member("name", "overlay-light-leak-" + std::to_string(number));
  json.member("sale_mode", 1LL);
  json.member("related_slug", std::string("overlay-light-leak-base"));
  json.key("user_string");
  json.beginObject();
  json.endObject();
  json.endObject();
  return json.text();
}

}  // namespace bench
