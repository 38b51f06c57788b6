#include "fxext/widgets/gallery/HungarianNames.h"

#include <cstring>
#include <utility>

using namespace FX;

namespace {

constexpr std::pair<const FXchar*, const FXchar*> kNames[] = {
    {"January", "január"},  {"February", "február"},  {"March", "március"},
    {"April", "április"},   {"May", "május"},         {"June", "június"},
    {"July", "július"},     {"August", "augusztus"},  {"September", "szeptember"},
    {"October", "október"}, {"November", "november"}, {"December", "december"},
    {"Mon", "hétf"},        {"Tue", "kedd"},          {"Wed", "sze"},
    {"Thu", "csüt"},        {"Fri", "pén"},           {"Sat", "szo"},
    {"Sun", "vas"},
};

}  // namespace

const FXchar* HungarianNames::tr(const FXchar* context, const FXchar* message, const FXchar* hint) const {
  for (const auto& [english, hungarian] : kNames) {
    if (std::strcmp(message, english) == 0) return hungarian;
  }
  return FXTranslator::tr(context, message, hint);
}
