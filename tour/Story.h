#pragma once

#include <array>
#include <string>
#include <vector>

/// What somebody types in the course of the tour. The sample that it starts from has the other goods and variables.
namespace Tour::Story {

using Rows = std::vector<std::vector<std::string>>;

struct Variable {
  const char* name;
  int type;  ///< 1 text, 2 date, 3 list
  bool perUnit;
  bool mandatory;
  const char* parameter;
};

inline constexpr std::array<Variable, 4> kVariables = {{
    {"Kalibrálás lejárta", 2, true, false, ""},
    {"Kivitel", 3, true, false, "Fehér,Kék,Zöld"},
    {"Munkalap száma", 1, false, true, ""},
    {"Következő vizsgálat", 2, false, false, ""},
}};

inline constexpr const char* kSerialNumber = "Gyári szám";
inline constexpr const char* kCalibration = kVariables[0].name;
inline constexpr const char* kColour = kVariables[1].name;
inline constexpr const char* kWorkSheet = kVariables[2].name;
inline constexpr const char* kNextInspection = kVariables[3].name;
inline constexpr const char* kPlace = "Helyszín";

inline constexpr const char* kProductCode = "EKG-12";
inline constexpr const char* kProduct = "Hordozható EKG";
inline constexpr const char* kProductUnit = "db";
inline constexpr const char* kProductPrice = "389000";
inline constexpr const char* kService = "Éves felülvizsgálat";

inline constexpr const char* kNumber = "K-2025/0121";
inline constexpr const char* kPartner = "Tiszaparti Rendelő";
inline constexpr const char* kDate = "2025-03-12";
inline constexpr const char* kCreditNoteNumber = "K-2025/0121/J1";
inline constexpr const char* kCreditNoteDate = "2025-03-28";

/// Three devices, of which the last one is forgotten at first, and so is the second one's calibration.
inline constexpr std::array<const char*, 3> kSerials = {"EKG-250311", "EKG-250312", "EKG-250317"};
inline constexpr const char* kCalibrated = "2026.03.10";
inline constexpr std::array<const char*, 3> kColours = {"Fehér", "Kék", "Fehér"};

inline constexpr const char* kWorkSheetNumber = "ML-2025/081";
inline constexpr const char* kPlaceChosen = "Kiszállás";
/// Typed first, and then changed in the calendar to another day of that month.
inline constexpr const char* kInspectionMonth = "2026.03.01";
inline constexpr const char* kInspectionDay = "12";
inline constexpr const char* kInspection = "2026.03.12";

/// Part of all three serial numbers.
inline constexpr const char* kSearched = "EKG-2503";

}  // namespace Tour::Story
