#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QLocale>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

/// The main of test programs with windows: the surroundings are the same on every machine, a Qt warning fails the test
/// that caused it, and so does a widget that outlives it.
namespace {

/// Known to be harmless: the offscreen platform says them about itself.
bool IsHarmless(const QString& message) { return message.startsWith(QLatin1String("This plugin does not support")); }

void OnQtMessage(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtDebugMsg || type == QtInfoMsg || IsHarmless(message)) {
    fprintf(stderr, "%s\n", qUtf8Printable(message));
    return;
  }
  if (type == QtFatalMsg) {
    fprintf(stderr, "Qt is at its end: %s\n", qUtf8Printable(message));
    return;
  }
  ADD_FAILURE() << "Qt says: " << qUtf8Printable(message);
}

/// Qt's own stand-in for the desktop, made when the pointer goes from a widget with a shape of its own to none. Lives
/// as long as the program.
bool IsDesktop(const QWidget* widget) { return widget->windowType() == Qt::Desktop; }

class TCleanWorld : public ::testing::EmptyTestEventListener {
  void OnTestEnd(const ::testing::TestInfo&) override {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QWidgetList left = QApplication::allWidgets();
    left.removeIf(&IsDesktop);
    for (const QWidget* widget : left) ADD_FAILURE() << "a " << widget->metaObject()->className() << " is left over";
    // One failure a widget: the next test is not to blame for it.
    for (QWidget* widget : left) widget->isWindow() ? delete widget : void();
  }
};

void FixEnvironment(const QString& runtimeFolder) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_SCALE_FACTOR", "1");
  qputenv("LC_ALL", "C.UTF-8");
  qputenv("TZ", "UTC");
  qputenv("XDG_RUNTIME_DIR", runtimeFolder.toLocal8Bit());
  // Qt's dialogs remember things.
  qputenv("XDG_CONFIG_HOME", runtimeFolder.toLocal8Bit());
  qputenv("QT_QPA_PLATFORMTHEME", "");
}

void FixLooks() {
  QLocale::setDefault(QLocale::c());
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(11);
  QApplication::setFont(font);
}

}  // namespace

int main(int argc, char** argv) {
  const QTemporaryDir runtimeFolder;
  FixEnvironment(runtimeFolder.path());
  ::testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  FixLooks();
  qInstallMessageHandler(&OnQtMessage);
  ::testing::UnitTest::GetInstance()->listeners().Append(new TCleanWorld);
  return RUN_ALL_TESTS();
}
