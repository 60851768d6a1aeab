// Does the safe face of ref.h cost anything over the calls that it stands for?

#include <KyDataStructure/ref.h>

#include <string>
#include <vector>

#include "inputs/numbers.h"
#include "support/ratio.h"
#include "support/require.h"

namespace {

// A reference taken and given up.

void holdByHand(ZOL::IZolString* text) {
  text->addRef();
  benchmark::DoNotOptimize(text);
  text->release();
}

void hold(const ZOL::Ref<ZOL::IZolString>& text) {
  ZOL::Ref<ZOL::IZolString> copy = text;
  benchmark::DoNotOptimize(copy);
}

// An object made and ended.

void makeByHand() {
  ZOL::IZolString* const text = createZolString();
  benchmark::DoNotOptimize(text);
  text->release();
}

void make() {
  ZOL::Ref<ZOL::IZolString> text = ZOL::make<ZOL::IZolString>();
  benchmark::DoNotOptimize(text);
}

// A list walked from first to last.

long long sumByHand(ZOL::ZOLIntList* list) {
  long long sum = 0;
  for (long long i = 0; i < list->size(); ++i) sum += list->at(i);
  return sum;
}

long long sum(const ZOL::Ref<ZOL::ZOLIntList>& list) {
  long long sum = 0;
  for (const int number : ZOL::each(list)) sum += number;
  return sum;
}

// The elements of objects are held for as long as they are looked at.
long long sumOfTagsByHand(ZOL::IZolBGRDataList* list) {
  long long sum = 0;
  for (long long i = 0; i < list->size(); ++i) {
    ZOL::IZolBGRData* const media = list->at(i);
    if (!media) continue;
    media->addRef();
    sum += media->tag();
    media->release();
  }
  return sum;
}

long long sumOfTags(const ZOL::Ref<ZOL::IZolBGRDataList>& list) {
  long long sum = 0;
  for (const auto& media : ZOL::each(list)) {
    if (media) sum += media->tag();
  }
  return sum;
}

// A text may be kept by whoever gets it, so both sides make a string of each.
std::size_t lengthsByHand(ZOL::ZOLPCharList* list) {
  std::size_t sum = 0;
  for (long long i = 0; i < list->size(); ++i) {
    const std::string text = list->at(i);
    sum += text.size();
  }
  return sum;
}

std::size_t lengths(const ZOL::Ref<ZOL::ZOLPCharList>& list) {
  std::size_t sum = 0;
  for (const auto& text : ZOL::each(list)) sum += text.size();
  return sum;
}

// A list's array read in place.

long long sumInPlaceByHand(ZOL::ZOLIntList* list) {
  const auto* const array = static_cast<const int*>(list->queryInterface(ZOL::kListData));
  const long long count = list->size();
  long long sum = 0;
  for (long long i = 0; i < count; ++i) sum += array[i];
  return sum;
}

long long sumInPlace(const ZOL::Ref<ZOL::ZOLIntList>& list) {
  long long sum = 0;
  for (const int number : ZOL::values(list)) sum += number;
  return sum;
}

// Measures both sides of a row. What they answer is not left out.
template <class Subject, class ByHand>
void measure(bench::RatioTable& table, const std::string& name, const std::string& what,
             const std::string& yardstick, Subject subject, ByHand byHand) {
  table.measure("ref/" + name, [subject](benchmark::State& state) {
    for (auto _ : state) subject();
  });
  table.measure("by hand/" + name, [byHand](benchmark::State& state) {
    for (auto _ : state) byHand();
  });
  table.compare({what, yardstick, "ref/" + name, "by hand/" + name, bench::atMost(1.05)});
}

}  // namespace

int main(int argc, char** argv) {
  const auto text = ZOL::make<ZOL::IZolString>();
  const auto numbers = ZOL::make<ZOL::ZOLIntList>();
  for (const int number : bench::someNumbers(10000, 1)) numbers->add(number);
  const auto media = ZOL::make<ZOL::IZolBGRDataList>();
  const auto texts = ZOL::make<ZOL::ZOLPCharList>();
  for (int i = 0; i < 1000; ++i) {
    media->add(ZOL::make<ZOL::IZolBGRData>(1, 1, nullptr, 4, i).get());
    texts->add(std::to_string(i).c_str());
  }
  bench::require(sum(numbers) == sumByHand(numbers.get()), "both walks have the same sum");
  bench::require(sumInPlace(numbers) == sum(numbers), "so has the array");
  bench::require(sumInPlaceByHand(numbers.get()) == sum(numbers), "and the array by hand");
  bench::require(sumOfTags(media) == 499500, "the tags are those that were set");
  bench::require(sumOfTagsByHand(media.get()) == 499500, "also by hand");
  bench::require(lengths(texts) == 2890, "the texts have their lengths");
  bench::require(lengthsByHand(texts.get()) == 2890, "also by hand");

  bench::RatioTable table;
  measure(
      table, "copy", "a Ref copied and ended", "addRef and release", [&] { hold(text); },
      [&] { holdByHand(text.get()); });
  measure(
      table, "make", "make of a string object, and its end", "the factory and release",
      [] { make(); }, [] { makeByHand(); });
  measure(
      table, "each/numbers", "each over 10,000 ints", "a loop with size and at",
      [&] { benchmark::DoNotOptimize(sum(numbers)); },
      [&] { benchmark::DoNotOptimize(sumByHand(numbers.get())); });
  measure(
      table, "each/objects", "each over 1,000 objects", "the same, held by addRef and release",
      [&] { benchmark::DoNotOptimize(sumOfTags(media)); },
      [&] { benchmark::DoNotOptimize(sumOfTagsByHand(media.get())); });
  measure(
      table, "each/texts", "each over 1,000 texts", "the same, each made a string",
      [&] { benchmark::DoNotOptimize(lengths(texts)); },
      [&] { benchmark::DoNotOptimize(lengthsByHand(texts.get())); });
  measure(
      table, "values", "values of 10,000 ints", "\"listData\" and size",
      [&] { benchmark::DoNotOptimize(sumInPlace(numbers)); },
      [&] { benchmark::DoNotOptimize(sumInPlaceByHand(numbers.get())); });
  const int result = table.run(argc, argv);
  bench::require(text->refCount() == 1, "no reference was lost on the way");
  return result;
}
