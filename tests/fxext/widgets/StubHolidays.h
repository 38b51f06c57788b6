#pragma once

#include <set>

#include "fxext/widgets/FXDatePickerHoliday.h"

/// Knows the holidays that a test names, and how often it was asked.
class StubHolidays : public FXExt::FXDatePickerHoliday {
 public:
  void add(const FX::FXDate& date) { days_.insert(date.getJulian()); }
  void clear() { days_.clear(); }
  int asked() const { return asked_; }

  FX::FXbool isHoliday(const FX::FXDate& date) override {
    ++asked_;
    return days_.count(date.getJulian()) != 0;
  }

 private:
  std::set<FX::FXuint> days_;
  int asked_ = 0;
};
