#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <stdexcept>

namespace uiview {

/// A file that is no form, or whose form cannot be made; the message names the file.
class EUiFile : public std::runtime_error {
 public:
  explicit EUiFile(const QString& message) : std::runtime_error(message.toStdString()) {}
  QString Message() const { return QString::fromUtf8(what()); }
};

/// A form as its file describes it.
struct TUiForm {
  std::unique_ptr<QWidget> Widget;
  /// What of the file is not in the form as it should be, a line each.
  QStringList Remarks;
};

/// Raises EUiFile; nothing is left over then.
TUiForm LoadUi(const QString& fileName);

}  // namespace uiview
