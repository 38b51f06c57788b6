#pragma once

// clang-format off
#include <fx.h>  // Before its parts.
#include <FXTranslator.h>
// clang-format on

/// Names the months and weekdays in Hungarian, to show what the widgets look like translated.
class HungarianNames : public FX::FXTranslator {
 public:
  explicit HungarianNames(FX::FXApp* app) : FX::FXTranslator(app) {}

  const FX::FXchar* tr(const FX::FXchar* context, const FX::FXchar* message, const FX::FXchar* hint) const override;
};
