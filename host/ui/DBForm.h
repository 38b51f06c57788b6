#pragma once

#include <fx.h>

namespace Brontel {

/// A window that edits a record and checks it.
class DBForm : public FX::FXTopWindow {
  FXDECLARE_ABSTRACT(DBForm)

 public:
  enum { ID_CHECK_ALL = FX::FXTopWindow::ID_LAST, ID_LAST };

  DBForm(FX::FXApp* app, const FX::FXString& title, FX::FXuint options = FX::DECOR_ALL, FX::FXint width = 0,
         FX::FXint height = 0);
  ~DBForm() override;

  /// Asks for all checks to run again. They run once, when the application is idle next: whoever asks may be an event
  /// of a message that the new check replaces.
  virtual void proposeCheckAll();

  long onCheckAll(FX::FXObject*, FX::FXSelector, void*);

 protected:
  DBForm() = default;

  /// Runs all checks and shows what they find.
  virtual void checkAll() = 0;
};

}  // namespace Brontel
