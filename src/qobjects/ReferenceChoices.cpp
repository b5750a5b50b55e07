#include "kt/qobjects/ReferenceChoices.h"

#include <QCoreApplication>
#include <QHash>
#include <QObject>

namespace kt {

namespace {

QObject& TopOf(QObject& object) {
  QObject* top = &object;
  while (top->parent() && top->parent() != QCoreApplication::instance()) top = top->parent();
  return *top;
}

QString LabelOf(const QObject& object) {
  const QString name = object.objectName();
  return name.isEmpty() ? QStringLiteral("%1 (unnamed)").arg(QString::fromUtf8(object.metaObject()->className()))
                        : name;
}

/// Gives each object a text of its own.
class TLabels {
 public:
  QString For(const QObject& object) {
    QString label = LabelOf(object);
    const int number = ++FCounts[label];
    if (number == 1) return label;
    QString text = QStringLiteral("%1 #%2").arg(label).arg(number);
    // Somebody may be called just so.
    while (FCounts.contains(text)) text += u'\'';
    FCounts[text] = 1;
    return text;
  }

 private:
  QHash<QString, int> FCounts;
};

}  // namespace

std::vector<TReferenceChoice> ReferenceChoices(QObject& from, const QMetaObject& wanted) {
  std::vector<TReferenceChoice> choices;
  TLabels labels;
  std::vector<QObject*> open = {&TopOf(from)};
  for (size_t i = 0; i < open.size(); ++i) {
    QObject* object = open[i];
    if (object->metaObject()->inherits(&wanted)) choices.push_back({labels.For(*object), object});
    const QObjectList& children = object->children();
    open.insert(open.end(), children.begin(), children.end());
  }
  return choices;
}

QString ReferenceText(QObject& object, QObject* from, const QMetaObject& wanted) {
  if (from && &TopOf(*from) == &TopOf(object)) {
    for (const TReferenceChoice& choice : ReferenceChoices(*from, wanted)) {
      if (choice.Object == &object) return choice.Text;
    }
  }
  return LabelOf(object);
}

}  // namespace kt
