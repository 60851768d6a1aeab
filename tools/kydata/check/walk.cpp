#include "check/walk.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <unordered_set>

#include "check/between.h"
#include "check/look.h"
#include "check/path.h"
#include "check/reader.h"
#include "check/rule_tree.h"
#include "check/similar.h"
#include "check/syntax.h"
#include "check/value.h"
#include "utf8.h"

namespace kydata::check {

namespace {

constexpr std::size_t kDeep = 500;

/// An object or array that is open.
struct Frame {
  Frame(const Node* place, bool ofArray, std::size_t from)
      : node(place), isArray(ofArray), start(from) {}

  const Node* node;  ///< null where nothing inside is read
  bool isArray;
  std::size_t start;
  long long index = -1;          ///< of the element at hand
  std::string_view key;          ///< of the member at hand
  std::size_t keyStart = 0;      ///< 0 ahead of the first one
  const Node* member = nullptr;  ///< that the key names, if it is read
  std::uint64_t seen = 0;        ///< which members were there, by index; no object has 64
  std::unique_ptr<std::unordered_set<std::string>> names;  ///< where the last one counts
  std::string_view previousKey;                            ///< where the last array counts
  std::size_t previousStart = 0;                           ///< of the value; 0 for none
};

/// Takes what the reader tells, token after token.
class Walk : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Walk> {
 public:
  Walk(const std::string& text, const RuleTree& rules, ReadCopy& source, Findings& findings)
      : text_(text),
        rules_(rules),
        source_(source),
        findings_(findings),
        between_(text, findings),
        behindToken_(source.markSkipped()) {}

  // The names are those that RapidJSON calls.
  bool Null() { return scalar(Kind::null, 4); }
  bool Bool(bool value) { return scalar(value ? Kind::yes : Kind::no, value ? 4 : 5); }
  bool RawNumber(const char*, rapidjson::SizeType size, bool) { return scalar(Kind::number, size); }
  bool String(const char* told, rapidjson::SizeType size, bool) {
    const std::size_t start = source_.at(told) - 1;
    token(start, source_.at());
    const std::string_view text(told, size);
    const Node* const node = next(start);
    checkEncoding(text, start);
    enter(node, {Kind::text, text, start});
    return true;
  }
  bool Key(const char* told, rapidjson::SizeType size, bool) {
    const std::size_t start = source_.at(told) - 1;
    token(start, source_.at());
    Frame& frame = frames_.back();
    frame.key = {told, size};
    frame.keyStart = start;
    frame.member = nullptr;
    checkEncoding(frame.key, start);
    if (frame.node) frame.member = memberNamed(frame);
    return true;
  }
  bool StartObject() { return open(Kind::object); }
  bool EndObject(rapidjson::SizeType) {
    closingBracket();
    const Frame& frame = frames_.back();
    if (frame.node) lookForMissing(frame);
    frames_.pop_back();
    return true;
  }
  bool StartArray() { return open(Kind::array); }
  bool EndArray(rapidjson::SizeType count) {
    closingBracket();
    const Frame frame = std::move(frames_.back());
    frames_.pop_back();
    if (frame.node && count == 0) {
      add(lookAtEmptyArray(*frame.node->rule), frame.start, frame.node->rule, "");
    }
    return true;
  }

 private:
  /// Looks at what stands between the token before and this one.
  void token(std::size_t start, std::size_t end, bool isClosing = false) {
    between_.look(behindToken_, start, isClosing);
    behindToken_ = end;
  }
  /// A bracket is told of while the reader is still in front of it.
  std::size_t openingBracket() {
    const std::size_t start = source_.at();
    token(start, start + 1);
    return start;
  }
  void closingBracket() {
    const std::size_t start = source_.at();
    token(start, start + 1, true);
  }

  bool scalar(Kind kind, std::size_t size) {
    const std::size_t start = source_.at() - size;
    token(start, source_.at());
    enter(next(start), {kind, std::string_view(text_).substr(start, size), start});
    return true;
  }

  bool open(Kind kind) {
    const std::size_t start = openingBracket();
    const Node* const inside = enter(next(start), {kind, {}, start});
    frames_.emplace_back(inside, kind == Kind::array, start);
    if (frames_.size() == kDeep + 1) {
      report(Code::deepNesting, Effect::none, start, nullptr, "",
             "here more than " + std::to_string(kDeep) + " levels are open");
    }
    return true;
  }

  /// The place in the rules of the value that comes now; null where it is not read.
  const Node* next(std::size_t start) {
    if (frames_.empty()) return &rules_.root();
    Frame& frame = frames_.back();
    if (!frame.node) return nullptr;
    if (!frame.isArray) return frame.member;
    ++frame.index;
    const Node* const element = frame.node->element;
    if (frame.node->rule->elements == Elements::all || frame.index == 0) return element;
    report(Code::neverRead, Effect::ignored, start, frame.node->rule, "",
           "only the first element is looked at");
    return nullptr;
  }

  /// Looks at a value, and answers with its place if what it holds is read, too.
  const Node* enter(const Node* node, const Value& value) {
    if (!node) return nullptr;
    const Rule& rule = *node->rule;
    if (!value.hasType(rule.type)) {
      const Code code = codeOf(value, rule.type);
      report(code, rule.wrongType, value.start, &rule, "",
             nameOf(value) + (code == Code::outOfRange ? " that does not fit, " : ", ") +
                 nameOf(rule.type) + " expected; " + rule.otherwise);
      return nullptr;
    }
    const std::string_view name = nearestName();
    if (auto remark = lookAt(value, rule, name)) {
      add(remark, value.start, &rule, "");
    } else if (rule.type == Type::unread) {
      report(Code::neverRead, Effect::ignored, value.start, &rule, "", rule.otherwise);
    }
    if (value.kind == Kind::array) noteReplaced(value.start);
    return rule.type == Type::unread ? nullptr : node;
  }

  /// Of the innermost member that is at hand.
  std::string_view nearestName() const {
    for (auto frame = frames_.rbegin(); frame != frames_.rend(); ++frame) {
      if (!frame->isArray) return frame->key;
    }
    return {};
  }

  /// Where the last array counts, the one before it is told of when the next one comes.
  void noteReplaced(std::size_t start) {
    if (frames_.empty()) return;
    Frame& frame = frames_.back();
    if (frame.isArray || !frame.node || frame.node->membersRule() != Members::lastOfAll) return;
    if (frame.previousStart > 0) {
      const std::string_view key = frame.key;
      frame.key = frame.previousKey;  // for the path
      report(Code::replaced, Effect::ignored, frame.previousStart, frame.node->rule, "",
             "a later one takes its place, of which \"" + printable(key) + "\" is the next");
      frame.key = key;
    }
    frame.previousKey = frame.key;
    frame.previousStart = start;
  }

  const Node* memberNamed(Frame& frame) {
    const Node& owner = *frame.node;
    if (owner.anyMember) {
      lookAtName(frame);
      return owner.anyMember;
    }
    const int index = owner.find(frame.key);
    if (index < 0) {
      noteUnknown(frame);
      return nullptr;
    }
    const std::uint64_t bit = std::uint64_t{1} << index;
    if ((frame.seen & bit) != 0) {
      report(Code::duplicateName, Effect::ignored, frame.keyStart, owner.rule, "",
             "the name stands here again, and the first one counts");
      return nullptr;
    }
    frame.seen |= bit;
    return owner.members[static_cast<std::size_t>(index)].second;
  }

  /// A name that the text chooses.
  void lookAtName(Frame& frame) {
    const Members members = frame.node->membersRule();
    const bool isId = members == Members::lastOfId;
    if (isId) add(lookAtId(frame.key), frame.keyStart, frame.node->rule, "");
    if (!isId && members != Members::lastOfName) return;
    if (!frame.names) frame.names = std::make_unique<std::unordered_set<std::string>>();
    const std::string_view read = frame.key.substr(0, frame.key.find('\0'));
    if (frame.names->insert(isId ? std::to_string(idOf(frame.key)) : std::string(read)).second) {
      return;
    }
    report(
        Code::duplicateName, Effect::changed, frame.keyStart, frame.node->rule, "",
        std::string(isId ? "the id" : "the name") + " stands here again, and the last one counts");
  }

  void noteUnknown(const Frame& frame) {
    const Members members = frame.node->membersRule();
    if (members == Members::passedOn || members == Members::ofAProvider) return;
    report(Code::unknownMember, Effect::ignored, frame.keyStart, frame.node->rule, "",
           "there is no such member here, and nobody reads it" + suggestionFor(frame));
  }

  /// The known name that an unknown one may be meant to be.
  static std::string suggestionFor(const Frame& frame) {
    const std::string* nearest = nullptr;
    for (const auto& [name, node] : frame.node->members) {
      if (!areSimilar(frame.key, name)) continue;
      if (nearest && distance(frame.key, *nearest) <= distance(frame.key, name)) continue;
      nearest = &name;
    }
    return nearest ? "; is it \"" + *nearest + "\"?" : "";
  }

  void lookForMissing(const Frame& frame) {
    for (std::size_t i = 0; i < frame.node->members.size(); ++i) {
      const auto& [name, node] = frame.node->members[i];
      const Rule& rule = *node->rule;
      if ((frame.seen >> i & 1U) != 0 || rule.missing == Missing::fine) continue;
      const Effect effect = rule.missing == Missing::refused        ? Effect::refused
                            : rule.missing == Missing::ownerIgnored ? Effect::ownerIgnored
                                                                    : Effect::none;
      report(Code::missingMember, effect, frame.start, &rule, name,
             std::string("missing, ") + nameOf(rule.type) + " expected; " + rule.otherwise);
    }
  }

  void checkEncoding(std::string_view text, std::size_t start) {
    if (isUtf8(text)) return;
    report(Code::notUtf8, Effect::none, start, nullptr, "",
           "the text holds bytes that are no UTF-8, and they are passed on as they are");
  }

  void add(const std::optional<Remark>& remark, std::size_t at, const Rule* rule,
           const std::string& member) {
    if (remark) report(remark->code, remark->effect, at, rule, member, remark->message);
  }

  /// `member` names one that is not at hand.
  void report(Code code, Effect effect, std::size_t at, const Rule* rule, const std::string& member,
              const std::string& message) {
    const Severity severity = severityOf(code, effect);
    if (!findings_.count(code, severity, rule)) return;
    findings_.keep({code, severity, at, pathTo(member), message, effect});
  }

  std::string pathTo(const std::string& member) const {
    Path path;
    for (const Frame& frame : frames_) {
      if (frame.isArray) {
        if (frame.index >= 0) path.addIndex(frame.index);
      } else if (frame.keyStart > 0 && (&frame != &frames_.back() || member.empty())) {
        path.addName(frame.key);
      }
    }
    if (!member.empty()) path.addName(member);
    return path.text();
  }

  const std::string& text_;
  const RuleTree& rules_;
  ReadCopy& source_;
  Findings& findings_;
  Between between_;
  std::size_t behindToken_;
  std::vector<Frame> frames_;
};

}  // namespace

void walk(const std::string& text, const Form& form, Findings& findings) {
  ReadCopy source(text, form.skipsMark);
  if (source.markSkipped() > 0) {
    findings.add(Code::byteOrderMark, 0, "a byte-order mark, which other readers may not skip");
  }
  const RuleTree rules(form);
  Walk handler(text, rules, source, findings);
  rapidjson::Reader reader;
  const rapidjson::ParseResult result = form.isStrict
                                            ? reader.Parse<kStrictJson>(source.stream(), handler)
                                            : reader.Parse<kTolerantJson>(source.stream(), handler);
  if (result.IsError()) {
    const std::size_t at = source.markSkipped() + result.Offset();
    findings.add(Code::syntax, at, syntaxMessage(text, at, result.Code()), Effect::refused);
    return;
  }
  const std::size_t behind = Between(text, findings).skip(source.at());
  if (behind == text.size()) return;
  findings.add(Code::textBehind, behind,
               "the root value has ended, and from here on nothing is looked at", Effect::ignored);
}

}  // namespace kydata::check
