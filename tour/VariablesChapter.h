#pragma once

#include "tour/Chapter.h"
#include "tour/Story.h"

namespace Tour {

/// New variables are defined in the plug-in's settings.
class VariablesChapter : public Chapter {
 public:
  using Chapter::Chapter;
  void play() override;

 private:
  void lookAtMain();
  void fillIn(FX::FXWindow& dialog);
  void addVariable(FX::FXTable& table, const Story::Variable& variable);
  void chooseType(FX::FXTable& table, FX::FXint row, const Story::Variable& variable);
};

}  // namespace Tour
