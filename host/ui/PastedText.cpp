#include "host/ui/PastedText.h"

#include <algorithm>

#include "fxext/values/FXStringIterator.h"

namespace Brontel {

using FXExt::FXStringIterator;

PastedText::PastedText(const FX::FXString& text) {
  for (FXStringIterator lines(text, '\n', 0); lines.hasNext(); ++lines) {
    FX::FXString line = lines.get();
    if (!line.empty() && line[line.length() - 1] == '\r') line.trunc(line.length() - 1);
    std::vector<FX::FXString> cells;
    for (FXStringIterator fields(line, '\t', 0); fields.hasNext(); ++fields) cells.push_back(fields.get());
    rows_.push_back(std::move(cells));
  }
  const auto isEmpty = [](const std::vector<FX::FXString>& row) { return row.size() == 1 && row[0].empty(); };
  if (!rows_.empty() && isEmpty(rows_.back())) rows_.pop_back();
}

FX::FXint PastedText::getNumColumns() const {
  size_t columns = 0;
  for (const auto& row : rows_) columns = std::max(columns, row.size());
  return static_cast<FX::FXint>(columns);
}

}  // namespace Brontel
