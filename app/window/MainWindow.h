#pragma once

#include <memory>
#include <vector>

#include <fx.h>

#include "app/window/InvoiceActions.h"

namespace Brontel::Plugin {
class PluginContainer;
}

namespace Brontel::App {

class GoodsListFrame;
class InvoiceListFrame;
class RecordedDataFrame;
class Workspace;

/// The window that the program opens: lists of invoices and goods, the search of recorded data, and the menus for all
/// of it. Closing it closes the others, asking about unsaved changes, and ends the program.
class MainWindow : public FX::FXMainWindow {
  FXDECLARE_ABSTRACT(MainWindow)

 public:
  enum {
    ID_CHANGED = FX::FXMainWindow::ID_LAST,
    ID_INVOICES,
    ID_FOUND,
    ID_NOTICES,
    ID_NEW,
    ID_OPEN,
    ID_DERIVE,
    ID_COPY,
    ID_CLOSE_INVOICE,
    ID_STORNO,
    ID_DELETE_INVOICE,
    ID_PREVIEW,
    ID_BACKUP,
    ID_REFRESH,
    ID_FIND,
    ID_ABOUT,
    ID_PAGES,
    ID_PAGE,
    ID_PAGE_LAST = ID_PAGE + 9,
    ID_SETTINGS,
    ID_SETTINGS_LAST = ID_SETTINGS + 63,
    ID_LAST
  };

  enum Page { PAGE_INVOICES, PAGE_PRODUCTS, PAGE_SERVICES, PAGE_SUITES, PAGE_FIND, PAGES };

  /// Borrows the workspace. The notices are shown once the window is there.
  MainWindow(Workspace& workspace, const std::vector<FX::FXString>& notices);
  ~MainWindow() override;

  void create() override;
  FX::FXbool close(FX::FXbool notify = FALSE) override;

  /// Brings a page to the front, with the keyboard in it.
  void showPage(FX::FXint page);
  FX::FXint getPage() const { return pages_->getCurrent(); }
  InvoiceListFrame* getInvoices() const { return invoices_; }
  RecordedDataFrame* getFound() const { return found_; }

  long onChanged(FX::FXObject*, FX::FXSelector, void*);
  long onNotices(FX::FXObject*, FX::FXSelector, void*);
  long onPageChanged(FX::FXObject*, FX::FXSelector, void*);
  long onCmdPage(FX::FXObject*, FX::FXSelector, void*);
  long onCmdNew(FX::FXObject*, FX::FXSelector, void*);
  long onCmdOpen(FX::FXObject*, FX::FXSelector, void*);
  long onCmdDerive(FX::FXObject*, FX::FXSelector, void*);
  long onCmdCopy(FX::FXObject*, FX::FXSelector, void*);
  long onCmdCloseInvoice(FX::FXObject*, FX::FXSelector, void*);
  long onCmdStorno(FX::FXObject*, FX::FXSelector, void*);
  long onCmdDeleteInvoice(FX::FXObject*, FX::FXSelector, void*);
  long onCmdPreview(FX::FXObject*, FX::FXSelector, void*);
  long onCmdBackup(FX::FXObject*, FX::FXSelector, void*);
  long onCmdSettings(FX::FXObject*, FX::FXSelector, void*);
  long onCmdAbout(FX::FXObject*, FX::FXSelector, void*);
  long onUpdChosen(FX::FXObject*, FX::FXSelector, void*);
  long onUpdChosenEditable(FX::FXObject*, FX::FXSelector, void*);
  long onUpdEditable(FX::FXObject*, FX::FXSelector, void*);

 private:
  void makeMenus();
  void makeInvoiceMenu(FX::FXMenuBar* bar);
  void makeViewMenu(FX::FXMenuBar* bar);
  void makePluginMenu(FX::FXMenuBar* bar);
  FX::FXMenuPane* addMenu(FX::FXMenuBar* bar, const FX::FXString& title);
  void makePages();
  void restorePlace();
  void savePlace();
  void refreshPage();
  /// The invoice that a command is about; 0 for none.
  int getChosen() const;
  bool saveAllForSettings(const FX::FXString& settings);

  Workspace& workspace_;
  InvoiceActions actions_;
  std::vector<FX::FXString> notices_;
  std::vector<Plugin::PluginContainer*> withSettings_;
  std::unique_ptr<FX::FXIcon> icon_;
  std::vector<std::unique_ptr<FX::FXMenuPane>> menus_;
  FX::FXTabBook* pages_ = nullptr;  // children
  InvoiceListFrame* invoices_ = nullptr;
  std::vector<GoodsListFrame*> goods_;
  RecordedDataFrame* found_ = nullptr;
  FX::FXStatusBar* statusBar_ = nullptr;
};

}  // namespace Brontel::App
