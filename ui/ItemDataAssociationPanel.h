#pragma once

#include <memory>

#include <fx.h>

class MorvaneDatabase;

namespace FXExt {
class FXDualList;
}

namespace Brontel {
class PanelisedWindow;
}

namespace Brontel::Plugin::ItemData::UI {

class ItemDataVariable;

/// Chooses which variables a goods record carries, in which order, apart for incoming and outgoing invoices. Nothing is
/// written before save.
class ItemDataAssociationPanel : public FX::FXVerticalFrame {
  FXDECLARE(ItemDataAssociationPanel)

 public:
  /// The window's current record is the goods; its key may be 0 until save. The key column ("t_product_1",
  /// "t_service_1" or "t_suite_1") names the kind of goods. Borrows window and database.
  ItemDataAssociationPanel(FX::FXComposite* parent, PanelisedWindow* window, MorvaneDatabase* db,
                           const FX::FXString& keyColumn);
  ItemDataAssociationPanel(const ItemDataAssociationPanel&) = delete;
  ItemDataAssociationPanel& operator=(const ItemDataAssociationPanel&) = delete;
  ~ItemDataAssociationPanel() override;

  /// Loads the lists the first time; later it only realises what is new, so that nobody's choices are lost.
  void create() override;
  /// Writes what differs from what was loaded. Does nothing while the record has no key. The panel has to be made anew
  /// before it saves again.
  void save();

  /// The icon that tells the variable's type and whether it is mandatory; null for a type without one.
  FX::FXIcon* getIcon(const ItemDataVariable* variable) const;

  FXExt::FXDualList* getIncomingList() const { return incomingList_; }
  FXExt::FXDualList* getOutgoingList() const { return outgoingList_; }

 protected:
  ItemDataAssociationPanel();

 private:
  FX::FXGroupBox* createGroup(FX::FXVerticalFrame* frame, const FX::FXString& title);
  void createIcons();
  void load();
  void loadList(FXExt::FXDualList* list, const FX::FXString& sql, int direction);
  void saveList(const FXExt::FXDualList* list);
  FX::FXString getTable() const;
  FX::FXString getSelect(const char* position, const char* end) const;

  PanelisedWindow* window_ = nullptr;    // not owned
  MorvaneDatabase* database_ = nullptr;  // not owned
  FX::FXVerticalFrame* incomingFrame_ = nullptr;
  FX::FXGroupBox* incomingGroup_ = nullptr;
  FXExt::FXDualList* incomingList_ = nullptr;
  FX::FXVerticalFrame* outgoingFrame_ = nullptr;
  FX::FXGroupBox* outgoingGroup_ = nullptr;
  FXExt::FXDualList* outgoingList_ = nullptr;
  std::unique_ptr<FX::FXIcon> mandatoryListIcon_;
  std::unique_ptr<FX::FXIcon> optionalListIcon_;
  std::unique_ptr<FX::FXIcon> mandatoryTextIcon_;
  std::unique_ptr<FX::FXIcon> optionalTextIcon_;
  std::unique_ptr<FX::FXIcon> mandatoryDateIcon_;
  std::unique_ptr<FX::FXIcon> optionalDateIcon_;
  FX::FXString keyColumn_;
  bool isLoaded_ = false;
};

}  // namespace Brontel::Plugin::ItemData::UI
