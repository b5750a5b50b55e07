#pragma once

#include "kt/rtl/objects/Object.h"

#include <QRegularExpression>
#include <QString>

namespace kt {

/// Finds what a regular expression describes in texts.
///
/// The syntax is Qt's, which is Perl's. Upper and lower case differ; "^" and "$" stand for the ends of each line, and
/// "." for anything but an end of line, a carriage return as well as a line feed. Positions count from 1.
///
/// An expression may be anything. One that cannot be read is told when it is used: matching raises EKTException
/// "Invalid regular expression "%s": %s". An empty one matches at the start of every text. The work of one match is
/// bounded: what takes longer raises EKTException "Regular expression "%s" takes too long", rather than have the user
/// wait.
class TGRegularExpression : public TObject {
 public:
  using Inherited = TObject;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  const QString& GetExpression() const { return FExpression; }
  void SetExpression(const QString& value);

  /// The position of the first match, or 0.
  int Match(const QString& subject);
  /// The same from a position on, which has to lie in the text or right behind it; else there is no match. `length` is
  /// that of the match, 0 without one.
  int Match(const QString& subject, int start, int& length);

 protected:
  explicit TGRegularExpression(const QString& expression = {}) { SetExpression(expression); }

 private:
  QString FExpression;
  QRegularExpression FEngine;
};

}  // namespace kt
