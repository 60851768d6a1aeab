// A stock provider's record becomes a description, and that goes out as text.

#include <KyDataStructure/ref.h>

#include <cstdio>

int main() {
  const auto photo =
      ZOL::makeZolResSerializeInfoFromCompletResInfo(R"({"id": 42, "tags": "harbour"})", 101);
  const auto text = ZOL::make<ZOL::IZolString>();
  photo->toBuffer(text.get());
  std::printf("%s\n%s\n", photo->uniqueKey(), text->text());
}
