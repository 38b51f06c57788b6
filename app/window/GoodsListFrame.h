#pragma once

#include <fx.h>

#include "host/entity/InvoiceItem.h"

namespace Brontel::App {

class Workspace;

/// The goods of one kind, to search in, to add to and to edit. Stands in a window that tells it when to look again.
class GoodsListFrame : public FX::FXVerticalFrame {
  FXDECLARE(GoodsListFrame)

 public:
  enum { ID_SEARCH = FX::FXVerticalFrame::ID_LAST, ID_GOODS, ID_NEW, ID_EDIT, ID_LAST };

  /// Fills its parent. The workspace is borrowed.
  GoodsListFrame(FX::FXComposite* parent, Workspace& workspace, GoodsKind kind);
  GoodsListFrame(const GoodsListFrame&) = delete;
  GoodsListFrame& operator=(const GoodsListFrame&) = delete;

  /// Reads the list again and keeps the place in it.
  void refresh();
  /// Remembers the widths of the list's columns, for each kind of goods its own.
  void saveLayout() const;
  void create() override;

  FX::FXTextField* getSearchField() const { return search_; }
  FX::FXIconList* getList() const { return list_; }
  /// The key of the goods in a line of the list; 0 outside of it.
  int getGoodsId(FX::FXint line) const;

  long onCmdNew(FX::FXObject*, FX::FXSelector, void*);
  long onCmdEdit(FX::FXObject*, FX::FXSelector, void*);
  long onUpdEdit(FX::FXObject* sender, FX::FXSelector, void*);
  long onSearch(FX::FXObject*, FX::FXSelector, void*);
  long onSearchKey(FX::FXObject*, FX::FXSelector, void* event);
  long onListKey(FX::FXObject*, FX::FXSelector, void* event);
  long onDoubleClick(FX::FXObject*, FX::FXSelector, void*);
  long onMenu(FX::FXObject*, FX::FXSelector, void* event);

 protected:
  GoodsListFrame() = default;

 private:
  void buildSearch();
  void buildList();
  void goToList();
  void edit(int id);

  Workspace* workspace_ = nullptr;  // not owned
  GoodsKind kind_ = GOODS_PRODUCT;
  FX::FXTextField* search_ = nullptr;
  FX::FXIconList* list_ = nullptr;
  bool isFilled_ = false;
};

}  // namespace Brontel::App
