#pragma once

#include <string>
#include <vector>

#include "tests/support/TestApplication.h"
#include "tests/support/XWindows.h"
#include "tour/ScreenPicture.h"

namespace Tour {

/// The pictures of a tour. Each is looked at when it is taken: whatever is written in a window has to be in the file,
/// readable and whole.
class Album {
 public:
  /// The folder is there; the application is borrowed.
  Album(TestApplication& application, std::string folder);

  /// Takes the next picture, "07-name.png" in the folder, of all windows but those that another one covers nearly
  /// whole. What is wrong with it is reported as a failure.
  void take(const std::string& name);

  /// The files, in order.
  const std::vector<std::string>& files() const { return files_; }
  /// How many texts have been looked at in all pictures.
  size_t countTexts() const { return texts_; }

 private:
  std::vector<FX::FXShell*> shownWindows();
  void checkLayout(FX::FXShell& window) const;
  void checkFields(const FX::FXShell& window) const;
  void checkCells(const FX::FXShell& window) const;
  void checkWhole(const PictureFile& picture) const;
  void checkTexts(const PictureFile& picture, const ScreenPicture& screen, const std::vector<FX::FXShell*>& windows);
  void checkText(const PictureFile& picture, const Area& area, const std::string& text);
  void report(const std::string& what) const;

  TestApplication& application_;
  XWindows display_;
  std::string folder_;
  std::vector<std::string> files_;
  size_t texts_ = 0;
};

}  // namespace Tour
