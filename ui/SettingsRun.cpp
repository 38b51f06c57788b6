#include "ui/SettingsRun.h"

#include <libintl.h>

#include "host/database/MorvaneDatabase.h"
#include "host/database/Transaction.h"
#include "host/message/FillIn.h"
#include "host/ui/DBTable.h"
#include "host/ui/Legibility.h"
#include "host/ui/Morvane.h"
#include "itemdata/Codes.h"
#include "ui/ItemDataSettingsPanel.h"
#include "ui/ItemDataSettingsPersister.h"

namespace Brontel::Plugin::ItemData {

using FX::FXString;

namespace {

constexpr int kWidth = 600;
constexpr int kHeight = 400;

}  // namespace

long SettingsRun::run() {
  ItemDataSettingsPanel panel(&container_, &app_);
  panel.setWidth(kWidth);
  panel.setHeight(kHeight);
  FX::FXuint accepted = panel.execute(FX::PLACEMENT_CURSOR);
  long result = 1;
  // What the database refuses is shown by the host, which hears of it from its handle.
  while (accepted != 0 && !save(panel, Overwriting::Ask, result)) accepted = panel.resume();
  return accepted == 0 ? 1 : result;
}

bool SettingsRun::save(ItemDataSettingsPanel& panel, Overwriting overwriting, long& result) {
  ItemDataSettingsPersister persister(app_.getDB());
  if (app_.getDB() == nullptr) {
    result = panel.save(&persister) ? 1 : 0;
    return true;
  }
  FXString overtaken;
  {
    Database::Transaction transaction(*app_.getDB());
    if (!transaction.isOpen()) return false;
    if (overwriting == Overwriting::Ask) overtaken = panel.getOvertakenNames();
    if (overtaken.empty()) {
      result = panel.save(&persister) ? 1 : 0;
      if (transaction.commit()) return true;
      panel.getTable()->keepUnsaved();
      return false;
    }
  }
  panel.show();
  return confirmOverwriting(panel) && save(panel, Overwriting::Allowed, result);
}

bool SettingsRun::confirmOverwriting(ItemDataSettingsPanel& panel) {
  const FXString question = fillIn(
      dgettext(kTextDomain, "Ezeket közben más is módosította:\n\n%s\n\nFelülírja az ő módosításait az itteniekkel?"),
      {panel.getOvertakenNames()});
  const FX::FXuint answer =
      FX::FXMessageBox::question(&panel, FX::MBOX_YES_NO, dgettext(kTextDomain, "Közben megváltozott"), "%s",
                                 wrappedForBox(panel.getApp(), question).text());
  return answer == FX::MBOX_CLICKED_YES;
}

}  // namespace Brontel::Plugin::ItemData
