#pragma once

#include "designer/document/FormDocument.h"
#include "kt/rtl/objects/ClassRegistry.h"
#include "kt/rtl/typeinfo/ClassBuilder.h"
#include "kt/rtl/typeinfo/PropValues.h"
#include "kt/vcl/controls/CustomControl.h"
#include "support/Expect.h"

#include <QFile>
#include <QTemporaryDir>
#include <QUndoStack>

#include <gtest/gtest.h>

namespace designer::tests {

using kt::tests::MessageOf;

/// A control that others can stand on.
class TTestBox : public kt::TCustomControl {
 public:
  using Inherited = kt::TCustomControl;

  static const kt::TClassInfo* Class() {
    static const kt::TClassInfo info = kt::TClassBuilder<TTestBox>("TTestBox")
                                           .Property<&TTestBox::FFriend>("Friend")
                                           .Property<&TTestBox::OnClick>("OnClick")
                                           .Creatable()
                                           .Done();
    return &info;
  }
  const kt::TClassInfo* ClassType() const override { return Class(); }

 protected:
  explicit TTestBox(kt::TComponent* owner = nullptr) : TCustomControl(owner) {}
  void Construct() override {
    TCustomControl::Construct();
    SetControlStyle({kt::csAcceptsControls, kt::csSetCaption});
  }
  void Notification(kt::TComponent* component, kt::TOperation operation) override {
    TCustomControl::Notification(component, operation);
    if (operation == kt::opRemove && component == FFriend) FFriend = nullptr;
  }

 private:
  kt::TComponent* FFriend = nullptr;
};

/// With lines as no writer writes them.
inline constexpr char kDocumentForm[] =
    "object OrderForm: TOrderForm\n"
    "  Left = 10\n"
    "  Caption='Orders'\n"
    "  Visible = True\n"
    "  OnCreate = FormCreate\n"
    "  Foreign.Thing = (1 2)\n"
    "  object Box1: TTestBox\n"
    "    Left=1\n"
    "    Top = 2\n"
    "    Width = 200\n"
    "    Height = 100\n"
    "    Friend = OkButton\n"
    "    object OkButton: TButton\n"
    "      Left=3\n"
    "      Top = 4\n"
    "      Width = 75\n"
    "      Height = 25\n"
    "      Caption = 'OK'\n"
    "      OnClick = OkButtonClick\n"
    "    end\n"
    "    object Alien1: TNobodyKnows\n"
    "      Left=5\n"
    "      Buddy = OkButton\n"
    "      object Inner1: TTestBox\n"
    "        Left=6\n"
    "        Top = 7\n"
    "        Width = 8\n"
    "        Height = 9\n"
    "      end\n"
    "    end\n"
    "    object CancelButton: TButton\n"
    "      Left=90\n"
    "      Top = 4\n"
    "      Width = 75\n"
    "      Height = 25\n"
    "    end\n"
    "  end\n"
    "  object Menu1: TPopupMenu\n"
    "    Left=20\n"
    "    object Open1: TMenuItem\n"
    "      Caption = 'Open'\n"
    "      OnClick = OkButtonClick\n"
    "    end\n"
    "  end\n"
    "end\n";

class TDocumentTest : public testing::Test {
 protected:
  TDocumentTest() { kt::RegisterClass(TTestBox::Class()); }

  static std::unique_ptr<TFormDocument> Opened(const QByteArray& file = kDocumentForm) {
    return TFormDocument::Open(file);
  }
  static kt::TComponent* Named(const TFormDocument& document, const char* name) {
    kt::TComponent* component = document.Find(QString::fromLatin1(name));
    EXPECT_TRUE(component) << name;
    return component;
  }
  static void SetLeft(const TFormDocument& document, const char* name, int value) {
    kt::SetOrdProp(Named(document, name), u"Left", value);
  }
  static std::vector<kt::TComponent*> All(const TFormDocument& document, std::initializer_list<const char*> names) {
    std::vector<kt::TComponent*> components;
    for (const char* name : names) components.push_back(Named(document, name));
    return components;
  }
  /// The children of a component with theirs in brackets.
  static QString Tree(const TFormDocument& document, kt::TComponent* component) {
    QStringList children;
    for (kt::TComponent* child : document.ChildrenOf(component)) children += Tree(document, child);
    const QString below = children.isEmpty() ? QString() : QStringLiteral("[%1]").arg(children.join(u' '));
    return component->GetName() + below;
  }
  static QString Tree(const TFormDocument& document) { return Tree(document, &document.Form()); }

  QString Write(const char* name, const QByteArray& content) {
    QFile file(FFolder.filePath(QString::fromLatin1(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }
  static QByteArray Content(const QString& fileName) {
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
  }

  QTemporaryDir FFolder;
};

}  // namespace designer::tests
