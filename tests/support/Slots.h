#pragma once

#include <cstddef>
#include <cstring>

#include <gtest/gtest.h>

/// The place of a virtual operation in the table of its class's virtual operations, from 0. A pointer to one holds its
/// offset in that table, plus one.
template <class Operation>
std::ptrdiff_t slotOf(Operation operation) {
  std::ptrdiff_t offset = 0;
  std::memcpy(&offset, &operation, sizeof offset);
  EXPECT_EQ(offset % 2, 1) << "not virtual";
  return (offset - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}
