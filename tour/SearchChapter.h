#pragma once

#include "tour/FormChapter.h"

namespace Tour {

/// A device is looked for, and comes back on a credit note.
class SearchChapter : public FormChapter {
 public:
  using FormChapter::FormChapter;
  void play() override;

 private:
  void search();
  void makeCreditNote();
  void keepOneDevice(FX::FXWindow& dialog);
  void removeService(Form& form);
};

}  // namespace Tour
