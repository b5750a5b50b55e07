#include "designer/palette/ClassIcons.h"

#include "kt/rtl/streams/UnknownComponent.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

#include <map>

namespace designer {

using namespace kt;

namespace {

/// Draws into a square of 16 by 16.
using TDraw = void (*)(QPainter& painter, const QPalette& palette);

void Box(QPainter& painter, const QPalette& palette, const QRectF& box) {
  painter.setPen(QPen(palette.color(QPalette::ButtonText), 1));
  painter.setBrush(palette.color(QPalette::Base));
  painter.drawRect(box);
}

void Letters(QPainter& painter, const QString& text, const QRectF& box, int size = 9) {
  QFont font = painter.font();
  font.setPixelSize(size);
  font.setBold(true);
  painter.setFont(font);
  painter.drawText(box, Qt::AlignCenter, text);
}

void Lines(QPainter& painter, std::initializer_list<QLineF> lines) {
  for (const QLineF& line : lines) painter.drawLine(line);
}

void DrawForm(QPainter& painter, const QPalette& palette) {
  Box(painter, palette, {1.5, 2.5, 13, 11});
  painter.fillRect(QRectF(2, 3, 12, 3), palette.color(QPalette::Highlight));
}

void DrawButton(QPainter& painter, const QPalette& palette) {
  painter.setPen(QPen(palette.color(QPalette::ButtonText), 1));
  painter.setBrush(palette.color(QPalette::Button));
  painter.drawRoundedRect(QRectF(0.5, 3.5, 15, 9), 2, 2);
  Letters(painter, QStringLiteral("OK"), {1, 3.5, 14, 9}, 7);
}

void DrawCheckBox(QPainter& painter, const QPalette& palette) {
  Box(painter, palette, {2.5, 2.5, 11, 11});
  painter.setPen(QPen(palette.color(QPalette::Highlight), 2));
  Lines(painter, {{5, 8, 7.5, 11}, {7.5, 11, 12, 4.5}});
}

void DrawRadioButton(QPainter& painter, const QPalette& palette) {
  painter.setPen(QPen(palette.color(QPalette::ButtonText), 1));
  painter.setBrush(palette.color(QPalette::Base));
  painter.drawEllipse(QRectF(2.5, 2.5, 11, 11));
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette.color(QPalette::Highlight));
  painter.drawEllipse(QRectF(5.5, 5.5, 5, 5));
}

void DrawListBox(QPainter& painter, const QPalette& palette) {
  Box(painter, palette, {1.5, 1.5, 13, 13});
  painter.fillRect(QRectF(2, 5, 12, 3), palette.color(QPalette::Highlight));
  Lines(painter, {{4, 3.5, 11, 3.5}, {4, 10.5, 12, 10.5}, {4, 12.5, 9, 12.5}});
}

void DrawLabel(QPainter& painter, const QPalette& palette) {
  painter.setPen(palette.color(QPalette::ButtonText));
  Letters(painter, QStringLiteral("A"), {0, 0, 16, 16}, 14);
}

void DrawEdit(QPainter& painter, const QPalette& palette) {
  Box(painter, palette, {0.5, 3.5, 15, 9});
  Lines(painter, {{4, 5.5, 4, 10.5}, {6, 8.5, 12, 8.5}});
}

void DrawMemo(QPainter& painter, const QPalette& palette) {
  Box(painter, palette, {1.5, 1.5, 13, 13});
  Lines(painter, {{4, 4.5, 12, 4.5}, {4, 7.5, 11, 7.5}, {4, 10.5, 12, 10.5}});
}

void DrawComboBox(QPainter& painter, const QPalette& palette) {
  Box(painter, palette, {0.5, 3.5, 15, 9});
  painter.setPen(QPen(palette.color(QPalette::Highlight), 2));
  Lines(painter, {{9, 7, 11, 9.5}, {11, 9.5, 13, 7}});
}

void DrawPanel(QPainter& painter, const QPalette& palette) {
  painter.setPen(QPen(palette.color(QPalette::ButtonText), 1));
  painter.setBrush(palette.color(QPalette::Button));
  painter.drawRect(QRectF(1.5, 2.5, 13, 11));
}

void DrawGroupBox(QPainter& painter, const QPalette& palette) {
  painter.setPen(QPen(palette.color(QPalette::ButtonText), 1));
  Lines(painter, {{1.5, 4.5, 1.5, 14.5}, {1.5, 14.5, 14.5, 14.5}, {14.5, 14.5, 14.5, 4.5}, {10, 4.5, 14.5, 4.5}});
  Letters(painter, QStringLiteral("ab"), {0.5, 0, 10, 9}, 8);
}

void DrawPages(QPainter& painter, const QPalette& palette) {
  Box(painter, palette, {1.5, 5.5, 13, 9});
  Box(painter, palette, {1.5, 1.5, 5, 4});
  painter.fillRect(QRectF(7, 2, 5, 3), palette.color(QPalette::Mid));
}

void DrawGrid(QPainter& painter, const QPalette& palette) {
  Box(painter, palette, {1.5, 1.5, 13, 13});
  painter.fillRect(QRectF(2, 2, 12, 3), palette.color(QPalette::Mid));
  Lines(painter, {{1.5, 5.5, 14.5, 5.5}, {1.5, 9.5, 14.5, 9.5}, {6.5, 1.5, 6.5, 14.5}, {10.5, 1.5, 10.5, 14.5}});
}

void DrawMenu(QPainter& painter, const QPalette& palette) {
  Box(painter, palette, {1.5, 1.5, 13, 13});
  painter.fillRect(QRectF(2, 6, 12, 4), palette.color(QPalette::Highlight));
  Lines(painter, {{4, 3.5, 12, 3.5}, {4, 12.5, 10, 12.5}});
}

void DrawTimer(QPainter& painter, const QPalette& palette) {
  painter.setPen(QPen(palette.color(QPalette::ButtonText), 1));
  painter.setBrush(palette.color(QPalette::Base));
  painter.drawEllipse(QRectF(1.5, 1.5, 13, 13));
  Lines(painter, {{8, 8, 8, 3.5}, {8, 8, 11.5, 9.5}});
}

void DrawImage(QPainter& painter, const QPalette& palette) {
  Box(painter, palette, {1.5, 2.5, 13, 11});
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette.color(QPalette::Highlight));
  painter.drawPolygon(QPolygonF(QList<QPointF>{{3, 12}, {7, 6}, {9, 9}, {11, 7}, {13, 12}}));
}

void DrawActions(QPainter& painter, const QPalette& palette) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette.color(QPalette::Highlight));
  painter.drawPolygon(QPolygonF(QList<QPointF>{{9, 1}, {3, 9}, {7, 9}, {6, 15}, {13, 6}, {9, 6}}));
}

void DrawDialog(QPainter& painter, const QPalette& palette) {
  DrawForm(painter, palette);
  Letters(painter, QStringLiteral("?"), {2, 6, 12, 8}, 8);
}

void DrawInspector(QPainter& painter, const QPalette& palette) {
  Box(painter, palette, {1.5, 1.5, 13, 13});
  painter.fillRect(QRectF(8, 2, 6, 12), palette.color(QPalette::AlternateBase));
  Lines(painter, {{7.5, 1.5, 7.5, 14.5}, {3, 4.5, 6, 4.5}, {3, 8.5, 6, 8.5}, {3, 12.5, 6, 12.5}, {9, 4.5, 13, 4.5}});
}

const std::map<QString, TDraw>& Drawings() {
  static const std::map<QString, TDraw> drawings = {{QStringLiteral("TCustomForm"), &DrawForm},
                                                    {QStringLiteral("TButton"), &DrawButton},
                                                    {QStringLiteral("TSpeedButton"), &DrawButton},
                                                    {QStringLiteral("TCheckBox"), &DrawCheckBox},
                                                    {QStringLiteral("TRadioButton"), &DrawRadioButton},
                                                    {QStringLiteral("TRadioGroup"), &DrawRadioButton},
                                                    {QStringLiteral("TListBox"), &DrawListBox},
                                                    {QStringLiteral("TLabel"), &DrawLabel},
                                                    {QStringLiteral("TStaticText"), &DrawLabel},
                                                    {QStringLiteral("TEdit"), &DrawEdit},
                                                    {QStringLiteral("TMaskEdit"), &DrawEdit},
                                                    {QStringLiteral("TMemo"), &DrawMemo},
                                                    {QStringLiteral("TComboBox"), &DrawComboBox},
                                                    {QStringLiteral("TPanel"), &DrawPanel},
                                                    {QStringLiteral("TGroupBox"), &DrawGroupBox},
                                                    {QStringLiteral("TPageControl"), &DrawPages},
                                                    {QStringLiteral("TTabControl"), &DrawPages},
                                                    {QStringLiteral("TTabSheet"), &DrawPages},
                                                    {QStringLiteral("TCustomGrid"), &DrawGrid},
                                                    {QStringLiteral("TMenu"), &DrawMenu},
                                                    {QStringLiteral("TMenuItem"), &DrawMenu},
                                                    {QStringLiteral("TTimer"), &DrawTimer},
                                                    {QStringLiteral("TImage"), &DrawImage},
                                                    {QStringLiteral("TImageList"), &DrawImage},
                                                    {QStringLiteral("TCustomActionList"), &DrawActions},
                                                    {QStringLiteral("TContainedAction"), &DrawActions},
                                                    {QStringLiteral("TBasicAction"), &DrawActions},
                                                    {QStringLiteral("TCommonDialog"), &DrawDialog},
                                                    {QStringLiteral("TKTCustomItemListEditor"), &DrawInspector}};
  return drawings;
}

TDraw DrawingNamed(const QString& className) {
  const auto found = Drawings().find(className);
  return found == Drawings().end() ? nullptr : found->second;
}

TDraw DrawingOf(const TClassInfo& info) {
  const TClassInfo* at = &info;
  while (at->ClassParent() && !DrawingNamed(at->ClassName())) at = at->ClassParent();
  return DrawingNamed(at->ClassName());
}

/// The first two letters, without the T that all names begin with.
QString Initials(const QString& className) {
  return className.startsWith(u'T') ? className.mid(1, 2) : className.left(2);
}

class TClassIconEngine final : public QIconEngine {
 public:
  TClassIconEngine(TDraw draw, const QString& className) : FDraw(draw), FInitials(Initials(className)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
    const QPalette palette = QGuiApplication::palette();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const qreal side = qMin(rect.width(), rect.height());
    painter->translate(rect.center().x() + 0.5 - side / 2, rect.center().y() + 0.5 - side / 2);
    painter->scale(side / 16, side / 16);
    if (FDraw) {
      FDraw(*painter, palette);
    } else {
      Box(*painter, palette, {0.5, 0.5, 15, 15});
      Letters(*painter, FInitials, {0, 0, 16, 16});
    }
    painter->restore();
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return picture;
  }
  QIconEngine* clone() const override { return new TClassIconEngine(*this); }

 private:
  TDraw FDraw;
  QString FInitials;
};

}  // namespace

QIcon ClassIcon(const TClassInfo& info) { return QIcon(new TClassIconEngine(DrawingOf(info), info.ClassName())); }

QIcon ComponentIcon(const TComponent& component) {
  const TUnknownComponent* unknown = AsUnknown(const_cast<TComponent*>(&component));
  if (!unknown) return ClassIcon(*component.ClassType());
  const QString className = unknown->GetHeader().ClassName;
  return QIcon(new TClassIconEngine(DrawingNamed(className), className));
}

}  // namespace designer
