// The forms that come with the program, in the window.
#include "DesignerFixture.h"
#include "designer/document/ComponentTree.h"
#include "designer/document/FormLoading.h"
#include "designer/window/ShippedForms.h"
#include "kt/rtl/collections/Collection.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/strings/Strings.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/vcl/comctrls/PageControl.h"
#include "kt/vcl/comctrls/TabSheet.h"
#include "kt/vcl/forms/Form.h"
#include "kt/vcl/graphics/Picture.h"
#include "kt/vcl/imagelist/ImageList.h"

#include <QFileInfo>

#include <set>

namespace designer::tests {
namespace {

class ExamplesTest : public TDesignerTest {
 protected:
  static QString Example(const QString& name) {
    for (const QString& file : ShippedForms()) {
      if (QFileInfo(file).fileName() == name) return file;
    }
    throw std::runtime_error("no example " + name.toStdString());
  }
  static QByteArray BytesOf(const QString& name) { return FileContent(name); }
  /// Saves under another name by its key, and answers what is in that file.
  QByteArray SavedBytes() {
    const QString copy = FFolder.filePath("copy.dfm");
    QFile::remove(copy);
    FWindow->Questions().AskSaveName = [copy](const QString&) { return copy; };
    Surface().setFocus();
    Key(Qt::Key_S, Qt::ControlModifier);
    return QFile::exists(copy) ? BytesOf(copy) : QByteArray("nothing was saved");
  }
  /// The first line of `b` that is not that of `a`.
  static QString FirstDifference(const QByteArray& a, const QByteArray& b) {
    const QByteArrayList before = a.split('\n');
    const QByteArrayList after = b.split('\n');
    const auto differs = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    return differs.second == after.end() ? QStringLiteral("the end") : QString::fromUtf8(*differs.second);
  }
  /// What is saved of each example that is not what is in its file, after `act` in the window.
  template <class F>
  QString ExamplesChangedBy(F act) {
    QStringList changed;
    for (const QString& file : ShippedForms()) {
      EXPECT_TRUE(FWindow->OpenExample(file));
      Surface().setFocus();
      Settle();
      act();
      const QByteArray saved = SavedBytes();
      if (saved == BytesOf(file)) continue;
      changed.append(QStringLiteral("%1: %2").arg(QFileInfo(file).fileName(), FirstDifference(BytesOf(file), saved)));
    }
    return changed.join(u'|');
  }
};

TEST_F(ExamplesTest, AnExampleHasNoFileSoSavingAsks) {
  const QString file = Example("preferences.dfm");
  const QByteArray before = BytesOf(file);
  EXPECT_TRUE(FWindow->OpenExample(file));
  EXPECT_EQ(Document().FileName(), "");
  EXPECT_EQ(FWindow->windowTitle(), "preferences.dfm (example)[*] - Form designer");
  QString asked;
  FWindow->Questions().AskSaveName = [&](const QString& name) {
    asked = name;
    return QString();
  };
  Surface().setFocus();
  Key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_TRUE(FWindow->isWindowModified());
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(asked, "preferences.dfm");
  EXPECT_TRUE(FWindow->isWindowModified());
  EXPECT_EQ(BytesOf(file), before);
}

TEST_F(ExamplesTest, ASavedCopyIsAFormLikeAnyOther) {
  EXPECT_TRUE(FWindow->OpenExample(Example("contact.dfm")));
  EXPECT_EQ(SavedBytes(), BytesOf(Example("contact.dfm")));
  EXPECT_EQ(FWindow->windowTitle(), "copy.dfm[*] - Form designer");
}

TEST_F(ExamplesTest, TheMenuOfExamplesOpensCopies) {
  QAction* example = nullptr;
  for (QAction* action : FWindow->findChildren<QAction*>()) {
    if (action->text() == "notepad.dfm") example = action;
  }
  ASSERT_TRUE(example);
  example->trigger();
  EXPECT_EQ(Session().Form().GetName(), "NotepadForm");
  EXPECT_EQ(Document().FileName(), "");
}

TEST_F(ExamplesTest, EachIsSavedByteForByteWhenNothingWasEdited) {
  EXPECT_EQ(ExamplesChangedBy([] {}), "");
}

TEST_F(ExamplesTest, EachIsSavedByteForByteAfterAnEditThatWasUndone) {
  EXPECT_EQ(ExamplesChangedBy([this] {
              Key(Qt::Key_Right, Qt::ShiftModifier);
              EXPECT_TRUE(Document().IsModified());
              Key(Qt::Key_Z, Qt::ControlModifier);
            }),
            "");
}

TEST_F(ExamplesTest, WhatWasOnlyLookedAtInTheInspectorIsSavedAsItWas) {
  EXPECT_TRUE(FWindow->OpenExample(Example("drawing.dfm")));
  const QByteArray before = BytesOf(Example("drawing.dfm"));
  Select("Settings");
  GoToRow("Items");
  Key(Qt::Key_Right, Qt::AltModifier);
  TypeInto("Left", "297");
  Select("ZoomBar");
  Surface().setFocus();
  Key(Qt::Key_Right);
  EXPECT_EQ(SavedBytes(), QByteArray(before)
                              .replace("    Left = 16\n    Top = 288\n", "    Left = 17\n    Top = 288\n")
                              .replace("    Left = 296\n    Top = 16\n", "    Left = 297\n    Top = 16\n"));
}

TEST_F(ExamplesTest, WhatNobodyKnowsIsSavedByteForByteBesideAnEdit) {
  const QByteArray text =
      "object Strange: TStrange\n"
      "  Odd.Thing = (1 2)\n"
      "  object  Alien: TNobodyKnows\n"
      "    Colour='green'   \n"
      "    Parts = <item X=1 end>\n"
      "  end\n"
      "  object Button: TButton\n"
      "    Left = 8\n"
      "    Top = 8\n"
      "    Width = 75\n"
      "    Height = 25\n"
      "    Wheels = {00 FF}\n"
      "  end\n"
      "end\n";
  FFile = FileWith("strange.dfm", text);
  EXPECT_TRUE(FWindow->Open(FFile));
  Surface().setFocus();
  Select("Button");
  Key(Qt::Key_Right);
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(BytesOf(FFile), QByteArray(text).replace("Left = 8", "Left = 9"));
}

// What the examples show.

/// What is found on all examples.
class TCensus {
 public:
  TCensus() {
    for (const QString& file : ShippedForms()) {
      const QByteArray bytes = FileContent(file);
      const kt::TStreamOriginalFormat format = kt::TestStreamFormat(bytes);
      if (format == kt::sofBinary) HasBinary = true;
      const auto document = TFormDocument::Open(bytes);
      for (kt::TComponent* component : WithDescendants(&document->Form(), &document->Form())) {
        Classes.insert(ClassNameOf(*component));
        See(component, 0);
      }
    }
  }

  std::set<QString> Classes;
  bool HasBinary = false;
  bool HasNestedCollection = false;
  bool HasStrings = false;
  bool HasPicture = false;
  bool HasImages = false;
  bool HasEvent = false;
  bool HasSet = false;

 private:
  void See(kt::TObject* object, int depth) {
    if (auto* images = dynamic_cast<kt::TCustomImageList*>(object)) HasImages |= images->GetCount() > 0;
    for (const kt::TPropInfo* property : object->ClassType()->Props()) {
      if (!property->IsReadable()) continue;
      if (property->Kind() == kt::tkMethod) HasEvent |= bool(kt::GetMethodProp(object, property));
      if (property->Kind() == kt::tkSet) HasSet |= kt::GetOrdProp(object, property) != 0;
      if (property->Kind() == kt::tkClass) SeePart(kt::GetObjectProp(object, property), depth);
    }
  }
  void SeePart(kt::TObject* part, int depth) {
    if (auto* lines = dynamic_cast<kt::TStrings*>(part)) HasStrings |= lines->GetCount() > 0;
    if (auto* picture = dynamic_cast<kt::TPicture*>(part)) HasPicture |= picture->GetWidth() > 0;
    auto* items = dynamic_cast<kt::TCollection*>(part);
    for (int i = 0; items && i < items->GetCount(); ++i) {
      HasNestedCollection |= depth > 0;
      See(items->GetItem(i), depth + 1);
    }
  }
};

TEST_F(ExamplesTest, AClickOnATabShowsItsPage) {
  EXPECT_TRUE(FWindow->OpenExample(Example("preferences.dfm")));
  auto& pages = dynamic_cast<kt::TPageControl&>(Component("Pages"));
  const kt::TTabSheet* before = pages.GetActivePage();
  int x = 0;
  while (x < pages.GetWidth() && (!pages.FindPageOfTabAt(x, 8) || pages.FindPageOfTabAt(x, 8) == before)) ++x;
  ASSERT_LT(x, pages.GetWidth());
  Click(RectOf("Pages").topLeft() + QPoint(x + 4, 8));
  EXPECT_EQ(pages.GetActivePage()->GetName(), "LightSheet");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(dynamic_cast<kt::TPageControl&>(Component("Pages")).GetActivePage()->GetName(), "GeneralSheet");
}

TEST_F(ExamplesTest, TheExamplesBetweenThemUseEveryComponent) {
  const TCensus census;
  QStringList missing;
  for (const kt::TClassInfo* info : kt::RegisteredClasses()) {
    // The class of all components is none by itself, and forms are what the others stand on.
    const bool isComponent = info->ClassParent() && info->ClassParent()->InheritsFrom(kt::TComponent::Class());
    const bool isForm = info->InheritsFrom(kt::TCustomForm::Class());
    if (isComponent && info->IsCreatable() && !isForm && !census.Classes.contains(info->ClassName()))
      missing.append(info->ClassName());
  }
  EXPECT_EQ(missing.join(u' '), "");
}

TEST_F(ExamplesTest, TheExamplesBetweenThemHaveEveryKindOfValue) {
  const TCensus census;
  EXPECT_TRUE(census.HasNestedCollection);
  EXPECT_TRUE(census.HasStrings);
  EXPECT_TRUE(census.HasPicture);
  EXPECT_TRUE(census.HasImages);
  EXPECT_TRUE(census.HasEvent);
  EXPECT_TRUE(census.HasSet);
}

TEST_F(ExamplesTest, OneOfTheExamplesIsBinary) { EXPECT_TRUE(TCensus().HasBinary); }

}  // namespace
}  // namespace designer::tests
