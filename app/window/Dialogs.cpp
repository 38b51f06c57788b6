#include "app/window/Dialogs.h"

#include <string>

#include <libintl.h>

#include "host/message/FillIn.h"
#include "host/ui/Legibility.h"

namespace Brontel::App::Dialogs {

using FX::FXString;
using FX::FXuint;

namespace {

constexpr FX::FXint kFileWidth = 560;
constexpr FX::FXint kFileHeight = 360;
constexpr FX::FXint kLongestText = 400;

FXuint show(FX::FXWindow* owner, FXuint (*box)(FX::FXWindow*, FXuint, const FX::FXchar*, const FX::FXchar*, ...),
            FXuint buttons, const FXString& title, const FXString& text) {
  FX::FXWindow* above = owner != nullptr && owner->id() != 0 ? owner : FX::FXApp::instance()->getRootWindow();
  return box(above, buttons, title.text(), "%s", wrappedForBox(above->getApp(), text).text());
}

}  // namespace

void showError(FX::FXWindow* owner, const FXString& text) {
  show(owner, FX::FXMessageBox::error, FX::MBOX_OK, gettext("Hiba"), text);
}

void showInformation(FX::FXWindow* owner, const FXString& title, const FXString& text) {
  show(owner, FX::FXMessageBox::information, FX::MBOX_OK, title, text);
}

bool confirm(FX::FXWindow* owner, const FXString& title, const FXString& question) {
  return show(owner, FX::FXMessageBox::question, FX::MBOX_YES_NO, title, question) == FX::MBOX_CLICKED_YES;
}

Answer askToSave(FX::FXWindow* owner, const FXString& question) {
  const FXuint answer =
      show(owner, FX::FXMessageBox::question, FX::MBOX_YES_NO_CANCEL, gettext("Mentetlen változások"), question);
  if (answer == FX::MBOX_CLICKED_YES) return Answer::Yes;
  return answer == FX::MBOX_CLICKED_NO ? Answer::No : Answer::Cancel;
}

FXString askForFile(FX::FXWindow* owner, const FXString& title, const FXString& suggestion, const FXString& patterns) {
  FX::FXFileDialog dialog(owner, title);
  dialog.setSelectMode(FX::SELECTFILE_ANY);
  dialog.setFilename(suggestion);
  dialog.setPatternList(patterns);
  // The toolkit remembers the size that somebody has given it.
  const bool isRemembered = dialog.getApp()->reg().existingEntry("File Dialog", "width") != 0;
  if (!isRemembered) resizeToFont(dialog, kFileWidth, kFileHeight);
  return dialog.execute() != 0 ? dialog.getFilename() : FXString();
}

FXString askForNewFile(FX::FXWindow* owner, const FXString& title, const FXString& suggestion,
                       const FXString& patterns) {
  const FXString file = askForFile(owner, title, suggestion, patterns);
  if (file.empty() || !FX::FXStat::exists(file)) return file;
  const FXString question = fillIn(gettext("Ez a fájl már létezik:\n%s\n\nFelülírja?"), {file});
  return confirm(owner, title, question) ? file : FXString();
}

FXString shortened(const FXString& text) {
  if (text.length() <= kLongestText) return text;
  return text.left(text.validate(kLongestText)) + "...";
}

}  // namespace Brontel::App::Dialogs
