#pragma once

#include <memory>
#include <pango/pangocairo.h>

#include "app/print/Page.h"

namespace Brontel::App {

/// Lets go of what GLib counts the owners of.
struct Unref {
  void operator()(void* object) const { g_object_unref(object); }
};
template <typename Type>
using GlibPointer = std::unique_ptr<Type, Unref>;

/// The fonts of printed pages. One unit of what they measure is a point, whatever it is drawn on.
class TextFaces {
 public:
  TextFaces();

  /// An empty layout in that font. Paragraphs run in the given direction.
  GlibPointer<PangoLayout> makeLayout(Face face, bool isRightToLeft) const;

 private:
  GlibPointer<PangoFontMap> fonts_;
  GlibPointer<PangoContext> context_;
};

}  // namespace Brontel::App
