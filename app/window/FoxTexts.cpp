#include "app/window/FoxTexts.h"

#include <cstring>

#include <libintl.h>

#include "app/Translation.h"

namespace Brontel::App {

FXIMPLEMENT_ABSTRACT(FoxTexts, FXTranslator, nullptr, 0)

namespace {

struct Text {
  const char* theirs;
  const char* ours;
};

constexpr Text kTexts[] = {
    {"&OK", gettext_noop("&OK")},
    {"&Yes", gettext_noop("&Igen")},
    {"&No", gettext_noop("&Nem")},
    {"&Cancel", gettext_noop("Mé&gsem")},
    {"&File Name:", gettext_noop("&Fájlnév:")},
    {"File F&ilter:", gettext_noop("&Típus:")},
    {"Read Only", gettext_noop("Csak olvasásra")},
    {"Directory:", gettext_noop("Mappa:")},
    {"&Set bookmark\t\tBookmark current directory.", gettext_noop("Könyvjelző &ide\t\tKönyvjelző ehhez a mappához.")},
    {"&Clear bookmarks\t\tClear bookmarks.", gettext_noop("Könyvjelzők &törlése\t\tKönyvjelzők törlése.")},
    {"\tGo up one directory\tMove up to higher directory.",
     gettext_noop("\tEggyel feljebb\tEggyel feljebb lévő mappa.")},
    {"\tGo to home directory\tBack to home directory.", gettext_noop("\tSaját mappa\tVissza a saját mappába.")},
    {"\tGo to work directory\tBack to working directory.", gettext_noop("\tMunkamappa\tVissza a munkamappába.")},
    {"\tBookmarks\tVisit bookmarked directories.", gettext_noop("\tKönyvjelzők\tMegjelölt mappák.")},
    {"\tCreate new directory\tCreate new directory.", gettext_noop("\tÚj mappa\tÚj mappa létrehozása.")},
    {"\tShow list\tDisplay directory with small icons.", gettext_noop("\tLista\tA mappa listaként.")},
    {"\tShow icons\tDisplay directory with big icons.", gettext_noop("\tIkonok\tA mappa nagy ikonokkal.")},
    {"\tShow details\tDisplay detailed directory listing.", gettext_noop("\tRészletek\tA mappa részletesen.")},
    {"\tShow hidden files\tShow hidden files and directories.",
     gettext_noop("\tRejtett fájlok is\tA rejtett fájlok és mappák is.")},
    {"\tHide Hidden Files\tHide hidden files and directories.",
     gettext_noop("\tRejtett fájlok nélkül\tA rejtett fájlok és mappák nélkül.")},
    {"Create New Directory", gettext_noop("Új mappa")},
    {"Create new directory with name: ", gettext_noop("Az új mappa neve: ")},
    {"Name", gettext_noop("Név")},
    {"Type", gettext_noop("Fajta")},
    {"Size", gettext_noop("Méret")},
    {"Modified Date", gettext_noop("Módosítva")},
    {"User", gettext_noop("Felhasználó")},
    {"Group", gettext_noop("Csoport")},
    {"Attributes", gettext_noop("Jogok")},
    // The calendar of the date fields.
    {"January", gettext_noop("január")},
    {"February", gettext_noop("február")},
    {"March", gettext_noop("március")},
    {"April", gettext_noop("április")},
    {"May", gettext_noop("május")},
    {"June", gettext_noop("június")},
    {"July", gettext_noop("július")},
    {"August", gettext_noop("augusztus")},
    {"September", gettext_noop("szeptember")},
    {"October", gettext_noop("október")},
    {"November", gettext_noop("november")},
    {"December", gettext_noop("december")},
    {"Mon", gettext_noop("H")},
    {"Tue", gettext_noop("K")},
    {"Wed", gettext_noop("Sze")},
    {"Thu", gettext_noop("Cs")},
    {"Fri", gettext_noop("P")},
    {"Sat", gettext_noop("Szo")},
    {"Sun", gettext_noop("V")},
};

}  // namespace

void FoxTexts::install(FX::FXApp* app) {
  delete app->getTranslator();
  app->setTranslator(new FoxTexts(app));
}

const FX::FXchar* FoxTexts::tr(const FX::FXchar*, const FX::FXchar* message, const FX::FXchar*) const {
  for (const Text& text : kTexts) {
    if (std::strcmp(message, text.theirs) == 0) return gettext(text.ours);
  }
  return message;
}

}  // namespace Brontel::App
