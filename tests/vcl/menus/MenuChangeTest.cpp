// What menus tell of their changes, what they publish, and where their pictures are from.
#include "kt/rtl/objects/Make.h"
#include "kt/vcl/actions/Action.h"
#include "kt/vcl/graphics/Bitmap.h"
#include "kt/vcl/imagelist/ImageList.h"
#include "kt/vcl/menus/MainMenu.h"
#include "kt/vcl/menus/PopupMenu.h"
#include "support/FormText.h"
#include "support/Images.h"
#include "support/Published.h"

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

class MenuChangeTest : public testing::Test {
 protected:
  MenuChangeTest() {
    FMenu->OnChange = TMenuChangeEvent([this](TObject*, TMenuItem* source, bool rebuild) {
      const QString name = !source                          ? QStringLiteral("menu")
                           : source->GetCaption().isEmpty() ? "root"
                                                            : source->GetCaption();
      FLog += name + (rebuild ? u'!' : u'.');
    });
  }
  TMenuItem& Add(const QString& caption) {
    auto& item = *New<TMenuItem>(FMenu.get());
    item.SetCaption(caption);
    FMenu->GetItems().Add(&item);
    return item;
  }
  std::string Log() { return std::exchange(FLog, {}).join(u' ').toStdString(); }
  std::unique_ptr<TImageList> Images(const QStringList& rows) {
    auto bitmap = Make<TBitmap>();
    bitmap->SetImage(ImageOf(rows));
    auto images = Make<TImageList>();
    images->SetSize(2, 2);
    images->Add(bitmap.get(), nullptr);
    return images;
  }

  QStringList FLog;
  std::unique_ptr<TMainMenu> FMenu = Make<TMainMenu>();
};

TEST_F(MenuChangeTest, MenusPublishWhatTheyAreMadeOf) {
  EXPECT_EQ(
      "AutoHotkeys=maAutomatic AutoLineReduction=maAutomatic AutoMerge=False BiDiMode Images OwnerDraw=False "
      "ParentBiDiMode=True OnChange",
      PublishedOf(*Make<TMainMenu>()));
  EXPECT_EQ(
      "Alignment=paLeft AutoHotkeys=maAutomatic AutoLineReduction=maAutomatic AutoPopup=True BiDiMode HelpContext=0 "
      "Images MenuAnimation= OwnerDraw=False ParentBiDiMode=True TrackButton=tbRightButton OnChange OnPopup",
      PublishedOf(*Make<TPopupMenu>()));
  EXPECT_EQ(
      "Action AutoCheck=False AutoHotkeys=maParent AutoLineReduction=maParent Bitmap Break=mbNone Caption "
      "Checked=False SubMenuImages Default=False Enabled=True GroupIndex=0 HelpContext=0 Hint ImageIndex=-1 "
      "RadioItem=False ShortCut=0 Visible=True OnClick",
      PublishedOf(*Make<TMenuItem>()));
}

TEST_F(MenuChangeTest, TellsWhatShowsAndOnlyWhenItIsAnother) {
  TMenuItem& a = Add("a");
  EXPECT_EQ("root!", Log());
  a.SetEnabled(false);
  a.SetEnabled(false);
  a.SetChecked(true);
  a.SetVisible(false);
  EXPECT_EQ("a. a. a!", Log());
  FMenu->SetAutoHotkeys(maManual);
  EXPECT_EQ("menu!", Log());
  delete &a;
  EXPECT_EQ("root!", Log());
}

TEST_F(MenuChangeTest, AHandlerMayFreeTheMenu) {
  TMenuItem& a = Add("a");
  FMenu->OnChange = TMenuChangeEvent([this](TObject*, TMenuItem*, bool) { FMenu.reset(); });
  a.SetCaption("b");
  EXPECT_EQ(nullptr, FMenu.get());
}

TEST_F(MenuChangeTest, AHandlerMayFreeTheItemWhileAnActionIsTakenOver) {
  TMenuItem* a = &Add("a");
  auto action = Make<TAction>();
  action->SetCaption("b");
  FMenu->OnChange = TMenuChangeEvent([&](TObject*, TMenuItem* source, bool rebuild) {
    if (!rebuild && source == a) delete std::exchange(a, nullptr);
  });
  a->SetAction(action.get());
  EXPECT_EQ(nullptr, a);
  EXPECT_EQ(0, FMenu->GetItems().GetCount());
}

TEST_F(MenuChangeTest, PicturesAreFromTheNearestList) {
  const auto far = Images({"##", "##"});
  const auto near = Images({"rr", "rr"});
  TMenuItem& a = Add("a");
  TMenuItem& below = *New<TMenuItem>(FMenu.get());
  a.Add(&below);
  below.SetImageIndex(0);
  EXPECT_TRUE(below.GetImage().isNull());
  FMenu->SetImages(far.get());
  EXPECT_EQ("##/##", LettersOf(below.GetImage()));
  a.SetSubMenuImages(near.get());
  EXPECT_EQ("rr/rr", LettersOf(below.GetImage()));
}

TEST_F(MenuChangeTest, ABitmapOfItsOwnShowsWithoutItsTransparentColor) {
  TMenuItem& a = Add("a");
  a.GetBitmap().SetImage(ImageOf({"#.", "r#"}));
  EXPECT_EQ("#./ #", LettersOf(a.GetImage()));
  EXPECT_TRUE(a.IsBitmapStored());
}

TEST_F(MenuChangeTest, AListThatChangesOrGoesIsTold) {
  auto images = Images({"##", "##"});
  FMenu->SetImages(images.get());
  Log();
  images->SetBkColor(clRed);
  EXPECT_EQ("menu!", Log());
  images.reset();
  EXPECT_EQ("menu!", Log());
  EXPECT_EQ(nullptr, FMenu->GetImages());
}

TEST_F(MenuChangeTest, APictureOfTheActionIsTheItems) {
  TMenuItem& a = Add("a");
  auto action = Make<TAction>();
  action->SetImageIndex(4);
  a.SetAction(action.get());
  EXPECT_EQ(4, a.GetImageIndex());
  EXPECT_FALSE(a.IsImageIndexStored());
  action->SetImageIndex(5);
  EXPECT_EQ(5, a.GetImageIndex());
  a.SetImageIndex(1);
  EXPECT_TRUE(a.IsImageIndexStored());
}

}  // namespace
}  // namespace kt::tests
