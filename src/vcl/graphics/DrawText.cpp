#include "kt/vcl/graphics/DrawText.h"

#include "kt/vcl/graphics/Canvas.h"
#include "kt/vcl/graphics/QtColor.h"
#include "kt/vcl/graphics/RealFont.h"

#include <QPainter>

#include <iterator>

namespace kt {
namespace {

struct TFlagOfQt {
  quint32 Flag;
  int Qt;
};

constexpr TFlagOfQt kFlags[] = {
    {DT_CENTER, Qt::AlignHCenter},       {DT_RIGHT, Qt::AlignRight},       {DT_VCENTER, Qt::AlignVCenter},
    {DT_BOTTOM, Qt::AlignBottom},        {DT_WORDBREAK, Qt::TextWordWrap}, {DT_SINGLELINE, Qt::TextSingleLine},
    {DT_EXPANDTABS, Qt::TextExpandTabs}, {DT_NOCLIP, Qt::TextDontClip},    {DT_RTLREADING, Qt::TextForceRightToLeft},
};

/// More than any text is high, and little enough to be added to.
constexpr int kNoLimit = 1 << 24;

int FlagsOfQt(quint32 flags) {
  // Left is meant, whatever the reading direction; only single lines can be anywhere but at the top.
  int result = Qt::AlignAbsolute;
  const quint32 counted = flags & DT_SINGLELINE ? flags & ~DT_WORDBREAK : flags & ~(DT_VCENTER | DT_BOTTOM);
  for (const TFlagOfQt& entry : kFlags) {
    if (counted & entry.Flag) result |= entry.Qt;
  }
  if (!(flags & DT_NOPREFIX)) result |= Qt::TextShowMnemonic;
  return result;
}

QString TextFor(const QString& text, const QFontMetrics& metrics, int width, quint32 flags) {
  QString result = text;
  result.replace(QLatin1StringView("\r\n"), QLatin1StringView("\n"));
  const bool isShortened = (flags & DT_END_ELLIPSIS) && (flags & DT_SINGLELINE) && !(flags & DT_CALCRECT);
  return isShortened ? metrics.elidedText(result, Qt::ElideRight, width, FlagsOfQt(flags)) : result;
}

}  // namespace

int DrawText(TCanvas& canvas, const QString& text, QRect& rect, quint32 flags) {
  const auto font = TRealFont::Of(canvas.GetFont());
  const QString shown = TextFor(text, font->Metrics(), rect.width(), flags);
  const bool isCalculated = (flags & DT_CALCRECT) != 0;
  const int limit = flags & DT_WORDBREAK && !(flags & DT_SINGLELINE) ? rect.width() : kNoLimit;
  // What a text needs does not depend on where it stands.
  const int measuring = (FlagsOfQt(flags) & ~(Qt::AlignHCenter | Qt::AlignRight | Qt::AlignVCenter | Qt::AlignBottom)) |
                        Qt::AlignLeft | Qt::AlignTop;
  const QSize needed = font->Metrics().boundingRect(QRect(0, 0, limit, kNoLimit), measuring, shown).size();
  if (isCalculated) {
    rect.setSize(needed);
    return needed.height();
  }
  QPainter& painter = canvas.Painter();
  painter.setFont(font->Qt());
  painter.setPen(canvas.RealColor(canvas.GetFont().GetColor()));
  painter.drawText(rect, FlagsOfQt(flags), shown);
  return needed.height();
}

}  // namespace kt
