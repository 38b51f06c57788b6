#pragma once

#include <fx.h>

#include "app/window/GoodsCatalogue.h"

namespace Brontel::App {

class InvoiceEditForm;
class InvoiceEditor;
class ItemGrid;
class Workspace;

/// Puts what is typed into the item table into the invoice's items, and adds and removes items.
class ItemEditing {
 public:
  /// Borrows everything; the form holds it.
  ItemEditing(Workspace& workspace, InvoiceEditForm& form, InvoiceEditor& editor, const GoodsCatalogue& catalogue,
              ItemGrid& grid)
      : workspace_(workspace), form_(form), editor_(editor), catalogue_(catalogue), grid_(grid) {}
  ItemEditing(const ItemEditing&) = delete;
  ItemEditing& operator=(const ItemEditing&) = delete;

  /// Ends typing in a cell. False when what was typed could not be taken; the person has been told.
  bool acceptInput();
  /// A cell has a new text: the item takes it over, or the cell gets its old text back and the person is told why.
  void applyCell(FX::FXint row, FX::FXint column);

  /// Appends a line and begins typing its goods.
  void addItem();
  /// Removes the chosen lines, asking first when something has been recorded for one.
  void removeItems();

  /// The menu of the chosen lines: the plug-ins' entries and the table's own.
  void showMenuAt(const FX::FXEvent& click);
  void showMenuAtCell();

 private:
  void changeGoods(FX::FXint row);
  void changeQuantity(FX::FXint row);
  void changePrice(FX::FXint row);
  bool mayReplace(FX::FXint row, const FX::FXString& goods);
  void refuse(FX::FXint row, FX::FXint column, const FX::FXString& error);
  void showMenu(FX::FXint x, FX::FXint y);

  Workspace& workspace_;
  InvoiceEditForm& form_;
  InvoiceEditor& editor_;
  const GoodsCatalogue& catalogue_;
  ItemGrid& grid_;
  bool refused_ = false;
};

}  // namespace Brontel::App
