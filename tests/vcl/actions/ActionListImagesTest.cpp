#include "kt/rtl/objects/Make.h"
#include "kt/vcl/actions/Action.h"
#include "kt/vcl/actions/ActionList.h"
#include "kt/vcl/imagelist/ImageList.h"
#include "support/FormText.h"
#include "support/Published.h"

#include <gtest/gtest.h>

namespace kt::tests {
namespace {

class ActionListImagesTest : public testing::Test {
 protected:
  ActionListImagesTest() {
    Action.SetActionList(FList.get());
    Action.SetOnExecute(TNotifyEvent([this](TObject*) { ++FTimes; }));
  }

  std::unique_ptr<TActionList> FList = Make<TActionList>();
  TAction& Action = *New<TAction>(FList.get());
  int FTimes = 0;
};

TEST_F(ActionListImagesTest, PublishWhatTheyAreMadeOf) {
  EXPECT_EQ("Images State=asNormal OnChange OnExecute OnStateChange OnUpdate", PublishedOf(*FList));
  EXPECT_EQ(
      "AutoCheck=False Caption Category Checked=False Enabled=True GroupIndex=0 HelpContext=0 HelpKeyword "
      "HelpType=htKeyword Hint ImageIndex=-1 ShortCut=0 SecondaryShortCuts Visible=True OnExecute OnHint OnUpdate",
      PublishedOf(Action));
}

TEST_F(ActionListImagesTest, AListOfPicturesThatChangesOrGoesIsTold) {
  auto images = Make<TImageList>();
  int changes = 0;
  FList->OnChange = TNotifyEvent([&](TObject*) { ++changes; });
  FList->SetImages(images.get());
  images->SetBkColor(clRed);
  EXPECT_EQ(2, changes);
  images.reset();
  EXPECT_EQ(3, changes);
  EXPECT_EQ(nullptr, FList->GetImages());
}

TEST_F(ActionListImagesTest, EachOfSeveralKeysDoesTheAction) {
  Action.SetShortCut(TextToShortCut("Ctrl+A"));
  Action.GetSecondaryShortCuts().Add("Ctrl+B");
  Action.GetSecondaryShortCuts().Add("no key");
  EXPECT_TRUE(FList->IsShortCut('A', {ssCtrl}));
  EXPECT_TRUE(FList->IsShortCut('B', {ssCtrl}));
  EXPECT_FALSE(FList->IsShortCut('C', {ssCtrl}));
  EXPECT_EQ(2, FTimes);
  EXPECT_EQ(0, Action.GetSecondaryShortCuts().IndexOfShortCut(TextToShortCut("Ctrl+B")));
  EXPECT_EQ(-1, Action.GetSecondaryShortCuts().IndexOfShortCut(scNone));
}

TEST_F(ActionListImagesTest, MoreKeysAreStreamedWhenThereAreSome) {
  EXPECT_EQ("object TAction\nend\n", TextOf(Make<TAction>().get()));
  auto action = Make<TAction>();
  action->GetSecondaryShortCuts().Add("Ctrl+B");
  EXPECT_EQ("object TAction\n  SecondaryShortCuts.Strings = (\n    'Ctrl+B')\nend\n", TextOf(action.get()));
}

}  // namespace
}  // namespace kt::tests
