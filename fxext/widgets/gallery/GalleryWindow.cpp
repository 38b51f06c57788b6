#include "fxext/widgets/gallery/GalleryWindow.h"

#include "fxext/widgets/FXComboBox.h"
#include "fxext/widgets/FXDateInput.h"
#include "fxext/widgets/FXDatePicker.h"
#include "fxext/widgets/FXDatePickerLabel.h"
#include "fxext/widgets/FXDualList.h"

using namespace FX;

namespace {

constexpr FXint kManyItems = 2000;
constexpr FXint kVisibleItems = 7;

FXIcon* newIcon(FXApp* app) {
  constexpr FXint kSide = 12;
  auto* icon = new FXIcon(app, nullptr, 0, IMAGE_OWNED | IMAGE_KEEP, kSide, kSide);
  for (FXint y = 0; y < kSide; ++y) {
    for (FXint x = 0; x < kSide; ++x) {
      const bool edge = x == 0 || y == 0 || x == kSide - 1 || y == kSide - 1;
      icon->setPixel(x, y, edge ? FXRGB(60, 60, 60) : FXRGB(255, 190, 60));
    }
  }
  return icon;
}

FXString numbered(FXint count) {
  FXString lines;
  for (FXint i = 1; i <= count; ++i) lines.append(FXStringFormat("item %04d\n", i));
  return lines;
}

FXVerticalFrame* newGroup(FXComposite* parent, const FXString& title, FXuint opts) {
  auto* box = new FXGroupBox(parent, title, GROUPBOX_NORMAL | FRAME_GROOVE | opts);
  return new FXVerticalFrame(box, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0);
}

}  // namespace

GalleryWindow::GalleryWindow(FXApp* app)
    : FXMainWindow(app, "Gallery of widgets", nullptr, nullptr, DECOR_ALL), icon_(newIcon(app)) {
  auto* top = new FXHorizontalFrame(this, LAYOUT_FILL_X);
  auto* entries = new FXVerticalFrame(top, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0);
  const FXuint matrix = MATRIX_BY_COLUMNS | LAYOUT_FILL_X;
  addComboBoxes_(new FXMatrix(newGroup(entries, "Combo boxes", LAYOUT_FILL_X), 2, matrix));
  addDateInputs_(new FXMatrix(newGroup(entries, "Date inputs", LAYOUT_FILL_X), 2, matrix));
  auto* calendars = newGroup(top, "Date pickers", LAYOUT_FILL_Y);
  addPickers_(calendars);
  addCells_(calendars);
  addDualLists_(newGroup(this, "Dual lists", LAYOUT_FILL_X | LAYOUT_FILL_Y));
}

GalleryWindow::~GalleryWindow() = default;

long GalleryWindow::handle(FXObject* sender, FXSelector sel, void* ptr) {
  if (sel == FXSEL(SEL_MAP, 0)) mapped_ = true;
  return FXMainWindow::handle(sender, sel, ptr);
}

bool GalleryWindow::open(const FXString& what) {
  if (what == "year") {
    firstPicker_->showSpinner();
    return true;
  }
  FXWindow* const widget = what == "combo" ? firstComboBox_ : what == "date" ? firstDateInput_ : nullptr;
  if (!widget) return false;
  widget->getLast()->setFocus();
  return widget->getLast()->handle(this, FXSEL(SEL_COMMAND, ID_POST), nullptr) != 0;
}

FXDataTarget* GalleryWindow::newTarget_(const FXString& value) {
  values_.push_back(std::make_unique<FXString>(value));
  targets_.push_back(std::make_unique<FXDataTarget>(*values_.back()));
  return targets_.back().get();
}

void GalleryWindow::addComboBox_(FXMatrix* matrix, const FXString& title, FXuint opts, const FXString& items,
                                 const FXString& value, bool enabled) {
  new FXLabel(matrix, title, nullptr, LAYOUT_CENTER_Y);
  auto* box = new FXExt::FXComboBox(matrix, 22, newTarget_(value), FXDataTarget::ID_VALUE,
                                    opts | FRAME_SUNKEN | FRAME_THICK | LAYOUT_FILL_X | LAYOUT_FILL_COLUMN);
  box->fillItems(items);
  box->setNumVisible(FXMIN(10, FXMAX(1, box->getNumItems())));
  if (!enabled) box->disable();
  if (!firstComboBox_) firstComboBox_ = box;
}

void GalleryWindow::addComboBoxes_(FXMatrix* matrix) {
  addComboBox_(matrix, "accented", COMBOBOX_STATIC, " \nalma\nárvíztűrő\néger\nőszibarack\nűrhajó\nzöldség\n",
               "őszibarack");
  addComboBox_(matrix, "editable", COMBOBOX_NORMAL, "one\ntwo\nthree\n", "anything");
  addComboBox_(matrix, "many items", COMBOBOX_STATIC, numbered(kManyItems), "item 1234");
  addComboBox_(matrix, "long texts", COMBOBOX_STATIC,
               "a text that is so long that no field of any reasonable width could ever show it whole\nshort\n",
               "a text that is so long that no field of any reasonable width could ever show it whole");
  addComboBox_(matrix, "empty", COMBOBOX_STATIC, "", "");
  addComboBox_(matrix, "disabled", COMBOBOX_STATIC, "one\ntwo\n", "one", false);
}

void GalleryWindow::addDateInput_(FXMatrix* matrix, const FXString& title, const FXString& value, bool enabled) {
  new FXLabel(matrix, title, nullptr, LAYOUT_CENTER_Y);
  auto* input = new FXExt::FXDateInput(matrix, &holidays_, newTarget_(value), FXDataTarget::ID_VALUE,
                                       FRAME_SUNKEN | FRAME_THICK | LAYOUT_FILL_X | LAYOUT_FILL_COLUMN);
  if (!enabled) input->disable();
  if (!firstDateInput_) firstDateInput_ = input;
}

void GalleryWindow::addDateInputs_(FXMatrix* matrix) {
  addDateInput_(matrix, "date", "2024.08.20");
  addDateInput_(matrix, "empty", "");
  addDateInput_(matrix, "no date", "sometime next year, perhaps in autumn");
  addDateInput_(matrix, "disabled", "2024.12.25", false);
}

void GalleryWindow::addPickers_(FXComposite* parent) {
  auto* rows = new FXMatrix(parent, 3, MATRIX_BY_COLUMNS, 0, 0, 0, 0, 0, 0, 0, 0, 8, 8);
  const auto newPicker = [this, rows] { return new FXExt::FXDatePicker(rows, &holidays_, nullptr, 0, FRAME_LINE); };
  firstPicker_ = newPicker();
  // Six rows, a holiday on a weekend, another on a weekday, and a selected day.
  newPicker()->setSelectedDate(FXDate(2022, 10, 20));
  newPicker()->setSelectedDate(FXDate(2022, 10, 1));
  auto* entering = newPicker();
  entering->setSelectedDate(FXDate(2024, 9, 30));
  entering->showSpinner();
  auto* coloured = newPicker();
  coloured->setSelectedDate(FXDate(2024, 2, 29));
  coloured->setMonthBkColor(FXRGB(250, 220, 150));
  coloured->setYearBkColor(FXRGB(190, 225, 250));
  coloured->setSelectionBkColor(FXRGB(0, 110, 60));
  auto* disabled = newPicker();
  disabled->setSelectedDate(FXDate(2023, 12, 24));
  disabled->disable();
}

// Every combination of today, weekend, holiday and selected.
void GalleryWindow::addCells_(FXComposite* parent) {
  auto* row = new FXHorizontalFrame(parent, FRAME_LINE, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
  for (FXuint marks = 0; marks < 16; ++marks) {
    const bool weekend = marks & 1;
    const bool holiday = marks & 2;
    const FXDate date(2022, 10, weekend ? (holiday ? 1 : 2) : 3);
    const FXDate feast(2018, 10, 23);
    auto* cell = new FXExt::FXDatePickerLabel(row, nullptr, 0, LAYOUT_FILL_Y, 0, 0, 0, 0, 7, 7, 3, 3);
    const FXDate shown = holiday && !weekend ? feast : date;
    cell->init(shown, marks & 4 ? shown : FXDate(2000, 1, 1), &holidays_);
    if (marks & 8) {
      cell->select();
    } else {
      cell->deselect();
    }
  }
}

void GalleryWindow::fill_(FXExt::FXDualList* lists, FXint items) {
  for (FXint i = 1; i <= items; ++i) {
    lists->appendFromListItem(FXStringFormat("available %d", i), icon_.get(), nullptr);
    lists->appendToListItem(FXStringFormat("chosen %d", i), i % 3 ? nullptr : icon_.get(), nullptr);
  }
}

void GalleryWindow::addDualLists_(FXComposite* parent) {
  auto* rows = new FXMatrix(parent, 2, MATRIX_BY_COLUMNS | LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0);
  const auto newLists = [rows](const FXString& from, const FXString& to) {
    auto* lists =
        new FXExt::FXDualList(rows, from, to, LAYOUT_FILL_X | LAYOUT_FILL_Y | LAYOUT_FILL_COLUMN | LAYOUT_FILL_ROW);
    lists->getFromList()->setNumVisible(kVisibleItems);
    return lists;
  };
  auto* usual = newLists("Választható mezők", "Kiválasztott mezők");
  fill_(usual, 3);
  usual->appendFromListItem("szállítólevél száma, amely igen hosszú is lehet", icon_.get(), nullptr);
  usual->getToList()->selectItem(1);
  usual->getToList()->selectItem(2);
  fill_(newLists("many", "items"), kManyItems);
  newLists("empty", "lists");
  auto* disabled = newLists("disabled", "lists");
  fill_(disabled, 3);
  disabled->disable();
}
