#pragma once

#include <QCoreApplication>
#include <QString>
#include <QWidget>

namespace kt::benchmarks {

/// What every view shows: rows of a name and a value of 12 characters each, `Rows` of them. It is scrolled so that row
/// `First` is the first in view; the row `Parent` of these has twenty children, collapsed.
struct TScene {
  int Rows;
  bool IsInTheMiddle;

  int First() const { return IsInTheMiddle ? Rows / 2 : 0; }
  int Parent() const { return First() + kParentInView; }
  int Changing() const { return First() + kChangingInView; }

  static constexpr int kParentInView = 3;
  static constexpr int kChangingInView = 10;
  static constexpr int kChildren = 20;
  static constexpr QSize kSize{400, 800};
};

inline QString NameOf(int number) { return QStringLiteral("Name ") + QString::number(1000000 + number); }
inline QString ValueOf(int number) { return QStringLiteral("Text ") + QString::number(1000000 + number); }
/// The two values that a row takes on in turn.
inline QString NewValue(bool isOdd) { return isOdd ? QStringLiteral("Odd value 12") : QStringLiteral("Even value 1"); }

/// Has Qt paint what it has put off, as its event loop would.
inline void PaintPending() { QCoreApplication::sendPostedEvents(); }

inline void Show(QWidget& widget) {
  widget.resize(TScene::kSize);
  widget.show();
  QCoreApplication::processEvents();
}

}  // namespace kt::benchmarks
