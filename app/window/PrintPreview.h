#pragma once

#include <memory>

#include <fx.h>

#include "app/print/PrintedPages.h"

namespace Brontel {
class Invoice;
}

namespace Brontel::App {

class Workspace;

/// The pages of an invoice as they will be printed: to leaf through, to look at closely, to print and to save as PDF.
class PrintPreview : public FX::FXDialogBox {
  FXDECLARE_ABSTRACT(PrintPreview)

 public:
  enum {
    ID_FIRST = FX::FXDialogBox::ID_LAST,
    ID_PREVIOUS,
    ID_NEXT,
    ID_END,
    ID_ZOOM_IN,
    ID_ZOOM_OUT,
    ID_FIT,
    ID_LEFT,
    ID_RIGHT,
    ID_UP,
    ID_DOWN,
    ID_PRINT,
    ID_SAVE,
    ID_LAST
  };

  /// Borrows the workspace. Keeps nothing of the invoice.
  PrintPreview(FX::FXWindow* owner, Workspace& workspace, const Invoice& invoice);
  ~PrintPreview() override;

  void create() override;
  void layout() override;

  const PrintedPages& getPages() const { return pages_; }
  /// The page that is shown, from 0.
  size_t getPage() const { return page_; }
  /// Pixels to a point.
  double getScale() const { return scale_; }
  FX::FXImageView* getView() const { return view_; }

  long onCmdPage(FX::FXObject*, FX::FXSelector, void*);
  long onUpdPage(FX::FXObject*, FX::FXSelector, void*);
  long onCmdZoom(FX::FXObject*, FX::FXSelector, void*);
  long onCmdFit(FX::FXObject*, FX::FXSelector, void*);
  long onCmdScroll(FX::FXObject*, FX::FXSelector, void*);
  long onCmdPrint(FX::FXObject*, FX::FXSelector, void*);
  long onCmdSave(FX::FXObject*, FX::FXSelector, void*);

 private:
  void makePageButtons();
  void makeButtons();
  void addButton(FX::FXComposite* parent, const FX::FXString& text, FX::FXSelector id, FX::FXuint options = 0);
  void addKeys();
  /// The page that a command leads to; the one that is shown when it leads nowhere.
  size_t findPage(FX::FXuint command) const;
  double fittingScale() const;
  void showPage(size_t page, double scale);

  Workspace& workspace_;
  FX::FXString number_;
  PrintedPages pages_;
  size_t page_ = 0;
  double scale_ = 0;
  bool fits_ = true;  // the whole page follows the size of the window
  std::unique_ptr<FX::FXImage> picture_;
  FX::FXImageView* view_ = nullptr;  // children
  FX::FXLabel* pageLabel_ = nullptr;
  FX::FXLabel* zoomLabel_ = nullptr;
};

}  // namespace Brontel::App
