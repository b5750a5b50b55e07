#pragma once

#include "qobjects/SampleObjects.h"

#include <QLabel>
#include <QObject>
#include <QObjectBindableProperty>
#include <QString>
#include <QVariant>

#include <functional>
#include <vector>

namespace kt::tests {

/// Counts how many were made.
class TQtInvokable : public QObject {
  Q_OBJECT
  Q_PROPERTY(int count MEMBER Count)

 public:
  Q_INVOKABLE explicit TQtInvokable(QObject* parent = nullptr) : QObject(parent) { ++Made; }

  int Count = 5;
  static inline int Made = 0;
};

/// The same, for an application that has asked.
class TQtInvited : public QObject {
  Q_OBJECT
  Q_PROPERTY(int count MEMBER Count)

 public:
  Q_INVOKABLE explicit TQtInvited(QObject* parent = nullptr) : QObject(parent) {}

  int Count = 5;
};

/// Tells of its changes by a binding alone.
class TQtBindable : public QObject {
  Q_OBJECT
  Q_PROPERTY(int level READ Level WRITE SetLevel BINDABLE BindableLevel)

 public:
  int Level() const { return FLevel; }
  void SetLevel(int value) { FLevel = value; }
  QBindable<int> BindableLevel() { return &FLevel; }

 private:
  Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(TQtBindable, int, FLevel, 0)
};

/// Enumerations that are hard to tell apart.
class TQtWide : public QObject {
  Q_OBJECT
  Q_PROPERTY(Wide wide MEMBER AWide)
  Q_PROPERTY(Case key MEMBER ACase)

 public:
  enum class Wide : quint64 { None = 0, One = 1, Two = 2, Vast = 0x100000001 };
  Q_ENUM(Wide)
  enum Case { left = 1, Left = 2 };
  Q_ENUM(Case)

  Wide AWide = Wide::None;
  Case ACase = left;
};

/// Says of its members what classes say of their properties.
class TQtFlagged {
  Q_GADGET
  Q_PROPERTY(int plain MEMBER Plain)
  Q_PROPERTY(int passing MEMBER Passing STORED false)
  Q_PROPERTY(int hidden MEMBER Plain DESIGNABLE false)
  Q_PROPERTY(int constant READ Constant CONSTANT)
  Q_PROPERTY(int resettable READ Resettable WRITE SetResettable RESET ResetResettable)

 public:
  int Constant() const { return 3; }
  int Resettable() const { return FResettable; }
  void SetResettable(int value) { FResettable = value; }
  void ResetResettable() { FResettable = 77; }
  bool operator==(const TQtFlagged& other) const {
    return Plain == other.Plain && Passing == other.Passing && FResettable == other.FResettable;
  }

  int Plain = 1;
  int Passing = 2;

 private:
  int FResettable = 4;
};

class TQtFlaggedHolder : public QObject {
  Q_OBJECT
  Q_PROPERTY(kt::tests::TQtFlagged gadget MEMBER Gadget)

 public:
  TQtFlagged Gadget;
};

/// Its getters raise while it is asked to.
class TQtThrower : public QObject {
  Q_OBJECT
  Q_PROPERTY(int alpha READ Alpha WRITE SetAlpha)
  Q_PROPERTY(QString text READ Text WRITE SetText)
  Q_PROPERTY(QObject* partner READ Partner WRITE SetPartner)
  Q_PROPERTY(Qt::Alignment sides READ Sides WRITE SetSides)
  Q_PROPERTY(QStringList lines READ Lines WRITE SetLines)
  Q_PROPERTY(double zeta MEMBER Zeta)

 public:
  int Alpha() const { return Check(), 1; }
  void SetAlpha(int) {}
  QString Text() const { return Check(), QStringLiteral("text"); }
  void SetText(const QString&) {}
  QObject* Partner() const { return Check(), nullptr; }
  void SetPartner(QObject*) {}
  Qt::Alignment Sides() const { return Check(), Qt::AlignLeft; }
  void SetSides(Qt::Alignment) {}
  QStringList Lines() const { return Check(), QStringList(); }
  void SetLines(const QStringList&) {}

  std::function<void()> OnGet;
  double Zeta = 9;

 private:
  void Check() const {
    if (OnGet) OnGet();
  }
};

/// Points to another object, and does not care whether that is still there.
class TQtLink : public QObject {
  Q_OBJECT
  Q_PROPERTY(QObject* next MEMBER Next)
  Q_PROPERTY(kt::tests::TQtLink* sibling MEMBER Sibling NOTIFY SiblingChanged)

 public:
  using QObject::QObject;
  void SetSibling(TQtLink* value) {
    Sibling = value;
    Q_EMIT SiblingChanged();
  }

  QObject* Next = nullptr;
  TQtLink* Sibling = nullptr;

 Q_SIGNALS:
  void SiblingChanged();
};

/// Points to itself in each way that a value can.
class TQtSelfish : public QObject {
  Q_OBJECT
  Q_PROPERTY(QObject* self MEMBER Self)
  Q_PROPERTY(QObjectList all MEMBER All)
  Q_PROPERTY(QVariant any MEMBER Any)
  Q_PROPERTY(QVariantList some MEMBER Some)
  Q_PROPERTY(int number MEMBER Number)

 public:
  QObject* Self = this;
  QObjectList All = {this};
  QVariant Any = QVariant::fromValue<QObject*>(this);
  QVariantList Some = {Any};
  int Number = 1;
};

/// For a factory: what new ones have is its default.
class TQtMarked : public TQtKinds {
  Q_OBJECT

 public:
  TQtMarked() {
    Font = QFont(QStringLiteral("DejaVu Sans"), 11);
    Rect = QRect(1, 2, 3, 4);
    Real = 0.5;
    Large = 77;
    AVariant = 5;
    Lines = QStringList{QStringLiteral("a")};
  }
};

/// A counter of which a factory makes new ones.
class TQtMadeCounter : public TQtCounter {
  Q_OBJECT
};

/// A class of a program's, of which nobody makes new ones.
class TQtMyLabel : public QLabel {
  Q_OBJECT
  Q_PROPERTY(int own MEMBER Own)

 public:
  int Own = 3;
};

}  // namespace kt::tests
