#include <memory>
#include <type_traits>

#include <gtest/gtest.h>

#include "host/entity/EntityMiscData.h"
#include "host/entity/InvoiceItem.h"

using Brontel::EntityMiscData;
using Brontel::InvoiceItem;

TEST(EntityMiscDataTest, clonesToAPlainObjectOfTheNewOwner) {
  InvoiceItem first;
  InvoiceItem second;
  const EntityMiscData data(&first);
  const std::unique_ptr<EntityMiscData> clone(data.clone(&second));
  EXPECT_EQ(data.getOwner(), &first);
  EXPECT_EQ(clone->getOwner(), &second);
  EXPECT_EQ(clone->getMetaClass(), &EntityMiscData::metaClass);
  EXPECT_EQ(std::unique_ptr<EntityMiscData>(data.clone(nullptr))->getOwner(), nullptr);
}

TEST(EntityMiscDataTest, holdsNothingButItsOwner) {
  EXPECT_EQ(EntityMiscData().getOwner(), nullptr);
  EXPECT_EQ(sizeof(EntityMiscData), sizeof(FX::FXObject) + sizeof(void*));
  EXPECT_TRUE((std::is_base_of_v<FX::FXObject, EntityMiscData>));
  EXPECT_FALSE(std::is_copy_constructible_v<EntityMiscData>);
}
