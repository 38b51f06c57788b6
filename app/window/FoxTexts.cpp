#include "app/window/FoxTexts.h"

#include <cstring>
#include <utility>

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
    {"&Save", gettext_noop("&Mentés")},
    {"&Don't Save", gettext_noop("&Ne mentse")},
    {"Ready.", gettext_noop("Kész.")},
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
    {"Already Exists", gettext_noop("Már létezik")},
    {"File or directory %s already exists.\n", gettext_noop("Ez a fájl vagy mappa már létezik: %s\n")},
    {"Cannot Create", gettext_noop("Nem hozható létre")},
    {"Cannot create directory %s.\n", gettext_noop("Ez a mappa nem hozható létre: %s\n")},
    {"Copy File", gettext_noop("Fájl másolása")},
    {"Copy file from location:\n\n%s\n\nto location: ", gettext_noop("Másolás innen:\n\n%s\n\nide: ")},
    {"Error Copying File", gettext_noop("A másolás nem sikerült")},
    {"Unable to copy file:\n\n%s  to:  %s\n\nContinue with operation?",
     gettext_noop("Nem másolható:\n\n%s\nide: %s\n\nFolytatja?")},
    {"Move File", gettext_noop("Fájl áthelyezése")},
    {"Move file from location:\n\n%s\n\nto location: ", gettext_noop("Áthelyezés innen:\n\n%s\n\nide: ")},
    {"Error Moving File", gettext_noop("Az áthelyezés nem sikerült")},
    {"Unable to move file:\n\n%s  to:  %s\n\nContinue with operation?",
     gettext_noop("Nem helyezhető át:\n\n%s\nide: %s\n\nFolytatja?")},
    {"Link File", gettext_noop("Hivatkozás fájlra")},
    {"Link file from location:\n\n%s\n\nto location: ", gettext_noop("Hivatkozás erre:\n\n%s\n\ninnen: ")},
    {"Error Linking File", gettext_noop("A hivatkozás nem sikerült")},
    {"Unable to link file:\n\n%s  to:  %s\n\nContinue with operation?",
     gettext_noop("Nem hozható létre hivatkozás erre:\n\n%s\ninnen: %s\n\nFolytatja?")},
    {"Deleting files", gettext_noop("Fájlok törlése")},
    {"Are you sure you want to delete the file:\n\n%s", gettext_noop("Valóban törli ezt a fájlt?\n\n%s")},
    {"Error Deleting File", gettext_noop("A törlés nem sikerült")},
    {"Unable to delete file:\n\n%s\n\nContinue with operation?", gettext_noop("Nem törölhető:\n\n%s\n\nFolytatja?")},
    // The file dialog's pop-up menu.
    {"Up one level", gettext_noop("Eggyel feljebb")},
    {"Home directory", gettext_noop("Saját mappa")},
    {"Work directory", gettext_noop("Munkamappa")},
    {"Select all", gettext_noop("Az összes kijelölése")},
    {"Sort by", gettext_noop("Rendezés")},
    {"Time", gettext_noop("Idő")},
    {"Reverse", gettext_noop("Fordítva")},
    {"Ignore case", gettext_noop("Kis- és nagybetű egyre megy")},
    {"View", gettext_noop("Nézet")},
    {"Small icons", gettext_noop("Kis ikonok")},
    {"Big icons", gettext_noop("Nagy ikonok")},
    {"Details", gettext_noop("Részletek")},
    {"Rows", gettext_noop("Sorok")},
    {"Columns", gettext_noop("Oszlopok")},
    {"Hidden files", gettext_noop("Rejtett fájlok")},
    {"Preview images", gettext_noop("Képek előnézete")},
    {"Normal images", gettext_noop("Kis képek")},
    {"Medium images", gettext_noop("Közepes képek")},
    {"Giant images", gettext_noop("Óriási képek")},
    {"Bookmarks", gettext_noop("Könyvjelzők")},
    {"Set bookmark", gettext_noop("Könyvjelző ide")},
    {"Clear bookmarks", gettext_noop("Könyvjelzők törlése")},
    {"New directory...", gettext_noop("Új mappa...")},
    {"Copy...", gettext_noop("Másolás...")},
    {"Move...", gettext_noop("Áthelyezés...")},
    {"Link...", gettext_noop("Hivatkozás...")},
    {"Delete...", gettext_noop("Törlés...")},
    // The file list's headers.
    {"Name", gettext_noop("Név")},
    {"Type", gettext_noop("Fajta")},
    {"Size", gettext_noop("Méret")},
    {"Modified Date", gettext_noop("Módosítva")},
    {"User", gettext_noop("Felhasználó")},
    {"Group", gettext_noop("Csoport")},
    {"Attributes", gettext_noop("Jogok")},
    {"Link", gettext_noop("Hivatkozás")},
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

// The file dialog's kinds of files are not translated but taken from the settings: command;name;icons.
void nameKindsOfFiles(FX::FXSettings& settings) {
  const std::pair<const char*, const char*> kinds[] = {{"defaultdirbinding", gettext("Mappa")},
                                                       {"defaultexecbinding", gettext("Program")},
                                                       {"defaultfilebinding", gettext("Fájl")}};
  for (const auto& [key, name] : kinds) {
    settings.writeStringEntry("FILETYPES", key, (";" + FX::FXString(name)).text());
  }
}

}  // namespace

void FoxTexts::install(FX::FXApp* app) {
  delete app->getTranslator();
  app->setTranslator(new FoxTexts(app));
  nameKindsOfFiles(app->reg());
}

const FX::FXchar* FoxTexts::tr(const FX::FXchar*, const FX::FXchar* message, const FX::FXchar*) const {
  for (const Text& text : kTexts) {
    if (std::strcmp(message, text.theirs) == 0) return gettext(text.ours);
  }
  return message;
}

}  // namespace Brontel::App
