#include "app/window/InvoiceTexts.h"

#include <cctype>

#include <libintl.h>

#include "host/entity/Invoice.h"
#include "host/message/FillIn.h"

namespace Brontel::App {

using FX::FXString;

namespace {

constexpr int kOutgoing = 101;
constexpr int kOutgoingOffer = 102;
constexpr int kIncoming = 201;

int daysOf(int year, int month) {
  static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool isLeap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
  return month == 2 && isLeap ? 29 : kDays[month - 1];
}

}  // namespace

FXString nameOfType(int typeCode) {
  switch (typeCode) {
    case kOutgoing:
      return gettext("Kimenő számla");
    case kOutgoingOffer:
      return gettext("Kimenő díjbekérő");
    case kIncoming:
      return gettext("Bejövő számla");
    default:
      return fillIn(gettext("%s. típus"), {FX::FXStringVal(typeCode)});
  }
}

FXString nameOfStatus(int status) {
  switch (status) {
    case STATUS_OPEN:
      return gettext("Nyitott");
    case STATUS_CLOSED:
      return gettext("Lezárt");
    case STATUS_STORNO:
      return gettext("Stornózott");
    default:
      return FX::FXStringVal(status);
  }
}

const std::vector<int>& offeredTypes() {
  static const std::vector<int> types{kOutgoing, kOutgoingOffer, kIncoming};
  return types;
}

bool isDate(const FXString& text) {
  static constexpr char kPattern[] = "dddd-dd-dd";
  if (text.length() != static_cast<FX::FXint>(sizeof kPattern) - 1) return false;
  for (FX::FXint i = 0; i < text.length(); ++i) {
    const bool isDigit = std::isdigit(static_cast<unsigned char>(text[i])) != 0;
    if (kPattern[i] == 'd' ? !isDigit : text[i] != kPattern[i]) return false;
  }
  // Digits only, by now.
  const FX::FXint year = FX::FXIntVal(text.left(4));
  const FX::FXint month = FX::FXIntVal(text.mid(5, 2));
  const FX::FXint day = FX::FXIntVal(text.mid(8, 2));
  return year >= 1 && month >= 1 && month <= 12 && day >= 1 && day <= daysOf(year, month);
}

FXString fileNameFor(const FXString& number, const char* ending) {
  FXString name(number);
  for (const FX::FXchar c : {'/', '\\', '#', ' '}) name.substitute(c, '-');
  return name + ending;
}

}  // namespace Brontel::App
