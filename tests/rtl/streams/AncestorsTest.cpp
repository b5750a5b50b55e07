// Forms that descend from others, and nested forms, with what designers and readers do about them.
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/Reader.h"
#include "kt/rtl/streams/Writer.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "support/Expect.h"
#include "support/FormText.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;
using tests::MessageOf;
using tests::TextOf;
using tests::WithoutPlace;

/// A form, nested form or control that logs what it is told while it is read.
class TStage : public TComponent {
 public:
  using Inherited = TComponent;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TStage>("TStage")
                                       .Property<&TStage::GetWhole, &TStage::SetWhole>("Whole")
                                       .Default(0)
                                       .Property<&TStage::Partner>("Partner")
                                       .Property<&TStage::GetInner>("Inner")
                                       .Creatable()
                                       .Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

  static inline QString Log;
  int GetWhole() const { return FWhole; }
  void SetWhole(int value) {
    FWhole = value;
    Log += GetName() + (HasState(csUpdating) ? QStringLiteral(".Whole(updating) ") : QStringLiteral(".Whole "));
  }
  TStage* GetInner() const { return FInner; }
  TComponent* Partner = nullptr;
  int Extra = 0;

  TStage* Add(const char* name) {
    auto* child = New<TStage>(this);
    child->SetName(QString::fromLatin1(name));
    return child;
  }
  TStage* Child(QStringView name) { return static_cast<TStage*>(FindComponent(name)); }
  void MakeInner() {
    FInner = New<TStage>(this);
    FInner->SetSubComponent(true);
    FInner->SetName(QStringLiteral("Inner"));
  }
  void BeginDesign() { SetDesigning(true); }
  void MakeInline() { SetInline(true); }

 protected:
  explicit TStage(TComponent* owner = nullptr) : TComponent(owner) {}
  void DefineProperties(TFiler& filer) override {
    auto* ancestor = dynamic_cast<TStage*>(filer.GetAncestor());
    filer.DefineProperty(
        u"Extra", [this](TReader& reader) { Extra = reader.ReadInteger(); },
        [this](TWriter& writer) { writer.WriteInteger(Extra); }, Extra != (ancestor ? ancestor->Extra : 0));
  }
  void GetChildren(const TGetChildProc& proc, TComponent*) override {
    for (int i = 0; i < GetComponentCount(); ++i) proc(GetComponents(i));
  }
  TComponent* GetChildOwner() override { return HasState(csInline) ? this : nullptr; }
  void Updating() override {
    TComponent::Updating();
    Log += GetName() + QStringLiteral(".Updating ");
  }
  void Updated() override {
    TComponent::Updated();
    Log += GetName() + QStringLiteral(".Updated ");
  }
  void Loaded() override {
    TComponent::Loaded();
    Log += GetName() + QStringLiteral(".Loaded ");
  }

 private:
  int FWhole = 0;
  TStage* FInner = nullptr;
};

/// A nested form whose class brings a button along.
class TFrameStage : public TStage {
 public:
  using Inherited = TStage;
  static const TClassInfo* Class() {
    static const TClassInfo info = TClassBuilder<TFrameStage>("TFrameStage").Creatable().Done();
    return &info;
  }
  const TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TFrameStage(TComponent* owner = nullptr) : TStage(owner) {}
  void Construct() override {
    TStage::Construct();
    Add("Button")->SetWhole(7);
  }
};

class AncestorsTest : public ::testing::Test {
 protected:
  AncestorsTest() {
    RegisterClasses({TStage::Class(), TFrameStage::Class()});
    TStage::Log.clear();
  }
  ~AncestorsTest() override { UnRegisterClasses({TStage::Class(), TFrameStage::Class()}); }

  /// A form with one child, A.
  static std::unique_ptr<TStage> Form() {
    auto form = Make<TStage>();
    form->SetName(QStringLiteral("F"));
    form->Add("A");
    return form;
  }
  static void ReadOver(TStage* form, const char* text) {
    TReader reader(BinaryOf(text));
    reader.ReadRootComponent(form);
  }
  static std::string DescendantText(TStage* form, TStage* ancestor, const TWriter::TFindAncestorEvent& find = {}) {
    TWriter writer;
    writer.OnFindAncestor = find;
    writer.WriteRootComponent(form, ancestor);
    return TextOf(writer.Data());
  }
};

constexpr char Descendant[] =
    "inherited F: TStage\n  Whole = 1\n  inherited A: TStage\n    Whole = 2\n  end\n"
    "  object B: TStage\n    Whole = 3\n  end\nend\n";

TEST_F(AncestorsTest, ADesignerIsToldOfTheUpdateOfEveryInheritedComponent) {
  const auto form = Form();
  form->BeginDesign();
  ReadOver(form.get(), Descendant);
  EXPECT_EQ(QStringLiteral("F.Updating F.Whole(updating) A.Updating A.Whole(updating) B.Whole F.Updated A.Updated "
                           "F.Loaded A.Loaded B.Loaded "),
            TStage::Log);
}

TEST_F(AncestorsTest, AtRunTimeNothingIsSaidToBeUpdated) {
  const auto form = Form();
  ReadOver(form.get(), Descendant);
  EXPECT_EQ(QStringLiteral("F.Whole A.Whole B.Whole F.Loaded A.Loaded B.Loaded "), TStage::Log);
  EXPECT_FALSE(form->Child(u"A")->HasState(csAncestor));
}

TEST_F(AncestorsTest, InADesignerWhatIsInheritedIsMarked) {
  const auto form = Form();
  form->BeginDesign();
  ReadOver(form.get(), Descendant);
  EXPECT_TRUE(form->HasState(csAncestor));
  EXPECT_TRUE(form->Child(u"A")->HasState(csAncestor));
  EXPECT_FALSE(form->Child(u"A")->HasState(csUpdating));
  EXPECT_FALSE(form->Child(u"B")->HasState(csAncestor));
}

TEST_F(AncestorsTest, AFormThatIsNoDescendantMarksNothing) {
  const auto form = Form();
  form->BeginDesign();
  ReadOver(form.get(), "object F: TStage\nend\n");
  EXPECT_FALSE(form->Child(u"A")->HasState(csAncestor));
}

TEST_F(AncestorsTest, AFailedLoadTakesTheMarksBackAndEndsTheUpdates) {
  const auto form = Form();
  form->BeginDesign();
  EXPECT_EQ(QStringLiteral("Error reading A.Nonsense: Property Nonsense does not exist"),
            WithoutPlace(MessageOf<EReadError>([&] {
              ReadOver(form.get(), "inherited F: TStage\n  inherited A: TStage\n    Nonsense = 2\n  end\nend\n");
            })));
  EXPECT_EQ(QStringLiteral("F.Updating A.Updating F.Updated A.Updated "), TStage::Log);
  EXPECT_EQ(TComponentState({csDesigning}), form->GetComponentState());
  EXPECT_EQ(TComponentState({csDesigning}), form->Child(u"A")->GetComponentState());
}

TEST_F(AncestorsTest, InADesignerWhatTheClassOfANestedFormBringsIsMarked) {
  const auto form = Form();
  form->BeginDesign();
  ReadOver(form.get(),
           "object F: TStage\n  inline N: TFrameStage\n    inherited Button: TStage\n    end\n"
           "    object More: TStage\n    end\n  end\nend\n");
  TStage* nested = form->Child(u"N");
  EXPECT_FALSE(nested->HasState(csAncestor));
  EXPECT_TRUE(nested->Child(u"Button")->HasState(csAncestor));
  EXPECT_FALSE(nested->Child(u"More")->HasState(csAncestor));
}

TEST_F(AncestorsTest, ANestedFormIsComparedWithTheInstanceItIsDesignedWith) {
  const auto prototype = Make<TFrameStage>();
  const auto form = Make<TStage>();
  form->SetName(QStringLiteral("F"));
  auto* nested = New<TFrameStage>(form.get());
  nested->SetName(QStringLiteral("N"));
  nested->MakeInline();
  nested->Add("More");
  const auto find = [&](TComponent* component, const QString&, TComponent*& ancestor, TComponent*& rootAncestor) {
    if (component == nested) ancestor = rootAncestor = prototype.get();
  };
  EXPECT_EQ(
      "object F: TStage\n"
      "  inline N: TFrameStage\n"
      "    inherited Button: TStage\n"
      "    end\n"
      "    object More: TStage\n"
      "    end\n"
      "  end\n"
      "end\n",
      DescendantText(form.get(), nullptr, find));
}

TEST_F(AncestorsTest, TheChangedRootAncestorCountsForThatComponentOnly) {
  const auto ancestor = Form();
  const auto form = Form();
  form->Add("B");
  ancestor->Add("B");
  const auto other = Make<TStage>();
  QStringList seen;
  const auto find = [&](TComponent* component, const QString& name, TComponent*&, TComponent*& rootAncestor) {
    seen.append(name + (rootAncestor == ancestor.get() ? u'+' : u'-'));
    if (component->GetName() == u"A") rootAncestor = other.get();
  };
  DescendantText(form.get(), ancestor.get(), find);
  EXPECT_EQ(QStringLiteral("A+ B+"), seen.join(u' '));
}

TEST_F(AncestorsTest, AComponentMayBeGivenNoAncestor) {
  const auto ancestor = Form();
  const auto form = Form();
  form->Child(u"A")->SetWhole(5);
  ancestor->Child(u"A")->SetWhole(5);
  const auto find = [](TComponent*, const QString&, TComponent*& found, TComponent*&) { found = nullptr; };
  EXPECT_EQ("inherited F: TStage\n  object A: TStage\n    Whole = 5\n  end\nend\n",
            DescendantText(form.get(), ancestor.get(), find));
}

TEST_F(AncestorsTest, DefinedPropertiesSeeTheCounterpartInTheAncestor) {
  const auto ancestor = Form();
  const auto form = Form();
  ancestor->Child(u"A")->Extra = form->Child(u"A")->Extra = 5;
  EXPECT_EQ(std::string::npos, DescendantText(form.get(), ancestor.get()).find("Extra"));
  form->Child(u"A")->Extra = 0;
  EXPECT_NE(std::string::npos, DescendantText(form.get(), ancestor.get()).find("Extra = 0"));
}

TEST_F(AncestorsTest, ASubComponentIsStreamedAsAPropertyAndNotAmongTheChildren) {
  const auto form = Form();
  form->MakeInner();
  form->GetInner()->SetWhole(4);
  form->GetInner()->Partner = form->Child(u"A");
  form->Child(u"A")->Partner = form->GetInner();
  const char* const text =
      "object F: TStage\n"
      "  Inner.Whole = 4\n"
      "  Inner.Partner = A\n"
      "  object A: TStage\n"
      "    Partner = Inner\n"
      "  end\n"
      "end\n";
  EXPECT_EQ(text, TextOf(form.get()));
  const auto copy = Make<TStage>();
  copy->MakeInner();
  ReadOver(copy.get(), text);
  EXPECT_EQ(4, copy->GetInner()->GetWhole());
  EXPECT_EQ(copy->Child(u"A"), copy->GetInner()->Partner);
  EXPECT_EQ(copy->GetInner(), copy->Child(u"A")->Partner);
}

TEST_F(AncestorsTest, ASubComponentIsComparedWithThatOfTheAncestor) {
  const auto ancestor = Form();
  const auto form = Form();
  ancestor->MakeInner();
  form->MakeInner();
  ancestor->GetInner()->SetWhole(4);
  form->GetInner()->SetWhole(4);
  EXPECT_EQ("inherited F: TStage\n  inherited A: TStage\n  end\nend\n", DescendantText(form.get(), ancestor.get()));
  form->GetInner()->SetWhole(0);
  EXPECT_NE(std::string::npos, DescendantText(form.get(), ancestor.get()).find("  Inner.Whole = 0\n"));
}

/// A component whose properties are made at run time and live in a table.
class TTable : public TComponent {
 public:
  using Inherited = TComponent;
  const TClassInfo* ClassType() const override { return FClassInfo; }
  QHash<QString, QString> Values;

 protected:
  TTable(const TClassInfo* classInfo, TComponent* owner) : TComponent(owner), FClassInfo(classInfo) {}

 private:
  const TClassInfo* FClassInfo;
};

/// The class of tables with a text property for each name.
std::unique_ptr<TClassInfo> TableClass(const QStringList& names) {
  auto result = std::make_shared<const TClassInfo*>();
  TClassInfo::TDefinition definition{QStringLiteral("TTable"), TComponent::Class()};
  for (const QString& name : names) {
    auto access = std::make_unique<TFunctionAccess<QString>>(
        [name](TObject& table) { return static_cast<TTable&>(table).Values.value(name); },
        [name](TObject& table, const QString& value) { static_cast<TTable&>(table).Values.insert(name, value); });
    definition.Properties.push_back({name, &TypeInfos::LongString, std::move(access)});
  }
  definition.Factory = [result](TObject* owner) -> TObject* {
    return Make<TTable>(*result, static_cast<TComponent*>(owner)).release();
  };
  auto info = std::make_unique<TClassInfo>(std::move(definition));
  *result = info.get();
  return info;
}

TEST_F(AncestorsTest, AClassMadeAtRunTimeIsStreamed) {
  const auto tables = TableClass({QStringLiteral("City"), QStringLiteral("Street")});
  RegisterClass(tables.get());
  const char* const text = "object T: TTable\n  City = 'Rome'\nend\n";
  {
    const auto table = ReadComponentFromBinary(BinaryOf(text));
    EXPECT_EQ(QStringLiteral("Rome"), static_cast<TTable*>(table.get())->Values.value(QStringLiteral("City")));
    EXPECT_EQ(text, TextOf(table.get()));
  }
  UnRegisterClass(tables.get());
}

}  // namespace
}  // namespace kt
