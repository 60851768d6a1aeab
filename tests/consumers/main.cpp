// A program of somebody who was given the library, in the oldest standard that its
// headers are for.

#include <KyDataStructure/KyDataStructure.h>

#include <cstdio>

int main() {
  ZOL::IZolResSerializeInfo* const photo =
      createZolResSerializeInfoFromCompletResInfo(R"({"id": 42, "tags": "harbour"})", 101);
  ZOL::IZolString* const text = createZolString();
  photo->toBuffer(text);
  std::printf("%s\n%s\nread as C++%ld\n", photo->uniqueKey(), text->text(),
              __cplusplus / 100 % 100);
  text->release();
  photo->release();
}
