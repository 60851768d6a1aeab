// The fields of records. A field's type carries its rule, so that an accessor is one
// plain line.

#ifndef KYDATASTRUCTURE_FRAME_FIELDS_H_
#define KYDATASTRUCTURE_FRAME_FIELDS_H_

#include <KyDataStructure/frame.h>

#include <utility>

#include "frame/handle.h"
#include "frame/shared_text.h"

namespace ZOL {

// A number, or anything else that is plain: every value is taken.
template <class T>
class Plain {
 public:
  explicit Plain(T value = T()) : value_(value) {}
  T get() const { return value_; }
  int set(T value) {
    value_ = value;
    return kSuccess;
  }

 private:
  T value_;
};

// What a text field does with null.
enum class NullText { refused, empty };

// A copied text, never null. A text may be set to its own or part of it.
template <NullText rule>
class Text {
 public:
  const char* get() const { return text_.get(); }
  bool isEmpty() const { return text_.isEmpty(); }
  int set(const char* text) {
    if (!text && rule == NullText::refused) return kRefused;
    text_ = text ? SharedText(text) : SharedText();
    return kSuccess;
  }
  void set(SharedText text) { text_ = std::move(text); }

 private:
  SharedText text_;
};

using TextRefusingNull = Text<NullText::refused>;
using TextTakingNull = Text<NullText::empty>;

// An object that is kept, and may be null. Lent by get().
template <class Interface>
class Kept {
 public:
  Interface* get() const { return object_.get(); }
  int set(Interface* object) {
    object_ = Handle<Interface>::share(object);
    return kSuccess;
  }
  void set(Handle<Interface> object) { object_ = std::move(object); }
  // The same for fields that refuse null.
  int setUnlessNull(Interface* object) { return object ? set(object) : kRefused; }

 private:
  Handle<Interface> object_;
};

// A list of a record's own, made with it. It never changes hands: callers' lists are
// filled from it and it from theirs, and what the assignment answers is dropped.
template <class List, List* (*create)()>
class OwnedList {
 public:
  List* get() const { return list_.get(); }
  List* operator->() const { return list_.get(); }
  int giveTo(List* out) const {
    if (!out) return kRefused;
    out->assign(list_.get());
    return kSuccess;
  }
  int takeFrom(List* in) {
    if (!in) return kRefused;
    list_->assign(in);
    return kSuccess;
  }
  void renew() { list_ = Handle<List>::adopt(create()); }

 private:
  Handle<List> list_ = Handle<List>::adopt(create());
};

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_FRAME_FIELDS_H_
