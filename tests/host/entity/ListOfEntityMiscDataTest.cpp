#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include "host/entity/ListOfEntityMiscData.h"

using Brontel::Entity;
using Brontel::EntityMiscData;
using Brontel::ListOfEntityMiscData;

namespace {

class Element : public EntityMiscData {
 public:
  Element(std::string& deleted, char name) : deleted_(deleted), name_(name) {}
  ~Element() override { deleted_ += name_; }

 private:
  std::string& deleted_;
  char name_;
};

class List : public ListOfEntityMiscData<Element> {
 public:
  using ListOfEntityMiscData::ListOfEntityMiscData;
  List* clone(Entity* newOwner) const override { return new List(newOwner); }
};

}  // namespace

TEST(ListOfEntityMiscDataTest, deletesItsElementsOnceLastToFirst) {
  std::string deleted;
  {
    List list;
    list.append(new Element(deleted, 'a'));
    list.append(static_cast<FX::FXObject*>(nullptr));
    list.append(new Element(deleted, 'b'));
    EXPECT_EQ(list.no(), 3);
  }
  EXPECT_EQ(deleted, "ba");
}

TEST(ListOfEntityMiscDataTest, isDeletedAsMiscData) {
  std::string deleted;
  EntityMiscData* data = new List;
  static_cast<List*>(data)->append(new Element(deleted, 'a'));
  delete data;
  EXPECT_EQ(deleted, "a");
}

TEST(ListOfEntityMiscDataTest, isMiscDataFirstAndAListToo) {
  EXPECT_TRUE((std::is_base_of_v<EntityMiscData, List>));
  EXPECT_TRUE((std::is_base_of_v<FX::FXObjectListOf<Element>, List>));
  EXPECT_TRUE(std::is_abstract_v<ListOfEntityMiscData<Element>>);
  List list;
  EXPECT_EQ(static_cast<void*>(static_cast<EntityMiscData*>(&list)), static_cast<void*>(&list));
}
