#include "designer/window/Questions.h"

#include <QFileDialog>
#include <QImageReader>
#include <QMessageBox>

namespace designer {

namespace {

QString Filters() { return QStringLiteral("Forms (*.dfm *.lfm *.xfm *.fmx *.res);;All files (*)"); }

/// What Qt reads.
QString PictureFilters() {
  QStringList patterns;
  for (const QByteArray& format : QImageReader::supportedImageFormats()) {
    patterns.append(QStringLiteral("*.") + QString::fromLatin1(format));
  }
  return QStringLiteral("Pictures (%1);;All files (*)").arg(patterns.join(u' '));
}

TSaveAnswer AskToSave(QWidget& window, const QString& name) {
  const auto answer = QMessageBox::question(&window, QStringLiteral("Form designer"),
                                            QStringLiteral("Save the changes to %1?").arg(name),
                                            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
  if (answer == QMessageBox::Save) return saSave;
  return answer == QMessageBox::Discard ? saDiscard : saCancel;
}

}  // namespace

TQuestions QuestionsOf(QWidget& window) {
  TQuestions questions;
  questions.Tell = [&window](const QString& message) {
    QMessageBox::warning(&window, QStringLiteral("Form designer"), message);
  };
  questions.AskToSave = [&window](const QString& name) { return AskToSave(window, name); };
  questions.AskOpenName = [&window](const QString& folder) {
    return QFileDialog::getOpenFileName(&window, QStringLiteral("Open a form"), folder, Filters());
  };
  questions.AskSaveName = [&window](const QString& name) {
    return QFileDialog::getSaveFileName(&window, QStringLiteral("Save the form"), name, Filters());
  };
  questions.AskPictureName = [&window] {
    return QFileDialog::getOpenFileName(&window, QStringLiteral("Load a picture"), QString(), PictureFilters());
  };
  questions.AskPictureNames = [&window] {
    return QFileDialog::getOpenFileNames(&window, QStringLiteral("Add images"), QString(), PictureFilters());
  };
  return questions;
}

}  // namespace designer
