#pragma once

#include <fx.h>

#include "host/ui/PluginSettingsDialogBox.h"

class MorvaneDatabase;

namespace Brontel {
class DBTable;
}

namespace Brontel::Plugin::ItemData {

class ItemDataSettingsPersister;

/// The dialog in which people define the item variables. Nothing is written before save.
class ItemDataSettingsPanel : public ::Brontel::Plugin::UI::PluginSettingsDialogBox {
  FXDECLARE(ItemDataSettingsPanel)

 public:
  /// The application is the host's; from any other one the dialog has no database and stays empty.
  ItemDataSettingsPanel(PluginContainer* container, FX::FXApp* app);
  ItemDataSettingsPanel(const ItemDataSettingsPanel&) = delete;
  ItemDataSettingsPanel& operator=(const ItemDataSettingsPanel&) = delete;
  ~ItemDataSettingsPanel() override = default;

  /// Reads the variables into the table; what was typed before is gone.
  void create() override;
  /// Empties the table and gives it its columns.
  void setColumnTexts();
  /// Hands the changes over. The result is always true: what the database refuses, its handle tells.
  bool save(ItemDataSettingsPersister* persister);

  /// The names of changed or deleted variables that somebody else has changed since they were read here.
  FX::FXString getOvertakenNames() const;

  DBTable* getTable() const { return table_; }

  /// Asks and removes the selected rows, whatever uses them.
  long onDelete(FX::FXObject*, FX::FXSelector, void*);
  /// Disables the sender when the current row's variable belongs to any goods.
  long isDeleteEnabled(FX::FXObject* sender, FX::FXSelector, void*);
  /// Accepts the dialog when every row is complete, else says so and goes to the first cell that is not.
  long onOKButton(FX::FXObject* sender, FX::FXSelector sel, void* ptr);

 protected:
  ItemDataSettingsPanel() = default;

 private:
  void setColumn(int column, const FX::FXString& text, int leastWidth);
  bool checkItemList();
  int findFault(int row) const;
  bool isUsed(int id);

  MorvaneDatabase* database_ = nullptr;  // not owned
  DBTable* table_ = nullptr;             // a child
  FX::FXApp* app_ = nullptr;             // not owned
  int askedId_ = 0;                      // the variable that isUsed was last asked about, and its answer
  bool askedUsed_ = false;
};

}  // namespace Brontel::Plugin::ItemData
