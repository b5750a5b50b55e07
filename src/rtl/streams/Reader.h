#pragma once

#include "kt/rtl/conversions/Variant.h"
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/streams/BinaryReader.h"
#include "kt/rtl/streams/Filer.h"
#include "kt/rtl/streams/FormObjectHeader.h"
#include "kt/rtl/streams/Load.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace kt {

class Exception;

class TBinaryFormParser;
class TClassInfo;
class TCollection;
class TMethod;
class TPropInfo;
class TSetTypeInfo;

/// What a reader does with a class that is not registered, or a property that the object's class lacks.
enum TUnknownPolicy {
  upRaise,  ///< stop with an exception
  upSkip,   ///< pass over it
  upKeep    ///< keep it, so that a writer puts it back unchanged; an unknown class gets a TUnknownComponent
};

/// Reads components and their properties from the binary object format.
///
/// A load is checked as a whole for a sound structure before the first object is touched. When it fails after that, all
/// components that it created are destroyed, and what existed before gets back what it had: name, children and their
/// order, published properties (with those of fonts and the like), lines, items, and what DefineProperties() had data
/// for. Not put back: a value without getter, or whose getter raises; defined data where there were none before; what
/// setters and procedures of the application did elsewhere; an object that they freed. An event, setter or override may
/// free any component: one that waits for its turn is left out, and freeing one that is just being read, or one around
/// it, is a failure as any other.
///
/// A descendant form is read over an instance of its ancestor: what is inherited is found in that by name. In a
/// designer (csDesigning) what the instance holds is marked csAncestor then, and every inherited component is told
/// Updating() before its properties are read and Updated() when all references are set, before Loaded().
///
/// Every failure is one exception that tells its place: EReadError with the object and the property ("Error reading
/// Button1.Color: Invalid property value at offset 85 (Form1.Button1.Color)"), EClassNotFound, EComponentError, the
/// exception of the binary format, or what a constructor, event or override has raised for the component as a whole,
/// which keeps its class. EAbort and exceptions that are none of this package's pass as they are.
class TReader : public TFiler {
 public:
  using TFindMethodEvent = std::function<TMethod(const QString& name)>;
  using TFindClassEvent = std::function<const TClassInfo*(const QString& className)>;
  using TCreateComponentEvent = std::function<TComponent*(const TClassInfo* classInfo, TComponent* owner)>;
  using TSetNameEvent = std::function<void(TComponent* component, QString& name)>;
  using TReferenceNameEvent = std::function<void(QString& name)>;
  using TErrorEvent = std::function<bool(const QString& message)>;

  /// Reads from `data`, which is shared, not copied.
  explicit TReader(const QByteArray& data);
  /// Reads all that is left in `device`. Raises EReadError when that fails.
  explicit TReader(QIODevice& device);
  ~TReader() override;

  /// What to do with unknown classes and with unknown properties; both stop the load unless changed.
  TUnknownPolicy UnknownClasses = upRaise;
  TUnknownPolicy UnknownProperties = upRaise;
  /// Finds the handler of an event by name; asked when the root has no published method of that name. An empty answer
  /// is a property that cannot be read, unless the root is what a designer edits (csDesignInstance): it gets a method
  /// that is known by its name only.
  TFindMethodEvent OnFindMethod;
  /// Finds a class, in place of the registered one too; null for that one.
  TFindClassEvent OnFindComponentClass;
  /// Creates a component in another way; null for the usual one.
  TCreateComponentEvent OnCreateComponent;
  /// May change the name by which a property refers to a component.
  TReferenceNameEvent OnReferenceName;
  /// May change the name that a component gets.
  TSetNameEvent OnSetName;
  /// Asked for every property that cannot be read; true passes over it, false stops the load.
  TErrorEvent OnError;
  /// Whether ReadRootComponent() refuses input that goes on behind the form with anything but zero bytes, and a form
  /// that is larger than its resource header says. A reader of a stream may leave the rest to others.
  bool RefusesRest = false;

  /// Reads one form. With `root` null the root is created, and the caller owns it; else its class need not match the
  /// stream.
  TComponent* ReadRootComponent(TComponent* root);
  /// As above for a root of a known class. Raises EInvalidCast when the stream has one of another class.
  template <class T>
  std::unique_ptr<T> ReadRoot() {
    std::unique_ptr<TComponent> root(ReadRootComponent(nullptr));
    if (!dynamic_cast<T*>(root.get())) RaiseInvalidRoot();
    return std::unique_ptr<T>(static_cast<T*>(root.release()));
  }
  /// Reads the components that TWriter::WriteComponents() wrote, each with `owner` as its owner and `parent` as its
  /// parent, and calls `done` for each when its own properties and children are complete.
  void ReadComponents(TComponent* owner, TComponent* parent, const std::function<void(TComponent*)>& done);

  /// The owner and the parent of the components being read.
  TComponent* GetOwner() const { return FOwner; }
  TComponent* GetParent() const { return FParent; }

  void DefineProperty(QStringView name, const TReaderProc& read, const TWriterProc& write, bool hasData) override;
  void DefineBinaryProperty(QStringView name, const TReadBinaryProc& read, const TWriteBinaryProc& write,
                            bool hasData) override;

  /// The values themselves, for procedures given to DefineProperty(). Each reads one value and raises EReadError when
  /// the next value is of another type.
  TValueType NextValue() { return FInput.NextValue(); }
  /// Consumes the type code of the next value and answers it.
  TValueType ReadValue() { return FInput.ReadValue(); }
  bool ReadBoolean() { return FInput.ReadBoolean(); }
  int ReadInteger() { return FInput.ReadInteger(); }
  qint64 ReadInt64() { return FInput.ReadInt64(); }
  double ReadFloat() { return static_cast<double>(FInput.ReadFloat()); }
  QString ReadString() { return FInput.ReadString(); }
  QChar ReadChar();
  QString ReadIdent() { return FInput.ReadIdent(); }
  QByteArray ReadBinary() { return FInput.ReadBinary(); }
  Variant ReadVariant();
  void ReadListBegin() { FInput.ReadListBegin(); }
  void ReadListEnd() { FInput.ReadListEnd(); }
  bool EndOfList() { return FInput.EndOfList(); }
  void SkipValue() { FInput.SkipValue(); }
  /// How errors word their place; by byte offset and path unless set, see also PlacesInText().
  void SetPlaceWording(TPlaceWording wording) { FWording = std::move(wording); }
  /// How 8-bit strings with bytes from 128 up are read: in the encoding of the form's author; Windows-1252 unless set.
  void SetEncoding(TEightBitEncoding encoding);
  void ReadCollectionBegin() { FInput.ReadCollectionBegin(); }
  /// Begins an item of a collection, whose end is a list end. Passes over the index that may stand before it: the order
  /// of the items already says it.
  void ReadItemBegin();
  /// The name of the next property of a list.
  QString ReadPropertyName() { return FInput.ReadShortString(); }
  /// Reads properties into `instance` up to the list end, which is not read. Outside a component's load, references are
  /// resolved before this returns, in the root first.
  void ReadProperties(TPersistent& instance);
  /// Replaces the items of `collection` by those that follow; the type code vaCollection has been consumed. When an
  /// item cannot be read, the former items come back, the same objects with their ids. Outside a component's load as
  /// ReadProperties().
  void ReadCollection(TCollection& collection);

 private:
  friend class TComponent;

  [[noreturn]] static void RaiseInvalidRoot();
  using TParseProc = std::function<void(TBinaryReader& reader, TBinaryFormParser& parser)>;
  void CheckStructure(const TParseProc& parse);
  /// Runs `read` as part of the load that is under way, or else as a load of its own for which `parse` checks the
  /// structure.
  void InLoad(const std::function<void()>& read, const TParseProc& parse);
  void ReadAtPosition(const std::function<void()>& read);
  void ReadItems(TCollection& collection);
  void ReadNewItems(TCollection& collection);
  TFormObjectHeader ReadHeader();
  /// The bytes of the next value, its type code included.
  QByteArray TakeValue();
  void LoadRoot(TComponent* root);
  void EndLoad();

  void ReadData(TComponent* instance);
  void ReadComponent(const std::function<void(TComponent*)>& done = {});
  /// Raises EReadError when an event, setter or override has freed an object that is being read.
  void CheckNothingLost() const;
  void AtPlace(qint64 offset, const TFormObjectHeader& header, const std::function<void()>& read);
  bool HasPlace(const Exception& error) const;
  void AddPlace(Exception& error, qint64 offset, const QString& path);
  QString WordInputError(const QString& what, qint64 offset, const QString& path);
  TComponent* MakeRoot(const TFormObjectHeader& header);
  TComponent* MakeChild(const TFormObjectHeader& header, TLoad::TUse& use);
  QString PlaceOf(const TFormObjectHeader& header, const TComponent* scope) const;
  /// The component of the ancestor form that an inherited one stands for; null for others, or when the policy is to
  /// keep.
  TComponent* FindInherited(const TFormObjectHeader& header);
  /// Null when the class is unknown and to be skipped.
  TComponent* CreateComponent(const TFormObjectHeader& header, TComponent* owner);
  TComponent* CreateUnknown(const TFormObjectHeader& header, TComponent* owner);
  const TClassInfo* FindComponentClass(const QString& className);
  void SetComponentName(TComponent* component, QString name);
  void PlaceChild(TComponent* child, const TFormObjectHeader& header);
  void OrderChild(TComponent* child, const TFormObjectHeader& header, bool isNew);
  void ReadState(TComponent* component);

  void ReadProperty(TPersistent* instance);
  /// The property being read, as the stream names it, the object that the path starts at, and the offset of its value.
  struct TPropPath {
    TPersistent* Instance = nullptr;
    QString Path;
    qint64 Start = 0;
  };
  /// Raises the error of a property with its place, unless OnError passes over it.
  void HandlePropertyError(const TPropPath& place, const Exception& error);
  void ReadPropertyPath(TPersistent* instance, const QString& path);
  /// False when `target`, which a path from `instance` leads to, is part of what the load has created.
  bool ExistedBefore(const TPersistent* instance, TPersistent* target) const;
  void ReadDefinedProperty(TPersistent* instance, const QString& name, bool existedBefore);
  bool TakeUnknownProperty();
  void KeepProperty();
  void ReadPropValue(TPersistent* instance, const TPropInfo* property);
  void ReadOrdValue(TPersistent* instance, const TPropInfo* property);
  void ReadCharValue(TPersistent* instance, const TPropInfo* property);
  void ReadSetValue(TPersistent* instance, const TPropInfo* property);
  void ReadClassValue(TPersistent* instance, const TPropInfo* property);
  void ReadMethodValue(TPersistent* instance, const TPropInfo* property);
  void ReadReference(TPersistent* instance, const TPropInfo* property);
  QString PathOf(TPersistent* instance) const;
  QString FullPathOf(TPersistent* instance) const;

  /// All of the input: components and properties that nobody knows are taken out of it as they are.
  QByteArray FData;
  TBinaryReader FInput;
  TEightBitEncoding FEncoding = eeWindows1252;
  TPlaceWording FWording;
  /// The last message that got a place: around what it is about stands more that would add another.
  QString FPlacedMessage;
  TComponent* FOwner = nullptr;
  TComponent* FParent = nullptr;
  /// The name, as DefineProperties() has to match it, of the property being read; empty once somebody has taken it.
  QString FDefinedName;
  TPropPath FPropPath;
  /// What the stream calls the component being read; errors show it when that is gone.
  QString FPlace;
  /// How many children of the present parent have been read.
  int FChildIndex = 0;
  /// The form or nested form whose names count for what is being read.
  TComponent* FScope = nullptr;
  /// The load created that scope, or the object whose properties are being read: nobody needs their former values.
  bool FScopeIsNew = false;
  bool FTargetIsNew = false;
  /// The load that is under way.
  TLoad* FLoad = nullptr;
};

/// The form in `data`, in the binary format, with or without its resource header; see TReader.
std::unique_ptr<TComponent> ReadComponentFromBinary(const QByteArray& data);

}  // namespace kt
