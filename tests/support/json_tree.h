// A JSON value as a test builds one: a plain tree, its compact text, and the same
// value with all the noise that a tolerant reader takes.

#ifndef KYDATASTRUCTURE_TESTS_SUPPORT_JSON_TREE_H_
#define KYDATASTRUCTURE_TESTS_SUPPORT_JSON_TREE_H_

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

struct Json {
  enum class Kind { word, number, text, array, object };

  Kind kind = Kind::word;
  std::string text = "null";       // a word, a number as it is written, or a text's bytes
  std::vector<std::string> names;  // of an object's values
  std::vector<Json> values;

  static Json word(const char* name) { return {Kind::word, name, {}, {}}; }
  static Json number(const std::string& digits) { return {Kind::number, digits, {}, {}}; }
  static Json number(long long value) { return number(std::to_string(value)); }
  static Json string(const std::string& bytes) { return {Kind::text, bytes, {}, {}}; }
  static Json array(std::vector<Json> values = {}) {
    return {Kind::array, "", {}, std::move(values)};
  }
  static Json object() { return {Kind::object, "", {}, {}}; }

  // Another member behind the last, whatever its name.
  Json& with(const std::string& name, Json value) {
    names.push_back(name);
    values.push_back(std::move(value));
    return *this;
  }
};

// The first member of that name, or null.
inline const Json* memberOf(const Json& object, const std::string& name) {
  if (object.kind != Json::Kind::object) return nullptr;
  for (std::size_t i = 0; i < object.names.size(); ++i) {
    if (object.names[i] == name) return &object.values[i];
  }
  return nullptr;
}

inline std::optional<long long> integerOf(const Json* value) {
  if (!value || value->kind != Json::Kind::number) return std::nullopt;
  if (value->text.find_first_of(".eE") != std::string::npos) return std::nullopt;
  errno = 0;
  const long long number = std::strtoll(value->text.c_str(), nullptr, 10);
  if (errno != 0) return std::nullopt;
  return number;
}

// Up to its first zero byte.
inline std::optional<std::string> textOf(const Json* value) {
  if (!value || value->kind != Json::Kind::text) return std::nullopt;
  return std::string(value->text.c_str());
}

inline std::string quoted(const std::string& bytes) {
  static const char digits[] = "0123456789ABCDEF";
  std::string text = "\"";
  for (const char byte : bytes) {
    const unsigned code = static_cast<unsigned char>(byte);
    static const std::string shortForms = "\b\f\n\r\t";
    const std::size_t place = shortForms.find(byte);
    if (byte == '"' || byte == '\\') {
      text += '\\';
      text += byte;
    } else if (place != std::string::npos) {
      text += '\\';
      text += "bfnrt"[place];
    } else if (code < 0x20) {
      text += "\\u00";
      text += digits[code >> 4];
      text += digits[code & 15];
    } else {
      text += byte;
    }
  }
  return text + "\"";
}

// For nests of a few levels.
inline std::string compact(const Json& value) {
  if (value.kind == Json::Kind::text) return quoted(value.text);
  if (value.kind != Json::Kind::array && value.kind != Json::Kind::object) return value.text;
  const bool isObject = value.kind == Json::Kind::object;
  std::string text = isObject ? "{" : "[";
  for (std::size_t i = 0; i < value.values.size(); ++i) {
    if (i > 0) text += ',';
    if (isObject) text += quoted(value.names[i]) + ":";
    text += compact(value.values[i]);
  }
  return text + (isObject ? "}" : "]");
}

// Random numbers that are the same in each run and with each standard library.
class Dice {
 public:
  explicit Dice(unsigned seed) : numbers_(seed) {}

  std::size_t below(std::size_t bound) { return static_cast<std::size_t>(numbers_() % bound); }
  bool one(std::size_t in) { return below(in) == 0; }
  template <class T>
  const T& from(const std::vector<T>& choices) {
    return choices[below(choices.size())];
  }

 private:
  std::mt19937 numbers_;
};

// White space and comments, most often none.
inline std::string noise(Dice& dice) {
  static const std::vector<std::string> kinds = {
      " ", "\n", "\t\r ", "/**/", "/* a, \"b\": [ */", "// to the end: {}\n", "/* ** / */ //\n"};
  return dice.one(3) ? dice.from(kinds) : std::string();
}

// The bytes of a text, some of them in an escaped form.
inline std::string noisyQuoted(const std::string& bytes, Dice& dice) {
  static const char digits[] = "0123456789abcdef";
  std::string text = "\"";
  for (const char byte : bytes) {
    const unsigned code = static_cast<unsigned char>(byte);
    if (code < 0x80 && dice.one(4)) {
      text += "\\u00";
      text += digits[code >> 4];
      text += digits[code & 15];
    } else if (byte == '/' && dice.one(2)) {
      text += "\\/";
    } else {
      const std::string plain = quoted(std::string(1, byte));
      text.append(plain, 1, plain.size() - 2);
    }
  }
  return text + "\"";
}

// The same value as compact() writes, in any of the ways that a tolerant reader takes.
inline std::string noisy(const Json& value, Dice& dice) {
  if (value.kind == Json::Kind::text) return noisyQuoted(value.text, dice);
  if (value.kind != Json::Kind::array && value.kind != Json::Kind::object) return value.text;
  const bool isObject = value.kind == Json::Kind::object;
  std::string text = isObject ? "{" : "[";
  for (std::size_t i = 0; i < value.values.size(); ++i) {
    text += noise(dice);
    if (isObject) text += noisyQuoted(value.names[i], dice) + noise(dice) + ":" + noise(dice);
    text += noisy(value.values[i], dice) + noise(dice);
    if (i + 1 < value.values.size() || dice.one(4)) text += ",";
  }
  return text + noise(dice) + (isObject ? "}" : "]");
}

// Any value, nested up to that many levels; its numbers are of any form.
inline Json anyValue(Dice& dice, std::size_t levels) {
  static const std::vector<std::string> numbers = {
      "0",
      "-0",
      "7",
      "-12",
      "2147483648",
      "-9223372036854775808",
      "1.5",
      "-0.0",
      "1e5",
      "2E-07",
      "9223372036854775808",
      "12345678901234567890",
      "0e0",
      "1.25",
      "3E+2",
      "10.00",
      "0.000000000000000000000000000000000000000000000000001",
  };
  static const std::vector<std::string> texts = {
      "",
      "a",
      "two words",
      "caf\xC3\xA9",
      "\"quoted\" \\ back",
      "a/b",
      "\xF0\x9F\x8E\xAC",
      "line\nbreak\ttab",
      "\x01\x1F\x7F",
      std::string("a\0b", 3),
      "\xFF\x80!",
      "0123456789",
      "exactly",
      "a text that is longer than any short place for it"};
  static const std::vector<std::string> words = {"null", "true", "false"};
  static const std::vector<std::string> names = {"a",   "b", "c",  "name",
                                                 "x y", "",  "\"", "caf\xC3\xA9"};
  switch (dice.below(levels == 0 ? 3 : 5)) {
    case 0:
      return Json::word(dice.from(words).c_str());
    case 1:
      return Json::number(dice.from(numbers));
    case 2:
      return Json::string(dice.from(texts));
    case 3: {
      Json array = Json::array();
      for (std::size_t i = dice.below(4); i > 0; --i) {
        array.values.push_back(anyValue(dice, levels - 1));
      }
      return array;
    }
    default: {
      Json object = Json::object();
      for (std::size_t i = dice.below(4); i > 0; --i) {
        object.with(dice.from(names), anyValue(dice, levels - 1));
      }
      return object;
    }
  }
}

#endif  // KYDATASTRUCTURE_TESTS_SUPPORT_JSON_TREE_H_
