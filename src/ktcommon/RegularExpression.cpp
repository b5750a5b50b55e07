#include "kt/ktcommon/RegularExpression.h"

#include "kt/ktcommon/KTException.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"

#include <QLatin1StringView>

namespace kt {

namespace {

constexpr QLatin1StringView SInvalidExpression{"Invalid regular expression \"%s\": %s"};
constexpr QLatin1StringView SExpressionTooSlow{"Regular expression \"%s\" takes too long"};

/// Said to the engine before the expression: which characters end a line, and how many steps and how much memory in
/// kilobytes a match may take. That many steps take a tenth of a second at most.
constexpr QLatin1StringView kManners{"(*ANYCRLF)(*LIMIT_MATCH=1000000)(*LIMIT_HEAP=20000)"};

}  // namespace

const TClassInfo* TGRegularExpression::Class() {
  static const TClassInfo info = TClassBuilder<TGRegularExpression>("TGRegularExpression").Done();
  return &info;
}

void TGRegularExpression::SetExpression(const QString& value) {
  if (FExpression == value && !FEngine.pattern().isEmpty()) return;
  FExpression = value;
  FEngine = QRegularExpression(kManners + value, QRegularExpression::MultilineOption);
}

int TGRegularExpression::Match(const QString& subject) {
  int length = 0;
  return Match(subject, 1, length);
}

int TGRegularExpression::Match(const QString& subject, int start, int& length) {
  length = 0;
  if (!FEngine.isValid()) throw EKTException(Format(SInvalidExpression, {FExpression, FEngine.errorString()}));
  if (start < 1 || start > subject.size() + 1) return 0;
  const QRegularExpressionMatch match = FEngine.match(subject, start - 1);
  if (!match.isValid()) throw EKTException(Format(SExpressionTooSlow, {FExpression}));
  if (!match.hasMatch()) return 0;
  length = static_cast<int>(match.capturedLength());
  return static_cast<int>(match.capturedStart()) + 1;
}

}  // namespace kt
