#pragma once

#include <memory>

#include "tests/itemdata/ListFixture.h"
#include "tests/support/TestApplication.h"
#include "tests/support/WindowUser.h"
#include "ui/ItemDataDialog.h"
#include "ui/ItemDataTable.h"

/// The dialog of an invoice item in memory ("Alma", quantity 5), on the screen, with somebody who uses it.
class DialogFixture : public ListFixture {
 protected:
  using ItemDataDialog = Brontel::Plugin::ItemData::ItemDataDialog;
  using ItemDataEntry = Brontel::Plugin::ItemData::ItemDataEntry;
  using ItemDataList = Brontel::Plugin::ItemData::ItemDataList;
  using ItemDataTable = Brontel::Plugin::ItemData::UI::ItemDataTable;
  using Texts = std::vector<std::string>;

  struct Variable {
    int type;
    int id;
    const char* name;
    bool perUnit;
  };

  /// With a database the application has it as its own.
  explicit DialogFixture(MorvaneDatabase* database = nullptr);
  ~DialogFixture() override;

  /// A template of these variables, per-item ones first; a list's choices are "piros,kék".
  static std::unique_ptr<ItemDataList> settingsOf(const std::vector<Variable>& variables);
  /// The quantity, 12 "Sarzs" and 13 "Szín", a list, per unit.
  static std::unique_ptr<ItemDataList> perUnitSettings();
  /// 11 "Megjegyzés", 14 "Garancia" (a date) and 15 "Típus" (a list), once per item.
  static std::unique_ptr<ItemDataList> perItemSettings();

  /// Gives the item a list with per-unit settings and rows of quantity, "Sarzs" and "Szín", never stored; or stored
  /// with keys from 101 up.
  ItemDataList& newRows(const std::vector<std::vector<std::string>>& rows, bool stored = false);

  /// Makes the dialog, not on the screen yet.
  ItemDataDialog& build();
  /// Makes the dialog and shows it.
  ItemDataDialog& open();
  /// Ends the dialog's life.
  void close() { dialog.reset(); }

  /// The dialog's table; null without one.
  ItemDataTable* table() const;
  FX::FXButton* okButton() const;
  FX::FXWindow* focus() const;
  /// The texts of the table, a row each, its cells separated by "|"; a cell without entry is "-".
  Texts shown() const;
  /// Row and column of the cursor, "1,2".
  std::string cursor() const;
  /// What the columns are headed with.
  Texts headers() const;

  void clickCell(FX::FXint row, FX::FXint col, int button = 1);
  /// Where a cell is in the table's window.
  FX::FXint cellX(FX::FXint col) const { return table()->getColumnX(col) + table()->getColumnWidth(col) / 2; }
  FX::FXint cellY(FX::FXint row) const { return table()->getRowY(row) + table()->getRowHeight(row) / 2; }
  /// Sets the cursor as a click would, without selecting.
  void goTo(FX::FXint row, FX::FXint col);

  TestApplication app;
  WindowUser user{app};
  FX::FXMainWindow* form;  // the dialogs' owner, on the screen
  std::unique_ptr<ItemDataDialog> dialog;
};
