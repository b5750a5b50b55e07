#include "common/Startup.h"

#include "common/Looks.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFont>
#include <QPixmap>
#include <QWidget>

#include <cstdio>

namespace examples {

void ChoosePlatform(int argc, char** argv) {
  bool draws = false;
  for (int i = 1; i < argc; ++i) {
    const QByteArray argument(argv[i]);
    if (argument == "--scale" && i + 1 < argc) qputenv("QT_SCALE_FACTOR", argv[i + 1]);
    if (argument.startsWith("--scale=")) qputenv("QT_SCALE_FACTOR", argument.mid(8));
    draws = draws || argument == "--draw" || argument.startsWith("--draw=");
  }
  const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
  const bool isChosen = qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
  if (draws || (!hasDisplay && !isChosen)) qputenv("QT_QPA_PLATFORM", "offscreen");
}

bool IsOutOfSight() { return QGuiApplication::platformName() == u"offscreen"; }

void AddLookOptions(QCommandLineParser& parser) {
  parser.addOption({QStringLiteral("dark"), QStringLiteral("Light texts on dark ground.")});
  parser.addOption({QStringLiteral("rtl"), QStringLiteral("From right to left.")});
  parser.addOption({QStringLiteral("points"), QStringLiteral("The size of all fonts."), QStringLiteral("SIZE")});
}

void ApplyLooks(const QCommandLineParser& parser) {
  if (parser.isSet(QStringLiteral("dark"))) UseDarkPalette();
  if (parser.isSet(QStringLiteral("rtl"))) QApplication::setLayoutDirection(Qt::RightToLeft);
  const int points = parser.value(QStringLiteral("points")).toInt();
  if (points <= 0) return;
  QFont font = QApplication::font();
  font.setPointSize(points);
  QApplication::setFont(font);
}

void AddDrawOptions(QCommandLineParser& parser) {
  parser.addOption(
      {QStringLiteral("draw"), QStringLiteral("Draw the window into this picture."), QStringLiteral("PICTURE")});
  parser.addOption({QStringLiteral("scale"), QStringLiteral("Pixels of the screen for one of the window."),
                    QStringLiteral("FACTOR")});
}

int DrawWindow(const QString& program, QWidget& window, const QString& picture) {
  QApplication::processEvents();
  if (!window.grab().save(picture)) {
    std::fprintf(stderr, "%s: cannot write %s\n", qUtf8Printable(program), qUtf8Printable(picture));
    return 1;
  }
  std::printf("%s: drawn into %s\n", qUtf8Printable(program), qUtf8Printable(picture));
  return 0;
}

}  // namespace examples
