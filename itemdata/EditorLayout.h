#pragma once

#include <fx.h>

namespace Brontel::Plugin::ItemData {

/// How the editors of all kinds of cells look: a line around them, as wide as their column allows, and little padding.
constexpr FX::FXuint kEditorOptions = FX::FRAME_SUNKEN | FX::FRAME_RAISED | FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_COLUMN;
constexpr FX::FXint kEditorColumns = 2;
constexpr FX::FXint kEditorPad = 2;

static_assert(kEditorOptions == 0x3401);

}  // namespace Brontel::Plugin::ItemData
