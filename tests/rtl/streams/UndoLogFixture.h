#pragma once

#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/UnhandledExceptions.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <gtest/gtest.h>

/// A room that existed before a load, for tests of what a load that fails leaves of it.
namespace kt::tests {

/// A sample with what a control has besides: a colour that follows another one until it is set, lines, children in an
/// order, and data of its own.
class TRoom : public TSample {
 public:
  using Inherited = TSample;
  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }

  int GetShade() const { return FShade; }
  void SetShade(int value) {
    FShade = value;
    FFollows = false;
  }
  bool IsFollowing() const { return FFollows; }
  void SetFollowing(bool value) {
    FFollows = value;
    if (value) FShade = 7;
  }
  TStringList& GetLines() { return *FLines; }
  void SetLines(TStringList* value) { FLines->Assign(value); }
  int GetFragile() const {
    if (IsFragile) throw Exception(QStringLiteral("no value yet"));
    return FFragile;
  }
  void SetFragile(int value) {
    if (OnSetFragile) OnSetFragile();
    FFragile = value;
  }
  TRoom* Add(const char* name) {
    auto* child = New<TRoom>(this);
    child->SetName(QString::fromLatin1(name));
    return child;
  }

  bool IsFragile = false;
  std::function<void()> OnSetFragile;
  int Extra = 0;
  QByteArray Bytes;

 protected:
  explicit TRoom(TComponent* owner = nullptr) : TSample(owner) {}
  void Construct() override {
    FLines = Make<TStringList>();
    TSample::Construct();
  }
  void DefineProperties(TFiler& filer) override {
    TSample::DefineProperties(filer);
    filer.DefineProperty(
        u"Extra", [this](TReader& reader) { Extra = reader.ReadInteger(); },
        [this](TWriter& writer) { writer.WriteInteger(Extra); }, Extra != 0);
    filer.DefineBinaryProperty(
        u"Bytes", [this](const QByteArray& bytes) { Bytes = bytes; }, [this] { return Bytes; }, !Bytes.isEmpty());
  }
  void SetChildOrder(TComponent* child, int order) override { child->SetComponentIndex(order); }
  void Loaded() override {
    TSample::Loaded();
    if (GetName() == u"Bad") throw Exception(QStringLiteral("not loaded"));
  }

 private:
  int FShade = 0;
  bool FFollows = true;
  int FFragile = 0;
  std::unique_ptr<TStringList> FLines;
};

inline const TClassInfo* TRoom::Class() {
  static const TClassInfo info = TClassBuilder<TRoom>("TRoom")
                                     .Property<&TRoom::IsFollowing, &TRoom::SetFollowing>("Following")
                                     .Property<&TRoom::GetShade, &TRoom::SetShade>("Shade")
                                     .Property<&TRoom::GetLines, &TRoom::SetLines>("Lines")
                                     .Property<&TRoom::GetFragile, &TRoom::SetFragile>("Fragile")
                                     .Creatable()
                                     .Done();
  return &info;
}

/// Every kind of property, one a line; then an inherited child, a new one, and the other inherited one before it.
inline constexpr char kRoomForm[] = R"(inherited Changed: TRoom
  Left = 11
  Top = 12
  Tag = 13
  Whole = 14
  Small = 15
  Color = 16
  Letter = 'x'
  WideLetter = 'y'
  Flag = True
  Wide = True
  Align = saBottom
  Styles = [ssItalic]
  Ratio = 17.5
  Narrow = 18.5
  Price = 19.25
  Moment = 20.5
  Text = 'new'
  ShortText = 'new short'
  WideText = 'new wide'
  Anything = 'new variant'
  Big = 21
  Huge = 22
  Partner = Old2
  Sibling = Old2
  Reference = Old2
  Part.Size = 23
  Part.Title = 'new title'
  Part.Style = [ssUnderline]
  Items = <item Caption = 'new item' end item end>
  Items = <item Caption = 'newer item' end>
  OnAction = nil
  Shade = 24
  Following = False
  Lines.Strings = ('new line')
  Fragile = 25
  Extra = 26
  Bytes = {0102}
  inherited Old2: TRoom [0]
    Whole = 27
    Lines.Strings = ('a' 'b')
    object New1: TRoom
      Whole = 28
    end
  end
  object New2: TRoom [1]
    Partner = Old1
  end
  inherited Old1: TRoom [2]
    Whole = 29
    Partner = New2
  end
end
)";

inline std::unique_ptr<TRoom> ExistingRoom() {
  auto room = Make<TRoom>();
  room->SetName(QStringLiteral("Existing"));
  room->Add("Old1");
  room->Add("Old2")->Whole = 5;
  room->Whole = 1;
  room->Styles = {ssBold};
  room->Price = Currency::FromScaled(12345);
  room->Text = QStringLiteral("old");
  room->Anything = Variant(2);
  room->Partner = room->FindComponent(u"Old1");
  room->Sibling = static_cast<TRoom*>(room->Partner);
  room->Reference = room->Partner;
  room->GetPart().SetSize(3);
  room->GetItems().AddItem(QStringLiteral("old item"))->GetChildren().Add();
  room->GetItems().AddItem(QStringLiteral("second"));
  room->OnAction = TNotifyEvent(static_cast<TSample*>(room.get()), &TSample::HandleAction);
  room->SetFollowing(true);
  room->GetLines().SetCommaText(QStringLiteral("one,two"));
  room->GetLines().SetObjects(1, room.get());
  room->Extra = 4;
  room->Bytes = "bytes";
  room->SetDesignInfo(0x00050006);
  return room;
}

class TUndoLogFixture : public ::testing::Test {
 protected:
  TUndoLogFixture() : FRoom(ExistingRoom()), FBefore(TextOf(FRoom.get())) {
    RegisterClass(TRoom::Class());
    FHandler = SetExceptionHandler([this](std::exception_ptr error) {
      FReported += MessageOf<Exception>([&] { std::rethrow_exception(error); }) + u';';
    });
  }
  ~TUndoLogFixture() override {
    SetExceptionHandler(FHandler);
    FRoom.reset();
    EXPECT_EQ(0, TRoom::Alive);
    EXPECT_EQ(0, TSampleItem::Alive);
    UnRegisterClass(TRoom::Class());
  }

  /// Reads over the room; answers the message of the exception, or "read".
  QString ReadOver(const QByteArray& data, TUnknownPolicy unknown = upRaise) {
    TReader reader(data);
    reader.UnknownClasses = unknown;
    try {
      reader.ReadRootComponent(FRoom.get());
    } catch (const Exception& error) {
      return error.Message();
    }
    return QStringLiteral("read");
  }
  /// Reads properties that end in one that the class lacks.
  QString FailAfter(const char* properties, TUnknownPolicy unknown = upRaise) {
    const QByteArray text = QByteArray("object Changed: TRoom\n") + properties + "\n  NoSuch = 1\nend\n";
    return WithoutPlace(ReadOver(BinaryOf(text), unknown));
  }
  /// The form with a property that cannot be read behind each of its lines in turn: the lines where that is read all
  /// the same, or changes the room.
  QString LinesThatDoNotFailCleanly() {
    const QStringList lines = QString::fromLatin1(kRoomForm).split(u'\n', Qt::SkipEmptyParts);
    QString found;
    for (qsizetype i = 0; i < lines.size(); ++i) {
      // Behind an end there can be no property.
      if (lines[i].trimmed() == u"end") continue;
      QStringList changed = lines;
      changed.insert(i + 1, QStringLiteral("NoSuch = 1"));
      const QString message = ReadOver(BinaryOf(changed.join(u'\n').toLatin1()));
      if (!message.contains(u"NoSuch") || TextOf(FRoom.get()) != FBefore) found += lines[i] + u'\n';
    }
    return found;
  }
  int CutsThatDoNotFailCleanly() {
    const QByteArray data = BinaryOf(kRoomForm);
    int count = 0;
    for (qsizetype size = 0; size < data.size(); ++size) {
      if (ReadOver(data.left(size)) == u"read" || TextOf(FRoom.get()) != FBefore) ++count;
    }
    return count;
  }

  std::unique_ptr<TRoom> FRoom;
  std::string FBefore;
  QString FReported;
  TExceptionHandler FHandler;
};

}  // namespace kt::tests
