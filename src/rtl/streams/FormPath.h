#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace kt {

/// Where a reader or writer of a form is: `Form1.Panel1.Columns[2].Caption`. Keeps its memory from sibling to sibling.
class TFormPath {
 public:
  /// Goes into a child object; an object without a name is shown by its class.
  void EnterObject(QStringView name, QStringView className);
  /// Goes into the item `index` (counted from 0) of the collection that is the present property.
  void EnterItem(int index);
  /// Back to the object or item around this one.
  void Leave();
  void SetProperty(QStringView name);

  /// The path as text; empty outside of any object.
  QString ToString() const;

 private:
  struct TLevel {
    QString Name;
    QString Property;
    int Item = -1;
  };
  TLevel& Push();

  std::vector<TLevel> FLevels;
  std::size_t FDepth = 0;
};

}  // namespace kt
