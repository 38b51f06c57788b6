#pragma once

#include <fx.h>

/// Windows for people who have chosen bigger letters than the usual ones, and for small screens. Sizes depend on the
/// application's normal font, which is on the display before any window is created.
namespace Brontel {

/// A size that is meant for the usual letters, for those that the application has; never smaller.
FX::FXint scaledToFont(const FX::FXApp* app, FX::FXint pixels);

/// Gives a window a size that is meant for the usual letters: more if the letters or the content need it, and never
/// more than the screen has beside a frame and a panel.
void resizeToFont(FX::FXTopWindow& window, FX::FXint width, FX::FXint height);

/// Puts a window there in that size, as far as the screen allows: a smaller one than it has been left on, say.
void placeOnScreen(FX::FXTopWindow& window, FX::FXint x, FX::FXint y, FX::FXint width, FX::FXint height);

/// Makes a table's rows, those to come as well, at least as high as its letters.
void fitRows(FX::FXTable& table);

/// Breaks the lines of a text that are longer than that in a font: at a blank, behind a "/", or else anywhere.
FX::FXString wrapped(const FX::FXString& text, const FX::FXFont& font, FX::FXint width);

/// A text for a box on the screen: its lines are broken, and what would be too many of them is left out.
FX::FXString wrappedForBox(const FX::FXApp* app, const FX::FXString& text);

}  // namespace Brontel
