// LetterList over a list type. Included by the tables of kinds alone.

#ifndef KYDATASTRUCTURE_TESTS_LISTS_LETTER_LIST_OF_H_
#define KYDATASTRUCTURE_TESTS_LISTS_LETTER_LIST_OF_H_

#include <memory>
#include <string>
#include <type_traits>

#include "lists/elements.h"
#include "lists/foreign_list.h"
#include "lists/letter_list.h"

template <class List>
class LetterKindOf final : public LetterKind {
  using T = typename List::Element;

  // Passes letters to and from a list that somebody else holds.
  class Letters : public LetterList {
   public:
    Letters(LetterKindOf& kind, List* list) : kind_(kind), list_(list) {}

    ZOL::IDmBaseObj* object() override { return list_; }
    long long size() override { return list_->size(); }
    char at(long long index) override { return letter(list_->at(index)); }
    int add(char element) override { return list_->add(kind_.elements_.of(element)); }
    int removeAt(long long index) override { return list_->removeAt(index); }
    int insertAt(long long index, char element) override {
      return list_->insertAt(index, kind_.elements_.of(element));
    }
    int setAt(long long index, char element) override {
      return list_->setAt(index, kind_.elements_.of(element));
    }
    int clear() override { return list_->clear(); }
    int assign(LetterList* other) override { return list_->assign(listOf(other)); }
    int insertListAt(long long index, LetterList* other) override {
      return list_->insertListAt(index, listOf(other));
    }
    int sort(Order order) override {
      switch (order) {
        case Order::kAscending:
          return list_->sort([](T a, T b) { return letter(a) < letter(b); });
        case Order::kDescending:
          return list_->sort([](T a, T b) { return letter(a) > letter(b); });
        case Order::kNull:
          break;
      }
      return list_->sort(nullptr);
    }
    long long find(char key, Match match) override {
      return list_->find(kind_.elements_.of(key), function(match));
    }

    int assignCast(ZOL::IDmBaseObj* other) override {
      return list_->assign(reinterpret_cast<List*>(other));
    }
    int insertCastAt(long long index, ZOL::IDmBaseObj* other) override {
      return list_->insertListAt(index, reinterpret_cast<List*>(other));
    }

    std::string array() override {
      std::string letters;
      if constexpr (!std::is_same<List, ZOL::ZOLPCharList>::value &&
                    !std::is_same<List, ZOL::ZOLAutoVoidPtrList>::value) {
        const T* const data = static_cast<const T*>(list_->queryInterface(ZOL::kListData));
        for (long long index = 0; index < size(); ++index) letters += letter(data[index]);
      }
      return letters;
    }

   private:
    static List* listOf(LetterList* other) {
      return other ? static_cast<Letters*>(other)->list_ : nullptr;
    }
    static char letter(T element) { return Elements<List>::letter(element); }

    static typename List::Match function(Match match) {
      switch (match) {
        case Match::kEqual:
          return [](T element, T key) { return ++asked_, letter(element) == letter(key); };
        case Match::kNext:
          return [](T element, T key) { return ++asked_, letter(element) == letter(key) + 1; };
        case Match::kNever:
          return [](T, T) { return ++asked_, false; };
        case Match::kNull:
          break;
      }
      return nullptr;
    }

    LetterKindOf& kind_;
    List* const list_;
  };

  class Owned final : public Letters {
   public:
    Owned(LetterKindOf& kind, List* list) : Letters(kind, list) {}
    ~Owned() override { this->object()->release(); }
  };

  class Foreign final : private ForeignList<List>, public Letters {
   public:
    explicit Foreign(LetterKindOf& kind) : Letters(kind, this) {}
  };

  class Forwarding final : private ForwardingList<List>, public Letters {
   public:
    Forwarding(LetterKindOf& kind, LetterList* real)
        : ForwardingList<List>(static_cast<List*>(real->object())), Letters(kind, this) {}
  };

 public:
  LetterKindOf() { asked_ = 0; }

  std::unique_ptr<LetterList> create() override {
    return std::make_unique<Owned>(*this, ::create<List>());
  }
  std::unique_ptr<LetterList> createForeign() override { return std::make_unique<Foreign>(*this); }
  std::unique_ptr<LetterList> createForwarding(LetterList* real) override {
    return std::make_unique<Forwarding>(*this, real);
  }
  int references(char letter) override {
    if constexpr (std::is_base_of<ZOL::IDmBaseObj, std::remove_pointer_t<T>>::value) {
      return elements_.references(letter);
    }
    return 0;
  }
  int matchesAsked() override { return asked_; }

 private:
  Elements<List> elements_;
  inline static int asked_ = 0;  // a caller's function is given no data of the caller's
};

template <class List>
ListKind listKind(const char* store = List::interfaceName) {
  return {List::interfaceName, store, []() -> ZOL::IDmBaseObj* { return create<List>(); },
          []() -> std::unique_ptr<LetterKind> { return std::make_unique<LetterKindOf<List>>(); }};
}

#endif  // KYDATASTRUCTURE_TESTS_LISTS_LETTER_LIST_OF_H_
