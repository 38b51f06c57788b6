#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "app/HostDatabase.h"
#include "app/window/InvoiceEditForm.h"
#include "app/window/ItemGrid.h"
#include "app/window/MainWindow.h"
#include "app/window/MessagePane.h"
#include "app/window/Workspace.h"
#include "host/plugin/PluginLoader.h"
#include "host/plugin/PluginRegistry.h"
#include "tests/support/FileConnection.h"
#include "tests/support/TemporaryDirectory.h"
#include "tests/support/TestApplication.h"
#include "tests/support/WindowUser.h"

/// The windows of the program in this process, with the real plug-in, on the sample database and a display of their
/// own, and somebody who uses them.
class WindowFixture : public ::testing::Test {
 protected:
  using InvoiceEditForm = Brontel::App::InvoiceEditForm;
  using ItemGrid = Brontel::App::ItemGrid;
  using MainWindow = Brontel::App::MainWindow;
  using Rows = std::vector<std::vector<std::string>>;
  using Texts = std::vector<std::string>;

  // Of the sample.
  static constexpr int kComplete = 1;    ///< open, nothing to mend
  static constexpr int kIncomplete = 2;  ///< open, with things to mend

  explicit WindowFixture(const std::string& screen = "1280x1024x24");
  ~WindowFixture() override;

  /// The main window, on the screen with the keyboard.
  MainWindow& openMain(const std::vector<FX::FXString>& notices = {});
  /// The form of a stored invoice, on the screen with the keyboard, checked.
  InvoiceEditForm& open(int id);
  InvoiceEditForm& openNew();
  /// The last window that has opened.
  InvoiceEditForm& newestForm();

  /// The next box that opens is answered with the button of that name; what it said is kept.
  void answerNext(const std::string& button);
  /// What boxes have said so far, one each.
  const Texts& boxes() const { return boxes_; }
  static FX::FXButton* findButton(const FX::FXWindow& window, const std::string& text);

  /// A command as its menu entry or button sends it.
  void command(FX::FXWindow& window, FX::FXuint id);
  void clickCell(InvoiceEditForm& form, FX::FXint row, FX::FXint column, int button = 1);
  /// The texts of a row of the item table, without what plug-ins have recorded.
  static std::string rowText(InvoiceEditForm& form, FX::FXint row);
  static Texts messageTexts(InvoiceEditForm& form);

  Rows rows(const std::string& sql) const { return FileConnection(path).rows(sql); }
  std::string text(const std::string& sql) const;
  void exec(const std::string& script) const { FileConnection(path).exec(script); }
  /// Everything that is stored.
  std::string dump() const;

  TemporaryDirectory directory;
  const std::string path = directory.path("brontel.db");
  TestApplication application;
  Brontel::App::HostDatabase database;
  Brontel::Plugin::PluginRegistry registry;
  Brontel::Plugin::PluginLoader loader;
  std::unique_ptr<Brontel::App::Workspace> workspace;
  WindowUser user;

 private:
  Texts boxes_;
};
