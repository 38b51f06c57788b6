#pragma once

#include "tour/FormChapter.h"

namespace Tour {

/// The closed invoice is looked at as it is printed, and becomes files.
class OutputChapter : public FormChapter {
 public:
  /// The folder, by its whole path, gets invoice.txt, invoice.pdf and invoice.xml.
  OutputChapter(Stage& stage, std::string folder) : FormChapter(stage), folder_(std::move(folder)) {}
  void play() override;

 private:
  void print();
  void savePdf(FX::FXWindow& preview);
  void writeText(Form& form);
  void exportXml(Form& form);
  /// Accepts the name of a file that a dialog offers.
  void acceptFile(FX::FXWindow& dialog, const std::string& title, const std::string& name);
  /// Takes a file that the program has written along under another name.
  void keep(const std::string& written, const std::string& name);

  std::string folder_;
};

}  // namespace Tour
