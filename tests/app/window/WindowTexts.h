#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include <fx.h>

/// Gathers what the windows of an application say, in labels, buttons, tool tips, menus and their help, titles and
/// headings. What is recorded, typed or listed is not gathered but for the choices of a list box.
class WindowTexts {
 public:
  /// Adds the texts of all windows that there are, shown or not.
  void gather(const FX::FXWindow& root);

  const std::set<std::string>& all() const { return texts_; }

  /// Letters that stand for more than one thing in the same menu, or in the same window as it stands: "Window: a, b".
  static std::vector<std::string> findKeyClashes(const FX::FXWindow& root);

 private:
  void add(const FX::FXString& text);
  void addHeadings(const FX::FXWindow& widget);

  std::set<std::string> texts_;
};
