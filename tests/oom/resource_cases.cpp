// Resource descriptions.

#include <KyDataStructure/resource.h>

#include <string>

#include "oom/inputs.h"
#include "oom/sweep.h"
#include "resource/description.h"

// The description's interface with the operation that stands behind its last. Not in the
// unnamed namespace: there a compiler sees that nobody implements it.
class MergingDescription : public ZOL::IZolResSerializeInfo {
 public:
  virtual int mergeFrom(ZOL::IZolResSerializeInfo* other) = 0;

 protected:
  ~MergingDescription() = default;
};

namespace oom {
namespace {

constexpr const char* kLong = "a text that stands nowhere but on the heap";

// The properties and user strings one by one, the related entries as a list, and what
// must be true whatever they are.
State partsOf(Info* info) {
  State parts;
  bool holds = false;
  for (const PropertyRow& row : kPropertyRows) {
    ZOL::_Property property{};
    const bool held = info->getProperty(row.key, &property) == ZOL::kSuccess;
    holds = holds || held;
    parts.push_back(std::string(row.key) + (held ? " " : " not ") +
                    std::to_string(inside(info).intValue(row.key)));
    parts.push_back(show(inside(info).stringValue(row.key)));
  }
  for (const UserStringRow& row : kUserStringRows) {
    parts.push_back(show(info->userString(row.key)));
    holds = holds || *info->userString(row.key) != '\0';
  }
  const Held<InfoList> related = newInfoList();
  inside(info).relatedResList(related.get());
  parts.push_back(showBy(*related, [](Info* entry) { return show(entry); }));
  holds = holds || related->size() > 0;
  parts.push_back(info->isEmpty() == holds ? "lies about being empty" : "says if it is empty");
  return parts;
}

// A description, another one, and the caller's text and list.
struct Stage {
  Held<Info> info;
  Held<Info> other;
  Held<ZOL::IZolString> text;
  Held<InfoList> list = newInfoList();
  std::string answer;

  explicit Stage(const std::string& bytes)
      : info(newInfo()), other(newInfo()), text(zolString(bytes)) {
    readText(other, descriptionWithRelated(full() ? 20 : 3));
    other->setUserString("rsiusCustomRsMd5", "0123456789abcdef01");
  }

  State state() const {
    State parts = partsOf(info.get());
    parts.push_back(show(other));
    parts.push_back(bytesIn(*text));
    parts.push_back(showBy(*list, [](Info* entry) { return show(entry); }));
    parts.push_back(answer);
    return parts;
  }
};

Stage fresh() { return Stage(kLong); }

// The other one holds nothing but related entries.
Stage besideRelated() {
  Stage stage(kLong);
  stage.other = newInfo();
  for (const char* const slug : {"a", "b", "c"}) {
    inside(stage.other).addRelatedRes(single(slug).get());
  }
  return stage;
}

Stage filled() {
  Stage stage(kLong);
  const Held<ZOL::IZolString> text = zolString(
      R"({"name": "the old slug, too long for a short string", "infoType": 7, "res_type": 9,)"
      R"("source": 3, "user_string": {"customRsMd5": "m"}, "related_res_list": [)"
      R"({"rsResSlug": "x", "rsResType": 4}, {"rsResSlug": "y", "rsResType": 4,)"
      R"("user_string": {"customRsMd5": "0123456789abcdef01"}},)"
      R"({"rsResSlug": "z", "rsResType": 4}]})");
  stage.info->setFromBuffer(text.get());
  return stage;
}

using Make = Stage (*)();
using Run = void (*)(Stage& on);

Case infoCase(const std::string& name, Make make, Run run, Judge judge = unchanged) {
  return onStage(
      "IZolResSerializeInfo::" + name + (make == fresh ? " in a new one" : ""), make, run,
      [](const Stage& on) { return on.state(); }, judge);
}

// Not checked against the type that the object has in the library, which is another.
__attribute__((no_sanitize("undefined"))) void merge(Stage& on) {
  static_cast<MergingDescription*>(on.info.get())->mergeFrom(on.other.get());
}

void addOperationCases(std::vector<Case>& cases) {
  const auto add = [&cases](const char* name, Run run, Judge judge = unchanged) {
    for (const Make make : {&fresh, &filled}) cases.push_back(infoCase(name, make, run, judge));
  };
  add("setProperty of a text", [](Stage& on) {
    const ZOL::_Property property = textProperty(std::string(400, 'x'));
    on.info->setProperty("rsResOriginSlug", &property);
  });
  add("setProperty of an integer", [](Stage& on) {
    const ZOL::_Property property = integerProperty(5);
    on.info->setProperty("rsResOriginId", &property);
  });
  add("setStringValue", [](Stage& on) { inside(on.info).setStringValue("rsResSlug", kLong); });
  add("setUserString", [](Stage& on) { on.info->setUserString("rsiusCustomRsMd5", kLong); });
  add(
      "copyFrom", [](Stage& on) { on.info->copyFrom(on.other.get()); }, stepByStep);
  add(
      "mergeFrom", [](Stage& on) { merge(on); }, stepByStep);
  cases.push_back(infoCase("mergeFrom of related entries", besideRelated, merge, stepByStep));
  add("toBuffer", [](Stage& on) { on.info->toBuffer(on.text.get()); });
  add("addRelatedRes", [](Stage& on) { inside(on.info).addRelatedRes(on.other.get()); });
  add("removeRelatedRes", [](Stage& on) { inside(on.info).removeRelatedRes(on.other.get()); });
  add("removeRelatedRes of all", [](Stage& on) { inside(on.info).removeRelatedRes(nullptr); });
  add(
      "relatedResList", [](Stage& on) { inside(on.info).relatedResList(on.list.get()); },
      stepByStep);
  add("isValid", [](Stage& on) { on.info->isValid(); });
  add("uniqueKey", [](Stage& on) { on.answer = on.info->uniqueKey(); });
}

// What uniqueKey() gives again, while there is no slug, is a key that it has given.
struct Key {
  Held<Info> info = single("the old slug, too long for a short string");

  Key() {
    info->uniqueKey();
    inside(info).setStringValue("rsResSlug", std::string(400, 's').c_str());
  }

  std::string lastKey() const {
    const std::string slug = inside(info).stringValue("rsResSlug");
    inside(info).setStringValue("rsResSlug", "");
    std::string key = info->uniqueKey();
    inside(info).setStringValue("rsResSlug", slug.c_str());
    return key;
  }
};

void addTextCases(std::vector<Case>& cases) {
  const auto show = [](const Stage& on) { return on.state(); };
  for (const Input& input : normalForms()) {
    for (const Make make : {&fresh, &filled}) {
      cases.push_back(onStage(
          std::string("IZolResSerializeInfo::setFromBuffer of ") + input.name +
              (make == fresh ? " in a new one" : ""),
          [make, text = input.text] {
            Stage stage = make();
            stage.text = zolString(text);
            return stage;
          },
          [](Stage& on) { on.answer = std::to_string(on.info->setFromBuffer(on.text.get())); },
          show, stepByStep));
    }
    cases.push_back(onStage(
        "IZolResSerializeInfo::toBuffer of " + input.name,
        [text = input.text] {
          Stage stage = fresh();
          readText(stage.info, text);
          return stage;
        },
        [](Stage& on) { on.answer = std::to_string(on.info->toBuffer(on.text.get())); }, show));
    cases.push_back(onStage(
        "createZolResSerializeInfoFromBuffer of " + input.name, [] { return Held<Info>(nullptr); },
        [text = input.text](Held<Info>& info) {
          info = Held<Info>(createZolResSerializeInfoFromBuffer(text.c_str()));
        },
        [](const Held<Info>& info) { return ::show(info); }));
  }
  for (const Input& input : completeForms()) {
    cases.push_back(onStage(
        "IZolResSerializeInfo::setFromCompletResInfo of " + input.name,
        [text = input.text] {
          Stage stage = filled();
          stage.text = zolString(text);
          return stage;
        },
        [infoType = input.infoType](Stage& on) {
          on.answer = std::to_string(on.info->setFromCompletResInfo(on.text.get(), infoType));
        },
        show, stepByStep));
    cases.push_back(onStage(
        "createZolResSerializeInfoFromCompletResInfo of " + input.name,
        [] { return Held<Info>(nullptr); },
        [input](Held<Info>& info) {
          info = Held<Info>(
              createZolResSerializeInfoFromCompletResInfo(input.text.c_str(), input.infoType));
        },
        [](const Held<Info>& info) { return ::show(info); }));
  }
}

// Many texts turned into a list, some of one key.
struct Turned {
  Held<ZOL::ZOLPCharList> texts = Held<ZOL::ZOLPCharList>(createZOLPCharList());
  Held<InfoList> list = newInfoList();

  explicit Turned(int count) {
    for (int i = 0; i < count; ++i) {
      texts->add(("{\"name\": \"a slug that is quite long " + std::to_string(i % (count - 2)) +
                  "\", \"res_type\": 3}")
                     .c_str());
    }
  }
};

}  // namespace

std::vector<Case> resourceCases() {
  std::vector<Case> cases;
  addOperationCases(cases);
  cases.push_back(onStage(
      "IZolResSerializeInfo::uniqueKey after another", [] { return Key(); },
      [](Key& on) { on.info->uniqueKey(); }, [](const Key& on) { return on.lastKey(); }));
  addTextCases(cases);
  for (const int count : full() ? std::vector<int>{3, 10, 30, 100} : std::vector<int>{6}) {
    cases.push_back(onStage(
        "resInfoStr2SerializeList of " + std::to_string(count) + " texts",
        [count] { return Turned(count); },
        [](Turned& on) { resInfoStr2SerializeList(on.texts.get(), on.list.get()); },
        [](const Turned& on) { return showBy(*on.list, [](Info* entry) { return show(entry); }); },
        stepByStep));
  }
  cases.push_back(onStage(
      "getResourceFolderString", [] { return zolString("a"); },
      [](Held<ZOL::IZolString>& text) { getResourceFolderString(-1, text.get()); },
      [](const Held<ZOL::IZolString>& text) { return bytesIn(*text); }));
  return cases;
}

}  // namespace oom
