#include "ui/ClipboardText.h"

#include <FX88591Codec.h>
#include <FXUTF16Codec.h>

namespace Brontel::Plugin::ItemData::UI {

using FX::FXWindow;

bool readClipboard(const FXWindow& window, FX::FXString& text) {
  if (window.getDNDData(FX::FROM_CLIPBOARD, FXWindow::utf8Type, text)) return true;
  if (window.getDNDData(FX::FROM_CLIPBOARD, FXWindow::utf16Type, text)) {
    const FX::FXUTF16LECodec codec;
    text = codec.mb2utf(text);
    return true;
  }
  if (window.getDNDData(FX::FROM_CLIPBOARD, FXWindow::stringType, text)) {
    const FX::FX88591Codec codec;
    text = codec.mb2utf(text);
    return true;
  }
  return false;
}

}  // namespace Brontel::Plugin::ItemData::UI
