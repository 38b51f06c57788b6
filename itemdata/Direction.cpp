#include "itemdata/Direction.h"

namespace Brontel::Plugin::ItemData {

int directionOf(int invoiceKind) {
  switch (invoiceKind) {
    case 401:
    case 451:
    case 801:
      return 100;
    default:
      return invoiceKind / 100 * 100;
  }
}

}  // namespace Brontel::Plugin::ItemData
