#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

namespace designer {

enum TSaveAnswer { saSave, saDiscard, saCancel };

/// What the window asks and tells its user, each in a window of its own; tests answer for the user.
struct TQuestions {
  /// Something could not be done.
  std::function<void(const QString& message)> Tell;
  /// Whether to save what would be lost otherwise.
  std::function<TSaveAnswer(const QString& name)> AskToSave;
  /// Names of files; empty when the user does not want to.
  std::function<QString(const QString& folder)> AskOpenName;
  std::function<QString(const QString& name)> AskSaveName;
  std::function<QString()> AskPictureName;
  std::function<QStringList()> AskPictureNames;
};

TQuestions QuestionsOf(QWidget& window);

}  // namespace designer
