#pragma once

#include "KTObjectInspector/LivelyInspector.h"

namespace kt::tests {

/// Calls that have to do with typing; the others are many, and the same without an editor.
inline bool IsOfTyping(const char* name) {
  static const QStringList names{"OnSetEditText", "OnGetEditText", "OnSelectCell",      "OnGetPickList",
                                 "OnValidate",    "OnValidated",   "OnValidateError",   "OnPropertyChanging",
                                 "OnSetProperty", "OnGetProperty", "OnPropertyChanged", "SetSize",
                                 "SetCaption",    "SetWhole",      "Partner.SetWhole",  "SetAlign"};
  return names.contains(QLatin1StringView(name));
}

/// An inspector in a window, with its editor open.
class TLivelyEditorTest : public TLivelyInspectorTest {
 protected:
  /// Lists the objects in a window, with the editor open over an item.
  void Open(const QString& path, TInspectorMode mode) {
    Renew(mode);
    FInspector->SetShowItemHintStyle(shNone);
    Show();
    FInspector->SetSelected(At(path));
    TWindowProbe::Settle();
    ASSERT_TRUE(FInspector->InplaceEditor() && FInspector->InplaceEditor()->Visible());
  }
  void DropDown() { TWindowProbe::Key(Qt::Key_Down, Qt::AltModifier); }
  void Type(const QString& text) {
    if (FInspector && FInspector->InplaceEditor()) FInspector->InplaceEditor()->SelectAll();
    for (QChar character : text) {
      if (QWidget* focus = QApplication::focusWidget()) QTest::keyClick(focus, character.toLatin1());
    }
  }
  static void LeaveRow() {
    TWindowProbe::Key(Qt::Key_Up);
    TWindowProbe::Settle();
  }
  void ExpectNoErrors() {
    FErrors.removeAll(QStringLiteral("An object was freed while it was in use"));
    EXPECT_EQ("", FErrors.join(u'|'));
  }
};

}  // namespace kt::tests
