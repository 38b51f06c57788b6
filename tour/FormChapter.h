#pragma once

#include <functional>
#include <string>

#include "tour/Chapter.h"

namespace Tour {

/// What the chapters about an invoice share: its form's cells, and the dialogs of the plug-in.
class FormChapter : public Chapter {
 public:
  using Chapter::Chapter;

 protected:
  using Form = Stage::InvoiceEditForm;
  using Step = std::function<void(FX::FXWindow&)>;

  void clickCell(Form& form, FX::FXint row, FX::FXint column, int button = 1);
  /// A row of the items without what has been recorded for it.
  static std::string itemOf(Form& form, FX::FXint row);
  /// What the form shows as recorded for a row.
  static std::string recordedOf(Form& form, FX::FXint row);
  /// The messages' texts, without the place that each names.
  static Texts messagesOf(Form& form);

  /// Opens the item data of a row by its menu and does something with the dialog, which ends it. A picture of the menu
  /// is taken when it gets a name.
  void openItemData(Form& form, FX::FXint row, const Step& inDialog, const std::string& menuPicture = "");
  /// The same from the line of a message.
  void repair(Form& form, FX::FXint line, const Step& inDialog);

  /// Types into a cell of the plug-in's table.
  void typeCell(FX::FXTable& table, FX::FXint row, FX::FXint column, const std::string& text);
  /// Opens the list of a combo box and chooses from it, with a picture of the open list when it gets a name.
  void chooseFrom(const FX::FXWindow& combo, const std::string& text, const std::string& listPicture = "");
  void expectItemDataTitle(const FX::FXWindow& dialog, const char* goods);
};

}  // namespace Tour
