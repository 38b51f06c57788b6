#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/HostDatabase.h"
#include "app/window/InvoiceEditForm.h"
#include "app/window/MainWindow.h"
#include "app/window/Workspace.h"
#include "host/plugin/PluginLoader.h"
#include "host/plugin/PluginRegistry.h"
#include "tests/support/DialogUser.h"
#include "tests/support/TemporaryDirectory.h"
#include "tests/support/TestApplication.h"
#include "tour/Album.h"

namespace Tour {

/// The program's windows on the sample database, on a display of their own, somebody who uses them, and the pictures
/// taken meanwhile. While it lives, its folder is the working directory: the windows show paths as short as there.
class Stage {
 public:
  using MainWindow = Brontel::App::MainWindow;
  using InvoiceEditForm = Brontel::App::InvoiceEditForm;
  using Rows = std::vector<std::vector<std::string>>;

  /// Opens the main window. The folder for the pictures is there and is given by its whole path; plugins is the folder
  /// that the plug-ins are in.
  Stage(const std::string& pictures, const std::string& plugins);
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;
  ~Stage();

  /// The main window, with the keyboard.
  MainWindow& useMain();
  /// The window that was opened last, with the keyboard. Null, and a failure, when there is none but the main window.
  FX::FXTopWindow* useNewest();
  /// The same when it is an invoice's.
  InvoiceEditForm* useNewestForm();

  /// What is in the database's file.
  static Rows rows(const std::string& sql);

  /// Where the program works, as it shows it.
  static constexpr const char* kDatabase = "brontel.db";

 private:
  void openDatabase(const std::string& plugins);
  void deleteWindows();

  TemporaryDirectory directory_;
  std::string before_;  // the working directory

 public:
  TestApplication application;
  Brontel::App::HostDatabase database;
  Brontel::Plugin::PluginRegistry registry;
  Brontel::Plugin::PluginLoader loader;
  std::unique_ptr<Brontel::App::Workspace> workspace;
  DialogUser user;
  Album album;

 private:
  MainWindow* main_ = nullptr;
};

}  // namespace Tour
