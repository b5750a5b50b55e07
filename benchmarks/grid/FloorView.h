#pragma once

#include "Views.h"

#include <QPaintEvent>
#include <QPainter>

#include <vector>

namespace kt::benchmarks {

/// The least that a view can do: a bare widget draws the same cells, in the same places and with the same lines, with
/// plain drawText calls, and knows nothing of anything else.
class TFloorView : public QWidget {
 public:
  explicit TFloorView(const TScene& scene) : FScene(scene), FTop(scene.First()) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    for (int row = 0; row < scene.Rows; ++row) FRows.push_back({NameOf(row), ValueOf(row)});
    for (int child = 0; child < TScene::kChildren; ++child) FChildren.push_back({NameOf(child), ValueOf(child)});
    Show(*this);
  }

  void Repaint() { repaint(); }
  void ScrollTo(int offset) {
    const int before = FTop;
    FTop = FScene.First() + offset;
    scroll(0, (before - FTop) * kRowHeight, QRect(0, kRowHeight, width(), height() - kRowHeight));
  }
  void SetOne(const QString& value) {
    FRows[static_cast<size_t>(FScene.Changing())].Value = value;
    update(Cell(1, FScene.Changing() - FTop + 1));
  }
  void Expand(bool isExpanded) {
    FIsExpanded = isExpanded;
    update(0, (TScene::kParentInView + 2) * kRowHeight, width(), height());
  }
  int RowsInView() const { return height() / kRowHeight - 1; }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    const QRect dirty = event->rect();
    painter.fillRect(dirty, Qt::white);
    const int last = std::min(dirty.bottom() / kRowHeight, height() / kRowHeight);
    for (int line = dirty.top() / kRowHeight; line <= last; ++line) {
      for (int column = 0; column < 2; ++column) PaintCell(painter, dirty, column, line);
    }
  }

 private:
  static constexpr int kRowHeight = 19;
  struct TRow {
    QString Name;
    QString Value;
  };

  QRect Cell(int column, int line) const {
    return {column * width() / 2, line * kRowHeight, width() / 2 - 1, kRowHeight - 1};
  }
  const TRow& RowAt(int line) const {
    const int row = FTop + line - 1;
    if (!FIsExpanded || row <= FScene.Parent()) return FRows[static_cast<size_t>(row)];
    if (row <= FScene.Parent() + TScene::kChildren) return FChildren[static_cast<size_t>(row - FScene.Parent() - 1)];
    return FRows[static_cast<size_t>(row - TScene::kChildren)];
  }
  void PaintCell(QPainter& painter, const QRect& dirty, int column, int line) {
    const QRect cell = Cell(column, line);
    if (!cell.intersects(dirty)) return;
    painter.fillRect(cell.adjusted(0, cell.height(), 1, 1), Qt::lightGray);
    painter.fillRect(QRect(cell.right() + 1, cell.top(), 1, cell.height()), Qt::lightGray);
    if (line == 0) {
      painter.fillRect(cell, Qt::lightGray);
      return painter.drawText(cell.adjusted(2, 2, 0, 0), 0, column == 0 ? FTitle : FValueTitle);
    }
    const TRow& row = RowAt(line);
    painter.drawText(cell.adjusted(2, 2, 0, 0), 0, column == 0 ? row.Name : row.Value);
  }

  TScene FScene;
  int FTop;
  bool FIsExpanded = false;
  std::vector<TRow> FRows;
  std::vector<TRow> FChildren;
  QString FTitle = QStringLiteral("Property");
  QString FValueTitle = QStringLiteral("Value");
};

}  // namespace kt::benchmarks
