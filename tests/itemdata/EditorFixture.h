#pragma once

#include <memory>

#include "itemdata/ItemDataEntry.h"
#include "tests/itemdata/ListFixture.h"
#include "tests/support/TestApplication.h"
#include "tests/support/WindowUser.h"

/// A window with the editor of one cell, on the screen, with somebody at the keyboard.
class EditorFixture : public ListFixture {
 protected:
  explicit EditorFixture(int type, const char* value = "", const char* choices = "");

  /// Lets the idle application bring every widget up to date.
  void refresh();
  /// Waits until the cell has the value; a test failure when it never does.
  bool waitForValue(const std::string& value);

  TestApplication application;
  WindowUser user{application};
  std::unique_ptr<Brontel::Plugin::ItemData::ItemDataEntry> cell;
  FX::FXMainWindow* window;
  FX::FXTextField* other;  // takes the focus away
  std::unique_ptr<MemoryGuard<FX::FXDataTarget>> targets = std::make_unique<MemoryGuard<FX::FXDataTarget>>();
};
