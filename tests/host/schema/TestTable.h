#pragma once

#include <functional>
#include <utility>

#include "host/schema/Table.h"

/// A table that is declared by a function, counts its declarations and tells of its end.
class TestTable : public Brontel::Model::Table {
 public:
  TestTable(
      Brontel::Model::Schema* schema, const FX::FXString& name, std::function<void(Table&)> declaration = [](Table&) {})
      : Table(schema, name), declaration_(std::move(declaration)) {}
  ~TestTable() override {
    if (onDelete) onDelete();
  }

  void init() override {
    ++inits;
    if (onInit) onInit();
    declaration_(*this);
  }

  int inits = 0;
  std::function<void()> onInit;
  std::function<void()> onDelete;

 private:
  std::function<void(Table&)> declaration_;
};
