#pragma once

#include <memory>

#include "app/window/GoodsCatalogue.h"
#include "app/window/InvoiceEditor.h"
#include "app/window/OpenWindow.h"
#include "host/ui/InvoiceForm.h"

namespace Brontel::App {

class InvoiceHead;
class ItemEditing;
class ItemGrid;
class MessagePane;
class Workspace;

/// The window of one invoice. Checks it after every change, but neither while somebody types in a cell nor while a
/// plug-in's box is open over it: a check may take the ground from under either.
class InvoiceEditForm : public InvoiceForm, public OpenWindow {
  FXDECLARE_ABSTRACT(InvoiceEditForm)

 public:
  enum {
    ID_HEAD = InvoiceForm::ID_LAST,
    ID_GRID,
    ID_MESSAGES,
    ID_SAVE,
    ID_CHECK,
    ID_PREVIEW,
    ID_EXPORT,
    ID_CLOSE_INVOICE,
    ID_ADD_ITEM,
    ID_REMOVE_ITEM,
    ID_ITEM_MENU,
    ID_LAST
  };

  /// Borrows the workspace and takes the invoice over.
  InvoiceEditForm(Workspace& workspace, std::unique_ptr<Invoice> invoice);
  ~InvoiceEditForm() override;

  Invoice* getInvoice() const override { return &editor_.getInvoice(); }
  void proposeCheckAll() override;

  FX::FXTopWindow* getWindow() override { return this; }
  bool hasUnsavedChanges() override;
  bool saveChanges() override;
  void reload() override;

  /// Makes the item with that key the current one, in view and with the keyboard. Nothing changes when there is no
  /// such item, or when what is typed in a cell cannot be taken, which the person is told.
  void goToItem(int id);

  void create() override;
  FX::FXbool close(FX::FXbool notify = FALSE) override;

  /// No check runs while one of these lives; one that is proposed meanwhile runs afterwards. Held while a box of a
  /// plug-in may be open, or one that asks about an item.
  class Pause {
   public:
    explicit Pause(InvoiceEditForm& form) : form_(form) { ++form_.pauses_; }
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;
    ~Pause() {
      if (--form_.pauses_ == 0 && form_.checkIsDue_) form_.proposeCheckAll();
    }

   private:
    InvoiceEditForm& form_;
  };

  /// Items have gone, come or been replaced: forgets the messages, whose events may know one that is gone, and checks
  /// again.
  void itemsChanged();

  InvoiceHead* getHead() const { return head_; }
  ItemGrid* getGrid() const { return grid_; }
  MessagePane* getMessages() const { return messages_; }

  long onHeadChanged(FX::FXObject*, FX::FXSelector, void*);
  long onCellChanged(FX::FXObject*, FX::FXSelector, void*);
  long onContextMenu(FX::FXObject*, FX::FXSelector, void*);
  long onRepair(FX::FXObject*, FX::FXSelector, void*);
  long onCmdSave(FX::FXObject*, FX::FXSelector, void*);
  long onCmdCheck(FX::FXObject*, FX::FXSelector, void*);
  long onCmdPreview(FX::FXObject*, FX::FXSelector, void*);
  long onCmdExport(FX::FXObject*, FX::FXSelector, void*);
  long onCmdCloseInvoice(FX::FXObject*, FX::FXSelector, void*);
  long onCmdAddItem(FX::FXObject*, FX::FXSelector, void*);
  long onCmdRemoveItem(FX::FXObject*, FX::FXSelector, void*);
  long onCmdItemMenu(FX::FXObject*, FX::FXSelector, void*);
  long onUpdEditable(FX::FXObject*, FX::FXSelector, void*);

 protected:
  void checkAll() override;

 private:
  void makeMenus();
  void makeButtons();
  void makeItems(FX::FXComposite* parent);
  void addButton(FX::FXComposite* parent, const FX::FXString& text, FX::FXSelector id);
  void showAll();
  void showTitle();
  void showItemData();
  /// Ends typing. False when what was typed cannot be taken; the person has been told.
  bool acceptEditors();
  bool tell(InvoiceRepository::Result result);
  bool mayClose();

  Workspace& workspace_;
  InvoiceEditor editor_;
  GoodsCatalogue catalogue_;
  std::unique_ptr<FX::FXIcon> icon_;
  std::unique_ptr<FX::FXMenuPane> invoiceMenu_;
  std::unique_ptr<FX::FXMenuPane> itemMenu_;
  InvoiceHead* head_ = nullptr;  // children
  ItemGrid* grid_ = nullptr;
  MessagePane* messages_ = nullptr;
  std::unique_ptr<ItemEditing> items_;
  FX::FXStatusBar* statusBar_ = nullptr;
  bool modified_ = false;
  int pauses_ = 0;
  bool checkIsDue_ = false;
};

}  // namespace Brontel::App
