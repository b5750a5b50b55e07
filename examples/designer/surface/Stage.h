#pragma once

#include "designer/session/Session.h"

#include <QPointer>
#include <QWidget>

class QPainter;

namespace designer {

class TSurface;

/// The ground in the middle of the window: shows the live form inside the frame of a window, so that it reads as one,
/// with the surface over it.
///
/// The form's widget stands in a frame of its own here, whose place says nothing of the form's: what Qt tells the
/// widget of that is kept from it. Nothing of the live form can get the keyboard, nor answers short cuts.
class TStage : public QWidget {
 public:
  explicit TStage(TSession& session);

  TSurface& Surface() const { return *FSurface; }
  bool eventFilter(QObject* object, QEvent* event) override;
  QSize sizeHint() const override { return minimumSize(); }

 protected:
  void paintEvent(QPaintEvent*) override;
  void resizeEvent(QResizeEvent*) override;
  void changeEvent(QEvent* event) override;

 private:
  void Heard(TNews news);
  void Refresh();
  void TakeForm();
  void Settle();
  void SettleLater();
  void Quiet();
  int CaptionHeight() const;
  QRect FrameRect() const;
  void PaintCaption(QPainter& painter, const QRect& place);

  TSession& FSession;
  /// What stands for the window's inside. Qt takes what is in a sub-window to be asleep while the keyboard is
  /// elsewhere.
  QWidget* FInside;
  TSurface* FSurface;
  QPointer<QWidget> FBody;
  bool FIsPainted = false;
};

}  // namespace designer
