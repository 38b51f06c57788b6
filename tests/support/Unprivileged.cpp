#include "tests/support/Unprivileged.h"

#include <unistd.h>

#include <gtest/gtest.h>

namespace {

constexpr uid_t kRoot = 0;
constexpr uid_t kNobody = 65534;

}  // namespace

Unprivileged::Unprivileged() : user_(geteuid()) {
  if (user_ != kRoot) return;
  EXPECT_EQ(seteuid(kNobody), 0);
}

Unprivileged::~Unprivileged() {
  if (user_ != kRoot) return;
  EXPECT_EQ(seteuid(kRoot), 0);
}
