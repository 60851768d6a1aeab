// A stock provider's record becomes a description, and that goes out as text.

#include <KyDataStructure/KyDataStructure.h>

#include <cstdio>

int main() {
  ZOL::IZolResSerializeInfo* photo =
      createZolResSerializeInfoFromCompletResInfo(R"({"id": 42, "tags": "harbour"})", 101);
  ZOL::IZolString* text = createZolString();
  photo->toBuffer(text);
  std::printf("%s\n%s\n", photo->uniqueKey(), text->text());
  text->release();
  photo->release();
}
