#pragma once

#include <QMainWindow>

#include <kt/KTItemListEditor.h>
#include <kt/rtl/objects/Make.h>
#include <memory>

class QPlainTextEdit;

/// A window with one item list editor down the page, one across it, and a log of what they tell.
class TDemo : public QMainWindow {
 public:
  TDemo();
  ~TDemo() override;

  /// As somebody sees it in the middle of working: things are expanded, and a value is selected.
  void ShowOff();
  /// For the editors and all else in the window, in points.
  void SetFontSize(int points);

 private:
  void FillSettings();
  void FillTable();
  void LogEventsOf(kt::TKTItemListEditor& editor, const QString& name);
  void LogValidationOf(kt::TKTItemListEditor& editor, const QString& name);
  void LogEditingOf(kt::TKTItemListEditor& editor, const QString& name);
  void Log(const QString& line);

  std::unique_ptr<kt::TKTItemListEditor> FSettings;
  std::unique_ptr<kt::TKTItemListEditor> FTable;
  QPlainTextEdit* FLog;
};
