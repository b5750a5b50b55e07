#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

namespace kt {

/// The root of every exception that the package raises. Thrown by value, caught by reference.
class Exception : public std::exception {
 public:
  explicit Exception(QString message) : FMessage(std::move(message)) {}

  /// The text meant for the user.
  const QString& Message() const { return FMessage; }
  /// For handlers that know more, before they pass the exception on.
  void SetMessage(const QString& value) {
    FMessage = value;
    FUtf8.clear();
  }
  /// The same text in UTF-8, for code that knows only the standard library.
  const char* what() const noexcept override;

 private:
  QString FMessage;
  mutable QByteArray FUtf8;
};

// A table, one class a line.
// clang-format off

/// Ends an operation without a message: handlers let it pass silently.
class EAbort : public Exception {
  using Exception::Exception;
};
/// A text is not a number, date, time or whatever it was to become; also a format text that does not fit its arguments.
class EConvertError : public Exception {
  using Exception::Exception;
};
/// A class reference or object is of another class than the operation needs.
class EInvalidCast : public Exception {
  using Exception::Exception;
};
/// An operation that the present state does not allow.
class EInvalidOperation : public Exception {
  using Exception::Exception;
};
/// An ordinal outside the range of its type.
class EIntError : public Exception {
  using Exception::Exception;
};
class ERangeError : public EIntError {
  using EIntError::EIntError;
};

class EVariantError : public Exception {
  using Exception::Exception;
};
class EVariantTypeCastError : public EVariantError {
  using EVariantError::EVariantError;
};
class EVariantOverflowError : public EVariantError {
  using EVariantError::EVariantError;
};

class EListError : public Exception {
  using Exception::Exception;
};
class EStringListError : public Exception {
  using Exception::Exception;
};
class EComponentError : public Exception {
  using Exception::Exception;
};

/// A property that the class lacks, or an access that the property does not offer.
class EPropertyError : public Exception {
  using Exception::Exception;
};
class EPropertyConvertError : public Exception {
  using Exception::Exception;
};
class EPropReadOnly : public Exception {
  using Exception::Exception;
};
class EPropWriteOnly : public Exception {
  using Exception::Exception;
};

class EStreamError : public Exception {
  using Exception::Exception;
};
class EFileStreamError : public EStreamError {
  using EStreamError::EStreamError;
};
class EFCreateError : public EFileStreamError {
  using EFileStreamError::EFileStreamError;
};
class EFOpenError : public EFileStreamError {
  using EFileStreamError::EFileStreamError;
};
class EFilerError : public EStreamError {
  using EStreamError::EStreamError;
};
class EReadError : public EFilerError {
  using EFilerError::EFilerError;
};
class EWriteError : public EFilerError {
  using EFilerError::EFilerError;
};
class EClassNotFound : public EFilerError {
  using EFilerError::EFilerError;
};
class EMethodNotFound : public EFilerError {
  using EFilerError::EFilerError;
};
class EInvalidImage : public EFilerError {
  using EFilerError::EFilerError;
};
/// A form text that breaks the text object format; the message ends with the line.
class EParserError : public Exception {
  using Exception::Exception;
};

// clang-format on

}  // namespace kt
