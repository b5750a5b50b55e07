#pragma once

#include <QStringList>

#include <functional>

/// Exceptions from the code of an application that the framework calls: each place in a test class that may throw says
/// `CallOut("its name")`.
namespace kt::tests {

enum TThrown {
  thOurs,    ///< an Exception
  thForeign  ///< a std::runtime_error
};

/// Throws when it is the turn of this call-out.
void CallOut(const char* name);

/// The names of the call-outs of `scenario`, each once, in order of appearance.
QStringList CallOutsOf(const std::function<void()>& scenario);

/// Runs `scenario` with its call-out 0 throwing, then 1, then 2, until none throws any more. `check` runs after each
/// failure. Answers how many runs failed; fails the test when a run swallows its exception or something else is thrown.
/// The call-outs named in `spared` never throw and do not count.
int ThrowAtEachCallOut(TThrown kind, const std::function<void()>& scenario, const std::function<void()>& check,
                       const QStringList& spared = {});

}  // namespace kt::tests
