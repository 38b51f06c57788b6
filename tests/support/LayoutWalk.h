#pragma once

#include <string>
#include <vector>

#include <fx.h>

/// Walks over a window as it stands on the display and finds what nobody could read there: widgets smaller than their
/// texts need, cut off by what is around them or under others, lists without room for their lines, and whatever hangs
/// out of the screen. What a scroll bar brings into view is there.
class LayoutWalk {
 public:
  /// A table may have columns whose width does not depend on their headings.
  enum class Columns { FitHeadings, Settled };

  explicit LayoutWalk(Columns columns = Columns::FitHeadings) : columns_(columns) {}

  /// One line for each fault; none if all is well. The window is laid out already.
  std::vector<std::string> findFaults(FX::FXShell& window);

 private:
  void walk(FX::FXWindow& widget);
  void check(FX::FXWindow& widget);
  void checkHeader(FX::FXHeader& header);
  void checkTable(FX::FXTable& table);
  void checkScrollArea(FX::FXScrollArea& area);
  void checkInside(const FX::FXWindow& widget);
  void checkNotCovered(const FX::FXWindow& widget);
  void checkOnScreen(const FX::FXShell& window);
  void expectAtLeast(const FX::FXWindow& widget, const char* what, FX::FXint actual, FX::FXint needed);
  void report(const FX::FXWindow& widget, const std::string& fault);

  Columns columns_;
  std::vector<std::string> faults_;
};
