#include "check/rule_tree.h"

#include <algorithm>

namespace kydata::check {

namespace {

/// Takes the first step off a path: "[]", "*", "<group>" or "one|other".
std::string_view takeStep(std::string_view& path) {
  if (path.front() == '.') path.remove_prefix(1);
  const std::size_t end =
      path.front() == '[' ? 2 : std::min(path.find_first_of(".[", 1), path.size());
  const std::string_view step = path.substr(0, end);
  path.remove_prefix(end);
  return step;
}

std::vector<std::string> namesIn(std::string_view step, const std::vector<NameGroup>& groups) {
  if (step.front() == '<') {
    const std::string_view name = step.substr(1, step.size() - 2);
    const auto group = std::find_if(groups.begin(), groups.end(),
                                    [&](const NameGroup& known) { return known.name == name; });
    step = group->names;
  }
  std::vector<std::string> names;
  while (!step.empty()) {
    const std::size_t end = std::min(step.find('|'), step.size());
    names.emplace_back(step.substr(0, end));
    step.remove_prefix(std::min(end + 1, step.size()));
  }
  return names;
}

}  // namespace

int Node::find(std::string_view name) const {
  const auto found = std::find_if(members.begin(), members.end(),
                                  [&](const auto& member) { return member.first == name; });
  return found == members.end() ? -1 : static_cast<int>(found - members.begin());
}

RuleTree::RuleTree(const Form& form) {
  add();
  for (const Rule& rule : form.rules) {
    std::vector<Node*> places = {&nodes_.front()};
    for (std::string_view path = rule.path; !path.empty();) {
      const std::string_view step = takeStep(path);
      std::vector<Node*> below;
      for (Node* place : places) {
        if (step == "[]") {
          below.push_back(orNew(place->element));
        } else if (step == "*") {
          below.push_back(orNew(place->anyMember));
        } else {
          for (const auto& name : namesIn(step, form.groups)) below.push_back(member(place, name));
        }
      }
      places = std::move(below);
    }
    for (Node* place : places) place->rule = &rule;
  }
}

Node* RuleTree::member(Node* owner, const std::string& name) {
  const int index = owner->find(name);
  if (index >= 0) return owner->members[static_cast<std::size_t>(index)].second;
  return owner->members.emplace_back(name, add()).second;
}

Node* RuleTree::orNew(Node*& place) {
  if (!place) place = add();
  return place;
}

}  // namespace kydata::check
