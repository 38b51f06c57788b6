#pragma once

#include <initializer_list>
#include <string>

#include <fx.h>

namespace Tour {

/// The program's texts in the language of the run, by their Hungarian identifiers: the host's own and the plug-in's.
/// The values take the places of %s and %d.
std::string hostText(const char* id, std::initializer_list<FX::FXString> values = {});
std::string pluginText(const char* id, std::initializer_list<FX::FXString> values = {});

/// A text as a label or a menu entry shows it: without key, tool tip and the mark of its letter.
std::string shownOf(const std::string& text);
/// A text as one line of a list shows it.
std::string lineOf(const std::string& text);

}  // namespace Tour
