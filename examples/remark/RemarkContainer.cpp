#include "RemarkContainer.h"

#include "RemarkCheck.h"
#include "RemarkEntityPlugin.h"
#include "RemarkMenu.h"
#include "RemarkTable.h"
#include "Texts.h"
#include "host/ui/Morvane.h"
#include "host/ui/PixelIcon.h"

namespace Remarks {

namespace {

// [icon]
constinit const Brontel::PixelIcon::Gif icon_remark = Brontel::PixelIcon::gif(R"(
................
..bbbbbbbbbbbb..
.bwwwwwwwwwwwwb.
.bwwwwwwwwwwwwb.
.bwwddddddddwwb.
.bwwwwwwwwwwwwb.
.bwwddddddddwwb.
.bwwwwwwwwwwwwb.
.bwwdddddwwwwwb.
.bwwwwwwwwwwwwb.
..bbbwwwbbbbbb..
....bwwb........
....bwb.........
....bb..........
....b...........
................
)");
// [icon]

}  // namespace

// [container]
RemarkContainer::RemarkContainer(Brontel::Morvane* app)
    : PluginContainer(app, kTextDomain, "Megjegyzések", "1.0", "Megjegyzést fűz a számlák tételeihez."),
      icon_(Brontel::makeIcon(app, icon_remark)) {
  name_ = translate(name_.text());
  description_ = translate(description_.text());
}

FX::FXIcon* RemarkContainer::getIcon16() {
  return icon_.get();
}

int RemarkContainer::init() {
  modules_.append(new RemarkEntityPlugin(this));
  modules_.append(new RemarkCheck(this));
  modules_.append(new RemarkMenu(this));
  // Without a database there is nothing to prepare: `brontel-host plugins` only wants the names.
  MorvaneDatabase* database = getApp() == nullptr ? nullptr : getApp()->getDB();
  return database == nullptr || RemarkTable::create(database) ? 1 : 0;
}
// [container]

}  // namespace Remarks
