#pragma once

#include "tour/FormChapter.h"

namespace Tour {

/// The invoice is checked, mended from its messages, saved and closed.
class RepairChapter : public FormChapter {
 public:
  using FormChapter::FormChapter;
  void play() override;

 private:
  void check(Form& form);
  void mendDevices(FX::FXWindow& dialog);
  void mendService(FX::FXWindow& dialog);
  void saveAndClose(Form& form);
};

}  // namespace Tour
