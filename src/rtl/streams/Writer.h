#pragma once

#include "kt/rtl/conversions/Variant.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/streams/BinaryWriter.h"
#include "kt/rtl/streams/Filer.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace kt {

class TCollection;
class TPropInfo;
class TTypeInfo;

/// Writes components and their properties in the binary object format: what is stored and differs from the declared
/// default, or, for the descendant of another form, what differs from that. An event is written when its handler is a
/// published method of the root, as readers look for handlers there; others are left out.
///
/// Everything goes into memory first, so a failing getter or predicate leaves no half-written file. Raises EWriteError
/// for what the format cannot hold, and passes on what getters raise.
class TWriter : public TFiler {
 public:
  /// `ancestor` is the counterpart of `component` in the ancestor form, null when that has none; `rootAncestor` is the
  /// form that the counterparts of the components below it are looked up in. The handler may change both.
  using TFindAncestorEvent =
      std::function<void(TComponent* component, const QString& name, TComponent*& ancestor, TComponent*& rootAncestor)>;

  TWriter();
  ~TWriter() override;

  /// Asked for every component but the root. A nested form (csInline) that gets a counterpart only here is written as
  /// one of its own, with what differs from that: a designer answers the instance that its class is designed with.
  TFindAncestorEvent OnFindAncestor;

  /// Writes `root` and all its children, as the descendant of `ancestor` when one is given.
  void WriteRootComponent(TComponent* root, TComponent* ancestor = nullptr);
  /// Some components of a form, each with its children: what the clipboard takes. `root` is the form.
  void WriteComponents(const std::vector<TComponent*>& components, TComponent* root);
  /// What has been written.
  QByteArray Data();
  /// The children that are written below a component, in that order; stand-ins for unknown classes stand where they had
  /// their places. `root` is the form.
  static std::vector<TComponent*> ChildrenOf(TComponent* parent, TComponent* root);

  void DefineProperty(QStringView name, const TReaderProc& read, const TWriterProc& write, bool hasData) override;
  void DefineBinaryProperty(QStringView name, const TReadBinaryProc& read, const TWriteBinaryProc& write,
                            bool hasData) override;

  /// The values themselves, for procedures given to DefineProperty().
  void WriteBoolean(bool value) { FOutput.WriteBoolean(value); }
  void WriteInteger(qint64 value) { FOutput.WriteInteger(value); }
  void WriteFloat(double value) { FOutput.WriteFloat(value); }
  void WriteString(const QString& value) { FOutput.WriteString(value); }
  void WriteIdent(const QString& value) { FOutput.WriteIdent(value); }
  void WriteBinary(const QByteArray& value) { FOutput.WriteBinary(value); }
  /// Keeps the type of dates, amounts, texts, truth values and floating-point numbers, Null and Unassigned; an integer
  /// comes back in the smallest of Integer, Int64 and UInt64 that holds it.
  void WriteVariant(const Variant& value);
  void WriteListBegin() { FOutput.WriteListBegin(); }
  void WriteListEnd() { FOutput.WriteListEnd(); }
  /// Begins a collection whose items the caller writes: each as a list of properties between WriteListBegin() and
  /// WriteListEnd(). Its end is WriteListEnd().
  void WriteCollectionBegin() { FOutput.WriteCollectionBegin(); }
  /// The name of a property, before its value.
  void WritePropertyName(QStringView name);
  /// Writes the properties of `instance`, what it defines included, into a list of properties, whose end the caller
  /// writes; what equals `ancestor` is left out.
  void WriteProperties(TPersistent& instance, TPersistent* ancestor = nullptr);
  /// One whole value: the type code vaCollection and the items with their published properties.
  void WriteCollection(TCollection& collection);

 private:
  friend class TComponent;
  friend class TDefinedValueWriter;

  void DefineWith(TPersistent& instance) { instance.DefineProperties(*this); }

  void WriteUnsigned(quint64 value);
  void WriteDouble(double value);
  void WriteComponent(TComponent* component, std::optional<int> position = std::nullopt);
  void WriteHeader(TComponent* component, bool isInherited, std::optional<int> position);
  bool EnterAncestor(TComponent* component);
  void WriteData(TComponent* instance);
  void WriteChildren(TComponent* instance);
  void WriteObjectProperties(TPersistent* instance);
  void WriteKeptProperties(TPersistent* instance);
  void WriteProperty(TPersistent* instance, const TPropInfo* property);
  void WriteValue(TPersistent* instance, const TPropInfo* property);
  void WriteOrdValue(const TTypeInfo* type, qint64 value);
  void WriteSetValue(const TTypeInfo* type, qint64 bits);
  void WriteClassProperty(TPersistent* instance, const TPropInfo* property);
  void WriteReference(const TPropInfo* property, const TComponent* inherited, TComponent* target);
  void WriteNested(const TPropInfo* property, TPersistent* object);
  void WriteCollectionProperty(const TPropInfo* property, TCollection* collection);
  bool WriteWaitingReference(const TPersistent* instance, const TPropInfo* property);
  void WriteInterfaceProperty(TPersistent* instance, const TPropInfo* property);
  void WriteMethodProperty(TPersistent* instance, const TPropInfo* property);

  bool HasDefaultValue(TPersistent* instance, const TPropInfo* property);
  TObject* AncestorObject(const TPropInfo* property);
  IInterface* AncestorInterface(const TPropInfo* property);
  QString ReferenceName(TComponent* target);
  bool SameReference(const TComponent* inherited, const TComponent* target) const;
  std::vector<TComponent*> AncestorChildren();
  TComponent* FindAncestor(const TComponent* component) const;

  QByteArray FData;
  TBinaryWriter FOutput;
  /// The path to the object whose properties are being written, with its final dot; empty at the component itself.
  QString FPropPath;
  /// The form or nested form that the names in references are relative to.
  TComponent* FLookupRoot = nullptr;
  /// The counterpart of the root; handlers that are methods of the one are inherited as methods of the other.
  TComponent* FAncestorOfRoot = nullptr;
  /// The form whose descendant is being written.
  TComponent* FRootAncestor = nullptr;
  /// The counterpart of FLookupRoot in that form.
  TComponent* FLookupAncestor = nullptr;
};

/// The binary form of a component and its children.
QByteArray WriteComponentToBinary(TComponent* component);

}  // namespace kt
