#pragma once

#include <string>
#include <vector>

#include "host/message/ListOfMessage.h"
#include "itemdata/ItemDataList.h"

/// A new cell of that type as a list would hold it, stored under the key when that is not 0. The caller owns it.
Brontel::Plugin::ItemData::ItemDataEntry* newCell(int type, int variable, int row, const std::string& value = "",
                                                  int key = 0, Brontel::Entity* owner = nullptr);

/// The cells of a list in order, "12/1=S1" for variable, row and value. Marked cells end in " marked", null slots are
/// "null".
std::vector<std::string> cellsOf(const Brontel::Plugin::ItemData::ItemDataList& list);
/// Their keys; 0 for a null slot.
std::vector<int> keysOf(const Brontel::Plugin::ItemData::ItemDataList& list);

/// The first live cell of that variable and row, or null.
Brontel::Plugin::ItemData::ItemDataEntry* findCell(const Brontel::Plugin::ItemData::ItemDataList& list, int variable,
                                                   int row);
/// Gives the first live cell of that variable and row a value, as its table cell does; expects that there is one.
void setCell(Brontel::Plugin::ItemData::ItemDataList& list, int variable, int row, const std::string& value);

/// Messages that go with their list, as whoever shows them last lets them go.
class Messages : public Brontel::ListOfMessage {
 public:
  ~Messages() override;

  /// What each message says, in order: its code, its level and its text, "P_ITEMDATAWANTED 1 A(z) 1. ...".
  std::vector<std::string> texts() const;
  /// The same in short: "must NAME", "may NAME" for empty cells, "more", "less" for quantities.
  std::vector<std::string> summary() const;
};
