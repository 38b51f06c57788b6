#pragma once

#include <string>
#include <vector>

#include "tour/Stage.h"

namespace Tour {

/// A part of the story: somebody does something, and then the widgets' texts and the rows of the database are compared
/// with what it should have come to. What differs is reported as a failure.
class Chapter {
 public:
  /// Borrows the stage.
  explicit Chapter(Stage& stage) : stage_(stage), user_(stage.user) {}
  Chapter(const Chapter&) = delete;
  Chapter& operator=(const Chapter&) = delete;
  virtual ~Chapter() = default;

  virtual void play() = 0;

 protected:
  using Rows = Stage::Rows;
  using Texts = std::vector<std::string>;

  static void expect(const std::string& what, const std::string& actual, const std::string& expected);
  static void expect(const std::string& what, const Texts& actual, const Texts& expected);
  static void expectRows(const std::string& sql, const Rows& expected);

  /// Takes a picture with the pointer out of the way, or where it is: leaving a menu would change it.
  void picture(const std::string& name);
  void pictureAsItIs(const std::string& name) { stage_.album.take(name); }

  static std::string titleOf(const FX::FXWindow& window);
  static bool isSeen(const FX::FXWindow* widget);
  /// The first widget of a kind that is in view below a window; null, and a failure, when there is none.
  template <typename Widget>
  static Widget* firstSeen(const FX::FXWindow& window) {
    for (Widget* widget : descendantsOf<Widget>(&window)) {
      if (isSeen(widget)) return widget;
    }
    failToFind(window, "such widget");
    return nullptr;
  }

  /// Clicks on the button with that text.
  void press(const FX::FXWindow& window, const std::string& text);
  /// Clicks on the entry with that text in a menu that is open.
  void choose(const FX::FXWindow& menu, const std::string& text);
  /// Opens a menu of a window's bar by its title; null, and a failure, without one.
  FX::FXWindow* openMenu(const FX::FXWindow& window, const std::string& title);
  /// Replaces a field's text.
  void typeInto(FX::FXTextField* field, const std::string& text);
  /// Clicks on a line of a list.
  void clickLine(FX::FXList* list, const std::string& text, bool isDouble = false);
  /// Double clicks on a line of a list with columns.
  void doubleClickLine(FX::FXIconList* list, FX::FXint line);

  /// The texts of a table's or a list's row, separated by "|".
  static std::string rowOf(const FX::FXTable& table, FX::FXint row, FX::FXint columns);
  static Texts linesOf(const FX::FXIconList& list);

  Stage& stage_;
  DialogUser& user_;

 private:
  static void failToFind(const FX::FXWindow& window, const std::string& what);
};

}  // namespace Tour
