// The media records by their tables, and the blocks of bytes.

#include <KyDataStructure/media.h>

#include <string>
#include <type_traits>

#include "media/described_records.h"
#include "oom/sweep.h"

namespace oom {
namespace {

template <class Record>
using Fields = std::vector<Field<Record>>;

template <class Record>
Held<Record> filledWith(const Fields<Record>& fields, int mark) {
  Held<Record> record(Described<Record>::create());
  for (const Field<Record>& field : fields) field.fill(*record, mark);
  return record;
}

template <class Record>
State stateOf(const Fields<Record>& fields, Record& record) {
  State state;
  for (const Field<Record>& field : fields) state.push_back(field.shown(record));
  return state;
}

// A list is cleared and filled; what else a record holds is replaced whole.
template <class Record>
Judge judgeOf(const Field<Record>& field) {
  return field.initial == "[]" ? stepByStep : unchanged;
}

// Setting, reading and refusing each field.
template <class Record>
void addFieldCases(std::vector<Case>& cases) {
  const Fields<Record> fields = Described<Record>::table().fields();
  for (const Field<Record>& field : fields) {
    const std::string name = std::string(Record::interfaceName) + "::" + field.name;
    const auto make = [fields] { return filledWith(fields, 1); };
    const auto show = [fields](const Held<Record>& record) { return stateOf(fields, *record); };
    const std::size_t first = cases.size();
    cases.push_back(onStage(
        name + " set", make, [field](Held<Record>& record) { field.fill(*record, 2); }, show,
        judgeOf(field)));
    cases.push_back(onStage(
        name + " read", make, [field](Held<Record>& record) { field.shown(*record); }, show));
    // The elements of a list are made in between; those of two lists make lists.
    for (std::size_t i = first; field.initial == "[]" && i < cases.size(); ++i) {
      cases[i].block = Block::mayStay;
    }
  }
}

template <class Record>
struct Pair {
  Held<Record> target;
  Held<Record> source;
};

template <class Record>
void addCopyCases(std::vector<Case>& cases) {
  const Fields<Record> fields = Described<Record>::table().fields();
  const auto show = [fields](const Pair<Record>& pair) {
    State state = stateOf(fields, *pair.target);
    const State source = stateOf(fields, *pair.source);
    state.insert(state.end(), source.begin(), source.end());
    return state;
  };
  const auto copy = [](Pair<Record>& pair) { pair.target->copyFrom(pair.source.get()); };
  const std::string name = std::string(Record::interfaceName) + "::copyFrom";
  cases.push_back(onStage(
      name,
      [fields] {
        return Pair<Record>{filledWith(fields, 1), filledWith(fields, 2)};
      },
      copy, show, stepByStep));
  cases.push_back(onStage(
      name + " a new one",
      [fields] {
        return Pair<Record>{filledWith(fields, 1), Held<Record>(Described<Record>::create())};
      },
      copy, show, stepByStep));
  cases.push_back(onStage(
      name + " into a new one",
      [fields] {
        return Pair<Record>{Held<Record>(Described<Record>::create()), filledWith(fields, 2)};
      },
      copy, show, stepByStep));
}

template <class... Records>
void addAllFieldCases(testing::Types<Records...> /*records*/, std::vector<Case>& cases) {
  (addFieldCases<Records>(cases), ...);
}

template <class... Records>
void addAllCopyCases(testing::Types<Records...> /*records*/, std::vector<Case>& cases) {
  (addCopyCases<Records>(cases), ...);
}

// What stands beside the fields.
void addOtherCases(std::vector<Case>& cases) {
  using Scene = ZOL::IKyScriptSceneInfo;
  using Plugin = ZOL::IZolPluginInfo;
  using Media = ZOL::IZolMediaData;

  const Fields<Scene> sceneFields = Described<Scene>::table().fields();
  cases.push_back(onStage(
      "IKyScriptSceneInfo::resetScene", [=] { return filledWith(sceneFields, 1); },
      [](Held<Scene>& scene) { scene->resetScene(); },
      [=](const Held<Scene>& scene) { return stateOf(sceneFields, *scene); }, stepByStep));

  const Fields<Plugin> pluginFields = Described<Plugin>::table().fields();
  cases.push_back(onStage(
      "IZolPluginInfo::addEffect", [=] { return filledWith(pluginFields, 1); },
      [](Held<Plugin>& plugin) {
        plugin->addEffect(Held<ZOL::IZoEffectInfo>(createEffectInfo()).get());
      },
      [=](const Held<Plugin>& plugin) { return stateOf(pluginFields, *plugin); }));

  const auto block = [] {
    const unsigned char bytes[] = {'o', 'l', 'd'};
    return Held<Media>(createMediaData(4, 2, bytes, sizeof bytes, 7));
  };
  const auto showBlock = [](const Held<Media>& media) {
    return std::to_string(media->width()) + "x" + std::to_string(media->height()) + " tag " +
           std::to_string(media->tag()) + " \"" + reinterpret_cast<const char*>(media->data()) +
           "\" of " + std::to_string(media->dataSize());
  };
  cases.push_back(onStage(
      "IZolMediaData::setData", block,
      [](Held<Media>& media) {
        media->setData(9, reinterpret_cast<const unsigned char*>("new bytes"));
      },
      showBlock));
  cases.push_back(onStage(
      "IZolMediaData::copyFrom", block,
      [](Held<Media>& media) {
        const Held<Media> source(
            createMediaData(8, 6, reinterpret_cast<const unsigned char*>("new bytes"), 9, 5));
        media->copyFrom(source.get());
      },
      showBlock));
}

}  // namespace

std::vector<Case> mediaCases() {
  std::vector<Case> cases;
  addAllFieldCases(MediaRecords(), cases);
  addAllCopyCases(CopiedMediaRecords(), cases);
  addOtherCases(cases);
  return cases;
}

}  // namespace oom
