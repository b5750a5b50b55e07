#pragma once

#include <QByteArrayView>
#include <QFlags>
#include <QStringView>

#include <optional>

namespace kt {

/// What the header of a stored object says about it.
enum TFilerFlag : quint8 {
  ffInherited = 1,  ///< The object comes from an ancestor form; only the differences are stored.
  ffChildPos = 2,   ///< The position among its siblings is stored.
  ffInline = 4,     ///< The object is a frame that lives inside this form.
};
Q_DECLARE_FLAGS(TFilerFlags, TFilerFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(TFilerFlags)

/// The widest floating-point number there is here: the 80-bit kind where the processor has it, else a double.
using Extended = long double;

/// How a floating-point number is stored. Every kind but `fkExtended` holds at most a double. Currency has an event of
/// its own.
enum TFloatKind : quint8 { fkExtended, fkSingle, fkDate, fkDouble };

/// The values that are words of the format itself.
enum TFormConstant : quint8 { fcNull, fcNil, fcFalse, fcTrue };

/// The header of one object. The views are good only during the event that brings them.
struct TFormObject {
  TFilerFlags Flags;
  QStringView ClassName;  ///< May be empty: an object without a class.
  QStringView Name;       ///< May be empty.
  int ChildPos = 0;       ///< Means something only with `ffChildPos`.
};

/// Takes the events of one form, from a parser or from whoever writes a form.
///
/// Grammar of the calls:
///   object     = BeginObject (Property value)* object* EndObject
///   value      = Constant | Integer | Float | Currency | String | Identifier | Binary | set | list | collection
///   set        = BeginSet SetElement* EndSet
///   list       = BeginList value* EndList
///   collection = BeginCollection (BeginItem (Property value)* EndItem)* EndCollection
/// Views are good only during the call. A sink may throw; the parser passes it on and is of no further use.
class IFormSink {
 public:
  virtual ~IFormSink() = default;

  virtual void BeginObject(const TFormObject& object) = 0;
  virtual void EndObject() = 0;
  /// Names the property whose value comes next; a dotted path as in `Font.Style`.
  virtual void Property(QStringView path) = 0;

  virtual void Constant(TFormConstant value) = 0;
  virtual void Integer(qint64 value) = 0;
  virtual void Float(TFloatKind kind, Extended value) = 0;
  /// An amount of money in ten-thousandths.
  virtual void Currency(qint64 tenThousandths) = 0;
  /// Any UTF-16 units, lone surrogates and NUL included.
  virtual void String(QStringView value) = 0;
  /// An enumeration value, the name of a component or of a method; may be dotted.
  virtual void Identifier(QStringView name) = 0;
  virtual void Binary(QByteArrayView data) = 0;

  virtual void BeginSet() = 0;
  virtual void SetElement(QStringView name) = 0;
  virtual void EndSet() = 0;
  virtual void BeginList() = 0;
  virtual void EndList() = 0;
  virtual void BeginCollection() = 0;
  virtual void BeginItem(std::optional<int> index) = 0;
  virtual void EndItem() = 0;
  virtual void EndCollection() = 0;
};

/// Takes every event and does nothing; the base of sinks that care about a few events only.
class TIdleFormSink : public IFormSink {
 public:
  void BeginObject(const TFormObject&) override {}
  void EndObject() override {}
  void Property(QStringView) override {}
  void Constant(TFormConstant) override {}
  void Integer(qint64) override {}
  void Float(TFloatKind, Extended) override {}
  void Currency(qint64) override {}
  void String(QStringView) override {}
  void Identifier(QStringView) override {}
  void Binary(QByteArrayView) override {}
  void BeginSet() override {}
  void SetElement(QStringView) override {}
  void EndSet() override {}
  void BeginList() override {}
  void EndList() override {}
  void BeginCollection() override {}
  void BeginItem(std::optional<int>) override {}
  void EndItem() override {}
  void EndCollection() override {}
};

/// The constant that an identifier stands for (`True`, `FALSE`, `nil`, `Null` in any case), or none.
std::optional<TFormConstant> FindFormConstant(QStringView identifier);
/// The canonical spelling: `Null`, `nil`, `False`, `True`.
QStringView FormConstantName(TFormConstant value);

/// How deep objects, lists and collections may nest together before a parser refuses to go on.
inline constexpr int kDefaultNestingLimit = 1000;

}  // namespace kt
