#pragma once

#include <fx.h>

namespace Brontel {

class DBTable;
class Morvane;

namespace Plugin {

class PluginContainer;

namespace UI {

/// The dialog in which a plug-in's settings are edited: a content frame for the plug-in, OK and Cancel. Over a table
/// that the plug-in puts there with the dialog as its target and identifier ID_TABLE, it offers "new row" and "delete"
/// by buttons, by a pop-up menu and by Ins and Del. The subclass answers ID_DELETE.
class PluginSettingsDialogBox : public FX::FXDialogBox {
  FXDECLARE(PluginSettingsDialogBox)

 public:
  // FXWindow has an ID_DELETE of its own, which destroys the window that receives it.
  enum { ID_DELETE = 90, ID_NEW_ROW, ID_DELETE_ROWS, ID_TABLE = 103, ID_LAST };

  /// Owned by the application's active window if there is one on the screen, so that it cannot fall behind it.
  PluginSettingsDialogBox(PluginContainer* container, FX::FXApp* app);
  ~PluginSettingsDialogBox() override;

  PluginContainer* getContainer() const { return container_; }
  /// Where the subclass puts its widgets.
  FX::FXVerticalFrame* getContentFrame() const { return contentFrame_; }

  using FXDialogBox::show;
  /// Gives the table the keyboard.
  void show(FX::FXuint placement) override;

  /// Runs the dialog again after it has been closed, as the user left it. Returns what execute does.
  FX::FXuint resume();

  /// Asks before what has been entered is lost.
  long onClose(FX::FXObject* sender, FX::FXSelector, void* ptr);
  long onKeyPress(FX::FXObject* sender, FX::FXSelector sel, void* ptr);
  /// Shows the menu "new row" and "delete" over the table that sent the message.
  long onContextMenu(FX::FXObject* sender, FX::FXSelector sel, void* ptr);
  long onTableKey(FX::FXObject* sender, FX::FXSelector sel, void* ptr);
  long onCmdNewRow(FX::FXObject*, FX::FXSelector, void*);
  long onUpdNewRow(FX::FXObject* sender, FX::FXSelector, void*);
  /// Sends itself ID_DELETE for the selected rows, or for the current one when none is selected.
  long onCmdDeleteRows(FX::FXObject* sender, FX::FXSelector, void* ptr);
  long onUpdDeleteRows(FX::FXObject* sender, FX::FXSelector, void* ptr);

 protected:
  PluginSettingsDialogBox() = default;

 private:
  void buildFoot(const Morvane* app);
  DBTable* findTable() const;
  bool canDelete();

  PluginContainer* container_ = nullptr;         // not owned
  FX::FXVerticalFrame* contentFrame_ = nullptr;  // a child
};

static_assert(static_cast<int>(PluginSettingsDialogBox::ID_DELETE) >= static_cast<int>(FX::FXDialogBox::ID_LAST));

}  // namespace UI
}  // namespace Plugin
}  // namespace Brontel
