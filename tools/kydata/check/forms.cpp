#include <algorithm>

#include "check/form.h"
#include "check/rule_tree.h"

namespace kydata::check {

std::vector<const Form*> tellableForms() {
  return {&cutForm(),      &dataMapForm(), &storyboardForm(),
          &resourceForm(), &reportForm(),  &highlightForm()};
}

const Form* formNamed(const std::string& name) {
  for (const Form* form : tellableForms()) {
    if (form->name == name) return form;
  }
  return nullptr;
}

namespace {

std::size_t knownNames(const Form& form, const std::vector<std::string>& names) {
  const RuleTree rules(form);
  const auto isKnown = [&](const std::string& name) { return rules.root().find(name) >= 0; };
  return static_cast<std::size_t>(std::count_if(names.begin(), names.end(), isKnown));
}

}  // namespace

const Form* formOf(const std::string& text, bool isArray, const std::vector<std::string>& names) {
  if (isArray) return &cutForm();
  std::vector<const Form*> meant;
  const Form* likeliest = nullptr;
  std::size_t most = 0;
  for (const Form* form : tellableForms()) {
    const std::size_t known = knownNames(*form, names);
    if (known == 0) continue;
    meant.push_back(form);
    if (known > most) likeliest = form;
    most = std::max(most, known);
  }
  if (meant.size() < 2) return likeliest;
  const auto found =
      std::find_if(meant.begin(), meant.end(), [&](const Form* form) { return form->holds(text); });
  return found == meant.end() ? likeliest : *found;
}

}  // namespace kydata::check
