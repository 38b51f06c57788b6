#pragma once

#include <memory>

#include <fx.h>

class MorvaneDatabase;

namespace Brontel {

/// The host's application object. Owns what the plug-ins' windows borrow: icons and colours. It outlives every plug-in.
/// Works without a display as long as no window is created.
class Morvane : public FX::FXApp {
  FXDECLARE(Morvane)

 public:
  explicit Morvane(const FX::FXString& name = "brontel-host", const FX::FXString& vendor = "Brontel");
  Morvane(const Morvane&) = delete;
  Morvane& operator=(const Morvane&) = delete;
  ~Morvane() override;

  /// The one open connection, or null. Borrowed: whoever opened it closes it, after the plug-ins are gone.
  MorvaneDatabase* getDB() const { return database_; }
  void setDB(MorvaneDatabase* database) { database_ = database; }

  /// The folder of message catalogues that text domains are bound to; while it is empty, domains keep the folder that
  /// somebody else has bound or the system's own.
  void setLocaleDirectory(const FX::FXString& directory) { localeDirectory_ = directory; }
  /// Makes a domain's texts arrive as UTF-8, as FOX expects them, from the catalogue folder.
  void bindTextDomain(const FX::FXString& domain) const;

  /// Small icons for "new row" and "delete". Borrowed; created on the display by the widgets that show them.
  FX::FXIcon* getNewRowIcon() const { return newRowIcon_.get(); }
  FX::FXIcon* getDeleteIcon() const { return deleteIcon_.get(); }

  /// The background of panels in the goods windows.
  FX::FXColor getPanelBackColor() const { return getBaseColor(); }

 private:
  MorvaneDatabase* database_ = nullptr;
  FX::FXString localeDirectory_;
  std::unique_ptr<FX::FXIcon> newRowIcon_;
  std::unique_ptr<FX::FXIcon> deleteIcon_;
};

}  // namespace Brontel
