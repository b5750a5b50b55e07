// Two item list editors, all edit styles, and what they tell. Without a display it draws itself into a picture.
#include "Demo.h"
#include "Looks.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>

namespace {

void DescribeOptions(QCommandLineParser& parser) {
  parser.setApplicationDescription(
      QStringLiteral("Shows an item list editor down the page, one across it, and the events of both.\nWith a file "
                     "name, and without a "
                     "display, draws the window into that picture instead."));
  parser.addHelpOption();
  parser.addPositionalArgument(QStringLiteral("PICTURE"), QStringLiteral("the picture (itemlist.png)"),
                               QStringLiteral("[PICTURE]"));
  parser.addOption({QStringLiteral("dark"), QStringLiteral("Light texts on dark ground.")});
  parser.addOption({QStringLiteral("rtl"), QStringLiteral("From right to left.")});
  parser.addOption({QStringLiteral("points"), QStringLiteral("The size of all fonts."), QStringLiteral("SIZE")});
}

int Draw(TDemo& demo, const QString& file) {
  demo.ShowOff();
  QApplication::processEvents();
  if (!demo.grab().save(file)) {
    std::fprintf(stderr, "itemlist: cannot write %s\n", qUtf8Printable(file));
    return 1;
  }
  std::printf("itemlist: drawn into %s\n", qUtf8Printable(file));
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
  if (!hasDisplay && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QCommandLineParser parser;
  DescribeOptions(parser);
  parser.process(application);
  if (parser.isSet(QStringLiteral("dark"))) UseDarkPalette();
  if (parser.isSet(QStringLiteral("rtl"))) QApplication::setLayoutDirection(Qt::RightToLeft);
  TDemo demo;
  if (parser.isSet(QStringLiteral("points"))) demo.SetFontSize(parser.value(QStringLiteral("points")).toInt());
  demo.show();
  const QStringList files = parser.positionalArguments();
  if (QGuiApplication::platformName() != u"offscreen" && files.isEmpty()) return QApplication::exec();
  return Draw(demo, files.value(0, QStringLiteral("itemlist.png")));
}
