#include "tests/fxext/widgets/OpenDateInput.h"
#include "tests/fxext/widgets/Recorder.h"
#include "tests/fxext/widgets/WidgetTest.h"

using namespace FX;
using FXExt::FXDateInput;

// What is read as a date.

class FXDateInputTextTest : public WidgetTest {
 protected:
  FXDateInputTextTest() : input(new OpenDateInput(content, nullptr, &recorder, 9)) {}

  // Where a typed text moves a calendar that stands on 1 February 1999.
  std::string read(const char* typed) {
    input->picker->setSelectedDate(FXDate(1999, 2, 1));
    input->field->setText(typed);
    recorder.clear();
    EXPECT_EQ(input->handle(input->field, FXSEL(SEL_CHANGED, FXDateInput::ID_FIELD), nullptr), 1) << typed;
    EXPECT_EQ(recorder.count(SEL_CHANGED), 0) << typed;
    EXPECT_EQ(input->shownText(), typed);
    EXPECT_EQ(text(input->picker->getShownDate()), input->pickerDate()) << typed;
    return input->pickerDate();
  }

  Recorder recorder;
  OpenDateInput* input;
};

TEST_F(FXDateInputTextTest, readsWhatPeopleType) {
  EXPECT_EQ(read("2024.03.05"), "2024-03-05");
  EXPECT_EQ(read("2024.03.05."), "2024-03-05");
  EXPECT_EQ(read("2024.3.5"), "2024-03-05");
  EXPECT_EQ(read("2024. 3. 5"), "2024-03-05");
  EXPECT_EQ(read("2024. 03. 05."), "2024-03-05");
  EXPECT_EQ(read("  2024.03.05"), "2024-03-05");
  EXPECT_EQ(read("2024.03.05 delivered"), "2024-03-05");
  EXPECT_EQ(read("24.3.5"), "0024-03-05");
}

TEST_F(FXDateInputTextTest, readsDashesInAValueButNotInTypedText) {
  EXPECT_EQ(read("2024-03-05"), "1999-02-01");
  input->setValue("2024-3-5", FALSE);
  EXPECT_EQ(input->pickerDate(), "2024-03-05");
  EXPECT_EQ(input->shownText(), "2024.3.5");
}

TEST_F(FXDateInputTextTest, leavesTheCalendarWhenThreeNumbersCannotBeRead) {
  for (const char* typed : {"", "2024", "2024.03", "2024.03.", "abc", "2024/03/05", "20245.01.01", ".3.5",
                            "2024 .03.05", "2024.005.05", "2024.3 .5"}) {
    EXPECT_EQ(read(typed), "1999-02-01") << typed;
  }
}

TEST_F(FXDateInputTextTest, takesAMonthOf14OrMoreAsDecember) {
  EXPECT_EQ(read("2024.14.01"), "2024-12-01");
  EXPECT_EQ(read("2024.99.31"), "2024-12-31");
  EXPECT_EQ(read("2024.13.01"), "1999-02-01");
  EXPECT_EQ(read("2024.12.01"), "2024-12-01");
}

TEST_F(FXDateInputTextTest, rejectsWhatIsOutOfRange) {
  for (const char* typed : {"0000.01.01", "3000.01.01", "9999.01.01", "2024.00.10", "2024.05.00", "2024.05.32",
                            "2024.05.99", "-024.01.01", "2024.-1.01", "2024.01.-1"}) {
    EXPECT_EQ(read(typed), "1999-02-01") << typed;
  }
  EXPECT_EQ(read("0001.01.01"), "0001-01-01");
  EXPECT_EQ(read("2999.12.31"), "2999-12-31");
}

TEST_F(FXDateInputTextTest, handsADayThatTheMonthLacksOn) {
  EXPECT_EQ(read("2024.02.31"), "2024-03-02");
  EXPECT_EQ(read("2023.02.29"), "2023-03-01");
  EXPECT_EQ(read("2024.02.29"), "2024-02-29");
}

TEST_F(FXDateInputTextTest, readsEveryDayOfLeapAndCommonYears) {
  for (FXDate date(1899, 12, 25); date < FXDate(1905, 1, 5); ++date) {
    const FXString typed = FXStringFormat("%d.%d.%d", date.year(), date.month(), date.day());
    ASSERT_EQ(read(typed.text()), text(date));
  }
}

TEST_F(FXDateInputTextTest, opensNoWindowOverABadDate) {
  show();
  const int windows = events.countTopLevelWindows();
  input->setFocus();
  type("2024.13.45");
  other()->setFocus();
  settle();
  EXPECT_EQ(events.countTopLevelWindows(), windows);
  EXPECT_EQ(input->shownText(), "2024.13.45");
}
