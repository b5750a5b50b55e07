#pragma once

#include <QMetaObject>
#include <QString>

#include <vector>

class QObject;

namespace kt {

/// An object that can be referred to, under a text that no other one has.
struct TReferenceChoice {
  QString Text;
  QObject* Object;
};

/// The objects of a class in the tree that `from` is in, from its top and level by level. Their texts are their names,
/// "QLabel (unnamed)" for those without; behind one that another object has already there is a number: "name #2".
std::vector<TReferenceChoice> ReferenceChoices(QObject& from, const QMetaObject& wanted);

/// The text of an object among these, or, from another tree, without a number.
QString ReferenceText(QObject& object, QObject* from, const QMetaObject& wanted);

}  // namespace kt
