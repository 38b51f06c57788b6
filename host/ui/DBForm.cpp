#include "host/ui/DBForm.h"

namespace Brontel {

using FX::FXint;
using FX::FXString;
using FX::FXuint;

FXDEFMAP(DBForm)
dbFormMap[] = {
    FXMAPFUNC(FX::SEL_CHORE, DBForm::ID_CHECK_ALL, DBForm::onCheckAll),
};

FXIMPLEMENT_ABSTRACT(DBForm, FXTopWindow, dbFormMap, ARRAYNUMBER(dbFormMap))

DBForm::DBForm(FX::FXApp* app, const FXString& title, FXuint options, FXint width, FXint height)
    : FXTopWindow(app, title, nullptr, nullptr, options, 0, 0, width, height, 0, 0, 0, 0, 4, 4) {}

DBForm::~DBForm() {
  getApp()->removeChore(this, ID_CHECK_ALL);
}

void DBForm::proposeCheckAll() {
  getApp()->addChore(this, ID_CHECK_ALL);
}

long DBForm::onCheckAll(FX::FXObject*, FX::FXSelector, void*) {
  checkAll();
  return 1;
}

}  // namespace Brontel
