#include "itemdata/Codes.h"
#include "tests/itemdata/ListFixture.h"
#include "ui/RowPlaces.h"

using namespace Brontel::Plugin::ItemData;
using UI::RowPlaces;

namespace {

/// Settings of a per-item 11 and the per-unit quantity, 12 and 13.
class RowPlacesTest : public ListFixture {
 protected:
  RowPlacesTest() {
    settings.append(newCell(TYPE_TEXT, 11, 0));
    settings.append(newCell(TYPE_QUANTITY, VARIABLE_QUANTITY, 1));
    settings.append(newCell(TYPE_TEXT, 12, 1));
    settings.append(newCell(TYPE_TEXT, 13, 1));
    settings.firstRowIndex = 1;
    settings.columns = 3;
  }

  /// The places of cells, given by variable and row: "row,column " each.
  static std::string placesOf(RowPlaces places, const std::vector<std::pair<int, int>>& cells) {
    std::string texts;
    for (const auto& [variable, row] : cells) {
      const std::unique_ptr<ItemDataEntry> cell(newCell(TYPE_TEXT, variable, row));
      const RowPlaces::Place place = places.next(*cell);
      texts += std::to_string(place.row) + "," + std::to_string(place.column) + " ";
    }
    return texts;
  }

  ItemDataList settings;
};

}  // namespace

TEST_F(RowPlacesTest, completeRowsFillTheTableInOrder) {
  EXPECT_EQ(placesOf({&settings, 3}, {{-1, 1}, {12, 1}, {13, 1}, {-1, 2}, {12, 2}, {13, 2}}),
            "0,0 0,1 0,2 1,0 1,1 1,2 ");
}

TEST_F(RowPlacesTest, gapsInTheNumbersLeaveNoRowsEmpty) {
  EXPECT_EQ(placesOf({&settings, 3}, {{-1, 2}, {-1, 7}, {12, 7}}), "0,0 1,0 1,1 ");
}

TEST_F(RowPlacesTest, aMissingCellShiftsNoOther) {
  EXPECT_EQ(placesOf({&settings, 3}, {{12, 1}, {13, 1}, {-1, 2}, {13, 2}}), "0,1 0,2 1,0 1,2 ");
}

TEST_F(RowPlacesTest, variablesThatAreNotPerUnitHaveNoColumn) {
  EXPECT_EQ(placesOf({&settings, 3}, {{-1, 1}, {99, 1}, {11, 1}, {13, 1}}), "0,0 0,-1 0,-1 0,2 ");
}

TEST_F(RowPlacesTest, cellsOfNoRowHaveNoPlace) {
  EXPECT_EQ(placesOf({&settings, 3}, {{12, 0}, {-1, 1}}), "0,-1 0,0 ");
}

TEST_F(RowPlacesTest, columnsBeyondTheTableAreNone) {
  EXPECT_EQ(placesOf({&settings, 2}, {{-1, 1}, {12, 1}, {13, 1}}), "0,0 0,1 0,-1 ");
}

TEST_F(RowPlacesTest, withoutSettingsCellsGoInOrder) {
  EXPECT_EQ(placesOf({nullptr, 2}, {{5, 1}, {6, 1}, {7, 1}}), "0,0 0,1 1,0 ");
}

TEST_F(RowPlacesTest, settingsWithoutPerUnitVariablesHaveNoColumns) {
  settings.firstRowIndex = -1;
  EXPECT_EQ(placesOf({&settings, 3}, {{-1, 1}}), "0,-1 ");
}
