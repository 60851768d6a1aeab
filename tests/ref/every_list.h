// All lists that a factory makes, for tests that hold of each.

#ifndef KYDATASTRUCTURE_TESTS_REF_EVERY_LIST_H_
#define KYDATASTRUCTURE_TESTS_REF_EVERY_LIST_H_

#include <KyDataStructure/ref.h>
#include <gtest/gtest.h>

#include <string>

#include "lists/elements.h"

template <class Interface>
struct Tag {
  using Type = Interface;
};

template <class Visit, auto... creates>
void visitEveryMade(const Visit& visit, const ZOL::refDetail::Table<creates...>&) {
  (visit(Tag<typename ZOL::refDetail::Maker<creates>::Made>()), ...);
}

// Calls `visit(Tag<List>())` for every list. Answers how many there are.
template <class Visit>
int forEveryList(const Visit& visit) {
  int lists = 0;
  visitEveryMade(
      [&](auto tag) {
        using Made = typename decltype(tag)::Type;
        if constexpr (ZOL::refDetail::isList<Made>) {
          SCOPED_TRACE(Made::interfaceName);
          visit(tag);
          ++lists;
        }
      },
      ZOL::refDetail::Factories());
  return lists;
}

// A list of the elements that the letters stand for.
template <class List>
ZOL::Ref<List> listOf(const Elements<List>& elements, const std::string& letters) {
  auto list = ZOL::make<List>();
  for (const char letter : letters) list->add(elements.of(letter));
  return list;
}

#endif  // KYDATASTRUCTURE_TESTS_REF_EVERY_LIST_H_
