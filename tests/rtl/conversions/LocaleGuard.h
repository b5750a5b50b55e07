#pragma once

#include "kt/rtl/conversions/FormatSettings.h"

namespace kt {

/// Sets the locale of conversions for one test and puts the former one back.
class TLocaleGuard {
 public:
  explicit TLocaleGuard(const QLocale& locale) : FOld(FormatLocale()) { SetFormatLocale(locale); }
  ~TLocaleGuard() { SetFormatLocale(FOld); }
  TLocaleGuard(const TLocaleGuard&) = delete;
  TLocaleGuard& operator=(const TLocaleGuard&) = delete;

 private:
  QLocale FOld;
};

}  // namespace kt
