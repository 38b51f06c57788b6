#pragma once

namespace Brontel::Plugin::ItemData {

/// Kind codes of t_itemvariable.type.
enum TypeCode { TYPE_QUANTITY = -1, TYPE_TEXT = 1, TYPE_DATE = 2, TYPE_LIST = 3 };

/// Keys of t_itemvariable that do not belong to a variable of the user.
enum VariableId {
  VARIABLE_QUANTITY = -1,
  VARIABLE_NONE = 0,
  /// Goes with the quantity: it is not written for a row of none. The key is a matter of convention between the
  /// databases in use.
  VARIABLE_WITH_QUANTITY = 2
};

/// Invoices of this type code get no messages about item data.
constexpr int kUncheckedInvoiceType = 102;

/// Quantities are kept with this many decimal places.
constexpr signed char kQuantityPlaces = 4;

/// Where an invoice item keeps its ItemDataList.
constexpr const char* kMiscDataKey = "ItemData";

/// The plug-in's gettext domain.
constexpr const char* kTextDomain = "BrontelPluginItemData";

/// The namespace of the exported elements.
constexpr const char* kXmlNamespace = "urn:brontel:plugin:itemdata";
constexpr const char* kXmlName = "itemdata";

}  // namespace Brontel::Plugin::ItemData
