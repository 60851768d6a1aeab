#ifndef KYDATA_CHECK_FORM_H_
#define KYDATA_CHECK_FORM_H_

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "check/rule.h"

namespace kydata::check {

/// What the library made of a text that it took.
struct Made {
  std::string text;  ///< "2 scripts, 11 rows"
  std::vector<std::pair<const char*, long long>> counts;
};

struct Form {
  const char* name;   ///< as the command line says it
  const char* title;  ///< as people say it
  const char* meaning;
  std::vector<Rule> rules;
  std::vector<NameGroup> groups;
  bool isStrict;  ///< plain JSON, with nothing behind it
  bool skipsMark;

  /// Has the library read the text.
  /// \throws Fault when it is refused.
  Made (*read)(const std::string& text, std::optional<int> completeType);
  /// True if the text is told to be of this form; null where no text tells that.
  bool (*holds)(const std::string& text);
};

const Form& cutForm();
const Form& dataMapForm();
const Form& storyboardForm();
const Form& resourceForm();
const Form& reportForm();
const Form& highlightForm();
/// The form of the record that is read as the complete form of an info type.
const Form& recordForm(int completeType);

/// The forms that can be told from their texts, in the order in which they are looked for.
std::vector<const Form*> tellableForms();
/// The form of that name, or null.
const Form* formNamed(const std::string& name);

/// The form of a text whose outermost value is an array, or is an object of these names;
/// null where nothing tells it.
const Form* formOf(const std::string& text, bool isArray, const std::vector<std::string>& names);

}  // namespace kydata::check

#endif  // KYDATA_CHECK_FORM_H_
