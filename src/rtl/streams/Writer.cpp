#include "kt/rtl/streams/Writer.h"

#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/objects/KeptData.h"
#include "kt/rtl/streams/UnknownComponent.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <QScopeGuard>

#include <algorithm>
#include <limits>
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
  FAncestorOfRoot = ancestor;
  FRootAncestor = ancestor;
  FLookupAncestor = ancestor;
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

void TWriter::WriteComponent(TComponent* component, std::optional<int> position) {
  TPersistent* outer = FAncestor;
  TComponent* outerRoot = FRootAncestor;
  const auto done = qScopeGuard([&] {
    component->FComponentState.Exclude(csWriting);
    FAncestor = outer;
    FRootAncestor = outerRoot;
  });
  const bool isInherited = EnterAncestor(component);
  WriteHeader(component, isInherited, position);
  component->FComponentState.Include(csWriting);
  component->WriteState(*this);
}

/// Makes the counterpart of a component the present ancestor; answers whether the component comes from the ancestor
/// form.
bool TWriter::EnterAncestor(TComponent* component) {
  if (component == FRoot) return FAncestor != nullptr;
  TComponent* inherited = FindAncestor(component);
  TComponent* ancestor = inherited;
  if (OnFindAncestor) OnFindAncestor(component, component->GetName(), ancestor, FRootAncestor);
  FAncestor = ancestor;
  return ancestor && (inherited || !component->HasState(csInline));
}

void TWriter::WriteHeader(TComponent* component, bool isInherited, std::optional<int> position) {
  TFormObjectHeader header;
  if (const auto* unknown = dynamic_cast<TUnknownComponent*>(component)) {
    header = unknown->GetHeader();
  } else {
    header.ClassName = component->ClassName();
    header.Flags.setFlag(ffInline, component->HasState(csInline));
  }
  if (isInherited) {
    // A nested form that is inherited is found through its ancestor; the two are never stored together.
    header.Flags.setFlag(ffInherited);
    header.Flags.setFlag(ffInline, false);
  }
  if (position) {
    header.Flags.setFlag(ffChildPos);
    header.ChildPos = *position;
  }
  header.Name = component->GetName();
  FOutput.WriteObjectHeader({header.Flags, header.ClassName, header.Name, header.ChildPos});
}

/// A nested form: the names of its components count from there.
static bool IsScopeOfNames(const TComponent* component) {
  const auto* unknown = dynamic_cast<const TUnknownComponent*>(component);
  return component->HasState(csInline) || (unknown && unknown->GetHeader().Flags.testFlag(ffInline));
}

void TWriter::WriteData(TComponent* instance) {
  WriteObjectProperties(instance);
  FOutput.WriteListEnd();
  TComponent* outer = FLookupRoot;
  TComponent* outerAncestor = FLookupAncestor;
  if (IsScopeOfNames(instance)) {
    FLookupRoot = instance;
    FLookupAncestor = dynamic_cast<TComponent*>(FAncestor);
  }
  WriteChildren(instance);
  FLookupRoot = outer;
  FLookupAncestor = outerAncestor;
  FOutput.WriteListEnd();
}

/// A stand-in, and what the stream had below one, has its place from there, whatever the component says.
static bool IsWrittenElsewhere(TComponent* child, const TComponent* parent) {
  const TKeptData* kept = FindKeptData(child);
  if (kept && kept->StandInParent) return kept->StandInParent != parent;
  return dynamic_cast<TUnknownComponent*>(child) && child->HasParent();
}

namespace {

/// The order in which a reader that starts with the ancestor's children has the children of a component.
class TChildOrder {
 public:
  explicit TChildOrder(std::vector<TComponent*> inherited) : FOrder(std::move(inherited)) {}

  /// Takes the next child; the position that a reader has to be told, or none when the child comes there by itself.
  std::optional<int> Next(TComponent* ancestor) {
    const auto place = FOrder.begin() + FCount;
    const auto found = std::find(place, FOrder.end(), ancestor);
    // It has another parent in the ancestor; a reader leaves it there.
    if (ancestor && found == FOrder.end()) return std::nullopt;
    const bool isInPlace = place == (ancestor ? found : FOrder.end());
    if (!ancestor) {
      FOrder.insert(place, nullptr);
    } else {
      std::rotate(place, found, found + 1);
    }
    ++FCount;
    return isInPlace ? std::nullopt : std::optional<int>(FCount - 1);
  }

 private:
  std::vector<TComponent*> FOrder;
  int FCount = 0;
};

}  // namespace

/// What the counterpart of the component being written has as children.
std::vector<TComponent*> TWriter::AncestorChildren() {
  std::vector<TComponent*> children;
  auto* ancestor = dynamic_cast<TComponent*>(FAncestor);
  if (ancestor) ancestor->GetChildren([&](TComponent* child) { children.push_back(child); }, FRootAncestor);
  return children;
}

std::vector<TComponent*> TWriter::ChildrenOf(TComponent* parent, TComponent* root) {
  const TKeptData* kept = FindKeptData(parent);
  std::vector<TKeptData::TChild> standIns;
  if (kept) standIns = kept->Children;
  std::vector<TComponent*> children;
  size_t next = 0;
  const auto takeStandIns = [&](int position) {
    for (; next < standIns.size() && standIns[next].Position <= position; ++next, ++position) {
      children.push_back(standIns[next].Component);
    }
  };
  parent->GetChildren(
      [&](TComponent* child) {
        if (IsWrittenElsewhere(child, parent) || child->GetComponentStyle().Has(csSubComponent)) return;
        takeStandIns(static_cast<int>(children.size()));
        children.push_back(child);
      },
      root);
  takeStandIns(std::numeric_limits<int>::max() - static_cast<int>(standIns.size()));
  return children;
}

void TWriter::WriteChildren(TComponent* instance) {
  TChildOrder order(AncestorChildren());
  for (TComponent* child : ChildrenOf(instance, FRoot)) {
    // A stand-in has no counterpart: what it would be in the ancestor is not known.
    const bool isStandIn = AsUnknown(child) && child->HasParent() && !AsUnknown(instance);
    WriteComponent(child, isStandIn ? std::nullopt : order.Next(FindAncestor(child)));
  }
}

/// The counterpart, looked for where a reader would: in that of the form or nested form that owns the component.
TComponent* TWriter::FindAncestor(const TComponent* component) const {
  TComponent* scope = component->GetOwnerComponent() == FRoot ? FRootAncestor : FLookupAncestor;
  return scope && !component->GetName().isEmpty() ? scope->FindComponent(component->GetName()) : nullptr;
}

void TWriter::DefineProperty(QStringView name, const TReaderProc&, const TWriterProc& write, bool hasData) {
  if (!hasData || !write) return;
  WritePropertyName(name);
  const QString path = std::exchange(FPropPath, QString());
  write(*this);
  FPropPath = path;
}

void TWriter::DefineBinaryProperty(QStringView name, const TReadBinaryProc&, const TWriteBinaryProc& write,
                                   bool hasData) {
  if (!hasData || !write) return;
  WritePropertyName(name);
  FOutput.WriteBinary(write());
}

void TWriter::WritePropertyName(QStringView name) { FOutput.WriteShortString(FPropPath + name.toString()); }

void TWriter::WriteVariant(const Variant& value) {
  if (VarIsEmpty(value)) return FOutput.WriteConstant(fcNil);
  if (VarIsNull(value)) return FOutput.WriteConstant(fcNull);
  if (VarType(value) == varBoolean) return FOutput.WriteBoolean(value.ToBool());
  if (VarType(value) == varUInt64) return WriteUnsigned(value.ToUInt64());
  if (VarIsOrdinal(value)) return FOutput.WriteInteger(value.ToInt64());
  if (VarType(value) == varDate) return FOutput.WriteDate(value.ToDateTime());
  if (VarType(value) == varCurrency) return FOutput.WriteCurrency(value.ToCurrency().Scaled());
  if (VarType(value) == varSingle) return FOutput.WriteSingle(static_cast<float>(value.ToDouble()));
  if (VarType(value) == varDouble) return WriteDouble(value.ToDouble());
  FOutput.WriteString(VarToStr(value));
}

/// The format has no unsigned integers: what is beyond the signed ones is an extended number, which has 64 binary
/// digits. Where it has not, text keeps every digit.
void TWriter::WriteUnsigned(quint64 value) {
  if (std::in_range<qint64>(value)) return FOutput.WriteInteger(static_cast<qint64>(value));
  if constexpr (std::numeric_limits<Extended>::digits >= 64) {
    FOutput.WriteFloat(static_cast<Extended>(value));
  } else {
    FOutput.WriteString(QString::number(value));
  }
}

/// In the range of those unsigned integers a double says that it is one.
void TWriter::WriteDouble(double value) {
  const bool isAmbiguous = value >= 0x1p63 && value < 0x1p64;
  isAmbiguous ? FOutput.WriteDouble(value) : FOutput.WriteFloat(value);
}

void TWriter::WriteCollection(TCollection& collection) {
  FOutput.WriteCollectionBegin();
  for (int i = 0; i < collection.GetCount(); ++i) {
    FOutput.WriteListBegin();
    WriteProperties(*collection.GetItem(i));
    FOutput.WriteListEnd();
  }
  FOutput.WriteListEnd();
}

QByteArray WriteComponentToBinary(TComponent* component) {
  TWriter writer;
  writer.WriteRootComponent(component);
  return writer.Data();
}

}  // namespace kt
