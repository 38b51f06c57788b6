#pragma once

// The second needs what the first defines.
// clang-format off
#include <fx.h>
#include <FXTranslator.h>
// clang-format on

namespace Brontel::App {

/// Gives the toolkit's own boxes the program's language.
class FoxTexts : public FX::FXTranslator {
  FXDECLARE_ABSTRACT(FoxTexts)

 public:
  /// Makes a new one the application's translator, in place of the one that it has. The application has read its
  /// settings already.
  static void install(FX::FXApp* app);

  explicit FoxTexts(FX::FXApp* app) : FXTranslator(app) {}

  /// What is not known stays as it is.
  const FX::FXchar* tr(const FX::FXchar* context, const FX::FXchar* message,
                       const FX::FXchar* hint = nullptr) const override;
};

}  // namespace Brontel::App
