#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include "host/entity/Entity.h"
#include "tests/host/entity/TestMiscData.h"

using Brontel::Entity;
using Brontel::EntityMiscData;

namespace {

class TestEntity : public Entity {
 public:
  ~TestEntity() override { deleteMiscData(); }

  using Entity::cloneMiscDataFrom;
};

class EntityTest : public ::testing::Test {
 protected:
  TestMiscData* data(int value = 0) { return new TestMiscData(&entity, living, value); }

  int living = 0;
  TestEntity entity;
};

}  // namespace

TEST_F(EntityTest, hasNoKeyBeforeItIsSaved) {
  EXPECT_EQ(entity.getId(), 0);
  entity.setId(-7);
  EXPECT_EQ(entity.getId(), -7);
}

TEST_F(EntityTest, isAnObjectThatCannotBeCopiedAsItIs) {
  EXPECT_TRUE(Entity::metaClass.isSubClassOf(&FX::FXObject::metaClass));
  EXPECT_FALSE(std::is_copy_constructible_v<Entity>);
  EXPECT_FALSE(std::is_copy_assignable_v<Entity>);
}

TEST_F(EntityTest, findsDataUnderAKeyOfTheSameText) {
  EXPECT_EQ(entity.getMiscData("key"), nullptr);
  TestMiscData* added = data();
  std::string key = "key";
  entity.addMiscData(key.c_str(), added);
  key = "xyz";
  EXPECT_EQ(entity.getMiscData(std::string("key").c_str()), added);
  for (const char* other : {"", "ke", "keys", "KEY", "xyz"}) EXPECT_EQ(entity.getMiscData(other), nullptr) << other;
  EXPECT_EQ(entity.getMiscData(nullptr), nullptr);
}

TEST_F(EntityTest, keepsSeveralKeysApart) {
  TestMiscData* first = data();
  TestMiscData* second = data();
  TestMiscData* empty = data();
  entity.addMiscData("a", first);
  entity.addMiscData("b", second);
  entity.addMiscData("", empty);
  EXPECT_EQ(entity.getMiscData("a"), first);
  EXPECT_EQ(entity.getMiscData("b"), second);
  EXPECT_EQ(entity.getMiscData(""), empty);
}

TEST_F(EntityTest, deletesItsDataWithItself) {
  {
    TestEntity other;
    for (const char* key : {"a", "b", "c"}) other.addMiscData(key, new TestMiscData(&other, living));
    EXPECT_EQ(living, 3);
  }
  EXPECT_EQ(living, 0);
}

TEST_F(EntityTest, replacesDataUnderAUsedKey) {
  entity.addMiscData("key", data(1));
  TestMiscData* second = data(2);
  entity.addMiscData("key", second);
  EXPECT_EQ(living, 1);
  EXPECT_EQ(entity.getMiscData("key"), second);
}

TEST_F(EntityTest, ignoresWhatItHasAlready) {
  TestMiscData* added = data();
  entity.addMiscData("key", added);
  entity.addMiscData("key", added);
  entity.addMiscData("other", added);
  EXPECT_EQ(living, 1);
  EXPECT_EQ(entity.getMiscData("key"), added);
  EXPECT_EQ(entity.getMiscData("other"), nullptr);
}

TEST_F(EntityTest, ignoresNull) {
  entity.addMiscData("key", data());
  entity.addMiscData("key", nullptr);
  EXPECT_EQ(living, 1);
  TestMiscData own(&entity, living);
  entity.addMiscData(nullptr, &own);
  EXPECT_EQ(living, 2);
}

TEST_F(EntityTest, clonesAllDataToACopy) {
  entity.addMiscData("a", data(5));
  entity.addMiscData("b", data(6));
  TestEntity copy;
  copy.cloneMiscDataFrom(entity);
  EXPECT_EQ(living, 4);
  for (const char* key : {"a", "b"}) {
    const auto* original = static_cast<TestMiscData*>(entity.getMiscData(key));
    const auto* clone = static_cast<TestMiscData*>(copy.getMiscData(key));
    ASSERT_NE(clone, nullptr);
    EXPECT_NE(clone, original);
    EXPECT_EQ(clone->value, original->value);
    EXPECT_EQ(clone->getOwner(), &copy);
    EXPECT_EQ(original->getOwner(), &entity);
  }
}
