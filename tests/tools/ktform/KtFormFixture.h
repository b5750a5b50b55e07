#pragma once

#include "support/Expect.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>

/// Runs the program in a folder of its own that goes with the test.
namespace ktform::tests {

/// What a run of the program left: its exit status, standard output and standard error.
struct TRun {
  int Status;
  QByteArray Output;
  QByteArray Errors;
};

/// A change of one property, and what it changes in the text of the form.
struct TEdit {
  const char* Assignment;
  const char* Old;
  const char* New;
};

inline void PrintTo(const TEdit& edit, std::ostream* out) { *out << edit.Assignment; }

class KtFormTest : public ::testing::Test {
 protected:
  QString Path(const char* name) const { return FFolder.filePath(QString::fromLatin1(name)); }

  void Write(const char* name, const QByteArray& content) {
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }

  QByteArray Content(const char* name) {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
  }

  /// `prepare` runs in the new process before the program does.
  TRun Run(const QStringList& arguments, const std::function<void()>& prepare = {}) {
    QProcess program;
    program.setWorkingDirectory(FFolder.path());
    if (prepare) program.setChildProcessModifier(prepare);
    program.start(QStringLiteral(KT_FORM_PROGRAM), arguments);
    program.waitForFinished(60000);
    const int status = program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    return {status, program.readAllStandardOutput(), program.readAllStandardError()};
  }

  QTemporaryDir FFolder;
};

}  // namespace ktform::tests
