#ifndef KYDATA_CHECK_RULE_TREE_H_
#define KYDATA_CHECK_RULE_TREE_H_

#include <deque>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "check/form.h"

namespace kydata::check {

/// A place in a form, and the places below it.
struct Node {
  const Rule* rule = nullptr;
  std::vector<std::pair<std::string, Node*>> members;  ///< by their names, in the table's order
  Node* anyMember = nullptr;
  Node* element = nullptr;

  /// The index of a name in `members`, or -1.
  int find(std::string_view name) const;
  /// How the members of an object are taken.
  Members membersRule() const { return rule->members; }
};

/// The rules of a form by their places. A rule takes the place of one further up in the
/// table that has the same path.
class RuleTree {
 public:
  explicit RuleTree(const Form& form);
  RuleTree(const RuleTree&) = delete;
  RuleTree& operator=(const RuleTree&) = delete;

  const Node& root() const { return nodes_.front(); }

 private:
  Node* add() { return &nodes_.emplace_back(); }
  Node* member(Node* owner, const std::string& name);
  Node* orNew(Node*& place);

  std::deque<Node> nodes_;
};

}  // namespace kydata::check

#endif  // KYDATA_CHECK_RULE_TREE_H_
