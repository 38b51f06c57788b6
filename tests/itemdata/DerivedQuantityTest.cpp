#include <vector>

#include <gtest/gtest.h>

#include "itemdata/DerivedQuantity.h"

using Brontel::Plugin::ItemData::exactQuantity;

namespace {

struct Case {
  const char* number;
  const char* exact;
};

void expectAll(const std::vector<Case>& cases) {
  for (const Case& c : cases) EXPECT_STREQ(exactQuantity(c.number).text(), c.exact) << c.number;
}

}  // namespace

TEST(DerivedQuantityTest, leavesIntegersAndTheEmptyTextAlone) {
  expectAll({{"", ""},
             {"0", "0"},
             {"10", "10"},
             {"-2", "-2"},
             {"007", "007"},
             {"9223372036854775807", "9223372036854775807"}});
}

TEST(DerivedQuantityTest, dropsAFractionOfZeros) {
  expectAll({{"2.0", "2"}, {"0.0", "0"}, {"-0.0", "0"}, {"1.10", "1.1"}, {"100.0", "100"}, {"-5.50", "-5.5"}});
}

TEST(DerivedQuantityTest, roundsHalfAwayFromZeroToFourPlaces) {
  expectAll({{"1.23456", "1.2346"},
             {"1.23454", "1.2345"},
             {"0.00005", "0.0001"},
             {"-0.00005", "-0.0001"},
             {"0.000049999999", "0"},
             {"-0.00004", "0"},
             {"9.99995", "10"},
             {"0.12344999999", "0.1234"}});
}

TEST(DerivedQuantityTest, readsExponents) {
  expectAll({{"9.9999999999989e-05", "0.0001"},
             {"-5.55111512312578e-17", "0"},
             {"1.5e2", "150"},
             {"1.5E+2", "150"},
             {"1e-4", "0.0001"},
             {"1e-5", "0"},
             {"6e-5", "0.0001"},
             {"1.0e+15", "1000000000000000"},
             {"1e-400", "0"},
             {"1e-6", "0"},
             {"-0.000001", "0"},
             {"0e400", "0"},
             {"0.0e+50", "0"}});
}

TEST(DerivedQuantityTest, isExactForTheLongestNumbersOfTheDatabase) {
  expectAll({{"123456789012.346", "123456789012.346"},
             {"99999999999999.5", "99999999999999.5"},
             {"0.1", "0.1"},
             {"12345678901234.5670", "12345678901234.567"},
             {"1234567890123456.780", "1234567890123456.780"},
             {"0.29999999999999999", "0.3"}});
}

TEST(DerivedQuantityTest, givesBackWhatIsTooLarge) {
  expectAll({{"1.0e+18", "1.0e+18"},
             {"1e300", "1e300"},
             {"-1e300", "-1e300"},
             {"1234567890123456789.5", "1234567890123456789.5"},
             {"1e2147483648", "1e2147483648"},
             {"1e-2147483648", "1e-2147483648"},
             {"1e99999999999999999999", "1e99999999999999999999"}});
}

TEST(DerivedQuantityTest, givesBackWhatIsNoNumber) {
  expectAll({{"abc.", "abc."},
             {".", "."},
             {"-.", "-."},
             {"e5", "e5"},
             {"-e5", "-e5"},
             {"1e", "1e"},
             {"1e+", "1e+"},
             {"1e-", "1e-"},
             {"1e+-5", "1e+-5"},
             {"1.2.3", "1.2.3"},
             {"1,5e0", "1,5e0"},
             {"1.5 ", "1.5 "},
             {" 1.5", " 1.5"},
             {"+1.5", "+1.5"},
             {"1.5e0x", "1.5e0x"},
             {"%s.%n", "%s.%n"},
             {"\xff.", "\xff."}});
}

TEST(DerivedQuantityTest, takesAPointWithDigitsOnOneSideOnly) {
  expectAll({{"5.", "5"}, {".5", "0.5"}, {"-.5", "-0.5"}});
}
