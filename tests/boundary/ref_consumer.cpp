// What a program does that holds the library's objects by ref.h, for the compilers and
// standards that such programs are built with.

#include <KyDataStructure/ref.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#if __cplusplus >= 202002L && __has_include(<ranges>)
#include <ranges>
#if defined(__cpp_lib_ranges)
static_assert(std::ranges::input_range<const ZOL::Each<ZOL::ZOLPCharList>>, "walked by views");
static_assert(std::ranges::contiguous_range<const ZOL::Values<ZOL::ZOLIntList>>, "an array");
#endif
#endif

namespace {

using Music = ZOL::Ref<ZOL::IZolMusicInfo>;

Music calmMusic() {
  auto music = ZOL::make<ZOL::IZolMusicInfo>();
  if (auto writer = music.as<ZOL::IZolMusicInfoInternal>()) writer->setNote("calm");
  return music;
}

bool comparisonsHold(const Music& music) {
  const ZOL::Ref<ZOL::IDmBaseObj> root = music;
  const Music none;
  const bool equal = music == root && root == music && !(music != root) && !(root != music);
  const bool nulls = none == nullptr && nullptr == none && music != nullptr && nullptr != music;
  return equal && nulls && !(music < music) && music.as<ZOL::IDmBaseObj>() == root;
}

std::size_t walks(const ZOL::Ref<ZOL::IZolMusicInfoList>& list) {
  std::vector<std::string> notes;
  for (const auto& row : ZOL::each(list)) notes.emplace_back(row ? row->note() : "");
  const auto walk = ZOL::each(list);
  const auto calm = std::find_if(walk.begin(), walk.end(), [](const Music& row) {
    return row && std::strcmp(row->note(), "calm") == 0;
  });
  return notes.size() + (calm != walk.end() ? 1U : 0U);
}

int sum(ZOL::Ref<ZOL::ZOLIntList> numbers) {
  int total = 0;
  for (const int number : ZOL::values(std::move(numbers))) total += number;
  return total;
}

}  // namespace

int useTheRefs(ZOL::IZolMediaData* lent) {
  const Music music = calmMusic();
  const auto list = ZOL::make<ZOL::IZolMusicInfoList>();
  list->add(music.get());
  const auto numbers = ZOL::make<ZOL::ZOLIntList>();
  numbers->add(4);
  const std::set<Music> ordered = {music};
  const std::unordered_set<Music> hashed = {music};

  auto side = ZOL::make<ZOL::IZolSliceItem>().as<ZOL::IZolSliceItemInternal>();
  auto other = side;
  swap(side, other);
  const bool same = side == other && !(side != other) && side.as<ZOL::IZolSliceItem>();

  const auto media = ZOL::share(lent);
  const auto copy = ZOL::makeMediaData(media->width(), media->height(), media->data(), 4, 0);
  createZolString()->release();
  ZOL::adopt(createZolString()).give()->release();
  const bool right = comparisonsHold(music) && same && copy && ordered.size() == hashed.size();
  return right && walks(list) == 2 ? sum(numbers) : -1;
}
