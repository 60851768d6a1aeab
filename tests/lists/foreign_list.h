// Lists of a caller's own making: they keep the contract, and are not the library's.

#ifndef KYDATASTRUCTURE_TESTS_LISTS_FOREIGN_LIST_H_
#define KYDATASTRUCTURE_TESTS_LISTS_FOREIGN_LIST_H_

#include <KyDataStructure/lists.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <vector>

// Implements a list interface over a vector. `Tag` makes a type of its own of it
// where two builds of one type must not meet.
template <class List, class Tag = void>
class ForeignList : public List {
 public:
  using T = typename List::Element;

  virtual ~ForeignList() = default;

  int addRef() override { return ++count_; }
  int release() override { return --count_; }
  int refCount() override { return count_; }
  ZOL::IReleaseHook* releaseHook() override { return nullptr; }
  void setReleaseHook(ZOL::IReleaseHook*) override {}
  void* queryInterface(const char* name) override {
    if (std::strcmp(name, ZOL::kListData) == 0) return items_.data();
    return std::strcmp(name, List::interfaceName) == 0 ? static_cast<List*>(this) : nullptr;
  }

  long long size() override { return static_cast<long long>(items_.size()); }
  T at(long long index) override {
    return index >= 0 && index < size() ? items_[place(index)] : T();
  }
  int add(T element) override {
    items_.push_back(element);
    return ZOL::kSuccess;
  }
  int removeAt(long long index) override {
    if (index < 0 || index >= size()) return ZOL::kRefused;
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
    return ZOL::kSuccess;
  }
  int insertAt(long long index, T element) override {
    if (index < 0 || index > size()) return ZOL::kRefused;
    items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(index), element);
    return ZOL::kSuccess;
  }
  int setAt(long long index, T element) override {
    if (index < 0 || index > size()) return ZOL::kRefused;
    if (index < size()) items_[place(index)] = element;
    return ZOL::kSuccess;
  }
  int clear() override {
    items_.clear();
    return ZOL::kSuccess;
  }
  int assign(List* other) override {
    clear();
    return insertListAt(0, other);
  }
  int insertListAt(long long index, List* other) override {
    if (!other || index < 0 || index > size()) return ZOL::kRefused;
    for (long long last = other->size(); last-- > 0;) insertAt(index, other->at(last));
    return ZOL::kSuccess;
  }
  int sort(typename List::Compare compare) override {
    std::sort(items_.begin(), items_.end(), compare);
    return ZOL::kSuccess;
  }
  long long find(T key, typename List::Match match) override {
    for (long long index = 0; index < size(); ++index) {
      if (match(at(index), key)) return index;
    }
    return -1;
  }

 private:
  static std::size_t place(long long index) { return static_cast<std::size_t>(index); }

  std::vector<T> items_;
  int count_ = 1;
};

// Passes all that is asked of it on to a real list, the query of an interface
// among it, so that it looks like one from outside.
template <class List>
class ForwardingList : public List {
 public:
  using T = typename List::Element;

  explicit ForwardingList(List* real) : real_(real) {}
  virtual ~ForwardingList() = default;

  int addRef() override { return real_->addRef(); }
  int release() override { return real_->release(); }
  int refCount() override { return real_->refCount(); }
  ZOL::IReleaseHook* releaseHook() override { return real_->releaseHook(); }
  void setReleaseHook(ZOL::IReleaseHook* hook) override { real_->setReleaseHook(hook); }
  void* queryInterface(const char* name) override { return real_->queryInterface(name); }
  long long size() override { return real_->size(); }
  T at(long long index) override { return real_->at(index); }
  int add(T element) override { return real_->add(element); }
  int removeAt(long long index) override { return real_->removeAt(index); }
  int insertAt(long long index, T element) override { return real_->insertAt(index, element); }
  int setAt(long long index, T element) override { return real_->setAt(index, element); }
  int clear() override { return real_->clear(); }
  int assign(List* other) override { return real_->assign(other); }
  int insertListAt(long long index, List* other) override {
    return real_->insertListAt(index, other);
  }
  int sort(typename List::Compare compare) override { return real_->sort(compare); }
  long long find(T key, typename List::Match match) override { return real_->find(key, match); }

 private:
  List* const real_;
};

#endif  // KYDATASTRUCTURE_TESTS_LISTS_FOREIGN_LIST_H_
