#pragma once

#include <vector>

#include "app/print/LineBreaker.h"
#include "app/print/Page.h"
#include "app/print/PrintedInvoice.h"
#include "app/print/Step.h"
#include "app/print/TextFaces.h"

namespace Brontel::App {

/// Sets an invoice on pages: its head on the first, its items in a table whose header every page repeats, what is
/// printed with an item under it, and at the foot of each page its number. A page may end between any two lines.
class PageLayout {
 public:
  /// Borrows the fonts.
  PageLayout(const TextFaces& faces, Step step);

  /// At least one page. Called once.
  std::vector<Page> layOut(const PrintedInvoice& invoice);

 private:
  struct Cell {
    const std::string& text;
    double x;
    double width;
    Face face = Face::Text;
    bool isRightAligned = false;
  };
  using Lines = std::vector<PageLine>;

  Lines makeLines(const std::vector<Cell>& cells) const;
  Lines makeRow(const PrintedInvoice::Item& item, Face face) const;
  void addHead(const PrintedInvoice& invoice);
  void addItem(const PrintedInvoice::Item& item);
  /// Places lines below what is there, on new pages where there is no room; the last stays together with what is as
  /// high as that and comes next.
  void add(const Lines& lines, double next);
  void place(PageLine line);
  void startPage();
  void addFooters(const std::string& number);
  void advance(size_t bytes);

  Step step_;
  LineBreaker breaker_;
  std::vector<Page> pages_;
  double y_ = 0;
  Lines tableHeader_;  ///< empty above the table
  size_t total_ = 0;   ///< bytes
  size_t done_ = 0;
};

}  // namespace Brontel::App
