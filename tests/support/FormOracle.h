#pragma once

#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/BinaryFormParser.h"
#include "kt/rtl/streams/BinaryFormWriter.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/FormEventLog.h"
#include "kt/rtl/streams/TextParser.h"

#include <QRegularExpression>

#include <stdexcept>

/// What must hold for any bytes whatever that are read as a form. Shared by the fuzz targets and by the tests that run
/// their corpora.
namespace kt::oracle {

/// A small limit keeps indentation, and with it the text, within a constant times the input.
inline constexpr int kNestingLimit = 100;

/// Thrown when the code under test broke a promise; never one of our own exceptions.
class EBrokenPromise : public std::logic_error {
  using std::logic_error::logic_error;
};

inline void Require(bool condition, const char* promise) {
  if (!condition) throw EBrokenPromise(promise);
}

inline bool Matches(const Exception& error, const char* pattern) {
  return QRegularExpression(QString::fromLatin1(pattern)).match(error.Message()).hasMatch();
}

inline TFormOptions Options(bool rawUtf8 = false) {
  TFormOptions options;
  options.NestingLimit = kNestingLimit;
  options.Text.RawUtf8 = rawUtf8;
  return options;
}

inline QString LogOf(const QByteArray& form) {
  TFormEventLog log;
  ReadForm(form, log, Options());
  return log.Text();
}

/// 4 units of text for a byte of data, each on a line of its own that is indented.
inline void RequireSize(const QByteArray& input, const QByteArray& output) {
  Require(output.size() <= (input.size() + 1) * (4 * kNestingLimit + 32), "the output is bounded by the input");
}

/// Writes the form as text, if its names allow that, and requires that the text reads back as the same events.
inline void RequireTextSurvives(const QByteArray& form, bool rawUtf8) {
  const QString log = LogOf(form);
  QByteArray text;
  TByteSink sink(text);
  TTextWriter writer(sink, Options(rawUtf8).Text);
  try {
    ReadForm(form, writer, Options());
  } catch (const EWriteError& error) {
    Require(Matches(error, R"(cannot be written as text (on line \d+, column \d+|at offset \d+ \(.+\))$)"),
            "a refused name is shown with its place");
    return;
  }
  sink.Flush();
  RequireSize(form, text);
  TFormEventLog again;
  TTextParser(text, again, {eeUtf8, kNestingLimit}).ParseForm();
  Require(again.Text() == log, "text reads back as the same events");
}

inline void RequireBinarySurvives(const QByteArray& form) {
  const QString log = LogOf(form);
  QByteArray binary;
  TBinaryWriter writer(binary);
  TBinaryFormWriter sink(writer);
  try {
    ReadForm(form, sink, Options());
  } catch (const EWriteError& error) {
    Require(Matches(error, R"(is too long to be stored (on line \d+, column \d+|at offset \d+))"),
            "a refused name is shown with its place");
    return;
  }
  writer.Flush();
  Require(LogOf(binary) == log, "binary reads back as the same events");
}

/// Reads the bytes as text: one error with line and column, or a form that survives both formats.
inline void CheckTextForm(const QByteArray& input) {
  TFormEventLog log;
  try {
    TTextParser(input, log, {eeWindows1252, kNestingLimit}).ParseForm();
  } catch (const EParserError& error) {
    Require(Matches(error, R"( on line \d+, column \d+$)"), "an error in text has line and column");
    return;
  }
  RequireTextSurvives(input, false);
  RequireTextSurvives(input, true);
  RequireBinarySurvives(input);
}

/// Reads the bytes as binary: one error with an offset, or a form that survives both formats.
inline void CheckBinaryForm(const QByteArray& input) {
  try {
    TFormEventLog log;
    TBinaryReader reader(input);
    TBinaryFormParser(reader, log, kNestingLimit).ParseForm();
    // What follows the form is somebody else's.
    const QByteArray form = input.left(reader.Position());
    RequireTextSurvives(form, false);
    RequireTextSurvives(form, true);
    RequireBinarySurvives(form);
  } catch (const EFilerError& error) {
    Require(Matches(error, R"( at offset \d+( \(|$))"), "an error in binary has an offset");
  }
}

}  // namespace kt::oracle
