#include "oom/inputs.h"

#include <fstream>
#include <iterator>
#include <numeric>
#include <stdexcept>

#include "oom/sweep.h"

namespace oom {
namespace {

Input sample(const std::string& file, int infoType = 0) {
  std::ifstream in(KYDATASTRUCTURE_SAMPLES "/" + file);
  if (!in) throw std::runtime_error("cannot read the sample " + file);
  return {file, std::string(std::istreambuf_iterator<char>(in), {}), infoType};
}

// The numbers of rows of those texts that come in several lengths.
std::vector<int> lengths() {
  if (!full()) return {3};
  std::vector<int> all(40);
  std::iota(all.begin(), all.end(), 1);
  return all;
}

// An input for each of these lengths.
template <class MakeText>
void addOfEachLength(const std::string& name, MakeText makeText, std::vector<Input>& inputs) {
  for (const int length : lengths()) {
    inputs.push_back({std::to_string(length) + " " + name, makeText(length)});
  }
}

std::string repeated(int count, const std::string& before, const std::string& after) {
  std::string text;
  for (int i = 0; i < count; ++i) text += (i > 0 ? "," : "") + before + std::to_string(i) + after;
  return text;
}

// Deeper than the recursive reader goes, so that it is read twice.
std::string deep() { return std::string(100, '[') + std::string(100, ']'); }

}  // namespace

std::string descriptionWithRelated(int entries) {
  return R"({"id": 5, "infoType": 7, "res_type": 3, "name": "a slug that is quite long",)"
         R"("unknown": [1, {"b": null}], "related_res_list": [)" +
         repeated(entries, R"({"rsResSlug": "a related slug, also long )",
                  R"(", "rsResType": 4, "user_string": {"customRsMd5": "0123456789abcdef01"}})") +
         "]}";
}

std::vector<Input> normalForms() {
  std::vector<Input> inputs = {
      sample("pack_title.json"),
      sample("single_transition.json"),
      sample("broken/truncated.json"),
      sample("broken/nameless.json"),
      sample("broken/no_type.json"),
      {"a deep text", R"({"name": "a", "infoType": 7, "res_type": 3, "nest": )" + deep() + "}"},
  };
  addOfEachLength("related entries", &descriptionWithRelated, inputs);
  const auto unknown = [](int count) {
    return R"({"name": "a", "infoType": 7, "res_type": 3, )" +
           repeated(count, "\"unknown member ", "\": [1, 2]") + "}";
  };
  addOfEachLength("unknown members", unknown, inputs);
  return inputs;
}

std::vector<Input> completeForms() {
  return {
      sample("complete_single.json", 7),
      sample("pack_title.json", 6),
      sample("pixabay_photo.json", 101),
      sample("unsplash_photo.json", 103),
      sample("giphy_sticker.json", 106),
      sample("pexels_video.json", 113),
      sample("vcg_clip.json", 1007),
      sample("broken/vcg_without_id.json", 1007),
      {"an id of letters",
       R"({"id": "0123456789abcdef0123456789abcdef", "slug": "a-long-slug-)" +
           std::string(40, 'x') + "\"}",
       106},
      {"a deep text", R"({"id": 1, "nest": )" + deep() + "}", 101},
  };
}

std::vector<Input> cutReplies() {
  std::vector<Input> inputs = {
      sample("cut_reply.json"),
      sample("cut_with_mistakes.json"),
      sample("broken/cut_truncated.json"),
      sample("broken/cut_object.json"),
      {"a script without chapters", R"([{"script": [{}], "overall_description": "of all of it"}])"},
      {"a deep text", R"([{"script": [{"title": "a", "nest": )" + deep() + "}]}]"},
  };
  const auto scripts = [](int count) {
    return "[" + repeated(count, R"({"script": [{"title": "a title for script )", R"("}]})") + "]";
  };
  addOfEachLength("scripts", scripts, inputs);
  // What comes of an item fits into no batch when there are many of these.
  const auto items = [](int count) {
    const std::string text = R"({"start_time": 0, "end_time": 900, "text": "words", "broll":)"
                             R"({"file_name": "a b-roll file that is quite long, number )";
    const std::string item =
        R"({"script_class": "chapter", "start_time": 0, "end_time": 5000, "title": "a title",)"
        R"("subtitle": "sub", "description": "a description", "file_name": "a.mp4", "text": [)" +
        repeated(3 * count, text, R"(.mp4", "start_time": 0, "end_time": 900}})") +
        R"(], "highlight": [)" +
        repeated(3 * count, R"({"class": "emotion", "start_time": )", R"(, "end_time": 9})") +
        R"(], "number": )";
    return R"([{"title": "Weekend", "music": "m", "script": [)" + repeated(2, item, "}") + "]}]";
  };
  addOfEachLength("texts and highlights", items, inputs);
  return inputs;
}

std::vector<Input> reports() {
  std::vector<Input> inputs = {
      sample("analysis_report.json"),
      sample("broken/report_label_too_large.json"),
      sample("broken/report_label_without_number.json"),
      sample("broken/array.json"),
      {"labels that are scores",
       R"({"total": {"labels": {"90": ["0:0:1Z-0:0:2Z"], "80": ["0:0:1Z-0:0:2Z"]},)"
       R"("scores": [1, 2, 3]}})"},
      {"faces", R"({"face_cluster": {"ann": ["0:0:1Z-0:0:2Z"]}, "face_image_map":)"
                R"({"ann": {"width": 1, "height": 1, "base64": "QUJDREVG"}}})"},
      {"a deep text", R"({"keywords": ["sea"], "nest": )" + deep() + "}"},
  };
  const auto labels = [](int count) {
    const std::string spans = "\": [" + repeated(3 * count, "\"0:0:1Z-0:0:", "Z\"") + "]";
    return R"({"camera": {"labels": {)" + repeated(count, "\"a label that is quite long ", spans) +
           "}}}";
  };
  addOfEachLength("labels", labels, inputs);
  const auto speech = [](int count) {
    const std::string text = R"({"begin_time": 0, "end_time": 900, "text": "words )";
    return R"({"stt": [)" + repeated(3 * count, text, "\"}") + "]}";
  };
  addOfEachLength("sentences", speech, inputs);
  const auto keywords = [](int count) {
    return R"({"keywords": [)" + repeated(count, "\"a keyword that is quite long ", "\"") + "]}";
  };
  addOfEachLength("keywords", keywords, inputs);
  return inputs;
}

std::vector<Input> storyboards() {
  std::vector<Input> inputs = {
      sample("storyboard.json"),
      sample("broken/cut_without_rows.json"),
      {"a deep text", R"({"storyboard_infos": [], "nest": )" + deep() + "}"},
  };
  const auto rows = [](int count) {
    const std::string row = R"({"script_class": 2, "start": 0, "end": 5, "subtitle": "sub",)"
                            R"("description": "a description", "title": "a long title )";
    return R"({"storyboard_infos": [)" + repeated(count, row, "\"}") + "]}";
  };
  addOfEachLength("rows", rows, inputs);
  return inputs;
}

std::vector<Input> parameterMaps() {
  std::vector<Input> inputs = {
      sample("datamap.json"),
      {"a value that is no text", R"({"dataMap": {"1": "a text that is quite long", "2": 3}})"},
  };
  const auto parameters = [](int count) {
    return R"({"dataMap": {)" + repeated(count, "\"", "\": \"a text that is quite long\"") + "}}";
  };
  addOfEachLength("parameters", parameters, inputs);
  return inputs;
}

}  // namespace oom
