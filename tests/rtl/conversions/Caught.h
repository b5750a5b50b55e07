#pragma once

#include "kt/rtl/objects/Exceptions.h"

#include <QString>

namespace kt {

/// The message of the exception that an action raises; says so when there is none or it is of another class.
template <typename TException, typename TAction>
QString MessageOf(TAction action) {
  try {
    action();
  } catch (const TException& error) {
    return error.Message();
  } catch (const Exception& error) {
    return QStringLiteral("another class: ") + error.Message();
  }
  return QStringLiteral("no exception");
}

}  // namespace kt
