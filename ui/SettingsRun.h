#pragma once

namespace Brontel {
class Morvane;

namespace Plugin {
class PluginContainer;

namespace ItemData {

class ItemDataSettingsPanel;

/// One opening of the settings dialog, until its changes are stored or given up. Whatever keeps them from being stored,
/// the dialog comes back as it was left.
class SettingsRun {
 public:
  /// Borrows both.
  SettingsRun(PluginContainer& container, Morvane& app) : container_(container), app_(app) {}

  /// 1 when the dialog was cancelled, else the result of saving.
  long run();

 private:
  enum class Overwriting { Ask, Allowed };

  bool save(ItemDataSettingsPanel& panel, Overwriting overwriting, long& result);
  bool confirmOverwriting(ItemDataSettingsPanel& panel);

  PluginContainer& container_;
  Morvane& app_;
};

}  // namespace ItemData
}  // namespace Plugin
}  // namespace Brontel
