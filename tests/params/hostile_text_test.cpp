// A parameter text of any depth on a small stack.

#include <KyDataStructure/params.h>
#include <gtest/gtest.h>

#include <string>

#include "support/held.h"
#include "support/small_stack.h"

TEST(DataMapText, IsReadOrRefusedWithAMillionLevels) {
  onSmallStack([] {
    const std::string open(kManyLevels, '[');
    const std::string close(kManyLevels, ']');
    const Held<ZOL::IImageStylizesData> data(createImageStylizesData());
    const Held<ZOL::IZolString> text(createZolString());
    text->setText((R"({"x":)" + open + close + R"(,"dataMap":{"1":"a"}})").c_str(), -1);
    EXPECT_EQ(data->readDataMap(text.get()), 0);
    EXPECT_STREQ(data->param(1), "a");
    text->setText((R"({"dataMap":{"2":)" + open + close + "}}").c_str(), -1);
    EXPECT_EQ(data->readDataMap(text.get()), 1001);
    text->setText((R"({"dataMap":{"2":)" + open).c_str(), -1);
    EXPECT_EQ(data->readDataMap(text.get()), 1001);
    EXPECT_STREQ(data->param(2), "");
  });
}
