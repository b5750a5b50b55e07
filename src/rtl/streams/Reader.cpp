#include "kt/rtl/streams/Reader.h"

#include "kt/rtl/collections/ItemsExchange.h"
#include "kt/rtl/collections/UpdateBracket.h"
#include "kt/rtl/conversions/Format.h"
#include "kt/rtl/conversions/Text.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Messages.h"
#include "kt/rtl/streams/BinaryFormParser.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/ReadAll.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <QScopeGuard>

#include <cmath>
#include <optional>
#include <utility>

namespace kt {

TReader::TReader(const QByteArray& data) : FData(data), FInput(FData) {
  FInput.SetPlaceWording(
      [this](const QString& what, qint64 offset, const QString& path) { return WordInputError(what, offset, path); });
}

TReader::TReader(QIODevice& device) : TReader(ReadAll(device)) {}

TReader::~TReader() = default;

/// `end` is that of the resource which the form stands in.
static void CheckRest(TBinaryReader& reader, const QByteArray& data, std::optional<qint64> end) {
  if (end) PassResourceEnd(reader, *end);
  CheckNothingBehind(data, reader.Position());
}

TComponent* TReader::ReadRootComponent(TComponent* root) {
  std::optional<qint64> end;
  if (FInput.IsAtResourceHeader()) {
    const qint64 size = FInput.ReadResourceHeader();
    end = FInput.Position() + size;
  }
  CheckStructure([&](TBinaryReader& reader, TBinaryFormParser& parser) {
    parser.ParseForm();
    if (RefusesRest) CheckRest(reader, FData, end);
  });
  FInput.ReadSignature();
  TLoad load(FWording);
  FLoad = &load;
  const auto done = qScopeGuard([this] { EndLoad(); });
  const TLoad::TUse use(load, root);
  try {
    LoadRoot(root);
    load.Finish();
    GlobalFixupReferences();
    return load.Keep();
  } catch (...) {
    load.Undo();
    throw;
  }
}

void TReader::ReadComponents(TComponent* owner, TComponent* parent, const std::function<void(TComponent*)>& done) {
  CheckStructure([](TBinaryReader& reader, TBinaryFormParser& parser) {
    while (!reader.EndOfList()) parser.ParseForm();
  });
  TLoad load(FWording);
  FLoad = &load;
  const auto loaded = qScopeGuard([this] { EndLoad(); });
  FRoot = owner;
  FScope = owner;
  FScopeIsNew = false;
  FOwner = owner;
  FParent = parent;
  const TLoad::TUse useOfOwner(load, owner);
  const TLoad::TUse useOfParent(load, parent);
  try {
    while (!FInput.EndOfList()) {
      FInput.ReadSignature();
      ReadComponent(done);
    }
    FInput.ReadListEnd();
    load.Finish();
    GlobalFixupReferences();
    load.Keep();
  } catch (...) {
    load.Undo();
    throw;
  }
}

void TReader::EndLoad() {
  FLoad = nullptr;
  // An error leaves it.
  FPropPath = {};
}

void TReader::SetEncoding(TEightBitEncoding encoding) {
  FEncoding = encoding;
  FInput.SetEncoding(encoding);
}

void TReader::RaiseInvalidRoot() { throw EInvalidCast(SInvalidCast.toString()); }

/// Runs over the whole input once, so that what is damaged is refused before an object is touched.
void TReader::CheckStructure(const TParseProc& parse) {
  TBinaryReader reader(FData);
  reader.SetEncoding(FEncoding);
  reader.SetPlaceWording(FWording);
  reader.Seek(FInput.Position());
  TIdleFormSink nowhere;
  TBinaryFormParser parser(reader, nowhere);
  parse(reader, parser);
}

void TReader::InLoad(const std::function<void()>& read, const TParseProc& parse) {
  if (FLoad) return read();
  CheckStructure(parse);
  TLoad load(FWording);
  FLoad = &load;
  FScope = FRoot;
  FScopeIsNew = false;
  FTargetIsNew = false;
  FPlace.clear();
  const auto done = qScopeGuard([this] { EndLoad(); });
  try {
    ReadAtPosition(read);
    load.Finish();
    GlobalFixupReferences();
    load.Keep();
  } catch (...) {
    load.Undo();
    throw;
  }
}

/// What is raised besides the errors of properties is told to be where reading has come to.
void TReader::ReadAtPosition(const std::function<void()>& read) {
  try {
    read();
  } catch (const EAbort&) {
    throw;
  } catch (Exception& error) {
    AddPlace(error, FInput.Position(), QString());
    throw;
  }
}

bool TReader::HasPlace(const Exception& error) const {
  return !FPlacedMessage.isEmpty() && error.Message() == FPlacedMessage;
}

void TReader::AddPlace(Exception& error, qint64 offset, const QString& path) {
  if (HasPlace(error)) return;
  FPlacedMessage = kt::AtPlace(FWording, error.Message(), offset, path);
  error.SetMessage(FPlacedMessage);
}

/// The error of a value gets the place of its property, and needs none of its own.
QString TReader::WordInputError(const QString& what, qint64 offset, const QString& path) {
  if (FPropPath.Instance) return what;
  FPlacedMessage = kt::AtPlace(FWording, what, offset, path);
  return FPlacedMessage;
}

TFormObjectHeader TReader::ReadHeader() {
  TFormObjectHeader header;
  FInput.ReadPrefix(header.Flags, header.ChildPos);
  header.ClassName = FInput.ReadShortString();
  header.Name = FInput.ReadShortString();
  return header;
}

QByteArray TReader::TakeValue() {
  const qint64 start = FInput.Position();
  FInput.SkipValue();
  return FData.sliced(start, FInput.Position() - start);
}

void TReader::LoadRoot(TComponent* root) {
  const qint64 start = FInput.Position();
  const TFormObjectHeader header = ReadHeader();
  FPlace = NameIn(header);
  FScope = nullptr;
  FRoot = root;
  AtPlace(start, header, [&] {
    if (!root) FRoot = MakeRoot(header);
  });
  const TLoad::TUse use(*FLoad, FRoot);
  if (root) FLoad->UndoLog().Remember(*root);
  FTargetIsNew = !root;
  FScopeIsNew = !root;
  FOwner = FRoot;
  FLoad->BeginLoading(FRoot);
  AtPlace(start, header, [&] {
    SetComponentName(FRoot, header.Name);
    CheckNothingLost();
    FScope = FRoot;
    FLoad->AddLoaded(FRoot, start);
    if (root && header.Flags.testFlag(ffInherited)) {
      if (root->HasState(csDesigning)) FLoad->MarkAncestor(root);
      FLoad->BeginUpdating(root);
      CheckNothingLost();
    }
    ReadState(FRoot);
  });
}

void TReader::DefineProperty(QStringView name, const TReaderProc& read, const TWriterProc&, bool) {
  if (FDefinedName.isEmpty() || !read || !SameText(name, FDefinedName)) return;
  FDefinedName.clear();
  read(*this);
  // The override of DefineProperties() that called must not go on without its object.
  CheckNothingLost();
}

void TReader::DefineBinaryProperty(QStringView name, const TReadBinaryProc& read, const TWriteBinaryProc&, bool) {
  if (FDefinedName.isEmpty() || !read || !SameText(name, FDefinedName)) return;
  FDefinedName.clear();
  read(FInput.ReadBinary());
  CheckNothingLost();
}

QChar TReader::ReadChar() {
  const QString text = FInput.ReadString();
  if (text.size() != 1) throw EReadError(SInvalidPropertyValue.toString());
  return text.front();
}

/// TWriter::WriteVariant() stores an integer beyond the signed 64 bits as an extended number, and no double.
static Variant VariantOfExtended(Extended value) {
  const bool isUnsigned = value >= 0x1p63L && value < 0x1p64L && value == std::floor(value);
  return isUnsigned ? Variant(static_cast<quint64>(value)) : Variant(static_cast<double>(value));
}

Variant TReader::ReadVariant() {
  switch (FInput.NextValue()) {
    case vaNil:
      FInput.ReadValue();
      return Variant();
    case vaNull:
      FInput.ReadValue();
      return Variant::Null();
    case vaInt8:
    case vaInt16:
    case vaInt32:
      return Variant(FInput.ReadInteger());
    case vaInt64:
      return Variant(FInput.ReadInt64());
    case vaExtended:
      return VariantOfExtended(FInput.ReadFloat());
    case vaSingle:
      return Variant(static_cast<float>(FInput.ReadFloat()));
    case vaCurrency:
      return Variant(Currency::FromScaled(FInput.ReadCurrency()));
    case vaDate:
      return Variant::FromDateTime(ReadFloat());
    case vaDouble:
      return Variant(ReadFloat());
    case vaTrue:
    case vaFalse:
      return Variant(FInput.ReadBoolean());
    default:
      return Variant(FInput.ReadString());
  }
}

void TReader::ReadItemBegin() {
  if (FInput.NextValue() != vaList) FInput.ReadInt64();
  FInput.ReadListBegin();
}

void TReader::ReadProperties(TPersistent& instance) {
  InLoad(
      [&] {
        const TLoad::TUse use(*FLoad, &instance);
        while (!FInput.EndOfList()) ReadProperty(&instance);
      },
      [&](TBinaryReader& reader, TBinaryFormParser& parser) {
        reader.Path().EnterObject({}, instance.ClassName());
        parser.ParseProperties();
      });
}

void TReader::ReadCollection(TCollection& collection) {
  InLoad([&] { ReadItems(collection); }, [](TBinaryReader&, TBinaryFormParser& parser) { parser.ParseItems(); });
}

namespace {

/// A collection whose update ends only if it is still there.
struct TUpdateOfLiving {
  TCollection& Collection;
  const TLoad::TUse& Use;
  void BeginUpdate() { Collection.BeginUpdate(); }
  void EndUpdate() {
    if (Use.IsAlive()) Collection.EndUpdate();
  }
};

}  // namespace

void TReader::ReadItems(TCollection& collection) {
  const TLoad::TUse use(*FLoad, &collection);
  TUpdateOfLiving target{collection, use};
  const TUpdateBracket bracket(target);
  // Deliberately, an empty list takes nothing away: items that the constructor made stay.
  if (FInput.EndOfList()) return FInput.ReadListEnd();
  auto formerItems = std::make_unique<TItemsExchange>(collection);
  try {
    ReadNewItems(collection);
    if (!FTargetIsNew) FLoad->UndoLog().Hold(collection, std::move(formerItems));
  } catch (...) {
    if (use.IsAlive()) formerItems->PutBack();
    throw;
  }
}

void TReader::ReadNewItems(TCollection& collection) {
  const bool outer = std::exchange(FTargetIsNew, true);
  const auto done = qScopeGuard([&] { FTargetIsNew = outer; });
  while (!FInput.EndOfList()) {
    ReadItemBegin();
    ReadProperties(*collection.Add());
    FInput.ReadListEnd();
  }
  FInput.ReadListEnd();
}

std::unique_ptr<TComponent> ReadComponentFromBinary(const QByteArray& data) {
  TReader reader(data);
  return std::unique_ptr<TComponent>(reader.ReadRootComponent(nullptr));
}

}  // namespace kt
