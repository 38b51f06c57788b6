#pragma once

#include <fx.h>

namespace Brontel::App {

class RowList;
class Workspace;

/// All invoices, to search in and to sort.
class InvoiceListFrame : public FX::FXVerticalFrame {
  FXDECLARE(InvoiceListFrame)

 public:
  enum { ID_SEARCH = FX::FXVerticalFrame::ID_LAST, ID_LAST };

  /// Double click and Enter on an invoice arrive at the target as SEL_DOUBLECLICKED. The workspace is borrowed.
  InvoiceListFrame(FX::FXComposite* parent, Workspace& workspace, FX::FXObject* target, FX::FXSelector sel);
  InvoiceListFrame(const InvoiceListFrame&) = delete;
  InvoiceListFrame& operator=(const InvoiceListFrame&) = delete;

  /// Reads the list again and keeps the place in it.
  void refresh();

  FX::FXTextField* getSearchField() const { return search_; }
  RowList* getList() const { return list_; }

  long onSearch(FX::FXObject*, FX::FXSelector, void*);
  long onSearchDone(FX::FXObject*, FX::FXSelector, void*);

 protected:
  InvoiceListFrame() = default;

 private:
  Workspace* workspace_ = nullptr;
  FX::FXTextField* search_ = nullptr;
  RowList* list_ = nullptr;
};

}  // namespace Brontel::App
