#include "kt/rtl/objects/Exceptions.h"
#include "support/Expect.h"
#include "support/ItemLists.h"

namespace kt::tests {
namespace {

class ItemPropValidateTest : public TItemListTest {
 protected:
  ItemPropValidateTest() { Fill("a b"); }

  TKTOnValidateEvent Logging(const char* name) {
    return [this, name](TObject* sender, TKTItemProp* item, int column) {
      EXPECT_EQ(FEditor.get(), sender);
      FLog += QStringLiteral("%1(%2,%3) ").arg(QLatin1String(name), item->GetName()).arg(column);
    };
  }
  TKTOnValidateErrorEvent LoggingError(const char* name) {
    return [this, name](TObject* sender, TKTItemProp* item, int column, const Exception& error) {
      EXPECT_EQ(FEditor.get(), sender);
      FLog +=
          QStringLiteral("%1(%2,%3,%4) ").arg(QLatin1String(name), item->GetName()).arg(column).arg(error.Message());
    };
  }
  template <class E>
  static TKTOnValidateEvent Throwing(const char* message) {
    return [message](TObject*, TKTItemProp*, int) { throw E(QLatin1String(message)); };
  }
  /// All six events log.
  void LogAll() {
    FEditor->OnValidate = Logging("editor.OnValidate");
    FEditor->OnValidated = Logging("editor.OnValidated");
    FEditor->OnValidateError = LoggingError("editor.OnValidateError");
    Item("a").SetOnValidate(Logging("OnValidate"));
    Item("a").SetOnValidated(Logging("OnValidated"));
    Item("a").SetOnValidateError(LoggingError("OnValidateError"));
  }

  QString FLog;
};

TEST_F(ItemPropValidateTest, AnItemWithHandlersDoesNotAskTheEditors) {
  LogAll();
  Item("a").Validate();
  EXPECT_EQ("OnValidate(a,1) OnValidated(a,1) ", FLog);
}

TEST_F(ItemPropValidateTest, AnItemWithoutHandlersAsksTheEditors) {
  LogAll();
  Item("b").Validate();
  EXPECT_EQ("editor.OnValidate(b,1) editor.OnValidated(b,1) ", FLog);
}

TEST_F(ItemPropValidateTest, TheColumnIsTheOneWithTheCursor) {
  LogAll();
  FEditor->SetColCount(4);
  FEditor->SetCol(3);
  Item("a").Validate();
  EXPECT_EQ("OnValidate(a,3) OnValidated(a,3) ", FLog);
}

TEST_F(ItemPropValidateTest, WithItemsAcrossTheColumnsTheColumnIsTheRowWithTheCursor) {
  LogAll();
  FEditor->SetColCount(4);
  FEditor->SetCol(3);
  FEditor->SetRow(2);
  FEditor->SetOrientation(goHorizontal);
  EXPECT_EQ(2, FEditor->GetCol());
  Item("a").Validate();
  EXPECT_EQ("OnValidate(a,3) OnValidated(a,3) ", FLog);
}

TEST_F(ItemPropValidateTest, WithItemsAcrossTheColumnsAnErrorHasTheRowWithTheCursorToo) {
  LogAll();
  FEditor->SetColCount(4);
  FEditor->SetOrientation(goHorizontal);
  FEditor->SetRow(2);
  Item("a").SetOnValidate(Throwing<Exception>("bad"));
  Item("a").Validate();
  EXPECT_EQ("OnValidateError(a,2,bad) ", FLog);
}

TEST_F(ItemPropValidateTest, AnErrorGoesToTheItemsHandlerAndNothingIsValidated) {
  LogAll();
  Item("a").SetOnValidate(Throwing<Exception>("bad"));
  Item("a").Validate();
  EXPECT_EQ("OnValidateError(a,1,bad) ", FLog);
}

TEST_F(ItemPropValidateTest, AnErrorOfValidatedIsAnErrorToo) {
  LogAll();
  Item("a").SetOnValidated(Throwing<Exception>("too late"));
  Item("a").Validate();
  EXPECT_EQ("OnValidate(a,1) OnValidateError(a,1,too late) ", FLog);
}

TEST_F(ItemPropValidateTest, AnErrorOfAnItemWithoutHandlerGoesToTheEditors) {
  LogAll();
  Item("b").SetOnValidate(Throwing<Exception>("bad"));
  Item("b").Validate();
  EXPECT_EQ("editor.OnValidateError(b,1,bad) ", FLog);
}

TEST_F(ItemPropValidateTest, AnErrorThatNobodyHandlesGoesToTheCaller) {
  Item("a").SetOnValidate(Throwing<EConvertError>("bad"));
  EXPECT_EQ("bad", MessageOf<EConvertError>([&] { Item("a").Validate(); }));
}

TEST_F(ItemPropValidateTest, AnAbortPassesUntouched) {
  LogAll();
  Item("a").SetOnValidate(Throwing<EAbort>("stop"));
  EXPECT_EQ("stop", MessageOf<EAbort>([&] { Item("a").Validate(); }));
  EXPECT_EQ("", FLog);
}

TEST_F(ItemPropValidateTest, AnErrorHandlersOwnErrorGoesToTheCaller) {
  Item("a").SetOnValidate(Throwing<Exception>("bad"));
  Item("a").SetOnValidateError(
      [](TObject*, TKTItemProp*, int, const Exception&) { throw EConvertError(QStringLiteral("worse")); });
  EXPECT_EQ("worse", MessageOf<EConvertError>([&] { Item("a").Validate(); }));
}

TEST_F(ItemPropValidateTest, WithoutHandlersEverythingIsValid) {
  Item("a").Validate();
  Make<TKTItemProp>(nullptr)->Validate();
}

TEST_F(ItemPropValidateTest, AnItemThatItsOwnHandlerFreesIsNotValidatedAnyMore) {
  LogAll();
  Item("a").SetOnValidate([](TObject*, TKTItemProp* item, int) { delete item; });
  Item("a").Validate();
  EXPECT_EQ("", FLog);
  EXPECT_EQ("b", TreeText());
}

TEST_F(ItemPropValidateTest, AnErrorOfAnItemWithoutEditorAndHandlerGoesToTheCallerAsItIs) {
  const auto item = Make<TKTItemProp>(nullptr);
  item->SetOnValidate(Throwing<EConvertError>("no number"));
  EXPECT_EQ("no number", MessageOf<EConvertError>([&] { item->Validate(); }));
}

}  // namespace
}  // namespace kt::tests
