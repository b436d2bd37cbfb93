// An array with declared bounds First..Last, both included.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "core/Fault.h"

namespace quilm {

template <class T, int First, int Last>
class BoundedArray {
  static_assert(First <= Last);

 public:
  static constexpr int first = First;
  static constexpr int last = Last;

  // Throws BoundFault outside First..Last.
  T& operator[](int index) { return items_[Offset(index)]; }
  const T& operator[](int index) const { return items_[Offset(index)]; }

  void Fill(const T& value) { items_.fill(value); }

  T* data() { return items_.data(); }
  const T* data() const { return items_.data(); }
  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }
  static constexpr std::size_t size() { return static_cast<std::size_t>(Last - First + 1); }

  bool operator==(const BoundedArray&) const = default;

 private:
  static std::size_t Offset(int index) {
    if (index < First || index > Last) throw BoundFault();
    return static_cast<std::size_t>(index - First);
  }

  std::array<T, size()> items_{};
};

}  // namespace quilm
