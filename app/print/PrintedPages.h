#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include <fx.h>

#include "app/print/Page.h"
#include "app/print/Step.h"

namespace Brontel {

class Invoice;

namespace Plugin {
class PluginRegistry;
}

namespace App {

class TextFaces;

/// A page as a picture.
struct PagePicture {
  int width = 0;
  int height = 0;
  std::vector<uint32_t> pixels;  ///< row by row, 0xRRGGBB; the upper byte means nothing
};

/// An invoice as it is printed. Keeps nothing of the invoice.
class PrintedPages {
 public:
  PrintedPages(const Invoice& invoice, const Plugin::PluginRegistry& plugins, const Step& step = noStep());
  PrintedPages(const PrintedPages&) = delete;
  PrintedPages& operator=(const PrintedPages&) = delete;
  ~PrintedPages();

  /// At least one.
  const std::vector<Page>& getPages() const { return pages_; }

  /// A page on white paper, with that many pixels to a point. An index outside the pages means the nearer end. Empty
  /// when there is no memory for it.
  PagePicture draw(size_t page, double scale) const;

  /// A PDF document of all pages; empty when there is no memory for it.
  FX::FXString toPdf(const Step& step = noStep()) const;

 private:
  std::unique_ptr<TextFaces> faces_;
  std::string title_;
  std::vector<Page> pages_;
};

}  // namespace App
}  // namespace Brontel
