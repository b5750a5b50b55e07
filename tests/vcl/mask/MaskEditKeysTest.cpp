#include "kt/rtl/objects/Make.h"
#include "kt/vcl/mask/MaskEdit.h"
#include "support/Expect.h"
#include "support/MaskOracle.h"
#include "support/WindowProbe.h"

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QStringList>

#include <random>

namespace kt {
namespace {

using tests::TWindowProbe;

/// A masked line in a window, with real keys.
class MaskEditKeysTest : public testing::Test {
 protected:
  void Show(const char16_t* mask, const char16_t* text = u"") {
    Edit.SetEditMask(QString::fromUtf16(mask));
    Edit.SetText(QString::fromUtf16(text));
    Edit.OnChange = [this](TObject*) { FLog += Edit.GetText(); };
    FWindow = std::make_unique<TWindowProbe>(Edit, QSize(200, 24));
    Edit.SetFocus();
    Edit.SetSelStart(0);
  }
  QLineEdit& Line() { return *static_cast<QLineEdit*>(Edit.GetHandle()); }
  /// What the window shows, with the selection in brackets or the caret as a bar.
  QString Shown() {
    QString text = Line().text();
    if (!Line().hasSelectedText()) return text.insert(Line().cursorPosition(), u'|');
    return text.insert(Line().selectionEnd(), u']').insert(Line().selectionStart(), u'[');
  }
  static void Type(const char* text) { TWindowProbe::Type(QString::fromLatin1(text)); }
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { TWindowProbe::Key(key, modifiers); }
  static void SetClipboard(const char* text) { QGuiApplication::clipboard()->setText(QString::fromLatin1(text)); }
  static QString Clipboard() { return QGuiApplication::clipboard()->text(); }
  QString Log() { return std::exchange(FLog, {}).join(u'|'); }
  void Commit(const char16_t* text) {
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf16(text));
    QApplication::sendEvent(&Line(), &event);
  }

  std::unique_ptr<TMaskEdit> FEdit = Make<TMaskEdit>();
  TMaskEdit& Edit = *FEdit;
  std::unique_ptr<TWindowProbe> FWindow;
  QStringList FLog;
};

TEST_F(MaskEditKeysTest, TypingReplacesCharactersAndPassesByLiterals) {
  Show(u"(00) 00;0", u"9999");
  Type("123");
  EXPECT_EQ(Shown(), "(12) 3|9");
  EXPECT_EQ(Edit.GetText(), "1239");
  EXPECT_TRUE(Edit.IsModified());
}

TEST_F(MaskEditKeysTest, EachKeyThatIsUsedIsOneChange) {
  Show(u"00-00;0");
  Type("1x2");
  EXPECT_EQ(Log(), "1|12");
}

TEST_F(MaskEditKeysTest, AHandlerMayChangeWhatIsTyped) {
  Edit.OnKeyPress = [](TObject*, QChar& key) { key = u'7'; };
  Show(u"00;0");
  Type("x");
  EXPECT_EQ(Shown(), "7|_");
}

TEST_F(MaskEditKeysTest, TypingShiftsTheCase) {
  Show(u">LL<LL;0");
  Type("abCD");
  EXPECT_EQ(Edit.GetText(), "ABcd");
}

TEST_F(MaskEditKeysTest, TypingOverASelectionBlanksTheRestOfIt) {
  Show(u"00-00;0", u"1234");
  Key(Qt::Key_End, Qt::ShiftModifier);
  Type("9");
  EXPECT_EQ(Shown(), "9|_-__");
}

TEST_F(MaskEditKeysTest, ALiteralEndsItsField) {
  Show(u"99\\/99;0");
  Type("1/2");
  EXPECT_EQ(Shown(), "1_/2|_");
}

TEST_F(MaskEditKeysTest, ArrowsPassByLiterals) {
  Show(u"(0)-0;0");
  Key(Qt::Key_Right);
  EXPECT_EQ(Shown(), "(_)-|_");
  Key(Qt::Key_Left);
  EXPECT_EQ(Shown(), "(|_)-_");
}

TEST_F(MaskEditKeysTest, HomeAndEndAreTheEndsOfTheCells) {
  Show(u"(00);0");
  Key(Qt::Key_End);
  EXPECT_EQ(Shown(), "(__|)");
  Key(Qt::Key_Home);
  EXPECT_EQ(Shown(), "(|__)");
}

TEST_F(MaskEditKeysTest, ControlMovesByFields) {
  Show(u"00-00-00;0");
  Key(Qt::Key_Right, Qt::ControlModifier);
  Key(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(Shown(), "__-__-|__");
  Key(Qt::Key_Left, Qt::ControlModifier);
  EXPECT_EQ(Shown(), "__-|__-__");
}

TEST_F(MaskEditKeysTest, ShiftSelects) {
  Show(u"00-00;0", u"1234");
  Key(Qt::Key_Right, Qt::ShiftModifier);
  Key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(Shown(), "[12-]34");
  Key(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(Shown(), "[1]2-34");
}

TEST_F(MaskEditKeysTest, BackspaceAndDeleteLeaveBlanks) {
  Show(u"00-00;0", u"1234");
  Edit.SetSelStart(3);
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Shown(), "1|_-34");
  Edit.SetSelStart(3);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Shown(), "1_-|_4");
}

TEST_F(MaskEditKeysTest, ControlDeletesToTheEndsOfAField) {
  Show(u"00-00;0", u"1234");
  Key(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(Shown(), "|__-34");
  Key(Qt::Key_End);
  Key(Qt::Key_Backspace, Qt::ControlModifier);
  EXPECT_EQ(Shown(), "__-|__");
}

TEST_F(MaskEditKeysTest, DeletingASelectionKeepsTheLiterals) {
  Show(u"(00);0", u"12");
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Shown(), "(|__)");
}

TEST_F(MaskEditKeysTest, ControlVPastesThroughTheMask) {
  Show(u"(000) 000;0");
  SetClipboard("555-12x3");
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Shown(), "(555) 123|");
  EXPECT_EQ(Log(), "555123");
}

TEST_F(MaskEditKeysTest, ShiftInsertPastesThroughTheMask) {
  Show(u"(000) 000;0");
  SetClipboard("(12) 34");
  Key(Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(Shown(), "(12_) 34|_");
}

TEST_F(MaskEditKeysTest, ControlCAndControlInsertCopyWhatIsShown) {
  Show(u"00-00;0", u"1234");
  Edit.Select(1, 4);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Clipboard(), "2-3");
  Edit.Select(0, 2);
  Key(Qt::Key_Insert, Qt::ControlModifier);
  EXPECT_EQ(Clipboard(), "12");
  EXPECT_EQ(Log(), "");
}

TEST_F(MaskEditKeysTest, ControlXAndShiftDeleteCut) {
  Show(u"00-00;0", u"1234");
  Edit.Select(1, 4);
  Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Clipboard(), "2-3");
  EXPECT_EQ(Shown(), "1|_-_4");
  Edit.Select(4, 5);
  Key(Qt::Key_Delete, Qt::ShiftModifier);
  EXPECT_EQ(Clipboard(), "4");
  EXPECT_EQ(Shown(), "1_-_|_");
}

TEST_F(MaskEditKeysTest, CuttingNothingLeavesTheClipboard) {
  Show(u"00-00;0", u"1234");
  SetClipboard("kept");
  Key(Qt::Key_X, Qt::ControlModifier);
  Key(Qt::Key_Delete, Qt::ShiftModifier);
  EXPECT_EQ(Clipboard(), "kept");
  EXPECT_EQ(Edit.GetText(), "1234");
}

TEST_F(MaskEditKeysTest, ControlZTakesBackKeyByKey) {
  Show(u"00-00;0", u"1234");
  Type("98");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Shown(), "9|2-34");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Shown(), "|12-34");
  EXPECT_FALSE(Edit.IsModified());
}

TEST_F(MaskEditKeysTest, EscapeGoesBackToTheTextOnEntry) {
  Show(u"00-00;0", u"1234");
  Type("987");
  Log();
  Key(Qt::Key_Escape);
  EXPECT_EQ(Shown(), "|12-34");
  EXPECT_FALSE(Edit.IsModified());
  EXPECT_EQ(Log(), "1234");
}

TEST_F(MaskEditKeysTest, AReadOnlyTextStays) {
  Edit.SetReadOnly(true);
  Show(u"00-00;0", u"1234");
  SetClipboard("99");
  Type("9 ");
  Key(Qt::Key_Delete);
  Key(Qt::Key_Backspace);
  Key(Qt::Key_V, Qt::ControlModifier);
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_X, Qt::ControlModifier);
  Edit.Perform(WM_CHAR, '8');
  EXPECT_EQ(Line().text(), "12-34");
  EXPECT_EQ(Clipboard(), "99");
  EXPECT_EQ(Log(), "");
}

TEST_F(MaskEditKeysTest, InputMethodsGoThroughTheMask) {
  Show(u"00-00;0", u"1234");
  Commit(u"98");
  EXPECT_EQ(Shown(), "98-|34");
  Commit(u"\u4e2d");
  EXPECT_EQ(Shown(), "98-|34");
  EXPECT_EQ(Log(), "9834");
}

TEST_F(MaskEditKeysTest, InputMethodsOverwriteASelection) {
  Show(u"CCCC;0", u"abcd");
  Edit.Select(1, 3);
  Commit(u"\u4e2d");
  EXPECT_EQ(Shown(), QStringLiteral("a\u4e2d|_d"));
}

TEST_F(MaskEditKeysTest, WhatTheWindowDoesByItselfGoesThroughTheMask) {
  Show(u"00-00;0", u"1234");
  Line().setCursorPosition(1);
  Line().insert(QStringLiteral("9x8"));
  EXPECT_EQ(Shown(), "19-8|4");
  Line().selectAll();
  Line().del();
  EXPECT_EQ(Shown(), "|__-__");
  Line().setText(QStringLiteral("77"));
  EXPECT_EQ(Line().text(), "77-__");
  EXPECT_EQ(Log(), "1984||77");
}

TEST_F(MaskEditKeysTest, ADropGoesThroughTheMask) {
  Show(u"00-00;0");
  QMimeData data;
  data.setText(QStringLiteral("1x2"));
  QDragEnterEvent enter(QPoint(1, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&Line(), &enter);
  QDropEvent drop(QPointF(1, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&Line(), &drop);
  EXPECT_EQ(Line().text(), "12-__");
}

TEST_F(MaskEditKeysTest, AClickOnALiteralGoesToTheNextCell) {
  Show(u"(00);0", u"12");
  FWindow->Click({1, 10});
  EXPECT_EQ(Shown(), "(|12)");
}

TEST_F(MaskEditKeysTest, AHandlerThatSetsTheTextHasItsWay) {
  Show(u"00-00;0");
  Edit.OnChange = [this](TObject*) { Edit.SetText(QStringLiteral("5")); };
  Type("1");
  EXPECT_EQ(Line().text(), "5_-__");
  Commit(u"2");
  EXPECT_EQ(Line().text(), "5_-__");
}

TEST_F(MaskEditKeysTest, TheTextOutlivesTheWindow) {
  Show(u"00-00;0", u"1234");
  Type("9");
  FWindow->Close();
  EXPECT_EQ(Edit.GetEditText(), "92-34");
  EXPECT_EQ(Edit.GetSelStart(), 1);
  EXPECT_TRUE(Edit.IsModified());
}

TEST_F(MaskEditKeysTest, WithoutAMaskKeysDoWhatTheyDoInALineOfText) {
  Show(u"", u"ab");
  Type("x");
  Key(Qt::Key_Right);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Shown(), "xa|");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Line().text(), "xab");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Line().text(), "xab");
}

constexpr const char16_t* kMasks[] = {u"(000) 000-0000;0;_", u"!99/99/00;1;_", u"90:00;0; ",       u">L<L<>LL\\L_a",
                                      u"!#9999.99;0;*",      u"CCC-ccc;1;_",   u"000.000.000;0;0", u"abc-\\9"};
constexpr Qt::Key kKeys[] = {Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Home, Qt::Key_End, Qt::Key_Backspace,
                             Qt::Key_Delete, Qt::Key_Insert, Qt::Key_U,    Qt::Key_K,   Qt::Key_A};
constexpr Qt::KeyboardModifier kModifiers[] = {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
constexpr char kCharacters[] = "0123456789abXY+-/:(). _zxv";

/// One random key, paste, undo or composed text.
class MaskEditRandomTest : public MaskEditKeysTest, public testing::WithParamInterface<unsigned> {
 protected:
  template <class T, std::size_t N>
  const T& Pick(const T (&from)[N]) {
    return from[FRandom() % N];
  }
  void PressAny() {
    switch (FRandom() % 8) {
      case 0:
      case 1:
        return Key(Pick(kKeys), Pick(kModifiers));
      case 2:
        return Key(static_cast<Qt::Key>(Qt::Key_V + (FRandom() % 5)), Qt::ControlModifier);
      case 3:
        return Commit(u"1a-");
      default:
        if (const char character = Pick(kCharacters)) Type(std::string(1, character).c_str());
    }
  }
  void Check(const TMaskSyntax& syntax) {
    oracle::CheckMaskedText(syntax, Line().text());
    oracle::Promise(Line().text() == Edit.GetEditText(), "the window shows the text");
    oracle::Promise(
        Line().hasSelectedText() || Line().cursorPosition() == TMaskLine::CaretPlace(syntax, Line().cursorPosition()),
        "the caret stands at a cell");
  }
  std::mt19937 FRandom{GetParam()};
};

TEST_P(MaskEditRandomTest, EveryKeyLeavesATextThatFits) {
  Show(u"0");
  for (const char16_t* mask : kMasks) {
    Edit.SetEditMask(QString::fromUtf16(mask));
    Edit.SetText(QString());
    const TMaskSyntax syntax(mask);
    for (int step = 0; step < 400; ++step) {
      PressAny();
      ASSERT_NO_THROW(Check(syntax)) << "seed " << GetParam() << ", step " << step << " of "
                                     << QString::fromUtf16(mask).toStdString() << ": " << Shown().toStdString();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, MaskEditRandomTest, testing::Values(1U, 2U, 20060101U));

}  // namespace
}  // namespace kt
