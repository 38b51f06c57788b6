#include "app/window/AboutDialog.h"

#include <algorithm>

#include <libintl.h>

#include "app/window/Workspace.h"
#include "host/message/FillIn.h"
#include "host/plugin/PluginContainer.h"
#include "host/ui/Legibility.h"

namespace Brontel::App {

using FX::FXString;

FXIMPLEMENT(AboutDialog, FXDialogBox, nullptr, 0)

namespace {

constexpr FX::FXint kWidth = 700;
constexpr FX::FXint kHeight = 360;

constexpr FX::FXint kTextWidth = 620;

// In a label, a single "&" marks a key, and a tab begins the tip.
FXString labelText(const FX::FXApp* app, const FXString& text) {
  const FX::FXint width = std::min(scaledToFont(app, kTextWidth), app->getRootWindow()->getWidth() * 7 / 8);
  FXString label = wrapped(text, *app->getNormalFont(), width).trim();
  return label.substitute("&", "&&").substitute('\t', ' ');
}

void addLine(FX::FXComposite* parent, const FXString& text, FX::FXIcon* icon = nullptr) {
  new FX::FXLabel(parent, labelText(parent->getApp(), text), icon,
                  FX::JUSTIFY_LEFT | FX::ICON_BEFORE_TEXT | FX::LAYOUT_FILL_X, 0, 0, 0, 0, 2, 2, 1, 1);
}

}  // namespace

AboutDialog::AboutDialog(FX::FXWindow* owner, const Workspace& workspace)
    : FXDialogBox(owner, gettext("Névjegy"), FX::DECOR_TITLE | FX::DECOR_BORDER | FX::DECOR_RESIZE | FX::DECOR_CLOSE, 0,
                  0, kWidth, kHeight) {
  auto* buttons = new FX::FXHorizontalFrame(this, FX::LAYOUT_SIDE_BOTTOM | FX::LAYOUT_FILL_X);
  new FX::FXButton(buttons, gettext("&OK"), nullptr, this, ID_ACCEPT,
                   FX::BUTTON_NORMAL | FX::BUTTON_INITIAL | FX::BUTTON_DEFAULT | FX::LAYOUT_RIGHT, 0, 0, 0, 0, 24, 24);
  addLine(this, "brontel-host " BRONTEL_VERSION);
  addLine(this, gettext("Számlázó alkalmazás egyéb tételadatokkal."));
  addLine(this, fillIn(gettext("Adatbázis: %s"), {workspace.getHostDatabase().getPath()}));
  new FX::FXHorizontalSeparator(this, FX::SEPARATOR_GROOVE | FX::LAYOUT_FILL_X);
  addLine(this, gettext("Bővítmények:"));
  auto* frame = new FX::FXVerticalFrame(
      this, FX::FRAME_SUNKEN | FX::FRAME_THICK | FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0);
  auto* scroll = new FX::FXScrollWindow(frame, FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y);
  addPlugins(new FX::FXVerticalFrame(scroll, FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y), workspace);
  resizeToFont(*this, kWidth, kHeight);
}

void AboutDialog::addPlugins(FX::FXComposite* parent, const Workspace& workspace) {
  const auto& libraries = workspace.getLoader().getLibraries();
  if (libraries.empty()) addLine(parent, gettext("Nincs bővítmény."));
  for (const auto& library : libraries) {
    Plugin::PluginContainer* plugin = library->getContainer();
    if (plugin == nullptr) {
      addLine(parent, fillIn(gettext("%s: nem tölthető be"), {FX::FXPath::name(library->getPath())}));
      addLine(parent, library->getReason());
    } else {
      addLine(parent, plugin->getName() + " " + plugin->getVersion(), plugin->getIcon16());
      addLine(parent, plugin->getDescription());
    }
    new FX::FXHorizontalSeparator(parent, FX::SEPARATOR_GROOVE | FX::LAYOUT_FILL_X);
  }
}

}  // namespace Brontel::App
