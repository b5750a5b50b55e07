#include "support/CallOuts.h"

#include "kt/rtl/objects/Exceptions.h"

#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>

namespace kt::tests {
namespace {

constexpr char kMessage[] = "thrown on purpose";

struct TState {
  /// Call-outs until the one that throws; -1 when none does.
  int Countdown = -1;
  TThrown Kind = thOurs;
  QStringList* Names = nullptr;
  QStringList Spared = {};
};

TState State;

/// What `scenario` throws as text; nothing when it throws nothing.
std::optional<QString> ErrorOf(const std::function<void()>& scenario) {
  try {
    scenario();
  } catch (const Exception& error) {
    return error.Message();
  } catch (const std::exception& error) {
    return QString::fromUtf8(error.what());
  }
  return std::nullopt;
}

}  // namespace

void CallOut(const char* name) {
  const QString text = QString::fromLatin1(name);
  if (State.Names && !State.Names->contains(text)) State.Names->append(text);
  if (State.Spared.contains(text)) return;
  if (State.Countdown < 0 || State.Countdown-- > 0) return;
  if (State.Kind == thOurs) throw Exception(QString::fromLatin1(kMessage));
  throw std::runtime_error(kMessage);
}

QStringList CallOutsOf(const std::function<void()>& scenario) {
  QStringList names;
  State.Names = &names;
  scenario();
  State.Names = nullptr;
  return names;
}

int ThrowAtEachCallOut(TThrown kind, const std::function<void()>& scenario, const std::function<void()>& check,
                       const QStringList& spared) {
  State.Kind = kind;
  State.Spared = spared;
  for (int number = 0;; ++number) {
    State.Countdown = number;
    const std::optional<QString> error = ErrorOf(scenario);
    const bool hasThrown = State.Countdown < 0;
    State.Countdown = -1;
    if (!hasThrown) {
      State.Spared.clear();
      return number;
    }
    EXPECT_TRUE(error && error->contains(QLatin1String(kMessage))) << "call-out " << number;
    check();
    if (::testing::Test::HasFailure()) return number;
  }
}

}  // namespace kt::tests
