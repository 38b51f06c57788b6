#include "app/print/PageLayout.h"

#include <algorithm>

namespace Brontel::App {

namespace {

constexpr double kBottom = kPageHeight - 56;  // below is the footer
constexpr double kFooter = kPageHeight - 42;
constexpr double kRight = kPageWidth - kPageMargin;
constexpr double kWidth = kRight - kPageMargin;
constexpr double kSpace = 4;
constexpr double kHeadSpace = 12;

// Columns, from the left.
constexpr double kGap = 8;
constexpr double kPosition = 48;
constexpr double kQuantity = 80;
constexpr double kUnit = 60;
constexpr double kPrice = 90;
constexpr double kNameX = kPageMargin + kPosition + kGap;
constexpr double kPriceX = kRight - kPrice;
constexpr double kUnitX = kPriceX - kGap - kUnit;
constexpr double kQuantityX = kUnitX - kGap - kQuantity;
constexpr double kName = kQuantityX - kGap - kNameX;
constexpr double kLabel = 80;
constexpr double kFooterNumber = 350;

size_t sizeOf(const PrintedInvoice::Item& item) {
  return item.position.size() + item.name.size() + item.quantity.size() + item.unit.size() + item.price.size() +
         item.data.size();
}

// Everything that goes through the line breaker before the footers.
size_t sizeOf(const PrintedInvoice& invoice) {
  size_t size = invoice.title.size() + sizeOf(invoice.header);
  for (const PrintedInvoice::Head& head : invoice.head) size += head.label.size() + head.value.size();
  for (const PrintedInvoice::Item& item : invoice.items) size += sizeOf(item);
  return size;
}

std::vector<PageLine> startWith(double space, bool hasRule, std::vector<PageLine> lines) {
  if (lines.empty()) return lines;
  lines.front().space = space;
  lines.front().hasRule = hasRule;
  return lines;
}

}  // namespace

PageLayout::PageLayout(const TextFaces& faces, Step step)
    : step_(std::move(step)), breaker_(faces, [this](size_t bytes) { advance(bytes); }) {}

std::vector<Page> PageLayout::layOut(const PrintedInvoice& invoice) {
  total_ = std::max<size_t>(sizeOf(invoice), 1);
  startPage();
  addHead(invoice);
  Lines header = startWith(kHeadSpace, true, makeRow(invoice.header, Face::Label));
  add(header, invoice.items.empty() || header.empty() ? 0 : header.front().height);
  tableHeader_ = std::move(header);
  for (const PrintedInvoice::Item& item : invoice.items) addItem(item);
  tableHeader_.clear();
  addFooters(invoice.number);
  return std::move(pages_);
}

void PageLayout::addHead(const PrintedInvoice& invoice) {
  add(makeLines({{invoice.title, kPageMargin, kWidth, Face::Title}}), 0);
  double space = kHeadSpace;
  for (const PrintedInvoice::Head& head : invoice.head) {
    add(startWith(space, false,
                  makeLines({{head.label, kPageMargin, kLabel, Face::Label},
                             {head.value, kPageMargin + kLabel + kGap, kWidth - kLabel - kGap}})),
        0);
    space = 1;
  }
}

void PageLayout::addItem(const PrintedInvoice::Item& item) {
  const Lines row = startWith(kSpace, true, makeRow(item, Face::Text));
  const Lines data = makeLines({{item.data, kNameX, kRight - kNameX, Face::Data}});
  add(row, data.empty() ? 0 : data.front().height);
  add(data, 0);
}

PageLayout::Lines PageLayout::makeRow(const PrintedInvoice::Item& item, Face face) const {
  return makeLines({{item.position, kPageMargin, kPosition, face, true},
                    {item.name, kNameX, kName, face},
                    {item.quantity, kQuantityX, kQuantity, face, true},
                    {item.unit, kUnitX, kUnit, face},
                    {item.price, kPriceX, kPrice, face, true}});
}

PageLayout::Lines PageLayout::makeLines(const std::vector<Cell>& cells) const {
  Lines lines;
  for (const Cell& cell : cells) {
    std::vector<BrokenLine> broken = breaker_.breakText(cell.text, cell.face, cell.width);
    if (broken.size() > lines.size()) lines.resize(broken.size());
    for (size_t i = 0; i < broken.size(); ++i) {
      BrokenLine& from = broken[i];
      const bool fromTheRight = cell.isRightAligned || from.isRightToLeft;
      const double x = fromTheRight ? cell.x + cell.width - from.width : cell.x;
      // Cells of one line stand on one baseline.
      const double below = std::max(lines[i].height - lines[i].baseline, from.height - from.baseline);
      lines[i].baseline = std::max(lines[i].baseline, from.baseline);
      lines[i].height = lines[i].baseline + below;
      lines[i].pieces.push_back({std::move(from.text), cell.face, from.isRightToLeft, x, from.width});
    }
  }
  return lines;
}

void PageLayout::add(const Lines& lines, double next) {
  for (const PageLine& line : lines) {
    const bool isLast = &line == &lines.back();
    if (y_ + line.space + line.height + (isLast ? next : 0) > kBottom) startPage();
    place(line);
  }
}

void PageLayout::place(PageLine line) {
  if (!pages_.back().empty()) y_ += line.space;
  line.y = y_;
  y_ += line.height;
  pages_.back().push_back(std::move(line));
}

void PageLayout::startPage() {
  pages_.emplace_back();
  y_ = kPageMargin;
  for (const PageLine& line : tableHeader_) place(line);
}

void PageLayout::addFooters(const std::string& number) {
  const Lines left = makeLines({{number, kPageMargin, kFooterNumber, Face::Footer}});
  for (size_t i = 0; i < pages_.size(); ++i) {
    const std::string text = std::to_string(i + 1) + "/" + std::to_string(pages_.size());
    Lines footer = makeLines({{text, kPageMargin, kWidth, Face::Footer, true}});
    // One that needs several lines stands in the head.
    if (left.size() == 1) footer.front().pieces.push_back(left.front().pieces.front());
    footer.front().y = kFooter;
    pages_[i].push_back(std::move(footer.front()));
  }
}

void PageLayout::advance(size_t bytes) {
  done_ = std::min(done_ + bytes, total_);
  step_(static_cast<double>(done_) / static_cast<double>(total_));
}

}  // namespace Brontel::App
