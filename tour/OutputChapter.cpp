#include "tour/OutputChapter.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include <fxkeys.h>

#include "app/InvoiceText.h"
#include "app/InvoiceXml.h"
#include "tests/support/Failure.h"
#include "tour/Story.h"
#include "tour/Texts.h"

namespace Tour {

namespace fs = std::filesystem;

namespace {

constexpr int kZoomSteps = 3;
constexpr const char* kPdf = "K-2025-0121.pdf";
constexpr const char* kXml = "K-2025-0121.xml";

}  // namespace

void OutputChapter::play() {
  Form* form = stage_.useNewestForm();
  if (form == nullptr) return;
  print();
  writeText(*form);
  exportXml(*form);
  user_.key(FX::KEY_w, {FX::KEY_Control_L});
  stage_.application.waitUntil([this] { return stage_.workspace->getWindows().empty(); });
}

void OutputChapter::print() {
  user_.whenModal([this](FX::FXWindow& preview) {
    expect("the title", titleOf(preview), hostText("Nyomtatási kép"));
    picture("preview-page");
    // Closer, so that it can be read.
    for (int i = 0; i < kZoomSteps; ++i) user_.key(FX::KEY_plus, {FX::KEY_Control_L});
    picture("preview");
    savePdf(preview);
    user_.key(FX::KEY_Escape);
  });
  user_.key(FX::KEY_p, {FX::KEY_Control_L});
}

void OutputChapter::savePdf(FX::FXWindow& preview) {
  user_.whenModal([this](FX::FXWindow& dialog) { acceptFile(dialog, hostText("Mentés PDF-be"), kPdf); });
  press(preview, shownOf(hostText("&Mentés PDF-be...\tA számla PDF-fájlba (Ctrl+S)")));
  expect("the beginning of the PDF", readFile(kPdf).substr(0, 5), "%PDF-");
  keep(kPdf, "invoice.pdf");
}

void OutputChapter::writeText(Form& form) {
  const std::string text = Brontel::App::toText(*form.getInvoice(), stage_.registry);
  expect("the printed text", text,
         "1\tHordozható EKG\t3\tdb\t389000\n"
         "    EKG-250311, 2026.03.10, Fehér; EKG-250312, 2026.03.10, Kék; EKG-250317, 2026.03.10, Fehér\n"
         "2\tÉves felülvizsgálat\t1\tóra\t12500\n"
         "    ML-2025/081, Kiszállás, 2026.03.12\n");
  std::ofstream file(folder_ + "/invoice.txt", std::ios::binary);
  if (!(file << text << std::flush)) reportFailure("invoice.txt cannot be written");
}

void OutputChapter::exportXml(Form& form) {
  user_.whenModal([this](FX::FXWindow& dialog) {
    picture("export");
    acceptFile(dialog, hostText("XML exportálása"), kXml);
  });
  user_.key(FX::KEY_e, {FX::KEY_Control_L});
  expect("the export", readFile(kXml), Brontel::App::toXml(*form.getInvoice(), stage_.registry).text());
  keep(kXml, "invoice.xml");
}

void OutputChapter::acceptFile(FX::FXWindow& dialog, const std::string& title, const std::string& name) {
  expect("the title", titleOf(dialog), title);
  if (auto* field = firstSeen<FX::FXTextField>(dialog)) {
    expect("the file", field->getText().text(), name);
    user_.click(field);
  }
  user_.key(FX::KEY_Return);
}

void OutputChapter::keep(const std::string& written, const std::string& name) {
  std::error_code error;
  fs::copy_file(written, folder_ + "/" + name, fs::copy_options::overwrite_existing, error);
  if (error) reportFailure(name + " cannot be written: " + error.message());
}

}  // namespace Tour
