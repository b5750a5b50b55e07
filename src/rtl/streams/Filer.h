#pragma once

#include <QByteArray>
#include <QStringView>

#include <functional>

namespace kt {

class TComponent;
class TPersistent;
class TReader;
class TWriter;

/// What a class sees of a reader or writer when it declares what it streams besides its published properties
/// (TPersistent::DefineProperties()).
class TFiler {
 public:
  using TReaderProc = std::function<void(TReader&)>;
  using TWriterProc = std::function<void(TWriter&)>;
  using TReadBinaryProc = std::function<void(const QByteArray&)>;
  using TWriteBinaryProc = std::function<QByteArray()>;

  TFiler() = default;
  TFiler(const TFiler&) = delete;
  TFiler& operator=(const TFiler&) = delete;
  virtual ~TFiler() = default;

  /// Declares a property. A writer calls `write` when `hasData`; it must write exactly one value (a list counts as
  /// one). A reader calls `read` when it meets a property of that name, which is compared without regard to ASCII case.
  /// Either may be empty.
  virtual void DefineProperty(QStringView name, const TReaderProc& read, const TWriterProc& write, bool hasData) = 0;
  /// As DefineProperty(), for a block of bytes.
  virtual void DefineBinaryProperty(QStringView name, const TReadBinaryProc& read, const TWriteBinaryProc& write,
                                    bool hasData) = 0;

  /// The component that the whole stream is about.
  TComponent* GetRoot() const { return FRoot; }
  void SetRoot(TComponent* root) { FRoot = root; }
  /// When writing a descendant: the counterpart of the present object in the ancestor; what equals it is left out. Else
  /// null.
  TPersistent* GetAncestor() const { return FAncestor; }
  void SetAncestor(TPersistent* ancestor) { FAncestor = ancestor; }

 protected:
  TComponent* FRoot = nullptr;
  TPersistent* FAncestor = nullptr;
};

}  // namespace kt
