#include "kt/rtl/conversions/TextCompare.h"

#include "kt/rtl/conversions/FormatSettings.h"

#include <QCollator>

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>
#include <optional>
#include <vector>

namespace kt {
namespace {

constexpr char16_t kFirstAscii = 0x20;
constexpr char16_t kLastAscii = 0x7e;
constexpr quint8 kNoRank = 0xff;

/// Where two texts first differ, or the length of the shorter one; four characters at a time.
qsizetype Mismatch(QStringView s1, QStringView s2) {
  constexpr qsizetype step = 4;
  const qsizetype common = std::min(s1.size(), s2.size());
  qsizetype i = 0;
  for (; i + step <= common; i += step) {
    if (std::memcmp(s1.utf16() + i, s2.utf16() + i, step * sizeof(char16_t)) != 0) break;
  }
  while (i < common && s1[i] == s2[i]) ++i;
  return i;
}

/// Languages that sort printable ASCII as the root order does: each character by itself, without contractions such as
/// "ch".
bool SortsAsciiByCharacter(const QLocale& locale) {
  constexpr std::array<QLocale::Language, 7> languages{QLocale::English,   QLocale::German, QLocale::French,
                                                       QLocale::Italian,   QLocale::Dutch,  QLocale::Spanish,
                                                       QLocale::Portuguese};
  return std::find(languages.begin(), languages.end(), locale.language()) != languages.end();
}

/// The collators of one thread, and the order of single ASCII characters asked from them once.
class TLocaleOrder {
 public:
  int Compare(QStringView s1, QStringView s2, Qt::CaseSensitivity sensitivity);

 private:
  void Refresh();
  void ReadAsciiRanks();
  std::optional<int> ComparePlain(QStringView s1, QStringView s2, Qt::CaseSensitivity sensitivity) const;
  bool IsPlain(QChar c) const { return c.unicode() < FRanks.size() && FRanks[c.unicode()] != kNoRank; }
  bool IsPlainOrEnd(QStringView text, qsizetype at) const { return at >= text.size() || IsPlain(text[at]); }
  int CompareCase(char16_t c1, char16_t c2) const;

  unsigned FGeneration = 0;
  bool FIsOrdinal = true;
  bool FIsLowerFirst = true;
  QCollator FSensitive;
  QCollator FInsensitive;
  /// The place of each ASCII character, kNoRank for those that only the collator can judge.
  std::array<quint8, 128> FRanks{};
};

int TLocaleOrder::Compare(QStringView s1, QStringView s2, Qt::CaseSensitivity sensitivity) {
  if (FGeneration != FormatLocaleGeneration()) Refresh();
  if (FIsOrdinal && sensitivity == Qt::CaseSensitive) return s1.compare(s2);
  if (const std::optional<int> result = ComparePlain(s1, s2, sensitivity)) return *result;
  if (FIsOrdinal) return s1.compare(s2, sensitivity);
  return (sensitivity == Qt::CaseSensitive ? FSensitive : FInsensitive).compare(s1, s2);
}

void TLocaleOrder::Refresh() {
  FGeneration = FormatLocaleGeneration();
  const QLocale& locale = FormatLocale();
  FIsOrdinal = locale.language() == QLocale::C;
  FSensitive = QCollator(locale);
  FInsensitive = QCollator(locale);
  FInsensitive.setCaseSensitivity(Qt::CaseInsensitive);
  FRanks.fill(kNoRank);
  if (FIsOrdinal) {
    for (std::size_t c = 0; c < FRanks.size(); ++c)
      FRanks[c] = static_cast<quint8>(c >= 'A' && c <= 'Z' ? c + 0x20 : c);
  } else if (SortsAsciiByCharacter(locale)) {
    ReadAsciiRanks();
  }
}

void TLocaleOrder::ReadAsciiRanks() {
  std::vector<char16_t> order(kLastAscii - kFirstAscii + 1);
  std::iota(order.begin(), order.end(), kFirstAscii);
  const auto compare = [this](char16_t a, char16_t b) {
    return FInsensitive.compare(QStringView(&a, 1), QStringView(&b, 1));
  };
  std::sort(order.begin(), order.end(), [&](char16_t a, char16_t b) { return compare(a, b) < 0; });
  quint8 rank = 0;
  for (std::size_t i = 0; i < order.size(); ++i) {
    if (i > 0 && compare(order[i - 1], order[i]) != 0) ++rank;
    FRanks[order[i]] = rank;
  }
  FIsLowerFirst = FSensitive.compare(QStringView(u"a"), QStringView(u"A")) < 0;
}

/// The collator's answer where it follows from single characters alone. What both texts begin with does not count as
/// long as the last character of it is plain; the deciding characters are, and so are those behind them (an accent
/// there would change the letter).
std::optional<int> TLocaleOrder::ComparePlain(QStringView s1, QStringView s2, Qt::CaseSensitivity sensitivity) const {
  const qsizetype common = std::min(s1.size(), s2.size());
  int caseResult = 0;
  qsizetype i = Mismatch(s1, s2);
  if (i == s1.size() && i == s2.size()) return 0;
  if (i > 0 && !IsPlain(s1[i - 1])) return std::nullopt;
  for (; i < common; ++i) {
    const QChar c1 = s1[i];
    const QChar c2 = s2[i];
    if (!IsPlain(c1) || !IsPlain(c2)) return std::nullopt;
    if (c1 == c2) continue;
    const int difference = FRanks[c1.unicode()] - FRanks[c2.unicode()];
    if (difference != 0) {
      if (!IsPlainOrEnd(s1, i + 1) || !IsPlainOrEnd(s2, i + 1)) return std::nullopt;
      return difference;
    }
    if (caseResult == 0) caseResult = CompareCase(c1.unicode(), c2.unicode());
  }
  if (!IsPlainOrEnd(s1, common) || !IsPlainOrEnd(s2, common)) return std::nullopt;
  if (s1.size() != s2.size()) return s1.size() < s2.size() ? -1 : 1;
  return sensitivity == Qt::CaseSensitive ? caseResult : 0;
}

int TLocaleOrder::CompareCase(char16_t c1, char16_t c2) const {
  const bool isLowerBeforeUpper = c1 > c2;
  return isLowerBeforeUpper == FIsLowerFirst ? -1 : 1;
}

TLocaleOrder& Order() {
  thread_local TLocaleOrder order;
  return order;
}

char16_t AsciiUpper(QChar c) {
  const char16_t code = c.unicode();
  return code >= u'a' && code <= u'z' ? static_cast<char16_t>(code - (u'a' - u'A')) : code;
}

int CompareSizes(QStringView s1, QStringView s2) {
  if (s1.size() == s2.size()) return 0;
  return s1.size() < s2.size() ? -1 : 1;
}

}  // namespace

int CompareStr(QStringView s1, QStringView s2) { return s1.compare(s2); }

int CompareText(QStringView s1, QStringView s2) {
  const qsizetype common = std::min(s1.size(), s2.size());
  for (qsizetype i = Mismatch(s1, s2); i < common; ++i) {
    const int difference = AsciiUpper(s1[i]) - AsciiUpper(s2[i]);
    if (difference != 0) return difference;
  }
  return CompareSizes(s1, s2);
}

bool SameText(QStringView s1, QStringView s2) { return s1.size() == s2.size() && CompareText(s1, s2) == 0; }

int AnsiCompareStr(QStringView s1, QStringView s2) { return Order().Compare(s1, s2, Qt::CaseSensitive); }

int AnsiCompareText(QStringView s1, QStringView s2) { return Order().Compare(s1, s2, Qt::CaseInsensitive); }

bool AnsiSameStr(QStringView s1, QStringView s2) { return AnsiCompareStr(s1, s2) == 0; }

bool AnsiSameText(QStringView s1, QStringView s2) { return AnsiCompareText(s1, s2) == 0; }

}  // namespace kt
