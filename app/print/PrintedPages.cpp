#include "app/print/PrintedPages.h"

#include <algorithm>
#include <cairo-pdf.h>
#include <cmath>

#include "app/print/PageLayout.h"
#include "app/print/PagePainter.h"
#include "app/print/PrintedInvoice.h"
#include "app/print/TextFaces.h"

namespace Brontel::App {

namespace {

struct Destroy {
  void operator()(cairo_t* target) const { cairo_destroy(target); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using Surface = std::unique_ptr<cairo_surface_t, Destroy>;
using Target = std::unique_ptr<cairo_t, Destroy>;

cairo_status_t append(void* document, const unsigned char* data, unsigned int size) {
  static_cast<std::string*>(document)->append(reinterpret_cast<const char*>(data), size);
  return CAIRO_STATUS_SUCCESS;
}

}  // namespace

PrintedPages::PrintedPages(const Invoice& invoice, const Plugin::PluginRegistry& plugins, const Step& step)
    : faces_(std::make_unique<TextFaces>()) {
  const PrintedInvoice texts(invoice, plugins);
  title_ = texts.title + " " + texts.number;
  pages_ = PageLayout(*faces_, step).layOut(texts);
}

PrintedPages::~PrintedPages() = default;

PagePicture PrintedPages::draw(size_t page, double scale) const {
  PagePicture picture;
  picture.width = static_cast<int>(std::lround(kPageWidth * scale));
  picture.height = static_cast<int>(std::lround(kPageHeight * scale));
  const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, picture.width, picture.height));
  const Target target(cairo_create(surface.get()));
  cairo_set_source_rgb(target.get(), 1, 1, 1);
  cairo_paint(target.get());
  cairo_scale(target.get(), scale, scale);
  paintPage(target.get(), pages_[std::min(page, pages_.size() - 1)], *faces_);
  cairo_surface_flush(surface.get());
  if (cairo_status(target.get()) != CAIRO_STATUS_SUCCESS) return {};
  const unsigned char* row = cairo_image_surface_get_data(surface.get());
  picture.pixels.resize(static_cast<size_t>(picture.width) * static_cast<size_t>(picture.height));
  const auto width = static_cast<size_t>(picture.width);
  for (size_t y = 0; y < static_cast<size_t>(picture.height); ++y) {
    std::copy_n(row, width * sizeof(uint32_t), reinterpret_cast<unsigned char*>(&picture.pixels[y * width]));
    row += cairo_image_surface_get_stride(surface.get());
  }
  return picture;
}

FX::FXString PrintedPages::toPdf(const Step& step) const {
  std::string document;
  const Surface surface(cairo_pdf_surface_create_for_stream(append, &document, kPageWidth, kPageHeight));
  cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_TITLE, title_.c_str());
  cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATOR, "brontel-host");
  const Target target(cairo_create(surface.get()));
  size_t done = 0;
  for (const Page& page : pages_) {
    paintPage(target.get(), page, *faces_);
    cairo_show_page(target.get());
    step(static_cast<double>(++done) / static_cast<double>(pages_.size()));
  }
  cairo_surface_finish(surface.get());
  const bool isDone =
      cairo_status(target.get()) == CAIRO_STATUS_SUCCESS && cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS;
  return isDone ? FX::FXString(document.data(), static_cast<FX::FXint>(document.size())) : FX::FXString();
}

}  // namespace Brontel::App
