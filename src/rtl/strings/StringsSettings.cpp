#include "kt/rtl/strings/Strings.h"

namespace kt {

/// Rarely used, and therefore apart from the list until one of them differs from its default.
struct TStrings::TSettings {
  QString LineBreak = QStringLiteral("\r\n");
  QChar Delimiter = u',';
  QChar QuoteChar = u'"';
  QChar NameValueSeparator = u'=';
  bool StrictDelimiter = false;
};

// Both here, because only here the settings are known.
TStrings::TStrings() = default;
TStrings::~TStrings() = default;

const TStrings::TSettings& TStrings::Settings() const {
  static const TSettings defaults;
  return FSettings ? *FSettings : defaults;
}

TStrings::TSettings& TStrings::EnsureSettings() {
  if (!FSettings) FSettings = std::make_unique<TSettings>();
  return *FSettings;
}

void TStrings::CopySettings(const TStrings& source) {
  FSettings = source.FSettings ? std::make_unique<TSettings>(*source.FSettings) : nullptr;
}

QString TStrings::GetLineBreak() const { return Settings().LineBreak; }

void TStrings::SetLineBreak(const QString& value) {
  if (GetLineBreak() != value) EnsureSettings().LineBreak = value;
}

QChar TStrings::GetDelimiter() const { return Settings().Delimiter; }

void TStrings::SetDelimiter(QChar value) {
  if (GetDelimiter() != value) EnsureSettings().Delimiter = value;
}

QChar TStrings::GetQuoteChar() const { return Settings().QuoteChar; }

void TStrings::SetQuoteChar(QChar value) {
  if (GetQuoteChar() != value) EnsureSettings().QuoteChar = value;
}

QChar TStrings::GetNameValueSeparator() const { return Settings().NameValueSeparator; }

void TStrings::SetNameValueSeparator(QChar value) {
  if (GetNameValueSeparator() != value) EnsureSettings().NameValueSeparator = value;
}

bool TStrings::GetStrictDelimiter() const { return Settings().StrictDelimiter; }

void TStrings::SetStrictDelimiter(bool value) {
  if (GetStrictDelimiter() != value) EnsureSettings().StrictDelimiter = value;
}

}  // namespace kt
