#pragma once

#include "tour/FormChapter.h"

namespace Tour {

/// An invoice is recorded, with gaps.
class InvoiceChapter : public FormChapter {
 public:
  using FormChapter::FormChapter;
  void play() override;

 private:
  void fillHead(Form& form);
  void addItem(Form& form, const char* beginning, const char* quantity, const std::string& expected);
  void recordDevices(FX::FXWindow& dialog);
  void recordDevice(FX::FXTable& table, FX::FXint row, bool calibrated);
  void recordService(FX::FXWindow& dialog);
  void pickDay(FX::FXWindow& dialog);
};

}  // namespace Tour
