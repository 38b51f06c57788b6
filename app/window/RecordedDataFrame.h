#pragma once

#include <map>

#include <fx.h>

namespace Brontel::App {

class RowList;
class Workspace;

/// Where a recorded value was used: part of it is typed, invoices and items appear.
class RecordedDataFrame : public FX::FXVerticalFrame {
  FXDECLARE(RecordedDataFrame)

 public:
  enum { ID_SEARCH = FX::FXVerticalFrame::ID_LAST, ID_LAST };

  /// Double click and Enter on a line arrive at the target as SEL_DOUBLECLICKED. The workspace is borrowed.
  RecordedDataFrame(FX::FXComposite* parent, Workspace& workspace, FX::FXObject* target, FX::FXSelector sel);
  RecordedDataFrame(const RecordedDataFrame&) = delete;
  RecordedDataFrame& operator=(const RecordedDataFrame&) = delete;

  /// Searches again for what is typed.
  void refresh();

  /// The keys of the invoice and the item in the current line; 0 for none.
  int getInvoiceId() const { return getCurrent().invoice; }
  int getItemId() const { return getCurrent().item; }

  FX::FXTextField* getSearchField() const { return search_; }
  RowList* getList() const { return list_; }

  long onSearch(FX::FXObject*, FX::FXSelector, void*);

 protected:
  RecordedDataFrame() = default;

 private:
  struct Place {
    int invoice = 0;
    int item = 0;
  };

  Place getCurrent() const;

  Workspace* workspace_ = nullptr;
  FX::FXTextField* search_ = nullptr;
  FX::FXLabel* result_ = nullptr;
  RowList* list_ = nullptr;  // its keys are those of the values
  std::map<int, Place> places_;
};

}  // namespace Brontel::App
