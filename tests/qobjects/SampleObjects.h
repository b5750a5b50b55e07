#pragma once

#include <QByteArray>
#include <QChar>
#include <QColor>
#include <QCursor>
#include <QDate>
#include <QDateTime>
#include <QFont>
#include <QIcon>
#include <QKeySequence>
#include <QLocale>
#include <QMargins>
#include <QObject>
#include <QPixmap>
#include <QPointer>
#include <QPolygon>
#include <QRect>
#include <QRectF>
#include <QSizePolicy>
#include <QStringList>
#include <QTime>
#include <QUrl>
#include <QVariant>

#include <functional>
#include <limits>
#include <stdexcept>

namespace kt::tests {

/// A value made of values.
class TQtInner {
  Q_GADGET
  Q_PROPERTY(int depth MEMBER Depth)
  Q_PROPERTY(QColor tint MEMBER Tint)
  Q_PROPERTY(QPoint place MEMBER Place)
  Q_PROPERTY(int twice READ Twice)

 public:
  int Twice() const { return 2 * Depth; }
  bool operator==(const TQtInner& other) const {
    return Depth == other.Depth && Tint == other.Tint && Place == other.Place;
  }

  int Depth = 1;
  QColor Tint = Qt::red;
  QPoint Place = {3, 4};
};

class TQtOuter {
  Q_GADGET
  Q_PROPERTY(QString title MEMBER Title)
  Q_PROPERTY(kt::tests::TQtInner inner MEMBER Inner)
  Q_PROPERTY(kt::tests::TQtOuter self READ Self)

 public:
  TQtOuter Self() const { return *this; }
  bool operator==(const TQtOuter& other) const { return Title == other.Title && Inner == other.Inner; }

  QString Title = QStringLiteral("outer");
  TQtInner Inner;
};

/// Has a property of each kind.
class TQtKinds : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool flag MEMBER Flag)
  Q_PROPERTY(signed char tiny MEMBER Tiny)
  Q_PROPERTY(uchar byte MEMBER Byte)
  Q_PROPERTY(short small MEMBER Small)
  Q_PROPERTY(ushort word MEMBER Word)
  Q_PROPERTY(int whole MEMBER Whole)
  Q_PROPERTY(uint cardinal MEMBER Cardinal)
  Q_PROPERTY(qint64 large MEMBER Large)
  Q_PROPERTY(quint64 huge MEMBER Huge)
  Q_PROPERTY(float single MEMBER Single)
  Q_PROPERTY(double real MEMBER Real)
  Q_PROPERTY(QChar letter MEMBER Letter)
  Q_PROPERTY(QString text MEMBER Text)
  Q_PROPERTY(QByteArray bytes MEMBER Bytes)
  Q_PROPERTY(Mode mode MEMBER AMode)
  Q_PROPERTY(Tight tight MEMBER ATight)
  Q_PROPERTY(Narrow narrow MEMBER ANarrow)
  Q_PROPERTY(Masks masks READ GetMasks WRITE SetMasks)
  Q_PROPERTY(Sides sides READ GetSides WRITE SetSides)
  Q_PROPERTY(QObject* partner MEMBER Partner)
  Q_PROPERTY(QColor color MEMBER Color)
  Q_PROPERTY(QCursor cursor MEMBER Cursor)
  Q_PROPERTY(QFont font MEMBER Font)
  Q_PROPERTY(QDate date MEMBER Date)
  Q_PROPERTY(QTime time MEMBER Time)
  Q_PROPERTY(QDateTime moment MEMBER Moment)
  Q_PROPERTY(QStringList lines MEMBER Lines)
  Q_PROPERTY(QSize size MEMBER Size)
  Q_PROPERTY(QRect rect MEMBER Rect)
  Q_PROPERTY(QRectF rectF MEMBER RectF)
  Q_PROPERTY(QMargins margins MEMBER Margins)
  Q_PROPERTY(QSizePolicy policy MEMBER Policy)
  Q_PROPERTY(QLocale locale MEMBER Locale)
  Q_PROPERTY(QKeySequence keys MEMBER Keys)
  Q_PROPERTY(QUrl url MEMBER Url)
  Q_PROPERTY(QIcon icon READ GetIcon WRITE SetIcon)
  Q_PROPERTY(QPixmap picture READ GetPicture WRITE SetPicture)
  Q_PROPERTY(QPolygon polygon MEMBER Polygon)
  Q_PROPERTY(QVariant variant MEMBER AVariant)
  Q_PROPERTY(kt::tests::TQtOuter gadget MEMBER Gadget)
  Q_PROPERTY(int fixed READ Fixed CONSTANT)

 public:
  enum Mode { Cold = -3, Warm = 7, Lukewarm = 7, Hot = 100 };
  Q_ENUM(Mode)
  enum Tight : quint8 { Loose, Tied = 200 };
  Q_ENUM(Tight)
  enum Side { NoSide = 0, Left = 1, Top = 4, Corner = 5 };
  Q_DECLARE_FLAGS(Sides, Side)
  Q_FLAG(Sides)
  enum Narrow : qint16 { Below = -2, Above = 300 };
  Q_ENUM(Narrow)
  /// Without a key of one bit.
  enum Mask { LowMask = 3, HighMask = 12 };
  Q_DECLARE_FLAGS(Masks, Mask)
  Q_FLAG(Masks)

  using QObject::QObject;
  int Fixed() const { return 42; }
  Masks GetMasks() const { return AMasks; }
  void SetMasks(Masks value) { AMasks = value; }
  Sides GetSides() const { return ASides; }
  void SetSides(Sides value) { ASides = value; }
  QIcon GetIcon() const { return Icon; }
  void SetIcon(const QIcon& value) { Icon = value; }
  QPixmap GetPicture() const { return Picture; }
  void SetPicture(const QPixmap& value) { Picture = value; }

  bool Flag = false;
  signed char Tiny = 0;
  uchar Byte = 0;
  short Small = 0;
  ushort Word = 0;
  int Whole = 0;
  uint Cardinal = 0;
  qint64 Large = 0;
  quint64 Huge = 0;
  float Single = 0;
  double Real = 0;
  QChar Letter = u'a';
  QString Text;
  QByteArray Bytes;
  Mode AMode = Warm;
  Tight ATight = Loose;
  Narrow ANarrow = Below;
  Masks AMasks = LowMask;
  Sides ASides;
  QObject* Partner = nullptr;
  QColor Color;
  QCursor Cursor;
  QFont Font;
  QDate Date;
  QTime Time;
  QDateTime Moment;
  QStringList Lines;
  QSize Size;
  QRect Rect;
  QRectF RectF;
  QMargins Margins;
  QSizePolicy Policy;
  QLocale Locale;
  QKeySequence Keys;
  QUrl Url;
  QIcon Icon;
  QPixmap Picture;
  QPolygon Polygon;
  QVariant AVariant;
  TQtOuter Gadget;
};

/// Tells of its changes, and counts how it is read and written.
class TQtCounter : public QObject {
  Q_OBJECT
  Q_PROPERTY(int count READ Count WRITE SetCount RESET ResetCount NOTIFY Changed)
  Q_PROPERTY(int other READ Other WRITE SetOther NOTIFY OtherChanged)
  Q_PROPERTY(QPoint place READ Place WRITE SetPlace NOTIFY PlaceChanged)
  Q_PROPERTY(int hidden READ Other DESIGNABLE false)
  Q_PROPERTY(int passing READ Other WRITE SetOther STORED false)

 public:
  Q_INVOKABLE explicit TQtCounter(QObject* parent = nullptr) : QObject(parent) {}

  int Count() const {
    ++Reads;
    return FCount;
  }
  void SetCount(int value) {
    ++Writes;
    FCount = value;
    Q_EMIT Changed();
  }
  void ResetCount() { SetCount(5); }
  int Other() const { return FOther; }
  void SetOther(int value) {
    FOther = value;
    Q_EMIT OtherChanged(value);
  }
  QPoint Place() const { return FPlace; }
  void SetPlace(QPoint value) {
    FPlace = value;
    Q_EMIT PlaceChanged();
  }

  /// As many changes as that, up to that number.
  void CountTo(int last) {
    for (int i = 1; i <= last; ++i) SetCount(i);
  }

  mutable int Reads = 0;
  int Writes = 0;

 Q_SIGNALS:
  void Changed();
  void OtherChanged(int value);
  void PlaceChanged();

 private:
  int FCount = 5;
  int FOther = 0;
  QPoint FPlace;
};

/// For a factory of the application's.
class TQtMade : public TQtCounter {
  Q_OBJECT
  Q_PROPERTY(int extra MEMBER Extra)

 public:
  int Extra = 1;
};

/// Its accessors do what the test wants.
class TQtHostile : public QObject {
  Q_OBJECT
  Q_PROPERTY(int alpha READ Alpha WRITE SetAlpha)
  Q_PROPERTY(int beta MEMBER Beta)
  Q_PROPERTY(kt::tests::TQtOuter gadget READ Gadget WRITE SetGadget)
  Q_PROPERTY(QStringList lines READ Lines WRITE SetLines)

 public:
  TQtHostile() {
    if (OnConstruct) OnConstruct(this);
  }
  ~TQtHostile() override { Call(OnDestruct); }

  int Alpha() const { return Call(OnGet), 1; }
  void SetAlpha(int) { Call(OnSet); }
  TQtOuter Gadget() const { return Call(OnGetGadget), TQtOuter(); }
  void SetGadget(const TQtOuter&) { Call(OnSet); }
  QStringList Lines() const { return Call(OnGetLines), QStringList{QStringLiteral("a")}; }
  void SetLines(const QStringList&) { Call(OnSet); }

  int Beta = 0;
  std::function<void()> OnGet;
  std::function<void()> OnGetGadget;
  std::function<void()> OnGetLines;
  std::function<void()> OnSet;
  std::function<void()> OnDestruct;
  static inline std::function<void(QObject*)> OnConstruct;

 private:
  /// A copy: it may destroy the object.
  static void Call(std::function<void()> handler) {
    if (handler) handler();
  }
};

class TQtHostileHeir : public TQtHostile {
  Q_OBJECT
  Q_PROPERTY(int gamma MEMBER Gamma)

 public:
  int Gamma = 3;
};

/// Names that differ in nothing but case, and one that its ancestor has made final.
class TQtNames : public TQtCounter {
  Q_OBJECT
  Q_PROPERTY(int value MEMBER Small)
  Q_PROPERTY(int Value MEMBER Capital)
  Q_PROPERTY(int sealed MEMBER Small FINAL)

 public:
  using TQtCounter::TQtCounter;
  int Small = 1;
  int Capital = 2;
};

class TQtUnsealed : public TQtNames {
  Q_OBJECT
  Q_PROPERTY(int sealed MEMBER Other)
  Q_PROPERTY(int count MEMBER Other)

 public:
  using TQtNames::TQtNames;
  int Other = 77;
};

}  // namespace kt::tests
