#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include "host/schema/FXManagedObjectListOf.h"

namespace {

class Counted : public FX::FXObject {
 public:
  Counted(std::string& deleted, char name) : deleted_(deleted), name_(name) {}
  ~Counted() override { deleted_ += name_; }

 private:
  std::string& deleted_;
  char name_;
};

using List = FX::FXManagedObjectListOf<Counted>;

}  // namespace

TEST(FXManagedObjectListOfTest, deletesItsElementsWithItself) {
  std::string deleted;
  {
    List list;
    for (const char name : {'a', 'b', 'c'}) list.append(new Counted(deleted, name));
    list.append(static_cast<FX::FXObject*>(nullptr));
    EXPECT_EQ(list.no(), 4);
    EXPECT_EQ(deleted, "");
  }
  EXPECT_EQ(deleted, "abc");
}

TEST(FXManagedObjectListOfTest, deletesItsElementsOnDemandOnce) {
  std::string deleted;
  {
    List list;
    list.append(new Counted(deleted, 'a'));
    list.deleteAll();
    list.deleteAll();
    EXPECT_EQ(deleted, "a");
    EXPECT_EQ(list.no(), 0);
    list.append(new Counted(deleted, 'b'));
  }
  EXPECT_EQ(deleted, "ab");
}

TEST(FXManagedObjectListOfTest, takesElementsOutWithoutDeletingThem) {
  std::string deleted;
  Counted a(deleted, 'a');
  {
    List list;
    list.append(&a);
    list.append(new Counted(deleted, 'b'));
    list.erase(0);
  }
  EXPECT_EQ(deleted, "b");
}

TEST(FXManagedObjectListOfTest, isAListThatCannotBeCopied) {
  EXPECT_TRUE((std::is_base_of_v<FX::FXObjectListOf<Counted>, List>));
  EXPECT_FALSE(std::is_copy_constructible_v<List>);
  EXPECT_FALSE(std::is_copy_assignable_v<List>);
}
