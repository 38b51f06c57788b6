#include <cstdint>
#include <type_traits>
#include <utility>
#include <vector>

#include <fx.h>
#include <gtest/gtest.h>

#include "fxext/values/MemoryGuard.h"

static_assert(!std::is_copy_constructible_v<MemoryGuard<FX::FXDataTarget>>);
static_assert(!std::is_copy_assignable_v<MemoryGuard<FX::FXDataTarget>>);
static_assert(!std::is_move_constructible_v<MemoryGuard<FX::FXDataTarget>>);
static_assert(std::is_same_v<decltype(std::declval<MemoryGuard<int>>().no()), std::int32_t>);
static_assert(sizeof(MemoryGuard<int>) == 2 * sizeof(void*));

namespace {

/// Records its number when it dies.
class RecordingTarget : public FX::FXDataTarget {
 public:
  RecordingTarget(int number, std::vector<int>& deaths) : number_(number), deaths_(deaths) {}
  ~RecordingTarget() override { deaths_.push_back(number_); }

 private:
  int number_;
  std::vector<int>& deaths_;
};

}  // namespace

TEST(MemoryGuard, IsEmptyAtFirst) {
  const MemoryGuard<FX::FXDataTarget> guard;
  EXPECT_EQ(guard.no(), 0);
  EXPECT_EQ(guard[0], nullptr);
}

TEST(MemoryGuard, CountsAndKeepsWhatIsAppended) {
  MemoryGuard<FX::FXDataTarget> guard;
  std::vector<FX::FXDataTarget*> targets;
  for (int i = 0; i < 100; i++) {
    targets.push_back(new FX::FXDataTarget);
    guard.append(targets.back());
    EXPECT_EQ(guard.no(), i + 1);
  }
  for (int i = 0; i < 100; i++) EXPECT_EQ(guard[i], targets[i]) << i;
}

TEST(MemoryGuard, IndexOutsideTheArrayIsNull) {
  MemoryGuard<int> guard;
  guard.append(new int(7));
  EXPECT_EQ(*guard[0], 7);
  EXPECT_EQ(guard[1], nullptr);
  EXPECT_EQ(guard[-1], nullptr);
  EXPECT_EQ(guard[INT32_MAX], nullptr);
  EXPECT_EQ(guard[INT32_MIN], nullptr);
}

TEST(MemoryGuard, DeletesEachElementOnceInIndexOrder) {
  std::vector<int> deaths;
  std::vector<int> expected;
  {
    MemoryGuard<FX::FXDataTarget> guard;
    for (int i = 0; i < 100; i++) {
      guard.append(new RecordingTarget(i, deaths));
      expected.push_back(i);
    }
    EXPECT_TRUE(deaths.empty());
  }
  EXPECT_EQ(deaths, expected);
}

TEST(MemoryGuard, SkipsNull) {
  std::vector<int> deaths;
  {
    MemoryGuard<FX::FXDataTarget> guard;
    guard.append(nullptr);
    guard.append(new RecordingTarget(1, deaths));
    guard.append(nullptr);
    guard.append(new RecordingTarget(3, deaths));
    EXPECT_EQ(guard.no(), 4);
    EXPECT_EQ(guard[0], nullptr);
    EXPECT_EQ(guard[2], nullptr);
  }
  EXPECT_EQ(deaths, (std::vector<int>{1, 3}));
}

TEST(MemoryGuard, AppendsMillionsOfElementsInLinearTime) {
  MemoryGuard<int> guard;
  // Growing by a fixed amount would move elements for minutes, beyond the time a test may take.
  constexpr int COUNT = 4000000;
  for (int i = 0; i < COUNT; i++) guard.append(nullptr);
  guard.append(new int(5));
  EXPECT_EQ(guard.no(), COUNT + 1);
  EXPECT_EQ(*guard[COUNT], 5);
}
