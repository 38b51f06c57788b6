#pragma once

#include <fx.h>

namespace FXExt {

/// Chooses an ordered subset: available items on the left, chosen ones on the right, arrows to move the selected items
/// across and to reorder the chosen ones. Nothing is notified; the owner reads the lists when it needs the outcome.
/// Icons and data are borrowed.
class FXDualList : public FX::FXHorizontalFrame {
  FXDECLARE(FXDualList)

 public:
  enum {
    ID_FROMLIST = FX::FXHorizontalFrame::ID_LAST + 1,
    ID_TOLIST,
    ID_MAKESELECTED,
    ID_MAKEUNSELECTED,
    ID_MOVEUP,
    ID_MOVEDOWN,
    ID_LAST
  };

  FXDualList(FX::FXComposite* p, const FX::FXString& fromTitle, const FX::FXString& toTitle, FX::FXuint opts);
  FXDualList(const FXDualList&) = delete;
  FXDualList& operator=(const FXDualList&) = delete;

  void enable() override;
  void disable() override;

  /// Append an item, without notification, and return its index. Icon and data may be null.
  FX::FXint appendFromListItem(const FX::FXString& text, FX::FXIcon* icon, void* data);
  FX::FXint appendToListItem(const FX::FXString& text, FX::FXIcon* icon, void* data);

  /// The available items.
  FX::FXList* getFromList() const { return fromList; }
  /// The chosen items, in their order.
  FX::FXList* getToList() const { return toList; }

  long onCmdMakeSelected(FX::FXObject*, FX::FXSelector, void*);
  long onCmdMakeUnSelected(FX::FXObject*, FX::FXSelector, void*);
  long onCmdMoveUp(FX::FXObject*, FX::FXSelector, void*);
  long onCmdMoveDown(FX::FXObject*, FX::FXSelector, void*);

 protected:
  FXDualList();

  FX::FXList* fromList = nullptr;
  FX::FXList* toList = nullptr;

 private:
  FX::FXHorizontalFrame* createColumn_(const FX::FXString& title);
  FX::FXList* createList_(FX::FXComposite* column, FX::FXSelector id, FX::FXint spacing);
  void createArrows_(FX::FXComposite* column, FX::FXSelector first, FX::FXuint firstArrow, FX::FXSelector second,
                     FX::FXuint secondArrow);
};

}  // namespace FXExt
