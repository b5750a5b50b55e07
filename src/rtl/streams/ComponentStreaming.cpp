// What components themselves do when they are streamed.
#include "kt/rtl/objects/Component.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"

namespace kt {
namespace {

int LowWord(qint32 info) { return static_cast<qint16>(info & 0xFFFF); }

int HighWord(qint32 info) { return static_cast<qint16>(static_cast<quint32>(info) >> 16); }

qint32 Words(int low, int high) {
  return static_cast<qint32>((static_cast<quint32>(high & 0xFFFF) << 16) | static_cast<quint32>(low & 0xFFFF));
}

}  // namespace

void TComponent::ReadState(TReader& reader) { reader.ReadData(this); }

void TComponent::WriteState(TWriter& writer) { writer.WriteData(this); }

/// The place on a designer's form, which a component without a window has nowhere else to keep.
void TComponent::DefineProperties(TFiler& filer) {
  const auto* ancestor = dynamic_cast<TComponent*>(filer.GetAncestor());
  const qint32 inherited = ancestor ? ancestor->FDesignInfo : 0;
  filer.DefineProperty(
      u"Left", [this](TReader& reader) { FDesignInfo = Words(reader.ReadInteger(), HighWord(FDesignInfo)); },
      [this](TWriter& writer) { writer.WriteInteger(LowWord(FDesignInfo)); },
      LowWord(FDesignInfo) != LowWord(inherited));
  filer.DefineProperty(
      u"Top", [this](TReader& reader) { FDesignInfo = Words(LowWord(FDesignInfo), reader.ReadInteger()); },
      [this](TWriter& writer) { writer.WriteInteger(HighWord(FDesignInfo)); },
      HighWord(FDesignInfo) != HighWord(inherited));
}

}  // namespace kt
