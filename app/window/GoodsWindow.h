#pragma once

#include "host/entity/InvoiceItem.h"

namespace Brontel {
class GoodsDataWindow;
}

namespace Brontel::App {

class Workspace;

/// Opens the window of a product, service or suite, or of a new one (0), as one of the workspace's windows, and tells
/// the workspace when it has saved. A stored record that has a window already gets no second one: that window is
/// raised. Null, and a box that says why, when the record cannot be opened.
GoodsDataWindow* openGoodsWindow(Workspace& workspace, FX::FXWindow* owner, GoodsKind kind, int id);

}  // namespace Brontel::App
