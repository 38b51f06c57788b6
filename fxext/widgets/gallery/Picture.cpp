#include "fxext/widgets/gallery/Picture.h"

#include <FXPNGImage.h>

using namespace FX;

Picture::Picture(const FXWindow* window)
    : image_(window->getApp(), nullptr, 0, window->getWidth(), window->getHeight()) {
  image_.create();
  const FXWindow* root = window->getRoot();
  FXint x = 0;
  FXint y = 0;
  window->translateCoordinatesTo(x, y, root, 0, 0);
  {
    FXDCWindow dc(&image_);
    dc.clipChildren(FALSE);
    dc.drawArea(root, x, y, image_.getWidth(), image_.getHeight(), 0, 0);
  }
  image_.restore();
}

FXColor Picture::at(FXint x, FXint y) const {
  if (x < 0 || y < 0 || x >= width() || y >= height()) return FXRGB(0, 0, 0);
  return image_.getPixel(x, y);
}

bool Picture::save(const FXString& file) const {
  FXFileStream stream;
  if (!stream.open(file, FXStreamSave)) return false;
  const bool saved = fxsavePNG(stream, image_.getData(), width(), height());
  return stream.close() && saved;
}
