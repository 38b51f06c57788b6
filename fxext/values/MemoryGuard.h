#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

/// A growing array that owns what its elements point to. Nothing is ever taken out; the destructor deletes the elements
/// in index order. T needs a virtual destructor when objects of derived classes are appended.
template <class T>
class MemoryGuard {
 public:
  MemoryGuard() = default;
  MemoryGuard(const MemoryGuard&) = delete;
  MemoryGuard& operator=(const MemoryGuard&) = delete;
  ~MemoryGuard() {
    for (std::int32_t i = 0; i < count_; i++) delete elements_[i];
    delete[] elements_;
  }

  /// Takes ownership; null is stored as well. An element must not be appended twice.
  void append(T* element) {
    if (isFull()) grow();
    elements_[count_++] = element;
  }

  /// The number of elements, null ones included.
  std::int32_t no() const { return count_; }

  /// The element at the index, still owned by the array; null for an index outside it.
  T* operator[](std::int32_t index) const { return 0 <= index && index < count_ ? elements_[index] : nullptr; }

 private:
  T** elements_ = nullptr;
  std::int32_t count_ = 0;

  // The room is the count's next power of two, so it follows from the count, and it doubles whenever it is used up:
  // appending n elements moves fewer than 2n.
  bool isFull() const { return (count_ & (count_ - 1)) == 0; }

  void grow() {
    const std::size_t room = count_ == 0 ? 1 : 2 * static_cast<std::size_t>(count_);
    T** const larger = new T*[room];
    std::copy_n(elements_, count_, larger);
    delete[] elements_;
    elements_ = larger;
  }
};
