#include "host/ui/Morvane.h"

#include <libintl.h>

#include "host/ui/HostIcons.h"

namespace Brontel {

using FX::FXString;

FXIMPLEMENT(Morvane, FXApp, nullptr, 0)

Morvane::Morvane(const FXString& name, const FXString& vendor)
    : FXApp(name, vendor), newRowIcon_(makeIcon(this, icon_new_row)), deleteIcon_(makeIcon(this, icon_delete)) {}

Morvane::~Morvane() = default;

void Morvane::bindTextDomain(const FXString& domain) const {
  if (domain.empty()) return;
  if (!localeDirectory_.empty()) bindtextdomain(domain.text(), localeDirectory_.text());
  bind_textdomain_codeset(domain.text(), "UTF-8");
}

}  // namespace Brontel
