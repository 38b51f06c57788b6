#pragma once

#include <libintl.h>

namespace Remarks {

/// The plug-in's gettext domain; the host binds it to its folder of catalogues.
constexpr const char* kTextDomain = "BrontelPluginRemark";

/// The text in the user's language. Hungarian is what stands in the source.
inline const char* translate(const char* text) {
  return dgettext(kTextDomain, text);
}

}  // namespace Remarks
