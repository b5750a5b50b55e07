#include "kt/KTItemListEditor/InplaceEditList.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/strings/StringList.h"
#include "kt/vcl/forms/Application.h"
#include "support/ItemLists.h"
#include "support/WindowProbe.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QWheelEvent>

#include <array>
#include <random>

namespace kt::tests {
namespace {

/// Two editors beside each other, one of either orientation, and a button. A monkey has keyboard and mouse, and an
/// application that misbehaves has the handlers: they throw, free items, and clear the tree that they were called from.
class TMonkey {
 public:
  explicit TMonkey(unsigned seed) : FRandom(seed) {
    Application().OnException = [this](TObject*, const Exception&) { ++FErrors; };
    auto* layout = new QHBoxLayout(&FWindow);
    for (const auto& editor : FEditors) {
      Fill(editor->GetItems(), 12, 0);
      ListenTo(*editor);
      layout->addWidget(editor->GetHandle(), 1);
    }
    layout->addWidget(new QPushButton(QStringLiteral("Elsewhere")));
    FEditors[1]->SetOrientation(goHorizontal);
    FWindow.resize(700, 260);
    FWindow.show();
    QApplication::setActiveWindow(&FWindow);
    TWindowProbe::Settle();
  }
  ~TMonkey() {
    ReleaseButtons();
    Application().OnException = nullptr;
    for (const auto& editor : FEditors) StopListeningTo(*editor);
  }

  void Step() {
    FEditor = FEditors[Below(2)].get();
    const int what = Below(100);
    try {
      if (what < 40) {
        Key();
      } else if (what < 65) {
        Mouse();
      } else if (what < 70) {
        Wheel();
      } else if (what < 75) {
        Around();
      } else {
        Change();
      }
      Top().GetCount() > 40 ? Top().Clear() : Refill();
    } catch (const Exception&) {
      ++FErrors;
    }
    TWindowProbe::Settle();
  }

  /// Empty while all is in order. What a handler has prevented by throwing may come with the next refresh.
  std::string Complaint() {
    std::string later;
    for (const auto& editor : FEditors) {
      const std::string name = editor == FEditors[0] ? "vertical: " : "horizontal: ";
      if (const std::string complaint = ComplaintOf(*editor); !complaint.empty()) return name + complaint;
      if (const std::string complaint = ComplaintOfGrid(*editor); !complaint.empty()) later = name + complaint;
    }
    if (later.empty()) FKnownErrors = FErrors;
    return FErrors > FKnownErrors ? std::string() : later;
  }
  int Errors() const { return FErrors; }
  int Handled() const { return FHandled; }

 private:
  int Below(int limit) { return static_cast<int>(FRandom() % static_cast<unsigned>(limit)); }
  bool Rarely(int times) { return Below(times) == 0; }
  TKTItemProps& Top() { return FEditor->GetItems(); }
  TKTItemProp* AnyItem() { return FEditor->GetItem(Below(FEditor->GetItemCount() + 1)); }
  QString AnyName() { return QString(QChar(u'a' + Below(8))); }
  QPoint AnyPlace() { return {Below(340) - 10, Below(260) - 10}; }

  void Fill(TKTItemProps& items, int count, int level) {
    for (int i = 0; i < count; ++i) {
      TKTItemProp* item = items.Add(AnyName(), AnyName());
      if (level < 2 && Rarely(3)) Fill(item->GetItems(), 3, level + 1);
      Style(*item);
    }
  }
  void Refill() {
    if (FEditor->GetItemCount() > 0 || Below(2) == 0) return;
    const QScopedValueRollback quiet(FIsQuiet, true);
    Fill(Top(), 8, 0);
  }
  void StyleQuietly(TKTItemProp& item) {
    const QScopedValueRollback quiet(FIsQuiet, true);
    Style(item);
  }
  void Style(TKTItemProp& item) {
    switch (Below(6)) {
      case 0:
        for (int i = 0; i < 12; ++i) item.GetPickList().Add(AnyName());
        return item.SetEditStyle(esPickList);
      case 1:
        return item.SetEditStyle(esEllipsis);
      case 2:
        return item.SetEditMask(QStringLiteral("(00) a;0;_"));
      case 3:
        item.SetExpressionMask(true);
        return item.SetEditMask(QStringLiteral("[a-c]*"));
      default:
        return item.SetEditStyle(esSimple);
    }
  }

  // What the application does from inside.

  void ListenTo(TKTItemListEditor& editor) {
    const auto validate = [this](TObject* sender, TKTItemProp* item, int) { Misbehave(sender, item); };
    editor.OnValidate = validate;
    editor.OnValidated = validate;
    editor.OnGetEditText = [this](TObject* sender, int, int, QString&) { Misbehave(sender, nullptr); };
    editor.OnSetEditText = [this](TObject* sender, int, int, const QString&) { Misbehave(sender, nullptr); };
    editor.OnGetPickList = [this](TObject* sender, const QString&, TStrings& values) {
      values.Add(AnyName());
      Misbehave(sender, nullptr);
    };
    editor.OnEditButtonClick = [this, &editor](TObject*) { Misbehave(&editor, nullptr); };
    editor.OnSelectCell = [this](TObject* sender, int, int, bool& isAllowed) {
      if (Rarely(20)) isAllowed = false;
      Misbehave(sender, nullptr);
    };
    editor.OnShowHints = [this](TObject* sender, TKTItemProp* item, QString&) { Misbehave(sender, item); };
    editor.OnDrawCell = [this](TObject*, int, int, const QRect&, TGridDrawState) {
      if (Rarely(500)) throw Exception(QStringLiteral("drawing"));
    };
    editor.OnKeyDown = [this](TObject* sender, quint16&, TShiftState) { Misbehave(sender, nullptr); };
  }
  void StopListeningTo(TKTItemListEditor& editor) {
    editor.OnValidate = {};
    editor.OnValidated = {};
    editor.OnGetEditText = {};
    editor.OnSetEditText = {};
    editor.OnGetPickList = {};
    editor.OnEditButtonClick = {};
    editor.OnSelectCell = {};
    editor.OnShowHints = {};
    editor.OnDrawCell = {};
    editor.OnKeyDown = {};
  }
  void Misbehave(TObject* sender, TKTItemProp* item) {
    if (FIsQuiet) return;
    ++FHandled;
    auto& editor = dynamic_cast<TKTItemListEditor&>(*sender);
    switch (Below(150)) {
      case 0:
      case 1:
        throw Exception(QStringLiteral("refused"));
      case 2:
        delete (item ? item : editor.GetItem(Below(editor.GetItemCount() + 1)));
        return;
      case 3:
        return editor.GetItems().Clear();
      case 4:
        return editor.SetEditorMode(Below(2) != 0);
      case 5:
        return editor.FullCollapse();
      default:
        return;
    }
  }

  // What the monkey does.

  void Key() {
    static constexpr std::array kKeys = {Qt::Key_Up,        Qt::Key_Down,     Qt::Key_Left,  Qt::Key_Right,
                                         Qt::Key_PageUp,    Qt::Key_PageDown, Qt::Key_Home,  Qt::Key_End,
                                         Qt::Key_Tab,       Qt::Key_Return,   Qt::Key_F2,    Qt::Key_Escape,
                                         Qt::Key_Backspace, Qt::Key_Delete,   Qt::Key_Space, Qt::Key_Insert};
    static constexpr std::array kModifiers = {Qt::NoModifier,      Qt::NoModifier,  Qt::NoModifier,
                                              Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier};
    if (!QApplication::focusWidget() || Rarely(50)) FEditor->SetFocus();
    if (Below(2)) return TWindowProbe::Type(AnyName());
    TWindowProbe::Key(kKeys[static_cast<size_t>(Below(kKeys.size()))],
                      kModifiers[static_cast<size_t>(Below(kModifiers.size()))]);
  }

  /// The widget of the editor, or of what lies over it, at a place.
  QWidget* At(QPoint& place) {
    QWidget* const body = FEditor->GetHandle();
    QWidget* const child = body->childAt(place);
    if (!child) return body;
    place = child->mapFrom(body, place);
    return child;
  }
  void Send(QEvent::Type type, Qt::MouseButton button, QPoint place) {
    QPointer<QWidget> target = FHeld ? FHeld.data() : At(place);
    FButtons.setFlag(button, type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick);
    QMouseEvent event(type, place, target->mapToGlobal(place), button, FButtons, Qt::NoModifier);
    FHeld = FButtons == Qt::NoButton ? nullptr : target.data();
    QApplication::sendEvent(target, &event);
  }
  void Mouse() {
    const QPoint place = AnyPlace();
    const Qt::MouseButton button = Rarely(8) ? Qt::RightButton : Qt::LeftButton;
    Send(QEvent::MouseMove, Qt::NoButton, place);
    Send(Rarely(4) ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, button, place);
    for (int i = Below(3); i > 0; --i) Send(QEvent::MouseMove, Qt::NoButton, AnyPlace());
    Send(QEvent::MouseButtonRelease, button, Below(2) ? place : AnyPlace());
    ReleaseButtons();
  }
  void ReleaseButtons() {
    FButtons = Qt::NoButton;
    FHeld = nullptr;
  }
  void Wheel() {
    QPoint place = AnyPlace();
    QWidget* const target = At(place);
    QWheelEvent event(place, target->mapToGlobal(QPointF(place)), {}, {Rarely(4) ? 120 : 0, Below(2) ? 120 : -240},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &event);
  }
  void Around() {
    switch (Below(4)) {
      case 0:
        return FWindow.resize(200 + Below(600), 40 + Below(300));
      case 1:
        return FWindow.findChild<QPushButton*>()->setFocus();
      case 2:
        return FEditor->SetFocus();
      default:
        return FEditor->SetVisible(!FEditor->IsVisible() || Rarely(3));
    }
  }

  void Change() {
    TKTItemProp* const item = AnyItem();
    switch (item ? Below(20) : Below(6)) {
      case 0:
        return static_cast<void>(Top().Add(AnyName(), AnyName()));
      case 1:
        return FEditor->SetOrientation(FEditor->GetOrientation() == goVertical ? goHorizontal : goVertical);
      case 2:
        return FEditor->SetDisplayOptions(TILEDisplayOptions::FromBits(static_cast<quint32>(Below(32))));
      case 3:
        return FEditor->SetPropertyOptions(TILEPropOptions::FromBits(static_cast<quint32>(Below(16))));
      case 4:
        return Options();
      case 5:
        return static_cast<void>(FEditor->InsertItem(AnyName(), AnyName(), Below(2) != 0));
      case 6:
        delete item;
        return;
      case 7:
        return item->SetValue(AnyName());
      case 8:
        return item->SetName(AnyName());
      case 9:
        return item->SetVisible(!item->GetVisible());
      case 10:
        return item->SetReadOnly(!item->GetReadOnly());
      case 11:
        return item->SetEnabled(!item->GetEnabled());
      case 12:
        return StyleQuietly(*item);
      case 13:
        return static_cast<void>(item->GetItems().Add(AnyName(), AnyName()));
      case 14:
        return FEditor->SetSelected(item);
      case 15:
        return item->SetIndex(Below(item->GetCollection()->GetCount()));
      case 16:
        return Top().SetSorted(Below(2) != 0);
      case 17:
        return FEditor->FullExpand();
      case 18:
        return FEditor->DeleteItem(FEditor->GetCol(), FEditor->GetRow());
      default:
        return item->SetExpanded(!item->IsExpanded());
    }
  }
  void Options() {
    static constexpr std::array kOptions = {goTabs,    goRowSelect,        goRangeSelect,
                                            goEditing, goAlwaysShowEditor, goRowMoving};
    const TGridOption option = kOptions[static_cast<size_t>(Below(kOptions.size()))];
    TGridOptions options = FEditor->GetOptions();
    options.Put(option, !options.Has(option) || (option == goEditing && !Rarely(3)));
    FEditor->SetOptions(options);
  }

  // What has to hold between two steps.

  static int LinesOf(const TKTItemListEditor& editor) {
    return editor.GetGridCount(gcFixedLines) + std::max(1, editor.GetVisibleItemCount());
  }
  static std::string ComplaintOf(TKTItemListEditor& editor) {
    if (editor.IsEditUpdateLocked()) return "a lock is held";
    if (OpenBrackets(editor.GetItems()) != 0) return "a bracket is open";
    if (Rows(editor) != WalkedRows(editor)) return "the rows are " + Rows(editor) + " and not " + WalkedRows(editor);
    if (editor.GetCol() >= editor.GetColCount() || editor.GetRow() >= editor.GetRowCount()) return "no current cell";
    return {};
  }
  static std::string TextOf(const QRect& rect) {
    return QStringLiteral("%1,%2 %3x%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height()).toStdString();
  }
  static std::string ComplaintOfGrid(TKTItemListEditor& editor) {
    if (LinesOf(editor) != editor.GetGridCount(gcLineCount)) return "the lines are wrong";
    auto* edit = dynamic_cast<TKTInplaceEditList*>(editor.InplaceEditor());
    // Without the keyboard an editor waits where it is for the grid to bring it back.
    if (!edit || !edit->Visible() || !edit->Focused()) return {};
    const QRect cell = editor.CellRect(editor.GetCol(), editor.GetRow());
    if (!cell.isEmpty() && edit->GetBoundsRect() != cell)
      return "the editor lies over another cell: " + TextOf(edit->GetBoundsRect()) + " and not " + TextOf(cell);
    if (!editor.IsEditorMode()) return "the editor shows although there is none";
    return {};
  }

  std::mt19937 FRandom;
  QWidget FWindow;
  std::array<std::unique_ptr<TKTItemListEditor>, 2> FEditors = {Make<TKTItemListEditor>(), Make<TKTItemListEditor>()};
  TKTItemListEditor* FEditor = FEditors[0].get();
  QPointer<QWidget> FHeld;
  Qt::MouseButtons FButtons;
  /// While items are made that are needed whole.
  bool FIsQuiet = false;
  int FErrors = 0;
  int FKnownErrors = 0;
  int FHandled = 0;
};

class ItemListEditorMonkeyTest : public testing::TestWithParam<unsigned> {};

TEST_P(ItemListEditorMonkeyTest, NothingItDoesBreaksTheEditors) {
  TMonkey monkey(GetParam());
  bool isAsked = false;
  const int steps = qEnvironmentVariableIntValue("KT_MONKEY_STEPS", &isAsked);
  for (int step = 0; step < (isAsked ? steps : 5000); ++step) {
    SCOPED_TRACE(testing::Message() << "step " << step);
    monkey.Step();
    ASSERT_EQ("", monkey.Complaint());
  }
  EXPECT_GT(monkey.Errors(), 0);
  EXPECT_GT(monkey.Handled(), 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, ItemListEditorMonkeyTest, testing::Values(1U, 2U, 3U, 4U));

}  // namespace
}  // namespace kt::tests
