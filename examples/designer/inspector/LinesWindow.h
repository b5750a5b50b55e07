#pragma once

#include <QDialog>

class QPlainTextEdit;

namespace designer {

/// A window for a text of several lines.
class TLinesWindow : public QDialog {
 public:
  TLinesWindow(const QString& title, const QStringList& lines, QWidget* parent);

  QStringList Lines() const;
  /// Whether anything was typed.
  bool IsChanged() const;

 private:
  QPlainTextEdit* FEdit;
};

}  // namespace designer
