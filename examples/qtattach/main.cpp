// An inspector attached to the windows of a running program that knows nothing of it. Without a display it draws itself
// into a picture.
#include "InspectorWindow.h"
#include "OrdinaryWindow.h"
#include "Picker.h"

#include <QApplication>

#include <cstdio>

namespace {

int Draw(TInspectorWindow& window, const QString& file) {
  QApplication::processEvents();
  if (!window.grab().save(file)) {
    std::fprintf(stderr, "qtattach: cannot write %s\n", qUtf8Printable(file));
    return 1;
  }
  std::printf("qtattach: drawn into %s\n", qUtf8Printable(file));
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
  if (!hasDisplay && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  TOrdinaryWindow ordinary;
  TInspectorWindow window;
  TPicker picker(&window);
  picker.OnPick = [&window](QWidget& widget) { window.Inspect(widget); };
  ordinary.show();
  window.show();
  window.Inspect(*ordinary.findChild<QWidget*>(QStringLiteral("SignIn")));
  const QStringList arguments = QApplication::arguments();
  if (QGuiApplication::platformName() != u"offscreen" && arguments.size() < 2) return QApplication::exec();
  return Draw(window, arguments.value(1, QStringLiteral("qtattach.png")));
}
