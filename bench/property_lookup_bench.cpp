// What does it cost to find a property by its key, next to an ordered map that is
// asked with a temporary string?

#include <KyDataStructure/resource.h>

#include <map>
#include <string>

#include "inputs/property_keys.h"
#include "support/owned.h"
#include "support/ratio.h"
#include "support/require.h"

namespace {

using Map = std::map<std::string, long long>;

// Measures one round over all keys.
template <class Keys, class Look>
bench::RatioTable::Body roundOver(const Keys& keys, Look look) {
  return [&keys, look](benchmark::State& state) {
    for (auto _ : state) {
      for (const auto& key : keys) benchmark::DoNotOptimize(look(key));
    }
  };
}

void prove(ZOL::IZolResSerializeInfo& info, ZOL::IZolResSerializeInfoInternal& inside,
           const Map& map) {
  const ZOL::_Property absent{};
  for (const char* const key : bench::propertyKeys()) {
    bench::require(inside.intValue(key) == map.at(key), "each known key has its value");
    bench::require(
        info.setProperty(key, &absent) == ZOL::kRefused && inside.intValue(key) == map.at(key),
        "a record that is not present is refused");
  }
  for (const std::string& key : bench::unknownKeys()) {
    bench::require(map.count(key) == 0 && inside.intValue(key.c_str()) == 0 &&
                       inside.setIntValue(key.c_str(), 1) == ZOL::kRefused,
                   "the other keys are unknown");
  }
}

}  // namespace

int main(int argc, char** argv) {
  const auto known = bench::propertyKeys();
  const auto unknown = bench::unknownKeys();
  const auto info = bench::owned(createZolResSerializeInfo());
  auto* const inside = ZOL::query<ZOL::IZolResSerializeInfoInternal>(info.get());
  Map map;
  for (const char* const key : known) {
    const long long value = 1000 + static_cast<long long>(map.size());
    map.emplace(key, value);
    inside->setIntValue(key, value);
  }
  prove(*info, *inside, map);

  bench::RatioTable table;
  table.measure("key/intValue/known",
                roundOver(known, [inside](const char* key) { return inside->intValue(key); }));
  // The description looks for the key first and then at the record, which it refuses
  // before it takes its lock.
  const ZOL::_Property absent{};
  table.measure("key/setProperty/known",
                roundOver(known, [&](const char* key) { return info->setProperty(key, &absent); }));
  table.measure("key/map/known", roundOver(known, [&map](const char* key) {
                  return map.find(std::string(key))->second;
                }));
  table.measure("key/intValue/unknown", roundOver(unknown, [inside](const std::string& key) {
                  return inside->intValue(key.c_str());
                }));
  table.measure("key/map/unknown", roundOver(unknown, [&map](const std::string& key) {
                  return map.find(std::string(key.c_str())) == map.end();
                }));
  const std::string yardstick = "std::map::find with a temporary string";
  table.compare({"a known key, with the lock and the value (intValue)", yardstick,
                 "key/intValue/known", "key/map/known", bench::atMost(0.3)});
  table.compare({"a known key, the look-up alone (setProperty of nothing)", yardstick,
                 "key/setProperty/known", "key/map/known", bench::atMost(0.3)});
  table.compare({"an unknown key (intValue)", yardstick, "key/intValue/unknown", "key/map/unknown",
                 bench::atMost(0.3)});
  return table.run(argc, argv);
}
