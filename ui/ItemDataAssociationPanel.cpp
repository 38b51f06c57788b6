#include "ui/ItemDataAssociationPanel.h"

#include <libintl.h>

#include "fxext/widgets/FXDualList.h"
#include "host/database/DataBaseValueLoader.h"
#include "host/database/IntegerText.h"
#include "host/database/Statement.h"
#include "host/ui/Morvane.h"
#include "host/ui/PanelisedWindow.h"
#include "host/ui/WaitCursor.h"
#include "itemdata/Codes.h"
#include "ui/ItemDataIcons.h"
#include "ui/ItemDataVariable.h"

namespace Brontel::Plugin::ItemData::UI {

using FX::FXint;
using FX::FXString;
using FX::FXuint;
using FXExt::FXDualList;

FXIMPLEMENT(ItemDataAssociationPanel, FXVerticalFrame, nullptr, 0)

namespace {

constexpr FXuint kFill = FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y;

/// Turns the rows of a select into items of a dual list, which get the variables as their data.
class DualListLoader : public DataBaseValueLoader {
 public:
  DualListLoader(const ItemDataAssociationPanel& panel, FXDualList& list) : panel_(panel), list_(list) {}

  int processValue(int column, const char* name, const char* value) override {
    if (column == 0) {
      flush();
      pending_ = std::make_unique<ItemDataVariable>();
    }
    take(column, value);
    return DataBaseValueLoader::processValue(column, name, value);
  }

  /// Hands over the last variable.
  void flush() {
    if (pending_ == nullptr) return;
    FX::FXIcon* icon = panel_.getIcon(pending_.get());
    ItemDataVariable* variable = pending_.release();
    if (variable->assigned) {
      list_.appendToListItem(variable->name, icon, variable);
    } else {
      list_.appendFromListItem(variable->name, icon, variable);
    }
  }

 private:
  void take(int column, const char* value) {
    ItemDataVariable& variable = *pending_;
    int* const numbers[] = {&variable.variableId, &variable.assignId, nullptr, &variable.position,
                            &variable.direction,  &variable.goodsId,  nullptr, &variable.mandatory,
                            &variable.type};
    if (column == 2) {
      variable.assigned = value != nullptr && FXString(value) != "0";
    } else if (column == 6) {
      variable.name = value == nullptr ? "" : value;
    } else if (column <= 8) {
      *numbers[column] = Database::toInt(value);
    }
  }

  const ItemDataAssociationPanel& panel_;
  FXDualList& list_;
  std::unique_ptr<ItemDataVariable> pending_;
};

ItemDataVariable* variableAt(const FX::FXList* list, FXint item) {
  return static_cast<ItemDataVariable*>(list->getItemData(item));
}

void deleteVariables(FX::FXList* list) {
  for (FXint item = 0; item < list->getNumItems(); ++item) delete variableAt(list, item);
  list->clearItems();
}

// Half of the height each.
FX::FXVerticalFrame* createHalf(FX::FXComposite* parent) {
  auto* spring = new FX::FXSpring(parent, kFill, 1, 0, 0, 0, 0, 0, 4, 4, 4, 4, 4, 4);
  return new FX::FXVerticalFrame(spring, kFill | FX::PACK_UNIFORM_HEIGHT, 0, 0, 0, 0, 0, 0, 0, 0, 4, 4);
}

FXDualList* createList(FX::FXGroupBox* group) {
  return new FXDualList(group, gettext("Választható mezők"), gettext("Kiválasztott mezők"), kFill);
}

FX::FXColor backColorOf(FX::FXApp* app) {
  const auto* host = dynamic_cast<Morvane*>(app);
  return host == nullptr ? app->getBaseColor() : host->getPanelBackColor();
}

}  // namespace

ItemDataAssociationPanel::ItemDataAssociationPanel() = default;

ItemDataAssociationPanel::ItemDataAssociationPanel(FX::FXComposite* parent, PanelisedWindow* window,
                                                   MorvaneDatabase* db, const FXString& keyColumn)
    : FXVerticalFrame(parent, kFill, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0),
      window_(window),
      database_(db),
      keyColumn_(keyColumn) {
  createIcons();
  auto* scroll = new FX::FXScrollWindow(this, kFill);
  scroll->setBackColor(backColorOf(getApp()));
  auto* content = new FX::FXVerticalFrame(scroll, kFill, 0, 0, 0, 0, 0, 0, 0, 0, 4, 4);
  incomingFrame_ = createHalf(content);
  outgoingFrame_ = createHalf(content);
  incomingGroup_ = createGroup(incomingFrame_, gettext("Bejövő"));
  incomingList_ = createList(incomingGroup_);
  outgoingGroup_ = createGroup(outgoingFrame_, gettext("Kimenő"));
  outgoingList_ = createList(outgoingGroup_);
}

ItemDataAssociationPanel::~ItemDataAssociationPanel() {
  // The icons, which go after this, must not be shown any more.
  for (const FXDualList* list : {incomingList_, outgoingList_}) {
    if (list == nullptr) continue;
    deleteVariables(list->getToList());
    deleteVariables(list->getFromList());
  }
}

FX::FXGroupBox* ItemDataAssociationPanel::createGroup(FX::FXVerticalFrame* frame, const FXString& title) {
  auto* group = new FX::FXGroupBox(frame, title, FX::FRAME_GROOVE | kFill, 0, 0, 0, 0, 0, 0, 0, 0);
  new FX::FXHorizontalSeparator(group, FX::SEPARATOR_GROOVE | FX::LAYOUT_FILL_X, 0, 0, 0, 0, 1, 1, 0, 0);
  return group;
}

void ItemDataAssociationPanel::createIcons() {
  const auto make = [this](const PixelIcon::Gif& picture) {
    return std::make_unique<FX::FXGIFIcon>(getApp(), picture.data(), FXRGB(192, 192, 192), 0, 1, 1);
  };
  mandatoryListIcon_ = make(icon_mdt_list);
  optionalListIcon_ = make(icon_opt_list);
  mandatoryTextIcon_ = make(icon_mdt_text);
  optionalTextIcon_ = make(icon_opt_text);
  mandatoryDateIcon_ = make(icon_mdt_date);
  optionalDateIcon_ = make(icon_opt_date);
}

void ItemDataAssociationPanel::create() {
  // First: an item whose icon is not on the display cannot be drawn, and its list does not see to that.
  for (FX::FXIcon* icon : {mandatoryListIcon_.get(), optionalListIcon_.get(), mandatoryTextIcon_.get(),
                           optionalTextIcon_.get(), mandatoryDateIcon_.get(), optionalDateIcon_.get()}) {
    if (icon != nullptr) icon->create();
  }
  FXVerticalFrame::create();
  if (isLoaded_ || window_ == nullptr) return;
  isLoaded_ = true;
  load();
}

void ItemDataAssociationPanel::load() {
  const WaitCursor waiting(getApp());
  loadList(incomingList_, getSelect("coalesce(sid.position,0)", ""), ItemDataVariable::INCOMING);
  loadList(outgoingList_, getSelect("coalesce(sid.position, 0)", ";"), ItemDataVariable::OUTGOING);
}

FXString ItemDataAssociationPanel::getTable() const {
  if (keyColumn_ == "t_service_1") return "t_serviceitemdata";
  return keyColumn_ == "t_suite_1" ? "t_suiteitemdata" : "t_productitemdata";
}

FXString ItemDataAssociationPanel::getSelect(const char* position, const char* end) const {
  const FXString table = getTable();
  return "select iv.t_itemvariable_id, " + table + "_id, coalesce(sid.t_itemvariable_1,0) tick, " + position +
         ", %direction , %productid , iv.name, iv.mandatory, iv.type, iv.process from t_itemvariable iv left join " +
         table + " sid on sid.t_itemvariable_1=iv.t_itemvariable_id and " + keyColumn_ +
         "=%productid and sid.direction=%direction where iv.type>0 order by sid.position" + end;
}

void ItemDataAssociationPanel::loadList(FXDualList* list, const FXString& sql, int direction) {
  DualListLoader loader(*this, *list);
  Statement select(database_, sql);
  select.setInt("productid", window_->getCurrentId());
  select.setInt("direction", direction);
  select.execute(&loader, 1);
  loader.flush();
}

void ItemDataAssociationPanel::save() {
  // Rows of no goods would show up at all new ones.
  if (window_ == nullptr || window_->getCurrentId() == 0) return;
  saveList(incomingList_);
  saveList(outgoingList_);
}

void ItemDataAssociationPanel::saveList(const FXDualList* list) {
  const FX::FXList* available = list->getFromList();
  for (FXint item = 0; item < available->getNumItems(); ++item) {
    ItemDataVariable* variable = variableAt(available, item);
    variable->goodsId = window_->getCurrentId();
    variable->saveNotAssigned(database_, getTable());
  }
  const FX::FXList* selected = list->getToList();
  for (FXint item = 0; item < selected->getNumItems(); ++item) {
    ItemDataVariable* variable = variableAt(selected, item);
    variable->goodsId = window_->getCurrentId();
    variable->saveAssigned(database_, getTable(), keyColumn_, static_cast<unsigned int>(item) + 1);
  }
}

FX::FXIcon* ItemDataAssociationPanel::getIcon(const ItemDataVariable* variable) const {
  const bool mandatory = variable != nullptr && variable->mandatory == 1;
  switch (variable == nullptr ? 0 : variable->type) {
    case TYPE_TEXT:
      return mandatory ? mandatoryTextIcon_.get() : optionalTextIcon_.get();
    case TYPE_DATE:
      return mandatory ? mandatoryDateIcon_.get() : optionalDateIcon_.get();
    case TYPE_LIST:
      return mandatory ? mandatoryListIcon_.get() : optionalListIcon_.get();
    default:
      return nullptr;
  }
}

}  // namespace Brontel::Plugin::ItemData::UI
