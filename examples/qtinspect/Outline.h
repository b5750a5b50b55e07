#pragma once

#include <QColor>
#include <QObject>
#include <QPointer>

#include <vector>

class QPainter;
class QRect;
class QWidget;

namespace qtinspect {

/// Draws frames around objects, over whatever their windows paint there, without a widget more in these windows:
/// follows their paint events. Around widgets and layouts; other objects have no place to be framed at.
class TOutline : public QObject {
 public:
  explicit TOutline(const QColor& color) : FColor(color) {}
  ~TOutline() override { Frame({}); }

  void Frame(const std::vector<QObject*>& objects);
  void Frame(QObject* object) { Frame(object ? std::vector<QObject*>{object} : std::vector<QObject*>{}); }
  /// What is framed and still there.
  std::vector<QObject*> Framed() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsConcerned(const QWidget& painted) const;
  void Draw(QWidget& painted) const;
  void Update() const;

  QColor FColor;
  std::vector<QPointer<QObject>> FObjects;
  bool FIsPainting = false;
};

}  // namespace qtinspect
