#include "plugin/Prototypes.h"

#include <algorithm>

#include "itemdata/ItemDataComboEntry.h"
#include "itemdata/ItemDataDateEntry.h"
#include "itemdata/ItemDataPluginList.h"
#include "itemdata/ItemDataStringEntry.h"

namespace Brontel::Plugin::ItemData::Prototypes {

using FX::FXint;

namespace {

constexpr FXint kKinds = 3;

/// A container and where its prototypes stand. A plain list, since nothing but the registry itself may need a
/// constructor when the library is loaded.
struct Registration {
  const ItemDataContainer* container;
  FXint first;
  Registration* next;
};

Registration* registrations = nullptr;

Registration** find(const ItemDataContainer* container) {
  Registration** link = &registrations;
  while (*link != nullptr && (*link)->container != container) link = &(*link)->next;
  return link;
}

void deletePrototypes(FXint first, FXint end) {
  for (FXint i = end - 1; i >= first; --i) {
    delete plugins[i];
    plugins[i] = nullptr;
  }
}

}  // namespace

void add(const ItemDataContainer* container) {
  registrations = new Registration{container, plugins.no(), registrations};
  plugins.append(new ItemDataStringEntry);
  plugins.append(new ItemDataDateEntry);
  plugins.append(new ItemDataComboEntry);
}

bool isRegistered(const ItemDataContainer* container) {
  return *find(container) != nullptr;
}

void remove(const ItemDataContainer* container) {
  Registration** link = find(container);
  Registration* own = *link;
  if (own != nullptr) *link = own->next;
  if (registrations == nullptr) {
    deletePrototypes(0, plugins.no());
  } else if (own != nullptr) {
    deletePrototypes(own->first, std::min(own->first + kKinds, plugins.no()));
  }
  delete own;
}

}  // namespace Brontel::Plugin::ItemData::Prototypes
