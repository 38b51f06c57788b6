#include "ui/LabelText.h"

using Brontel::Plugin::ItemData::UI::labelText;

TEST(LabelTextTest, leavesOrdinaryTextsAsTheyAre) {
  EXPECT_STREQ(labelText("Gyári szám:").text(), "Gyári szám:");
  EXPECT_STREQ(labelText("").text(), "");
}

TEST(LabelTextTest, takesTheMeaningFromWhatLabelsTreatSpecially) {
  EXPECT_STREQ(labelText("A&B").text(), "A&&B");
  EXPECT_STREQ(labelText("&&").text(), "&&&&");
  EXPECT_STREQ(labelText("a\tb\nc\t").text(), "a b c ");
}
