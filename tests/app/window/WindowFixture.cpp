#include "tests/app/window/WindowFixture.h"

#include "app/PluginStart.h"
#include "app/SampleData.h"
#include "app/window/FoxTexts.h"
#include "app/window/InvoiceActions.h"
#include "tests/app/AppTest.h"
#include "tests/support/TestDatabase.h"

using Brontel::App::HostDatabase;
using Brontel::App::InvoiceActions;
using Brontel::App::PluginStart;
using Brontel::App::SampleData;

WindowFixture::WindowFixture(const std::string& screen)
    : application(nullptr, screen), loader(application.get(), registry), user(application) {
  Brontel::App::FoxTexts::install(application.get());
  EXPECT_TRUE(database.open(path.c_str(), HostDatabase::Use::Create));
  PluginStart start(*application.get(), database, loader);
  EXPECT_TRUE(start.load(pluginFolder().c_str())) << start.getError().text();
  EXPECT_TRUE(database.markComplete());
  EXPECT_EQ(SampleData(database.handle()).insert(), SampleData::Result::Done);
  workspace = std::make_unique<Brontel::App::Workspace>(*application.get(), database, registry, loader);
  application.create();
}

WindowFixture::~WindowFixture() {
  user.settle();
  for (FX::FXWindow* window = application->getRootWindow()->getFirst(); window != nullptr;) {
    auto* top = dynamic_cast<FX::FXTopWindow*>(window);
    window = window->getNext();
    const bool isOurs = dynamic_cast<InvoiceEditForm*>(top) != nullptr || dynamic_cast<MainWindow*>(top) != nullptr;
    if (!isOurs) continue;
    delete top;
    window = application->getRootWindow()->getFirst();
  }
  workspace.reset();
  loader.unload();
  application->setDB(nullptr);
}

WindowFixture::MainWindow& WindowFixture::openMain(const std::vector<FX::FXString>& notices) {
  auto* window = new MainWindow(*workspace, notices);
  window->create();
  user.giveKeyboardTo(window);
  user.settle();
  return *window;
}

WindowFixture::InvoiceEditForm& WindowFixture::newestForm() {
  InvoiceEditForm* form = nullptr;
  for (Brontel::App::OpenWindow* window : workspace->getWindows()) {
    if (auto* candidate = dynamic_cast<InvoiceEditForm*>(window)) form = candidate;
  }
  EXPECT_NE(form, nullptr);
  user.giveKeyboardTo(form);
  user.settle();
  return *form;
}

WindowFixture::InvoiceEditForm& WindowFixture::open(int id) {
  EXPECT_NE(InvoiceActions(*workspace, nullptr).open(id), nullptr);
  return newestForm();
}

WindowFixture::InvoiceEditForm& WindowFixture::openNew() {
  EXPECT_NE(InvoiceActions(*workspace, nullptr).createNew(), nullptr);
  return newestForm();
}

FX::FXButton* WindowFixture::findButton(const FX::FXWindow& window, const std::string& text) {
  for (FX::FXButton* button : descendantsOf<FX::FXButton>(&window)) {
    if (button->getText() == text.c_str()) return button;
  }
  return nullptr;
}

void WindowFixture::answerNext(const std::string& button) {
  user.whenModal([this, button](FX::FXWindow& box) {
    std::string said;
    for (const FX::FXLabel* label : descendantsOf<FX::FXLabel>(&box)) {
      if (dynamic_cast<const FX::FXButton*>(label) == nullptr) said += label->getText().text();
    }
    boxes_.push_back(said);
    FX::FXButton* found = findButton(box, button);
    ASSERT_NE(found, nullptr) << said;
    user.click(found);
  });
}

void WindowFixture::command(FX::FXWindow& window, FX::FXuint id) {
  window.handle(nullptr, FXSEL(FX::SEL_COMMAND, id), nullptr);
  user.settle();
}

void WindowFixture::clickCell(InvoiceEditForm& form, FX::FXint row, FX::FXint column, int button) {
  const ItemGrid* grid = form.getGrid();
  user.clickAt(grid, grid->getColumnX(column) + grid->getColumnWidth(column) / 2,
               grid->getRowY(row) + grid->getRowHeight(row) / 2, button);
}

std::string WindowFixture::rowText(InvoiceEditForm& form, FX::FXint row) {
  std::string text;
  for (FX::FXint column = 0; column < ItemGrid::DATA; ++column) {
    if (column > 0) text += "|";
    text += form.getGrid()->getItemText(row, column).text();
  }
  return text;
}

WindowFixture::Texts WindowFixture::messageTexts(InvoiceEditForm& form) {
  Texts texts;
  const FX::FXIconList* list = form.getMessages();
  for (FX::FXint i = 0; i < list->getNumItems(); ++i) {
    texts.emplace_back(list->getItemText(i).before('\t').text());
  }
  return texts;
}

std::string WindowFixture::text(const std::string& sql) const {
  const Rows all = rows(sql);
  return all.empty() ? std::string() : all.front().front();
}

std::string WindowFixture::dump() const {
  return TestDatabase::dumpOf(path);
}
