#pragma once

#include <fx.h>

/// Boxes that tell or ask the person something. Texts are translated already and shown as they are; the owner must be
/// on the screen, null means the screen itself.
namespace Brontel::App::Dialogs {

void showError(FX::FXWindow* owner, const FX::FXString& text);
void showInformation(FX::FXWindow* owner, const FX::FXString& title, const FX::FXString& text);

/// Yes or no. Closing the box is a no.
bool confirm(FX::FXWindow* owner, const FX::FXString& title, const FX::FXString& question);

enum class Answer { Yes, No, Cancel };
/// Whether unsaved changes are to be saved. Closing the box is a cancel.
Answer askToSave(FX::FXWindow* owner, const FX::FXString& question);

/// The name of a file to write, or empty when the person changed their mind.
FX::FXString askForFile(FX::FXWindow* owner, const FX::FXString& title, const FX::FXString& suggestion,
                        const FX::FXString& patterns);
/// The name of a new file to write, or empty when the person changed their mind. An existing file is asked
/// about first.
FX::FXString askForNewFile(FX::FXWindow* owner, const FX::FXString& title, const FX::FXString& suggestion,
                           const FX::FXString& patterns);

/// The beginning of a text that may be too long for a box.
FX::FXString shortened(const FX::FXString& text);

}  // namespace Brontel::App::Dialogs
