#pragma once

#include <vector>

#include <fx.h>

namespace Brontel {

/// Text from the clipboard as the table that it was copied from: line feeds (with or without carriage return) end rows
/// and tabs separate cells. A line feed at the very end begins no further row.
class PastedText {
 public:
  explicit PastedText(const FX::FXString& text);

  FX::FXint getNumRows() const { return static_cast<FX::FXint>(rows_.size()); }
  /// Of the longest row.
  FX::FXint getNumColumns() const;
  FX::FXint getNumColumns(FX::FXint row) const { return static_cast<FX::FXint>(rows_[row].size()); }
  const FX::FXString& getCell(FX::FXint row, FX::FXint column) const { return rows_[row][column]; }

 private:
  std::vector<std::vector<FX::FXString>> rows_;
};

}  // namespace Brontel
