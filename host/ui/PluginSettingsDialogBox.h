#pragma once

#include <fx.h>

namespace Brontel::Plugin {

class PluginContainer;

namespace UI {

/// The dialog in which a plug-in's settings are edited: a content frame for the plug-in, OK and Cancel, and a pop-up
/// menu over a table that the plug-in puts there with identifier ID_TABLE.
class PluginSettingsDialogBox : public FX::FXDialogBox {
  FXDECLARE(PluginSettingsDialogBox)

 public:
  // FXWindow has an ID_DELETE of its own, which destroys the window that receives it.
  enum { ID_DELETE = 90, ID_TABLE = 103, ID_LAST };

  /// Owned by the application's active window if there is one on the screen, so that it cannot fall behind it.
  PluginSettingsDialogBox(PluginContainer* container, FX::FXApp* app);
  ~PluginSettingsDialogBox() override;

  PluginContainer* getContainer() const { return container_; }
  /// Where the subclass puts its widgets.
  FX::FXVerticalFrame* getContentFrame() const { return contentFrame_; }

  /// Shows the menu "new row" and "delete" over the table that sent the message.
  long onContextMenu(FX::FXObject* sender, FX::FXSelector sel, void* ptr);

 protected:
  PluginSettingsDialogBox() = default;

 private:
  PluginContainer* container_ = nullptr;         // not owned
  FX::FXVerticalFrame* contentFrame_ = nullptr;  // a child
};

static_assert(static_cast<int>(PluginSettingsDialogBox::ID_DELETE) >= static_cast<int>(FX::FXDialogBox::ID_LAST));

}  // namespace UI
}  // namespace Brontel::Plugin
