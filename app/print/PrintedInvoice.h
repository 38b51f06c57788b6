#pragma once

#include <string>
#include <vector>

namespace Brontel {

class Invoice;

namespace Plugin {
class PluginRegistry;
}

namespace App {

/// The texts that an invoice is printed with, ready for the page.
struct PrintedInvoice {
  struct Head {
    std::string label;
    std::string value;
  };
  struct Item {
    std::string position;
    std::string name;
    std::string quantity;
    std::string unit;
    std::string price;
    std::string data;  ///< what the plug-ins print with the item; may have many lines
  };

  /// Nothing, to be filled in.
  PrintedInvoice() = default;
  PrintedInvoice(const Invoice& invoice, const Plugin::PluginRegistry& plugins);

  std::string title;  ///< the kind of invoice
  std::string number;
  std::vector<Head> head;
  Item header;  ///< what stands above the columns; without data
  std::vector<Item> items;
};

}  // namespace App
}  // namespace Brontel
