#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "app/print/PageLayout.h"
#include "app/print/PrintableUtf8.h"
#include "tests/app/print/PrintSamples.h"

using Brontel::App::Face;
using Brontel::App::kPageHeight;
using Brontel::App::kPageMargin;
using Brontel::App::kPageWidth;
using Brontel::App::noStep;
using Brontel::App::Page;
using Brontel::App::PageLayout;
using Brontel::App::PageLine;
using Brontel::App::PagePiece;
using Brontel::App::PrintedInvoice;
using Brontel::App::TextFaces;

namespace {

constexpr double kNearly = 0.5;

std::vector<Page> layOut(const PrintedInvoice& invoice) {
  const TextFaces faces;
  return PageLayout(faces, noStep()).layOut(invoice);
}

// What stands in one font, in the order of reading, a line each.
std::vector<std::string> linesIn(Face face, const std::vector<Page>& pages) {
  std::vector<std::string> lines;
  for (const Page& page : pages) {
    for (const PageLine& line : page) {
      for (const PagePiece& piece : line.pieces) {
        if (piece.face == face) lines.push_back(piece.text);
      }
    }
  }
  return lines;
}

std::string joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line;
  std::erase(text, ' ');
  return text;
}

std::string withoutBlanks(std::string text) {
  std::erase_if(text, [](char c) { return c == ' ' || c == '\n'; });
  return text;
}

bool hasPiece(const PageLine& line, const std::string& text) {
  return std::any_of(line.pieces.begin(), line.pieces.end(),
                     [&](const PagePiece& piece) { return piece.text == text; });
}

int countLinesWith(const Page& page, const std::string& text) {
  return static_cast<int>(
      std::count_if(page.begin(), page.end(), [&](const PageLine& line) { return hasPiece(line, text); }));
}

}  // namespace

TEST(PageLayoutTest, HasTheHeadTheItemsAndTheirDataInOrder) {
  PrintedInvoice invoice = sampleInvoice();
  invoice.items = {sampleItem("Defibrillátor", "DF5-1, 2027.05.31; DF5-2, 2027.05.31"), sampleItem("Gél", "")};
  const std::vector<Page> pages = layOut(invoice);
  ASSERT_EQ(pages.size(), 1u);
  EXPECT_EQ(linesIn(Face::Title, pages), std::vector<std::string>{"Kimenő számla"});
  EXPECT_EQ(linesIn(Face::Label, pages),
            (std::vector<std::string>{"Szám", "Partner", "Tétel", "Megnevezés", "Mennyiség", "Egység", "Ár"}));
  EXPECT_EQ(linesIn(Face::Text, pages), (std::vector<std::string>{"K-1", "Próba Kft.", "1", "Defibrillátor", "2", "db",
                                                                  "489000", "1", "Gél", "2", "db", "489000"}));
  EXPECT_EQ(linesIn(Face::Data, pages), std::vector<std::string>{"DF5-1, 2027.05.31; DF5-2, 2027.05.31"});
  EXPECT_EQ(linesIn(Face::Footer, pages), (std::vector<std::string>{"1/1", "K-1"}));
}

TEST(PageLayoutTest, AnInvoiceWithoutItemsHasOnePage) {
  const std::vector<Page> pages = layOut(sampleInvoice());
  ASSERT_EQ(pages.size(), 1u);
  EXPECT_EQ(countLinesWith(pages[0], "Megnevezés"), 1);
  EXPECT_EQ(layOut(PrintedInvoice()).size(), 1u);
}

TEST(PageLayoutTest, SerialNumbersOfOneItemAreAllThereOverPages) {
  PrintedInvoice invoice = sampleInvoice();
  invoice.items = {sampleItem("Defibrillátor", serialNumbers(1500)), sampleItem("Gél", "KG-1")};
  const std::vector<Page> pages = layOut(invoice);
  EXPECT_GT(pages.size(), 1u);
  const std::vector<std::string> lines = linesIn(Face::Data, pages);
  EXPECT_EQ(joined(lines), withoutBlanks(serialNumbers(1500) + "KG-1"));
  // Serial numbers are not broken: each line ends behind one.
  for (size_t i = 0; i + 2 < lines.size(); ++i) EXPECT_EQ(lines[i].back(), ';') << lines[i];
}

TEST(PageLayoutTest, EveryPageHasTheTablesHeaderOnceAndItsNumber) {
  PrintedInvoice invoice = sampleInvoice();
  invoice.items = {sampleItem("Defibrillátor", serialNumbers(5000))};
  const std::vector<Page> pages = layOut(invoice);
  ASSERT_GT(pages.size(), 4u);
  for (size_t i = 0; i < pages.size(); ++i) {
    EXPECT_EQ(countLinesWith(pages[i], "Megnevezés"), 1) << i;
    EXPECT_TRUE(hasPiece(pages[i].back(), std::to_string(i + 1) + "/" + std::to_string(pages.size()))) << i;
    EXPECT_TRUE(hasPiece(pages[i].back(), "K-1")) << i;
    // On the first page the invoice's head comes before it.
    EXPECT_EQ(hasPiece(pages[i].front(), "Megnevezés"), i > 0) << i;
  }
}

TEST(PageLayoutTest, AnItemIsNeverPartedFromTheFirstLineOfItsData) {
  int partedItems = 0;
  for (int before = 0; before < 60; ++before) {
    PrintedInvoice invoice = sampleInvoice();
    invoice.items.assign(static_cast<size_t>(before), sampleItem("Gél", ""));
    invoice.items.push_back(sampleItem("Utolsó", serialNumbers(40)));
    for (const Page& page : layOut(invoice)) {
      for (size_t i = 0; i < page.size(); ++i) {
        if (!hasPiece(page[i], "Utolsó")) continue;
        ASSERT_LT(i + 1, page.size());
        EXPECT_EQ(page[i + 1].pieces.front().face, Face::Data) << before;
        partedItems += page[i + 1].y > kPageHeight - 100 ? 1 : 0;
      }
    }
  }
  EXPECT_GT(partedItems, 0) << "no item came near the end of a page";
}

TEST(PageLayoutTest, EmptyLinesOfDataStay) {
  PrintedInvoice invoice = sampleInvoice();
  invoice.items = {sampleItem("Gél", "a\n\nb\n")};
  EXPECT_EQ(linesIn(Face::Data, layOut(invoice)), (std::vector<std::string>{"a", "", "b"}));
}

TEST(PageLayoutTest, LinesOfAPageFollowEachOtherWithoutOverlap) {
  PrintedInvoice invoice = sampleInvoice();
  for (int i = 0; i < 80; ++i) invoice.items.push_back(sampleItem("Gél " + std::to_string(i), serialNumbers(30)));
  for (const Page& page : layOut(invoice)) {
    double below = kPageMargin - kNearly;
    for (const PageLine& line : page) {
      EXPECT_GE(line.y, below - kNearly);
      EXPECT_GT(line.height, 0);
      below = line.y + line.height;
    }
    EXPECT_LE(below, kPageHeight - 20);
  }
}

TEST(PageLayoutTest, TextFromTheRightStandsAtTheRight) {
  PrintedInvoice invoice = sampleInvoice();
  invoice.items = {sampleItem("Gél", "123 שלום עולם"), sampleItem("Gél", "123 szöveg שלום")};
  std::vector<PagePiece> data;
  const std::vector<Page> pages = layOut(invoice);
  for (const PageLine& line : pages.front()) {
    if (line.pieces.front().face == Face::Data) data.push_back(line.pieces.front());
  }
  ASSERT_EQ(data.size(), 2u);
  EXPECT_TRUE(data[0].isRightToLeft);
  EXPECT_NEAR(data[0].x + data[0].width, kPageWidth - kPageMargin, kNearly);
  EXPECT_FALSE(data[1].isRightToLeft);
  EXPECT_LT(data[1].x, kPageWidth / 4);
}

TEST(PageLayoutTest, ANumberThatNeedsSeveralLinesStandsInTheHeadOnly) {
  PrintedInvoice invoice = sampleInvoice();
  invoice.number = std::string(500, 'X');
  invoice.head.front().value = invoice.number;
  const std::vector<Page> pages = layOut(invoice);
  EXPECT_EQ(linesIn(Face::Footer, pages), std::vector<std::string>{"1/1"});
  EXPECT_NE(joined(linesIn(Face::Text, pages)).find(invoice.number), std::string::npos);
}

TEST(PageLayoutTest, EveryTextOfAnInvoiceMayBeLong) {
  const std::string longText(20000, 'W');
  PrintedInvoice invoice = sampleInvoice();
  invoice.title = longText;
  invoice.head = {{"Szám", longText}};
  invoice.items = {{longText, longText, longText, longText, longText, longText}};
  const std::vector<Page> pages = layOut(invoice);
  size_t letters = 0;
  for (const Page& page : pages) {
    for (const PageLine& line : page) {
      EXPECT_LE(line.y + line.height, kPageHeight - 20);
      for (const PagePiece& piece : line.pieces) {
        EXPECT_GE(piece.x, kPageMargin - kNearly);
        EXPECT_LE(piece.x + piece.width, kPageWidth - kPageMargin + kNearly);
        letters += static_cast<size_t>(std::count(piece.text.begin(), piece.text.end(), 'W'));
      }
    }
  }
  EXPECT_EQ(letters, 8 * longText.size());
}

TEST(PageLayoutTest, TellsHowFarItIsAndEndsWithEverything) {
  PrintedInvoice invoice = sampleInvoice();
  invoice.items = {sampleItem("Gél", serialNumbers(1000)), sampleItem("Gél", std::string(50000, 'W'))};
  std::vector<double> shares;
  const TextFaces faces;
  PageLayout(faces, [&](double share) { shares.push_back(share); }).layOut(invoice);
  EXPECT_GT(shares.size(), 100u) << "somebody who waits would see nothing";
  EXPECT_TRUE(std::is_sorted(shares.begin(), shares.end()));
  EXPECT_GE(shares.front(), 0);
  EXPECT_DOUBLE_EQ(shares.back(), 1);
}

class HostileTextTest : public ::testing::TestWithParam<HostileText> {};

TEST_P(HostileTextTest, StaysInsideTheMarginsAndLosesNothing) {
  const std::string text = GetParam().make(4000);
  PrintedInvoice invoice = sampleInvoice();
  invoice.items = {sampleItem(text, text)};
  const std::vector<Page> pages = layOut(invoice);
  for (const Page& page : pages) {
    for (const PageLine& line : page) {
      EXPECT_LE(line.y + line.height, kPageHeight - 20);
      for (const PagePiece& piece : line.pieces) {
        EXPECT_GE(piece.x, kPageMargin - kNearly);
        EXPECT_LE(piece.x + piece.width, kPageWidth - kPageMargin + kNearly);
      }
    }
  }
  EXPECT_EQ(joined(linesIn(Face::Data, pages)), withoutBlanks(text));
}

INSTANTIATE_TEST_SUITE_P(Texts, HostileTextTest, ::testing::ValuesIn(hostileTexts()),
                         [](const auto& text) { return text.param.name; });

class MillionBytesTest : public ::testing::TestWithParam<HostileText> {};

// As many steps, each on a part of the same size at most: the time grows with the text and no faster.
TEST_P(MillionBytesTest, AMillionBytesTakeAMillionBytesTime) {
  PrintedInvoice invoice = sampleInvoice();
  const std::string text = GetParam().make(1000000);
  invoice.items = {sampleItem("Gél", text)};
  size_t steps = 0;
  const TextFaces faces;
  const std::vector<Page> pages = PageLayout(faces, [&](double) { ++steps; }).layOut(invoice);
  const auto paragraphs = static_cast<size_t>(std::count(text.begin(), text.end(), '\n'));
  EXPECT_LT(steps, paragraphs + 2 * text.size() / 100);
  EXPECT_EQ(joined(linesIn(Face::Data, pages)), withoutBlanks(text));
}

INSTANTIATE_TEST_SUITE_P(LongTexts, MillionBytesTest, ::testing::ValuesIn(hostileTexts()),
                         [](const auto& text) { return text.param.name; });
