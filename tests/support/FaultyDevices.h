#pragma once

#include <QIODevice>

#include <algorithm>

/// Devices that end or fail in the ways that real ones do.
namespace kt::tests {

/// Gives some bytes, then fails or stops; says that it has more.
class TFaultyDevice : public QIODevice {
 public:
  TFaultyDevice(qint64 good, qint64 answer) : FSize(good + 1000), FGood(good), FAnswer(answer) {
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    setErrorString(QStringLiteral("the disk is gone"));
  }
  qint64 size() const override { return FSize; }

 protected:
  qint64 readData(char* bytes, qint64 count) override {
    if (FGood == 0) return FAnswer;
    const qint64 done = std::min<qint64>(count, FGood);
    std::fill_n(bytes, done, 'x');
    FGood -= done;
    return done;
  }
  qint64 writeData(const char*, qint64) override { return -1; }

 private:
  qint64 FSize;
  qint64 FGood;
  qint64 FAnswer;
};

/// Tells its end by a failure, as pipes do.
class TPipe : public QIODevice {
 public:
  TPipe() { open(QIODevice::ReadOnly | QIODevice::Unbuffered); }
  bool isSequential() const override { return true; }

 protected:
  qint64 readData(char* bytes, qint64) override {
    if (FIsDone) return -1;
    FIsDone = true;
    bytes[0] = 'p';
    return 1;
  }
  qint64 writeData(const char*, qint64) override { return -1; }

 private:
  bool FIsDone = false;
};

}  // namespace kt::tests
