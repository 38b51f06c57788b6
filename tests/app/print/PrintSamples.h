#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "app/print/PrintableUtf8.h"
#include "app/print/PrintedInvoice.h"

/// An invoice of one head and no items, and items for it.
inline Brontel::App::PrintedInvoice sampleInvoice() {
  Brontel::App::PrintedInvoice invoice;
  invoice.title = "Kimenő számla";
  invoice.number = "K-1";
  invoice.head = {{"Szám", "K-1"}, {"Partner", "Próba Kft."}};
  invoice.header = {"Tétel", "Megnevezés", "Mennyiség", "Egység", "Ár", ""};
  return invoice;
}

inline Brontel::App::PrintedInvoice::Item sampleItem(const std::string& name, const std::string& data) {
  return {"1", name, "2", "db", "489000", data};
}

/// "SN-10001; SN-10002" and so on.
inline std::string serialNumbers(int count) {
  std::string text;
  for (int i = 1; i <= count; ++i) text += (i == 1 ? "SN-" : "; SN-") + std::to_string(10000 + i);
  return text;
}

/// A text that is hard to print, of about as many bytes as wanted.
struct HostileText {
  const char* name;
  std::string unit;

  std::string make(size_t bytes) const {
    std::string text;
    while (text.size() < bytes) text += unit;
    return Brontel::App::toPrintable(FX::FXString(text.data(), static_cast<FX::FXint>(text.size())));
  }

  friend std::ostream& operator<<(std::ostream& output, const HostileText& text) { return output << text.name; }
};

inline std::vector<HostileText> hostileTexts() {
  return {{"OneWord", "W"},
          {"Words", "abc defghi "},
          {"Lines", "sor\n"},
          {"NoUtf8", "\xFF\xC3"},
          {"Controls", "\x01\x1B"},
          {"FromTheRight", "שלום عليكم 123 "},
          {"Overridden", "\xE2\x80\xAE abc 123 "},
          {"Ideographs", "漢字かな"},
          {"Mixed", "aא漢ع"},
          {"Accents", "\xCC\x81"},
          {"NoWidth", "\xE2\x80\x8B"},
          {"Ligatures", "\xEF\xB7\xBD"},
          {"Emoji", "👩‍👩‍👧‍👦"}};
}
