#include "kt/vcl/controls/Accelerators.h"

namespace kt {

QString GetHotkey(const QString& caption) {
  for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != u'&') continue;
    // What follows is a letter, or the "&" itself.
    if (caption[++i] != u'&') return caption.mid(i, 1);
  }
  return {};
}

QString StripHotkey(const QString& caption) {
  QString result;
  result.reserve(caption.size());
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == u'&' && ++i == caption.size()) break;
    result += caption[i];
  }
  return result;
}

bool IsAccel(quint16 character, const QString& caption) {
  const QString letter = GetHotkey(caption);
  return !letter.isEmpty() && letter.compare(QString(QChar(character)), Qt::CaseInsensitive) == 0;
}

}  // namespace kt
