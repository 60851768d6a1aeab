#include "json/names.h"

#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "resource/property_tables.h"
#include "support/zol_text.h"

namespace {

using ZOL::json::Names;
using ZOL::json::namesOf;

// Texts that are nearly `name`.
std::vector<std::string> nearMisses(const std::string& name) {
  std::vector<std::string> texts = {name + "x",
                                    "x" + name,
                                    name + " ",
                                    " " + name,
                                    name + name,
                                    name + std::string(1, '\0'),
                                    std::string(1, '\0') + name,
                                    name + std::string(70000, 'x')};
  for (std::size_t i = 0; i < name.size(); ++i) {
    std::string text = name;
    text.erase(i, 1);
    texts.push_back(text);
    text = name;
    const auto letter = static_cast<unsigned char>(name[i]);
    text[i] = static_cast<char>(std::islower(letter) ? std::toupper(letter) : std::tolower(letter));
    texts.push_back(text);
    text[i] = static_cast<char>(letter ^ 0x80);
    texts.push_back(text);
    text[i] = '\0';
    texts.push_back(text);
    if (i > 0) {
      text = name;
      std::swap(text[i - 1], text[i]);
      texts.push_back(text);
    }
    texts.push_back(name.substr(0, i));
    texts.push_back(name.substr(i));
  }
  return texts;
}

template <std::size_t N>
void expectToFindEachAndNothingElse(const Names<N>& names, const std::vector<std::string>& all) {
  ASSERT_EQ(all.size(), N);
  std::set<std::string> known(all.begin(), all.end());
  for (std::size_t place = 0; place < N; ++place) {
    EXPECT_EQ(names.find(all[place]), static_cast<int>(place)) << all[place];
  }
  int misses = 0;
  for (const std::string& name : all) {
    for (const std::string& text : nearMisses(name)) {
      if (known.count(text)) continue;
      ++misses;
      EXPECT_EQ(names.find(text), -1) << escaped(text.substr(0, 100));
    }
  }
  EXPECT_GT(misses, static_cast<int>(N) * 10);
  if (!known.count("")) {
    EXPECT_EQ(names.find(""), -1);
  }
}

TEST(JsonNames, FindEachNameAndNothingElse) {
  constexpr auto one = namesOf("id");
  expectToFindEachAndNothingElse(one, {"id"});
  constexpr auto letters = namesOf("a", "b", "c", "d", "e", "f", "g", "h");
  expectToFindEachAndNothingElse(letters, {"a", "b", "c", "d", "e", "f", "g", "h"});
  constexpr auto numbers =
      namesOf("one", "two", "three", "four", "five", "six", "seven", "eight", "nine");
  expectToFindEachAndNothingElse(
      numbers, {"one", "two", "three", "four", "five", "six", "seven", "eight", "nine"});
  constexpr auto sameEnds = namesOf("prefix_same_end", "refix_same_end", "_same_end", "same_end",
                                    "ame_end", "me_end", "end", "");
  expectToFindEachAndNothingElse(sameEnds, {"prefix_same_end", "refix_same_end", "_same_end",
                                            "same_end", "ame_end", "me_end", "end", ""});
}

template <class Table>
std::vector<std::string> keysOf(const Table& table) {
  std::vector<std::string> keys;
  for (const auto& row : table) keys.emplace_back(row.key);
  return keys;
}

TEST(JsonNames, FindEachPropertyKeyAndNothingElse) {
  expectToFindEachAndNothingElse(ZOL::kPropKeys, keysOf(ZOL::resPropTable));
  expectToFindEachAndNothingElse(ZOL::kUserStringKeys, keysOf(ZOL::userStringTable));
}

// The lengths at which the comparison takes another way, each with a neighbour that differs
// in one character at each place.
TEST(JsonNames, TellNamesOfEachLengthApart) {
  constexpr auto names = namesOf("a", "bc", "def", "ghij", "klmno", "pqrstuv", "wxyzabcd",
                                 "efghijklm", "nopqrstuvwxyzabc", "defghijklmnopqrst");
  const std::string texts[] = {"a",
                               "bc",
                               "def",
                               "ghij",
                               "klmno",
                               "pqrstuv",
                               "wxyzabcd",
                               "efghijklm",
                               "nopqrstuvwxyzabc",
                               "defghijklmnopqrst"};
  int place = 0;
  for (const std::string& text : texts) {
    EXPECT_EQ(names.find(text), place++) << text;
    for (std::size_t i = 0; i < text.size(); ++i) {
      std::string other = text;
      other[i] = '?';
      EXPECT_EQ(names.find(other), -1) << other;
    }
  }
}

// All the slots of a set, not only those of its own names.
TEST(JsonNames, FindNothingInRandomTexts) {
  constexpr auto names = namesOf("id", "name", "type", "user_string");
  unsigned state = 1;
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    for (unsigned length = (state >> 8) % 14; text.size() < length;) {
      state = state * 1103515245U + 12345U;
      text += static_cast<char>(state >> 16);
    }
    state = state * 1103515245U + 12345U;
    if (text == "id" || text == "name" || text == "type" || text == "user_string") continue;
    EXPECT_EQ(names.find(text), -1) << escaped(text);
  }
}

}  // namespace
