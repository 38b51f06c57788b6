#pragma once

#include <fx.h>

namespace Brontel::App {

class RowList;
class Workspace;

/// Where a recorded value was used: part of it is typed, invoices and items appear.
class RecordedDataFrame : public FX::FXVerticalFrame {
  FXDECLARE(RecordedDataFrame)

 public:
  enum { ID_SEARCH = FX::FXVerticalFrame::ID_LAST, ID_LAST };

  /// Double click and Enter on a line arrive at the target as SEL_DOUBLECLICKED; its key is the invoice's. The
  /// workspace is borrowed.
  RecordedDataFrame(FX::FXComposite* parent, Workspace& workspace, FX::FXObject* target, FX::FXSelector sel);
  RecordedDataFrame(const RecordedDataFrame&) = delete;
  RecordedDataFrame& operator=(const RecordedDataFrame&) = delete;

  /// Searches again for what is typed.
  void refresh();

  FX::FXTextField* getSearchField() const { return search_; }
  RowList* getList() const { return list_; }

  long onSearch(FX::FXObject*, FX::FXSelector, void*);

 protected:
  RecordedDataFrame() = default;

 private:
  Workspace* workspace_ = nullptr;
  FX::FXTextField* search_ = nullptr;
  FX::FXLabel* result_ = nullptr;
  RowList* list_ = nullptr;
};

}  // namespace Brontel::App
