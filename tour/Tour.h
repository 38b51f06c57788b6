#pragma once

#include <string>
#include <vector>

namespace Tour {

/// What a tour leaves behind.
struct Result {
  std::vector<std::string> pictures;
  size_t textsSeen = 0;
};

/// Goes through the whole story once, from the first variable to the credit note, on a display of its own. The folder
/// is there, is given by its whole path and gets the pictures, invoice.pdf, invoice.txt and invoice.xml; the plug-in is
/// in the folder of plug-ins. Whatever is not as the story has it is reported as a failure.
Result takeTour(const std::string& folder, const std::string& plugins);

}  // namespace Tour
