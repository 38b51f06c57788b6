#pragma once

#include <vector>

#include <fx.h>

namespace Brontel::App {

/// A list of rows in columns: sorted by a click on a header, again for the other direction, and narrowed to the rows
/// that contain a text. Double click and Enter arrive at the target as SEL_DOUBLECLICKED.
class RowList : public FX::FXIconList {
  FXDECLARE(RowList)

 public:
  struct Row {
    int id = 0;
    std::vector<FX::FXString> cells;
  };

  /// Widths and order are remembered under that section of the settings.
  RowList(FX::FXComposite* parent, FX::FXObject* target, FX::FXSelector sel, const FX::FXString& section);

  /// A column to the right of the others; its width is the one that was remembered, if there is one.
  void addColumn(const FX::FXString& title, FX::FXint width);
  /// The order before somebody has chosen one.
  void setDefaultOrder(FX::FXint column, bool descending);

  /// Shows these rows instead; the current row stays current if it is still there.
  void setRows(std::vector<Row> rows);
  /// Shows only rows in which a cell contains the text, in any case; all for an empty text.
  void setFilter(const FX::FXString& text);

  /// The key of the current row; 0 for none.
  int getCurrentId() const;
  /// Makes the row with that key current, if it is shown.
  void setCurrentId(int id);

  /// Remembers widths and order.
  void saveLayout() const;

  void create() override;
  long onHeaderClicked(FX::FXObject*, FX::FXSelector, void*);

 protected:
  RowList() = default;

 private:
  void fill();
  void sortRows();

  FX::FXString section_;
  std::vector<Row> rows_;
  std::vector<size_t> shown_;  // positions in rows_
  FX::FXString filter_;
  FX::FXint sortColumn_ = 0;
  bool descending_ = false;
};

}  // namespace Brontel::App
