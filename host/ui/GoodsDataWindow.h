#pragma once

#include "host/entity/GoodsRepository.h"
#include "host/ui/PanelisedWindow.h"

namespace Brontel {

/// Edits one product, service or suite: its own data on the first panel, and the plug-ins' panels beside it. OK saves
/// the record first and then lets the panels save, all in one transaction; when that fails the window stays as it is.
class GoodsDataWindow : public PanelisedWindow {
  FXDECLARE_ABSTRACT(GoodsDataWindow)

 public:
  enum { ID_OK = PanelisedWindow::ID_LAST, ID_CANCEL, ID_CLOSE_NOW, ID_LAST };

  ~GoodsDataWindow() override;

  /// Builds the window for a stored record, or for a new one (0), and shows what is stored. Both are borrowed and
  /// outlive the window. Unless the result is Done the window is of no use; what the database refuses its handle tells.
  GoodsRepository::Result open(MorvaneDatabase& database, const Plugin::PluginRegistry& plugins, int id);
  /// Reads the record and builds the panels anew; what was typed is gone.
  GoodsRepository::Result reload();

  void create() override;
  /// With notify it asks what to do about unsaved changes, and stays (FALSE) if the person wants it to.
  FX::FXbool close(FX::FXbool notify = FALSE) override;

  GoodsKind getKind() const { return kind_; }
  bool hasUnsavedChanges() const;
  /// Saves the record and the panels. False when that was not possible: the person has been told by a box, or by the
  /// database's error sink, and the window keeps everything. After a success the panels have to be built anew before
  /// they are used again: the window is closed or reloaded.
  bool save();

  FX::FXTextField* getCodeField() const { return code_; }
  FX::FXTextField* getNameField() const { return name_; }
  FX::FXTextField* getUnitField() const { return unit_; }
  FX::FXTextField* getPriceField() const { return price_; }

  /// The kind's name, and what its list is called.
  static FX::FXString nameOf(GoodsKind kind);
  static FX::FXString pluralOf(GoodsKind kind);

  long onCmdOK(FX::FXObject*, FX::FXSelector, void*);
  long onCmdCancel(FX::FXObject*, FX::FXSelector, void*);
  long onCloseNow(FX::FXObject*, FX::FXSelector, void*);

 protected:
  GoodsDataWindow() = default;
  GoodsDataWindow(FX::FXApp* app, const FX::FXString& title, GoodsKind kind);

  /// The record has been saved.
  virtual void recordSaved() {}

 private:
  void buildFoot();
  void buildPanels();
  FX::FXTextField* addField(FX::FXComposite* parent, const char* label, int columns);
  void showRecord();
  Goods typedRecord() const;
  bool readPrice(Goods& record);
  bool refuse(FX::FXTextField* field, const FX::FXString& text);
  bool store(Goods& record);
  void closeSoon();

  GoodsKind kind_ = GOODS_PRODUCT;
  FX::FXString title_;
  MorvaneDatabase* database_ = nullptr;              // not owned
  const Plugin::PluginRegistry* plugins_ = nullptr;  // not owned
  Goods record_;                                     // as it was loaded or saved last
  FX::FXString panelStateBefore_;
  bool isBuilt_ = false;
  bool isSaved_ = false;
  bool isClosing_ = false;
  FX::FXTextField* code_ = nullptr;
  FX::FXTextField* name_ = nullptr;
  FX::FXTextField* unit_ = nullptr;
  FX::FXTextField* price_ = nullptr;
};

}  // namespace Brontel
