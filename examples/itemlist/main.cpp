// Two item list editors, all edit styles, and what they tell. Without a display it draws itself into a picture.
#include "Demo.h"
#include "common/Startup.h"

#include <QApplication>
#include <QCommandLineParser>

namespace {

void DescribeOptions(QCommandLineParser& parser) {
  parser.setApplicationDescription(
      QStringLiteral("Shows an item list editor down the page, one across it, and the events of both.\nWith a file "
                     "name, and without a "
                     "display, draws the window into that picture instead."));
  parser.addHelpOption();
  parser.addPositionalArgument(QStringLiteral("PICTURE"), QStringLiteral("the picture (itemlist.png)"),
                               QStringLiteral("[PICTURE]"));
  examples::AddLookOptions(parser);
}

}  // namespace

int main(int argc, char** argv) {
  examples::ChoosePlatform(argc, argv);
  QApplication application(argc, argv);
  QCommandLineParser parser;
  DescribeOptions(parser);
  parser.process(application);
  examples::ApplyLooks(parser);
  TDemo demo;
  if (parser.isSet(QStringLiteral("points"))) demo.SetFontSize(parser.value(QStringLiteral("points")).toInt());
  demo.show();
  const QStringList files = parser.positionalArguments();
  if (!examples::IsOutOfSight() && files.isEmpty()) return QApplication::exec();
  demo.ShowOff();
  return examples::DrawWindow(QStringLiteral("itemlist"), demo, files.value(0, QStringLiteral("itemlist.png")));
}
