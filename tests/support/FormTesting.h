#pragma once

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/BinaryFormParser.h"
#include "kt/rtl/streams/BinaryFormWriter.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/FormEventLog.h"
#include "kt/rtl/streams/TextParser.h"
#include "support/Print.h"

#include <QFile>

#include <gtest/gtest.h>

/// How the tests of the form formats look at things: events as one line, errors as "class: message".
namespace kt::tests {

inline QString OneLine(const QString& log) { return log.trimmed().replace(u'\n', QStringLiteral(" | ")); }

/// The events of a form in either format.
inline QString EventsOf(const QByteArray& form, const TFormOptions& options = {}) {
  TFormEventLog log;
  ReadForm(form, log, options);
  return OneLine(log.Text());
}

/// The form that has `value` as its only property.
inline QByteArray FormWith(const QByteArray& value) { return "object A: TA\n  X = " + value + "\nend\n"; }

/// The events of one value out of the events of its form.
inline QString ValuePart(const QString& events) {
  const qsizetype from = events.indexOf(QStringLiteral("property X | ")) + 13;
  return events.mid(from, events.lastIndexOf(QStringLiteral(" | end object")) - from);
}

/// The events of one value in text.
inline QString ValueEvents(const QByteArray& value) { return ValuePart(EventsOf(FormWith(value))); }

template <typename TError>
QString Named(const char* name, const TError& error) {
  return QString::fromLatin1(name) + QStringLiteral(": ") + error.Message();
}

/// What `action` throws as "class: message", or "no error".
template <typename TAction>
QString ErrorOf(TAction action) {
  try {
    action();
  } catch (const EParserError& error) {
    return Named("EParserError", error);
  } catch (const EReadError& error) {
    return Named("EReadError", error);
  } catch (const EInvalidImage& error) {
    return Named("EInvalidImage", error);
  } catch (const EWriteError& error) {
    return Named("EWriteError", error);
  }
  return QStringLiteral("no error");
}

inline QString TextError(const QByteArray& text, const TTextParserOptions& options = {}) {
  TIdleFormSink sink;
  return ErrorOf([&] { TTextParser(text, sink, options).ParseForm(); });
}

inline QString BinaryError(const QByteArray& binary, int nestingLimit = kDefaultNestingLimit) {
  TIdleFormSink sink;
  TBinaryReader reader(binary);
  return ErrorOf([&] { TBinaryFormParser(reader, sink, nestingLimit).ParseForm(); });
}

inline QByteArray ToBinary(const QByteArray& text) {
  QByteArray binary;
  ObjectTextToBinary(text, binary);
  return binary;
}

inline QByteArray ToText(const QByteArray& form, const TTextWriterOptions& options = {}) {
  QByteArray text;
  TByteSink sink(text);
  TTextWriter writer(sink, options);
  ReadForm(form, writer);
  sink.Flush();
  return text;
}

inline QByteArray FileContent(const QString& name) {
  QFile file(name);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
  return file.readAll();
}

/// The sizes at which `form`, cut off there, is not answered by one error of ours that names its place.
template <typename TErrorOfCut>
QList<qsizetype> SilentCuts(const QByteArray& form, TErrorOfCut errorOf, const QString& place) {
  QList<qsizetype> silent;
  for (qsizetype size = 0; size < form.size(); ++size)
    if (!errorOf(form.left(size)).contains(place)) silent += size;
  return silent;
}

/// The header of a binary form `A: TA` up to its properties.
inline QByteArray BinaryHead() { return QByteArray("TPF0\2TA\1A", 9); }

/// The binary form `A: TA` that has `value` (with its type byte) as its only property.
inline QByteArray BinaryWith(const QByteArray& value) {
  return BinaryHead() + QByteArray("\1X", 2) + value + QByteArray("\0\0", 2);
}

}  // namespace kt::tests
