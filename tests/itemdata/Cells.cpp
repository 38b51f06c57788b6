#include "tests/itemdata/Cells.h"

#include <gtest/gtest.h>

#include "itemdata/ItemDataPluginList.h"

using Brontel::Message;
using Brontel::Plugin::ItemData::ItemDataEntry;
using Brontel::Plugin::ItemData::ItemDataList;
using FX::FXint;

ItemDataEntry* newCell(int type, int variable, int row, const std::string& value, int key, Brontel::Entity* owner) {
  ItemDataEntry* cell = Brontel::Plugin::ItemData::plugins.getByType(type, owner);
  EXPECT_NE(cell, nullptr) << "no kind for type " << type;
  cell->itemvariable = variable;
  cell->row = row;
  cell->process = row != 0 ? 1 : 0;
  cell->value = value.c_str();
  cell->pk = key;
  return cell;
}

std::vector<std::string> cellsOf(const ItemDataList& list) {
  std::vector<std::string> cells;
  for (FXint i = 0; i < list.no(); ++i) {
    const ItemDataEntry* cell = list[i];
    cells.push_back(cell == nullptr ? "null"
                                    : std::to_string(cell->itemvariable) + "/" + std::to_string(cell->row) + "=" +
                                          cell->value.text() + (cell->del != 0 ? " marked" : ""));
  }
  return cells;
}

std::vector<int> keysOf(const ItemDataList& list) {
  std::vector<int> keys;
  for (FXint i = 0; i < list.no(); ++i) keys.push_back(list[i] == nullptr ? 0 : list[i]->pk);
  return keys;
}

ItemDataEntry* findCell(const ItemDataList& list, int variable, int row) {
  for (FXint i = 0; i < list.no(); ++i) {
    ItemDataEntry* cell = list[i];
    if (ItemDataEntry::isLive(cell) && cell->itemvariable == variable && cell->row == row) return cell;
  }
  return nullptr;
}

void setCell(ItemDataList& list, int variable, int row, const std::string& value) {
  ItemDataEntry* cell = findCell(list, variable, row);
  if (cell == nullptr) {
    ADD_FAILURE() << "no cell " << variable << "/" << row;
    return;
  }
  cell->value = value.c_str();
}

Messages::~Messages() {
  for (FXint i = 0; i < no(); ++i) delete at(i);
}

std::vector<std::string> Messages::texts() const {
  std::vector<std::string> texts;
  for (FXint i = 0; i < no(); ++i) {
    const Message& message = *(*this)[i];
    texts.push_back(std::string(message.getCode().text()) + " " + std::to_string(message.getLevel()) + " " +
                    message.getText().text());
  }
  return texts;
}

std::vector<std::string> Messages::summary() const {
  std::vector<std::string> summary;
  const std::string field = "Mező neve:";
  for (FXint i = 0; i < no(); ++i) {
    const Message& message = *(*this)[i];
    const std::string text = message.getText().text();
    const size_t name = text.find(field);
    if (name != std::string::npos) {
      summary.push_back((message.getLevel() == Message::LEVEL_BLOCKING ? "must " : "may ") +
                        text.substr(name + field.size()));
    } else {
      summary.push_back(text.find("kevesebb") == std::string::npos ? "more" : "less");
    }
  }
  return summary;
}
