// Two item list editors, all edit styles, and what they tell. Without a display it draws itself into a picture.
#include "Demo.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv) {
  const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
  if (!hasDisplay && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  TDemo demo;
  demo.show();
  const bool draws = QGuiApplication::platformName() == u"offscreen" || arguments.size() > 1;
  if (!draws) return QApplication::exec();

  demo.ShowOff();
  QApplication::processEvents();
  const QString file = arguments.value(1, QStringLiteral("itemlist.png"));
  if (!demo.grab().save(file)) {
    std::fprintf(stderr, "itemlist: cannot write %s\n", qUtf8Printable(file));
    return 1;
  }
  std::printf("itemlist: no display, drawn into %s\n", qUtf8Printable(file));
  return 0;
}
