// Numbers that have names.
#include "designer/inspector/DesignInspector.h"
#include "designer/inspector/ValuePresets.h"
#include "kt/KTPropertyPresets.h"
#include "kt/rtl/conversions/Integers.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/strings/Strings.h"
#include "kt/rtl/typeinfo/PropLists.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/vcl/forms/FormTypes.h"
#include "kt/vcl/graphics/Color.h"
#include "kt/vcl/graphics/Cursor.h"
#include "kt/vcl/graphics/FontTypes.h"
#include "kt/vcl/menus/ShortCut.h"

#include <iterator>

namespace designer {

using namespace kt;

namespace {

/// A type, how its values are written and read, and what is offered.
struct TNamedType {
  const char* TypeName;
  QString (*ToText)(qint64 value);
  qint64 (*FromText)(const QString& text);
  QStringList (*Offered)();
};

template <class F>
QStringList Collected(F each) {
  QStringList names;
  each([&names](const QString& name) { names.append(name); });
  return names;
}

QString ColorText(qint64 value) { return ColorToString(static_cast<TColor>(value)); }
qint64 ColorNumber(const QString& text) { return StringToColor(text.trimmed()); }
QStringList ColorNames() {
  return Collected([](const auto& proc) { GetColorValues(proc); });
}

QString CursorText(qint64 value) { return CursorToString(static_cast<TCursor>(value)); }
qint64 CursorNumber(const QString& text) { return StringToCursor(text.trimmed()); }
QStringList CursorNames() {
  return Collected([](const auto& proc) { GetCursorValues(proc); });
}

QString CharsetText(qint64 value) {
  QString name;
  return CharsetToIdent(static_cast<TFontCharset>(value), name) ? name : QString::number(value);
}
qint64 CharsetNumber(const QString& text) {
  TFontCharset charset{};
  return IdentToCharset(text.trimmed(), charset) ? static_cast<int>(charset) : StrToInt(text.trimmed());
}
QStringList CharsetNames() {
  return Collected([](const auto& proc) { GetCharsetValues(proc); });
}

constexpr const char* kModalResults[] = {"mrNone", "mrOk", "mrCancel", "mrAbort",   "mrRetry",   "mrIgnore",
                                         "mrYes",  "mrNo", "mrAll",    "mrNoToAll", "mrYesToAll"};

QStringList ModalResultNames() {
  QStringList names;
  for (const char* name : kModalResults) names.append(QString::fromLatin1(name));
  return names;
}
QString ModalResultText(qint64 value) {
  const bool hasName = value >= 0 && value < std::ssize(kModalResults);
  return hasName ? QString::fromLatin1(kModalResults[value]) : QString::number(value);
}
qint64 ModalResultNumber(const QString& text) {
  const QStringList names = ModalResultNames();
  for (qsizetype i = 0; i < names.size(); ++i) {
    if (names[i].compare(text.trimmed(), Qt::CaseInsensitive) == 0) return i;
  }
  return StrToInt(text.trimmed());
}

QString ShortCutName(qint64 value) { return ShortCutToText(static_cast<TShortCut>(value)); }
qint64 ShortCutNumber(const QString& text) {
  if (text.trimmed().isEmpty()) return scNone;
  const TShortCut found = TextToShortCut(text.trimmed());
  if (found == scNone) throw EPropertyConvertError(QStringLiteral("'%1' is not the name of a key").arg(text));
  return found;
}
QStringList ShortCutNames() {
  QStringList names;
  for (char key = 'A'; key <= 'Z'; ++key) names.append(QStringLiteral("Ctrl+%1").arg(QLatin1Char(key)));
  for (int key = 1; key <= 12; ++key) names.append(QStringLiteral("F%1").arg(key));
  return names + QStringList{QStringLiteral("Ins"),       QStringLiteral("Del"),      QStringLiteral("Shift+Ins"),
                             QStringLiteral("Shift+Del"), QStringLiteral("Ctrl+Ins"), QStringLiteral("Ctrl+Del")};
}

constexpr TNamedType kNamedTypes[] = {
    {"TColor", &ColorText, &ColorNumber, &ColorNames},
    {"TCursor", &CursorText, &CursorNumber, &CursorNames},
    {"TFontCharset", &CharsetText, &CharsetNumber, &CharsetNames},
    {"TModalResult", &ModalResultText, &ModalResultNumber, &ModalResultNames},
    {"TShortCut", &ShortCutName, &ShortCutNumber, &ShortCutNames},
};

void AddNamedType(TDesignInspector& inspector, const TNamedType& type) {
  TKTPropertyPreset* preset = inspector.GetPresets().Add();
  preset->SetName(QString::fromLatin1(type.TypeName));
  preset->GetTypeNames().Add(QString::fromLatin1(type.TypeName));
  preset->SetTypeKinds({tkInteger});
  for (const QString& name : type.Offered()) preset->GetPickList().Add(name);
  preset->SetEditStyle(esPickList);
  preset->OnGetProperty = [&type](TObject*, TObject* instance, const QString& name, QString& value) {
    value = instance ? type.ToText(GetOrdProp(instance, name)) : QString();
  };
  preset->OnSetProperty = [&type](TObject*, TObject* instance, const QString& name, const QString& value) {
    if (instance) SetOrdProp(instance, name, type.FromText(value));
  };
  preset->SetMatchTypes({mtPropertyType});
  preset->SetActions({pftEditStyle, pftValidate});
}

}  // namespace

void AddNamedNumbers(TDesignInspector& inspector) {
  for (const TNamedType& type : kNamedTypes) AddNamedType(inspector, type);
}

}  // namespace designer
