#include "kt/rtl/streams/Writer.h"

#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/objects/KeptData.h"
#include "kt/rtl/streams/UnknownComponent.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <utility>

namespace kt {

TWriter::TWriter() : FOutput(FData) {}

TWriter::~TWriter() = default;

QByteArray TWriter::Data() {
  FOutput.Flush();
  return FData;
}

void TWriter::WriteRootComponent(TComponent* root, TComponent* ancestor) {
  FRoot = root;
  FLookupRoot = root;
  FRootAncestor = ancestor;
  FAncestor = ancestor;
  FOutput.WriteSignature();
  WriteComponent(root);
}

void TWriter::WriteComponents(const std::vector<TComponent*>& components, TComponent* root) {
  FRoot = root;
  FLookupRoot = root;
  for (TComponent* component : components) {
    FOutput.WriteSignature();
    WriteComponent(component);
  }
  FOutput.WriteListEnd();
}

void TWriter::WriteComponent(TComponent* component) {
  TPersistent* outer = FAncestor;
  if (component != FRoot) FAncestor = FindAncestor(component);
  WriteHeader(component, FAncestor != nullptr);
  component->FComponentState.Include(csWriting);
  component->WriteState(*this);
  component->FComponentState.Exclude(csWriting);
  FAncestor = outer;
}

void TWriter::WriteHeader(TComponent* component, bool isInherited) {
  TFormObjectHeader header;
  if (const auto* unknown = dynamic_cast<TUnknownComponent*>(component)) {
    header = unknown->GetHeader();
  } else {
    header.ClassName = component->ClassName();
    header.Flags.setFlag(ffInline, component->HasState(csInline));
  }
  if (isInherited) header.Flags.setFlag(ffInherited);
  header.Name = component->GetName();
  FOutput.WriteObjectHeader({header.Flags, header.ClassName, header.Name, header.ChildPos});
}

/// A nested form: the names of its components count from there.
static bool IsScopeOfNames(const TComponent* component) {
  const auto* unknown = dynamic_cast<const TUnknownComponent*>(component);
  return component->HasState(csInline) || (unknown && unknown->GetHeader().Flags.testFlag(ffInline));
}

void TWriter::WriteData(TComponent* instance) {
  WriteProperties(instance);
  FOutput.WriteListEnd();
  TComponent* outer = FLookupRoot;
  if (IsScopeOfNames(instance)) FLookupRoot = instance;
  WriteChildren(instance);
  FLookupRoot = outer;
  FOutput.WriteListEnd();
}

/// A stand-in, and what the stream had below one, has its place from there, whatever the component says.
static bool IsWrittenElsewhere(TComponent* child, const TComponent* parent) {
  const TKeptData* kept = FindKeptData(child);
  if (kept && kept->StandInParent) return kept->StandInParent != parent;
  return dynamic_cast<TUnknownComponent*>(child) && child->HasParent();
}

/// The children that the component names, with the stand-ins among them at the places they had in the stream.
void TWriter::WriteChildren(TComponent* instance) {
  const TKeptData* kept = FindKeptData(instance);
  std::vector<TKeptData::TChild> standIns;
  if (kept) standIns = kept->Children;
  size_t next = 0;
  int position = 0;
  const auto writeStandIns = [&] {
    for (; next < standIns.size() && standIns[next].Position <= position; ++next, ++position) {
      WriteComponent(standIns[next].Component);
    }
  };
  instance->GetChildren(
      [&](TComponent* child) {
        if (IsWrittenElsewhere(child, instance)) return;
        writeStandIns();
        WriteComponent(child);
        ++position;
      },
      FRoot);
  for (; next < standIns.size(); ++next) WriteComponent(standIns[next].Component);
}

TComponent* TWriter::FindAncestor(const TComponent* component) const {
  return FRootAncestor && !component->GetName().isEmpty() ? FRootAncestor->FindComponent(component->GetName())
                                                          : nullptr;
}

void TWriter::DefineProperty(QStringView name, const TReaderProc&, const TWriterProc& write, bool hasData) {
  if (!hasData || !write) return;
  WritePropName(name);
  const QString path = std::exchange(FPropPath, QString());
  write(*this);
  FPropPath = path;
}

void TWriter::DefineBinaryProperty(QStringView name, const TReadBinaryProc&, const TWriteBinaryProc& write,
                                   bool hasData) {
  if (!hasData || !write) return;
  WritePropName(name);
  FOutput.WriteBinary(write());
}

void TWriter::WritePropName(QStringView name) { FOutput.WriteShortString(FPropPath + name.toString()); }

void TWriter::WriteVariant(const Variant& value) {
  if (VarIsEmpty(value)) return FOutput.WriteConstant(fcNil);
  if (VarIsNull(value)) return FOutput.WriteConstant(fcNull);
  if (VarType(value) == varBoolean) return FOutput.WriteBoolean(value.ToBool());
  if (VarIsOrdinal(value)) return FOutput.WriteInteger(value.ToInt64());
  if (VarIsNumeric(value)) return FOutput.WriteFloat(value.ToDouble());
  FOutput.WriteString(VarToStr(value));
}

void TWriter::WriteCollection(TCollection& collection) {
  const QString path = std::exchange(FPropPath, QString());
  TPersistent* outer = std::exchange(FAncestor, nullptr);
  FOutput.WriteCollectionBegin();
  for (int i = 0; i < collection.GetCount(); ++i) {
    FOutput.WriteListBegin();
    WriteProperties(collection.GetItem(i));
    FOutput.WriteListEnd();
  }
  FOutput.WriteListEnd();
  FAncestor = outer;
  FPropPath = path;
}

QByteArray WriteComponentToBinary(TComponent* component) {
  TWriter writer;
  writer.WriteRootComponent(component);
  return writer.Data();
}

}  // namespace kt
