// What lists do with what they are given.

#include <KyDataStructure/KyDataStructure.h>

#include <cstdio>

int main() {
  ZOL::ZOLIntList* numbers = createZOLIntList();
  numbers->add(30);
  numbers->add(10);
  numbers->add(20);
  numbers->sort([](int a, int b) { return a < b; });
  numbers->insertListAt(1, numbers);  // read from the back, while it grows
  const int* array = static_cast<const int*>(numbers->queryInterface(ZOL::kListData));
  for (long long i = 0; i < numbers->size(); ++i) std::printf("%d ", array[i]);
  std::printf("\n");
  numbers->release();

  ZOL::IZolMusicInfo* music = createMusicInfo();
  ZOL::IZolMusicInfoList* sections = createIZolMusicInfoList();
  sections->add(music);  // kept: one reference more
  std::printf("%d references\n", music->refCount());
  sections->release();  // gives it back
  std::printf("%d reference\n", music->refCount());
  music->release();
}
