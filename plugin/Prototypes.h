#pragma once

namespace Brontel::Plugin::ItemData {

class ItemDataContainer;

/// Who put which prototypes into the registry of entry kinds, so that one container's end does not take away what
/// another one works with.
namespace Prototypes {

/// Appends one prototype of each kind, text, date and list in this order, in the container's name.
void add(const ItemDataContainer* container);

bool isRegistered(const ItemDataContainer* container);

/// Deletes prototypes, last to first, and leaves null slots: the container's own while another registered container
/// lives, else all there are. A container that registered none takes none from others.
void remove(const ItemDataContainer* container);

}  // namespace Prototypes
}  // namespace Brontel::Plugin::ItemData
