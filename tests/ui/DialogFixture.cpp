#include "tests/ui/DialogFixture.h"

#include "itemdata/Codes.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXint;

namespace {

constexpr const char* kChoices = "piros,kék";

}  // namespace

DialogFixture::DialogFixture(MorvaneDatabase* database)
    : app(database), form(new FX::FXMainWindow(app.get(), "form", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 300, 200)) {
  item.setName("Alma");
  app.create();
  form->show(FX::PLACEMENT_DEFAULT);
}

DialogFixture::~DialogFixture() = default;

std::unique_ptr<ItemDataList> DialogFixture::settingsOf(const std::vector<Variable>& variables) {
  auto settings = std::make_unique<ItemDataList>();
  for (const Variable& variable : variables) {
    ItemDataEntry* cell = newCell(variable.type, variable.id, variable.perUnit ? 1 : 0);
    cell->name = variable.name;
    cell->process = variable.perUnit ? 1 : 0;
    if (variable.type == TYPE_LIST) cell->vvalue = kChoices;
    if (variable.perUnit && settings->firstRowIndex < 0) settings->firstRowIndex = settings->no();
    if (variable.perUnit) ++settings->columns;
    settings->append(cell);
  }
  settings->rows = settings->columns > 0 ? 1 : 0;
  return settings;
}

std::unique_ptr<ItemDataList> DialogFixture::perUnitSettings() {
  return settingsOf({{TYPE_QUANTITY, VARIABLE_QUANTITY, "Mennyiség", true},
                     {TYPE_TEXT, 12, "Sarzs", true},
                     {TYPE_LIST, 13, "Szín", true}});
}

std::unique_ptr<ItemDataList> DialogFixture::perItemSettings() {
  return settingsOf(
      {{TYPE_TEXT, 11, "Megjegyzés", false}, {TYPE_DATE, 14, "Garancia", false}, {TYPE_LIST, 15, "Típus", false}});
}

ItemDataList& DialogFixture::newRows(const std::vector<std::vector<std::string>>& rows, bool stored) {
  ItemDataList& list = newListOf(perUnitSettings());
  for (size_t i = 0; i < rows.size(); ++i) {
    const int number = static_cast<int>(i) + 1;
    addRow(list, number, rows[i][0], rows[i][1], rows[i][2], stored ? 98 + 3 * number : 0);
    list.at(list.no() - 1)->vvalue = kChoices;
  }
  return list;
}

ItemDataDialog& DialogFixture::build() {
  dialog = std::make_unique<ItemDataDialog>(form, &item);
  return *dialog;
}

ItemDataDialog& DialogFixture::open() {
  build();
  dialog->create();
  dialog->show(FX::PLACEMENT_SCREEN);
  app.waitUntil([this] { return dialog->shown() && dialog->getHeight() > 1; });
  user.giveKeyboardTo(dialog.get());
  return *dialog;
}

UI::ItemDataTable* DialogFixture::table() const {
  const auto tables = descendantsOf<UI::ItemDataTable>(dialog.get());
  return tables.empty() ? nullptr : tables.front();
}

FX::FXButton* DialogFixture::okButton() const {
  FX::FXButton* found = nullptr;
  for (FX::FXButton* button : descendantsOf<FX::FXButton>(dialog.get())) {
    if (button->getTarget() == dialog.get()) found = button;
  }
  return found;
}

FX::FXWindow* DialogFixture::focus() const {
  FX::FXWindow* window = dialog.get();
  while (window->getFocus() != nullptr) window = window->getFocus();
  return window;
}

DialogFixture::Texts DialogFixture::shown() const {
  Texts rows;
  for (FXint row = 0; row < table()->getNumRows(); ++row) {
    std::string text;
    for (FXint col = 0; col < table()->getNumColumns(); ++col) {
      if (col > 0) text += "|";
      text += table()->getEntry(row, col) == nullptr ? "-" : table()->getItemText(row, col).text();
    }
    rows.push_back(text);
  }
  return rows;
}

std::string DialogFixture::cursor() const {
  return std::to_string(table()->getCurrentRow()) + "," + std::to_string(table()->getCurrentColumn());
}

DialogFixture::Texts DialogFixture::headers() const {
  Texts texts;
  for (FXint col = 0; col < table()->getNumColumns(); ++col) texts.emplace_back(table()->getColumnText(col).text());
  return texts;
}

void DialogFixture::clickCell(FXint row, FXint col, int button) {
  user.clickAt(table(), cellX(col), cellY(row), button);
}

void DialogFixture::goTo(FXint row, FXint col) {
  table()->setFocus();
  table()->killSelection();
  table()->setCurrentItem(row, col);
  user.settle();
}
