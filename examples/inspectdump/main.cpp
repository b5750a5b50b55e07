// Prints what an object inspector lists for the components of a form file, and writes values through it.
#include "inspectdump/InspectedForm.h"
#include "kt/rtl/objects/Exceptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

namespace {

void DescribeOptions(QCommandLineParser& parser) {
  parser.setApplicationDescription(QStringLiteral(
      "Prints the properties of every component in a form file as an object inspector lists them.\nWhat is modified "
      "has a star. With --set, writes values through the inspector and saves the file."));
  parser.addHelpOption();
  parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("a form, as text or binary"));
  parser.addOption({QStringLiteral("categories"), QStringLiteral("List properties below their categories.")});
  parser.addOption({QStringLiteral("set"), QStringLiteral("Write a value, as Button1.Font.Size=12; may be repeated."),
                    QStringLiteral("Path=Value")});
}

void SetValues(TInspectedForm& form, const QStringList& assignments) {
  for (const QString& assignment : assignments) {
    const qsizetype equals = assignment.indexOf(u'=');
    if (equals <= 0) throw kt::EConvertError(QStringLiteral("'%1' is not of the form Path=Value").arg(assignment));
    form.SetValue(assignment.left(equals), assignment.mid(equals + 1));
  }
  if (!assignments.isEmpty()) form.Save();
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  QCommandLineParser parser;
  DescribeOptions(parser);
  parser.process(application);
  if (parser.positionalArguments().size() != 1) parser.showHelp(2);
  try {
    TInspectedForm form(parser.positionalArguments().first());
    SetValues(form, parser.values(QStringLiteral("set")));
    form.SetCategories(parser.isSet(QStringLiteral("categories")));
    std::fputs(form.Text().toUtf8().constData(), stdout);
  } catch (const kt::Exception& error) {
    std::fprintf(stderr, "inspectdump: error: %s\n", qUtf8Printable(error.Message()));
    return 1;
  }
  return 0;
}
