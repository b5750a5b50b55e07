#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/IntegerConsts.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"
#include "support/FormText.h"
#include "support/Samples.h"

#include <QBuffer>

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;
using tests::MessageOf;
using tests::TextOf;
using tests::TSample;
using tests::WithoutPlace;

/// Logs when it is loaded and can act then.
class TLoadWatcher : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TLoadWatcher>("TLoadWatcher").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }
  static inline QString Log;
  static inline std::function<void(TLoadWatcher*)> OnLoaded;
  static inline int Alive = 0;
  ~TLoadWatcher() override { --Alive; }

 protected:
  explicit TLoadWatcher(TComponent* owner = nullptr) : TComponent(owner) { ++Alive; }
  void Loaded() override {
    TComponent::Loaded();
    Log += GetName() + u' ';
    if (OnLoaded) OnLoaded(this);
  }
  void GetChildren(const TGetChildProc& proc, TComponent*) override {
    for (int i = 0; i < GetComponentCount(); ++i) proc(GetComponents(i));
  }
  void DefineProperties(TFiler& filer) override {
    filer.DefineProperty(
        u"Extra", [this](TReader& reader) { Extra = reader.ReadInteger(); },
        [this](TWriter& writer) { writer.WriteInteger(Extra); }, Extra != 0);
    filer.DefineBinaryProperty(
        u"Bytes", [this](const QByteArray& bytes) { Bytes = bytes; }, [this] { return Bytes; }, !Bytes.isEmpty());
  }

 public:
  int Extra = 0;
  QByteArray Bytes;
};

class ReaderTest : public ::testing::Test {
 protected:
  ReaderTest() {
    RegisterClasses({TSample::Class(), TLoadWatcher::Class()});
    TLoadWatcher::Log.clear();
  }
  ~ReaderTest() override {
    TLoadWatcher::OnLoaded = {};
    UnRegisterClasses({TSample::Class(), TLoadWatcher::Class()});
  }

  static std::unique_ptr<TComponent> Load(const char* text) { return ReadComponentFromBinary(BinaryOf(text)); }
  template <class E>
  static QString ErrorOf(const char* text) {
    return WithoutPlace(MessageOf<E>([text] { Load(text); }));
  }
};

TEST_F(ReaderTest, AnEmptyListDeliberatelyTakesNoItemsAway) {
  const auto root = Make<TSample>();
  root->GetItems().AddItem(QStringLiteral("one"));
  TReader(BinaryOf("object S: TSample\n  Items = <>\nend\n")).ReadRootComponent(root.get());
  EXPECT_EQ(1, root->GetItems().GetCount());
}

TEST_F(ReaderTest, AnErrorInAPropertyTellsTheOffsetOfTheValueAndTheWholePath) {
  EXPECT_EQ(QStringLiteral("Error reading S.Whole: Invalid property value at offset 20 (S.Whole)"),
            MessageOf<EReadError>([] { Load("object S: TSample\n  Whole = 4294967296\nend\n"); }));
  EXPECT_EQ(
      QStringLiteral("Error reading X.Align: Invalid property value at offset 31 (S.X.Align)"),
      MessageOf<EReadError>([] { Load("object S: TSample\n  object X: TSample\n    Align = saLeft\n  end\nend\n"); }));
}

TEST_F(ReaderTest, AnUnknownPropertyRaisesWithThePathOfTheObject) {
  EXPECT_EQ(QStringLiteral("Error reading S.Nonsense: Property Nonsense does not exist"),
            ErrorOf<EReadError>("object S: TSample\n  Nonsense = 1\nend\n"));
}

TEST_F(ReaderTest, AnUnknownPropertyOfANestedObjectRaises) {
  EXPECT_EQ(QStringLiteral("Error reading S.Part.Nonsense: Property Nonsense does not exist"),
            ErrorOf<EReadError>("object S: TSample\n  Part.Nonsense = 1\nend\n"));
}

TEST_F(ReaderTest, APathThroughAPlainValueRaises) {
  EXPECT_EQ(QStringLiteral("Error reading S.Whole.Size: Invalid property path"),
            ErrorOf<EReadError>("object S: TSample\n  Whole.Size = 1\nend\n"));
}

TEST_F(ReaderTest, AReadOnlyPropertyRaises) {
  EXPECT_EQ(QStringLiteral("Error reading S.Double: Property is read-only"),
            ErrorOf<EReadError>("object S: TSample\n  Double = 4\nend\n"));
}

TEST_F(ReaderTest, AnUnknownEnumerationNameRaises) {
  EXPECT_EQ(QStringLiteral("Error reading S.Align: Invalid property value"),
            ErrorOf<EReadError>("object S: TSample\n  Align = saLeft\nend\n"));
}

TEST_F(ReaderTest, AnUnknownSetMemberRaises) {
  EXPECT_EQ(QStringLiteral("Error reading S.Styles: Invalid property value"),
            ErrorOf<EReadError>("object S: TSample\n  Styles = [ssBold, ssWide]\nend\n"));
}

TEST_F(ReaderTest, ANumberBeyond32BitsDoesNotFitAnInteger) {
  EXPECT_EQ(QStringLiteral("Error reading S.Whole: Invalid property value"),
            ErrorOf<EReadError>("object S: TSample\n  Whole = 4294967296\nend\n"));
}

TEST_F(ReaderTest, AnUnknownClassRaises) {
  EXPECT_EQ(QStringLiteral("Class TNoSuch not found at offset 4 (S)"),
            ErrorOf<EClassNotFound>("object S: TNoSuch\nend\n"));
  EXPECT_EQ(QStringLiteral("Class TNoSuch not found at offset 15 (S.X)"),
            ErrorOf<EClassNotFound>("object S: TSample\n  object X: TNoSuch\n  end\nend\n"));
}

TEST_F(ReaderTest, AMethodThatTheRootLacksRaises) {
  EXPECT_EQ(QStringLiteral("Error reading S.OnAction: Invalid property value"),
            ErrorOf<EReadError>("object S: TSample\n  OnAction = NoSuchMethod\nend\n"));
}

TEST_F(ReaderTest, AMissingAncestorRaises) {
  EXPECT_EQ(QStringLiteral("Ancestor for 'X' not found at offset 15 (S.X)"),
            ErrorOf<EReadError>("object S: TSample\n  inherited X: TSample\n  end\nend\n"));
}

TEST_F(ReaderTest, TwoComponentsOfOneNameRaise) {
  EXPECT_EQ(
      QStringLiteral("A component named x already exists at offset 27 (S.x)"),
      ErrorOf<EComponentError>("object S: TSample\n  object X: TSample\n  end\n  object x: TSample\n  end\nend\n"));
}

TEST_F(ReaderTest, AFailedLoadLeavesNoObjectBehind) {
  const int before = TLoadWatcher::Alive;
  ErrorOf<EReadError>("object A: TLoadWatcher\n  object B: TLoadWatcher\n    Nonsense = 1\n  end\nend\n");
  EXPECT_EQ(before, TLoadWatcher::Alive);
}

TEST_F(ReaderTest, AFailedLoadIntoAnExistingRootTakesItsNewChildrenBack) {
  const auto root = Make<TSample>();
  New<TSample>(root.get())->SetName(QStringLiteral("Old"));
  TReader reader(BinaryOf("object S: TSample\n  object A: TSample\n  end\n  object B: TNoSuch\n  end\nend\n"));
  EXPECT_THROW(reader.ReadRootComponent(root.get()), EClassNotFound);
  ASSERT_EQ(1, root->GetComponentCount());
  EXPECT_EQ(QStringLiteral("Old"), root->GetComponents(0)->GetName());
}

TEST_F(ReaderTest, ADamagedStreamIsRefusedBeforeAnObjectIsTouched) {
  const auto root = Make<TSample>();
  QByteArray damaged = BinaryOf("object S: TSample\n  Whole = 5\n  Text = 'abc'\nend\n");
  damaged.chop(4);
  TReader reader(damaged);
  EXPECT_THROW(reader.ReadRootComponent(root.get()), EReadError);
  EXPECT_EQ(0, root->Whole);
}

TEST_F(ReaderTest, AFailedLoadLeavesAnExistingRootAsNotBeingLoadedAndWithItsName) {
  const auto root = Make<TSample>();
  root->SetName(QStringLiteral("Mine"));
  TReader reader(BinaryOf("object S: TSample\n  Nonsense = 1\nend\n"));
  EXPECT_THROW(reader.ReadRootComponent(root.get()), EReadError);
  EXPECT_EQ(QStringLiteral("Mine"), root->GetName());
  EXPECT_FALSE(root->HasState(csLoading));
  EXPECT_FALSE(root->HasState(csReading));
}

TEST_F(ReaderTest, ARootOfAnotherClassThanAskedForIsRefused) {
  TReader reader(BinaryOf("object W: TLoadWatcher\nend\n"));
  const int before = TLoadWatcher::Alive;
  EXPECT_EQ(QStringLiteral("Invalid class typecast"), MessageOf<EInvalidCast>([&] { reader.ReadRoot<TSample>(); }));
  EXPECT_EQ(before, TLoadWatcher::Alive);
}

TEST_F(ReaderTest, ANumberThatDoesNotFitItsTypeRaises) {
  EXPECT_EQ(QStringLiteral("Error reading S.Small: Invalid property value"),
            ErrorOf<EReadError>("object S: TSample\n  Small = 300\nend\n"));
}

TEST_F(ReaderTest, AColourMayBeStoredWithoutItsSign) {
  const auto sample = Load("object S: TSample\n  Color = 4278190335\nend\n");
  EXPECT_EQ(static_cast<int>(0xFF0000FF), static_cast<TSample*>(sample.get())->Color);
}

TEST_F(ReaderTest, AResourceHeaderBeforeTheFormIsPassedOver) {
  QByteArray resource;
  ObjectTextToResource("object S: TSample\n  Whole = 5\nend\n", resource);
  EXPECT_EQ(5, static_cast<TSample*>(ReadComponentFromBinary(resource).get())->Whole);
}

TEST_F(ReaderTest, ReadersMayBeDestroyedInAnyOrder) {
  auto first = std::make_unique<TReader>(BinaryOf("object S: TSample\nend\n"));
  auto second = std::make_unique<TReader>(BinaryOf("object S: TSample\nend\n"));
  const std::unique_ptr<TComponent> one(first->ReadRootComponent(nullptr));
  const std::unique_ptr<TComponent> two(second->ReadRootComponent(nullptr));
  first.reset();
  second.reset();
  EXPECT_EQ(one->GetName(), two->GetName());
}

TEST_F(ReaderTest, NestedFormsWithEqualNamesInsideStayApart) {
  const char* const text =
      "object Form1: TMyForm\n"
      "  inline Frame1: TFrame1\n"
      "    inherited Panel1: TPanel\n"
      "      inherited Button1: TButton\n"
      "        Left = 1\n"
      "      end\n"
      "    end\n"
      "  end\n"
      "  inline Frame2: TFrame1\n"
      "    inherited Panel1: TPanel\n"
      "      inherited Button1: TButton\n"
      "        Left = 2\n"
      "      end\n"
      "    end\n"
      "  end\n"
      "end\n";
  TReader reader(BinaryOf(text));
  reader.UnknownClasses = upKeep;
  const std::unique_ptr<TComponent> form(reader.ReadRootComponent(nullptr));
  EXPECT_EQ(text, TextOf(form.get()));
}

TEST_F(ReaderTest, AReferenceToAStandInIsKept) {
  const char* const text =
      "object S: TSample\n"
      "  Small = 0\n"
      "  Color = 0\n"
      "  Items = <>\n"
      "  object A: TSample\n"
      "    Small = 0\n"
      "    Color = 0\n"
      "    Items = <>\n"
      "    Sibling = U\n"
      "  end\n"
      "  object U: TNoSuch\n"
      "  end\n"
      "end\n";
  TReader reader(BinaryOf(text));
  reader.UnknownClasses = upKeep;
  EXPECT_EQ(text, TextOf(reader.ReadRoot<TSample>().get()));
}

TEST_F(ReaderTest, AReferenceToAComponentOfAnotherClassRaises) {
  EXPECT_EQ(QStringLiteral("Error reading A.Sibling: Invalid class typecast"),
            ErrorOf<EReadError>("object S: TSample\n  object A: TSample\n    Sibling = B\n  end\n"
                                "  object B: TLoadWatcher\n  end\nend\n"));
}

TEST_F(ReaderTest, AStandInKeepsANameThatIsNoneHere) {
  TReader reader(BinaryOf("object \xC3\x84rger: TNoSuch\nend\n"));
  reader.UnknownClasses = upKeep;
  const std::unique_ptr<TComponent> form(reader.ReadRootComponent(nullptr));
  EXPECT_EQ(QStringLiteral("\u00C4rger"), form->GetName());
}

TEST_F(ReaderTest, ARootFreedByItsOwnLoadedIsNotHandedOut) {
  TLoadWatcher::OnLoaded = [](TLoadWatcher* self) {
    if (self->GetName() == u"B") delete self->GetOwnerComponent();
  };
  TReader reader(BinaryOf("object A: TLoadWatcher\n  object B: TLoadWatcher\n  end\nend\n"));
  EXPECT_EQ(nullptr, reader.ReadRootComponent(nullptr));
}

TEST_F(ReaderTest, SkippingUnknownClassesAndPropertiesLoadsTheRest) {
  TReader reader(
      BinaryOf("object S: TSample\n  Nonsense = (1 2)\n  Whole = 5\n  object X: TNoSuch\n    A = <>\n  end\n"
               "  object Y: TSample\n  end\nend\n"));
  reader.UnknownClasses = upSkip;
  reader.UnknownProperties = upSkip;
  const auto sample = reader.ReadRoot<TSample>();
  EXPECT_EQ(5, sample->Whole);
  EXPECT_EQ(1, sample->GetComponentCount());
}

TEST_F(ReaderTest, KeepingUnknownClassesAndPropertiesWritesThemBackUnchanged) {
  const char* const text =
      "object Form1: TMyForm\n"
      "  Caption = 'Hello'\n"
      "  Tag = 5\n"
      "  Font.Style = [fsBold]\n"
      "  OnCreate = FormCreate\n"
      "  object Panel1: TPanel\n"
      "    Left = 8\n"
      "    object S: TSample\n"
      "      Small = 1\n"
      "      Color = 0\n"
      "      Items = <>\n"
      "      Later = <\n"
      "        item\n"
      "          A = 1\n"
      "        end>\n"
      "    end\n"
      "  end\n"
      "  inline Frame1: TFrame1\n"
      "    Top = 3\n"
      "    inherited Panel1: TPanel\n"
      "    end\n"
      "  end\n"
      "end\n";
  TReader reader(BinaryOf(text));
  reader.UnknownClasses = upKeep;
  reader.UnknownProperties = upKeep;
  const std::unique_ptr<TComponent> form(reader.ReadRootComponent(nullptr));
  EXPECT_EQ(text, TextOf(form.get()));
}

TEST_F(ReaderTest, AStandInAmongKnownChildrenKeepsItsPlace) {
  const char* const text =
      "object S: TSample\n"
      "  Small = 0\n"
      "  Color = 0\n"
      "  Items = <>\n"
      "  object A: TNoSuch\n"
      "  end\n"
      "  object B: TSample\n"
      "    Small = 0\n"
      "    Color = 0\n"
      "    Items = <>\n"
      "    object C: TNoSuch\n"
      "      X = nil\n"
      "    end\n"
      "  end\n"
      "end\n";
  TReader reader(BinaryOf(text));
  reader.UnknownClasses = upKeep;
  const auto sample = reader.ReadRoot<TSample>();
  EXPECT_EQ(text, TextOf(sample.get()));
}

TEST_F(ReaderTest, AFreedStandInIsNotWritten) {
  TReader reader(BinaryOf("object S: TSample\n  object B: TSample\n    object C: TNoSuch\n    end\n  end\nend\n"));
  reader.UnknownClasses = upKeep;
  const auto sample = reader.ReadRoot<TSample>();
  delete sample->FindComponent(u"C");
  EXPECT_EQ(std::string::npos, TextOf(sample.get()).find("TNoSuch"));
}

TEST_F(ReaderTest, AnUnknownMethodIsKeptWithTheUnknownProperties) {
  TReader reader(BinaryOf("object S: TSample\n  OnAction = NoSuchMethod\nend\n"));
  reader.UnknownProperties = upKeep;
  const auto sample = reader.ReadRoot<TSample>();
  EXPECT_NE(std::string::npos, TextOf(sample.get()).find("OnAction = NoSuchMethod"));
}

TEST_F(ReaderTest, AnUnknownPropertyOfACollectionItemIsKeptToo) {
  const char* const text =
      "object TSample\n"
      "  Small = 0\n"
      "  Color = 0\n"
      "  Items = <\n"
      "    item\n"
      "      Caption = 'a'\n"
      "      Children = <>\n"
      "      Width = 12\n"
      "    end>\n"
      "end\n";
  TReader reader(BinaryOf(text));
  reader.UnknownProperties = upKeep;
  EXPECT_EQ(text, TextOf(reader.ReadRoot<TSample>().get()));
}

TEST_F(ReaderTest, TheErrorHandlerMayPassOverAProperty) {
  TReader reader(BinaryOf("object S: TSample\n  Nonsense = 1\n  Whole = 5\nend\n"));
  QString seen;
  reader.OnError = [&seen](const QString& message) {
    seen = message;
    return true;
  };
  EXPECT_EQ(5, reader.ReadRoot<TSample>()->Whole);
  EXPECT_EQ(QStringLiteral("Error reading S.Nonsense: Property Nonsense does not exist"), seen);
}

TEST_F(ReaderTest, TheApplicationMayFindMethodsAndClassesAndNames) {
  TReader reader(BinaryOf("object S: TOther\n  OnAction = Anything\nend\n"));
  reader.OnFindComponentClass = [](const QString&) { return TSample::Class(); };
  reader.OnFindMethod = [](const QString&) -> TMethod { return TNotifyEvent([](TObject*) {}); };
  reader.OnSetName = [](TComponent*, QString& name) { name += u'1'; };
  const auto sample = reader.ReadRoot<TSample>();
  EXPECT_FALSE(sample->OnAction.IsEmpty());
  EXPECT_EQ(QStringLiteral("S1"), sample->GetName());
}

TEST_F(ReaderTest, DefinedPropertiesAreReadAndWritten) {
  const char* const text = "object W: TLoadWatcher\n  Extra = 7\n  Bytes = {0102FF}\nend\n";
  const auto component = Load(text);
  EXPECT_EQ(7, static_cast<TLoadWatcher*>(component.get())->Extra);
  EXPECT_EQ(QByteArray("\x01\x02\xFF"), static_cast<TLoadWatcher*>(component.get())->Bytes);
  EXPECT_EQ(text, TextOf(component.get()));
}

TEST_F(ReaderTest, LoadedIsCalledForTheRootFirstAndForTheOthersWhenComplete) {
  Load(
      "object A: TLoadWatcher\n  object B: TLoadWatcher\n    object C: TLoadWatcher\n    end\n  end\n"
      "  object D: TLoadWatcher\n  end\nend\n");
  EXPECT_EQ(QStringLiteral("A C B D "), TLoadWatcher::Log);
}

TEST_F(ReaderTest, LoadedMayFreeAComponentThatIsStillToBeTold) {
  TLoadWatcher::OnLoaded = [](TLoadWatcher* self) {
    if (self->GetName() == u"A") delete self->FindComponent(u"B");
  };
  const auto root =
      Load("object A: TLoadWatcher\n  object B: TLoadWatcher\n  end\n  object D: TLoadWatcher\n  end\nend\n");
  EXPECT_EQ(QStringLiteral("A D "), TLoadWatcher::Log);
}

TEST_F(ReaderTest, TheLoadingStateEndsWithLoaded) {
  const auto root = Load("object A: TLoadWatcher\n  object B: TLoadWatcher\n  end\nend\n");
  EXPECT_FALSE(root->HasState(csLoading));
  EXPECT_FALSE(root->GetComponents(0)->HasState(csLoading));
  EXPECT_FALSE(root->GetComponents(0)->HasState(csReading));
}

TEST_F(ReaderTest, AnIntegerTypeMayHaveNames) {
  RegisterIntegerConsts(
      tests::SampleColorTypeInfo(),
      {.IdentToInt = [](QStringView ident) { return ident == u"scRed" ? std::optional<qint64>(255) : std::nullopt; },
       .IntToIdent = [](qint64 value) { return value == 255 ? QStringLiteral("scRed") : QString(); }});
  const auto sample = Load("object S: TSample\n  Color = scRed\nend\n");
  EXPECT_EQ(255, static_cast<TSample*>(sample.get())->Color);
  EXPECT_NE(std::string::npos, TextOf(sample.get()).find("Color = scRed"));
  EXPECT_EQ(QStringLiteral("Error reading S.Color: Invalid property value"),
            ErrorOf<EReadError>("object S: TSample\n  Color = scGreen\nend\n"));
  UnRegisterIntegerConsts(tests::SampleColorTypeInfo());
}

TEST_F(ReaderTest, OldStringsAreReadInTheGivenEncoding) {
  // The euro sign in Windows-1252, and two bytes that make up another character in UTF-8.
  const QByteArray euro("TPF0\7TSample\1S\4Text\6\1\x80\0\0", 24);
  const QByteArray twoBytes("TPF0\7TSample\1S\4Text\6\2\xC3\xA9\0\0", 25);
  TReader byDefault(euro);
  TReader utf8(twoBytes);
  utf8.SetEncoding(eeUtf8);
  EXPECT_EQ(QStringLiteral("\u20AC"), byDefault.ReadRoot<TSample>()->Text);
  EXPECT_EQ(QStringLiteral("\u00E9"), utf8.ReadRoot<TSample>()->Text);
}

TEST_F(ReaderTest, OldStringsThatAreInvalidInTheEncodingAreRefusedBeforeAnObjectIsMade) {
  TReader reader(QByteArray("TPF0\7TSample\1S\4Text\6\1\x80\0\0", 24));
  reader.SetEncoding(eeUtf8);
  EXPECT_THROW(reader.ReadRootComponent(nullptr), EReadError);
}

TEST_F(ReaderTest, ADeviceIsReadToItsEnd) {
  QByteArray data = BinaryOf("object S: TSample\n  Whole = 5\nend\n");
  QBuffer device(&data);
  device.open(QIODevice::ReadOnly);
  TReader reader(device);
  EXPECT_EQ(5, reader.ReadRoot<TSample>()->Whole);
}

}  // namespace
}  // namespace kt
