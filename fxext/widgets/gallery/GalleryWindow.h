#pragma once

#include <memory>
#include <vector>

#include <fx.h>

#include "fxext/widgets/gallery/GalleryHolidays.h"

namespace FXExt {
class FXDateInput;
class FXDatePicker;
class FXDualList;
}  // namespace FXExt

/// Shows every widget in every state.
class GalleryWindow : public FX::FXMainWindow {
 public:
  explicit GalleryWindow(FX::FXApp* app);
  GalleryWindow(const GalleryWindow&) = delete;
  GalleryWindow& operator=(const GalleryWindow&) = delete;
  ~GalleryWindow() override;

  long handle(FX::FXObject* sender, FX::FXSelector sel, void* ptr) override;
  /// Whether the display shows the window.
  bool isMapped() const { return mapped_; }

  /// Opens one of the things that open: "combo", "date" or "year". False if it is none of them.
  bool open(const FX::FXString& what);

 private:
  FX::FXDataTarget* newTarget_(const FX::FXString& value);
  void addComboBoxes_(FX::FXMatrix* matrix);
  void addComboBox_(FX::FXMatrix* matrix, const FX::FXString& title, FX::FXuint opts, const FX::FXString& items,
                    const FX::FXString& value, bool enabled = true);
  void addDateInputs_(FX::FXMatrix* matrix);
  void addDateInput_(FX::FXMatrix* matrix, const FX::FXString& title, const FX::FXString& value, bool enabled = true);
  void addPickers_(FX::FXComposite* parent);
  void addCells_(FX::FXComposite* parent);
  void addDualLists_(FX::FXComposite* parent);
  void fill_(FXExt::FXDualList* lists, FX::FXint items);

  std::vector<std::unique_ptr<FX::FXDataTarget>> targets_;
  std::vector<std::unique_ptr<FX::FXString>> values_;
  std::unique_ptr<FX::FXIcon> icon_;
  GalleryHolidays holidays_;
  FX::FXWindow* firstComboBox_ = nullptr;
  FX::FXWindow* firstDateInput_ = nullptr;
  FXExt::FXDatePicker* firstPicker_ = nullptr;
  bool mapped_ = false;
};
