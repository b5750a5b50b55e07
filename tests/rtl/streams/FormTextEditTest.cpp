// What a changed form does to the text that somebody wrote.
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/streams/FormConversion.h"
#include "kt/rtl/streams/FormTextEdit.h"
#include "support/Expect.h"
#include "support/FormText.h"

#include <gtest/gtest.h>

namespace kt {
namespace {

using tests::BinaryOf;

/// The text `original` after a change that makes `after` of what it says.
QByteArray Edit(const QByteArray& original, const char* after) {
  return EditFormText(original, BinaryOf(original), BinaryOf(after));
}

/// In a manner of its own, so that lines written anew show.
constexpr char kEditedForm[] =
    "object  Form1 : TForm1\n"
    "\tCaption='f'\n"
    "\tobject  Panel1 : TPanel\n"
    "\t\tLeft=1\n"
    "\t\tobject  Edit1 : TEdit\n"
    "\t\t\tText='e' +\n"
    "\t\t\t  'f'\n"
    "\t\tend\n"
    "\tend\n"
    "\n"
    "\tobject  Button1 : TButton\n"
    "\t\tLeft=2\n"
    "\tend\n"
    "\tobject  Button2 : TButton\n"
    "\t\tLeft=3\n"
    "\tend\n"
    "end\n";

TEST(FormTextEditTest, WithoutAChangeEveryByteStays) { EXPECT_EQ(kEditedForm, Edit(kEditedForm, kEditedForm)); }

TEST(FormTextEditTest, AnAddedObjectComesBehindTheSiblingBeforeItInItsIndentation) {
  EXPECT_EQ(QByteArray(kEditedForm)
                .replace("\tobject  Button2",
                         "\tobject New1: TNew\n\t  A = 1\n\t  object Sub1: TSub\n\t  end\n\tend\n"
                         "\tobject  Button2"),
            Edit(kEditedForm,
                 "object Form1: TForm1 Caption='f'\nobject Panel1: TPanel Left=1\n"
                 "object Edit1: TEdit Text='ef' end end\nobject Button1: TButton Left=2 end\n"
                 "object New1: TNew A=1 object Sub1: TSub\nend end\nobject Button2: TButton Left=3 end end"));
}

TEST(FormTextEditTest, AFirstObjectComesBehindThePropertiesInTheirIndentation) {
  EXPECT_EQ("object A: TA\n\tX=1\n\tobject B: TB\n\t  Y = 2\n\tend\nend\n",
            Edit("object A: TA\n\tX=1\nend\n", "object A: TA X=1 object B: TB Y=2 end end"));
  EXPECT_EQ("object A: TA\n  object B: TB\n  end\nend\n",
            Edit("object A: TA\nend\n", "object A: TA\nobject B: TB\nend end"));
}

TEST(FormTextEditTest, AnObjectBeforeAllOthersComesThere) {
  EXPECT_EQ("object A: TA\n   object New: TB\n   end\n   object  B : TB\n   end\nend\n",
            Edit("object A: TA\n   object  B : TB\n   end\nend\n",
                 "object A: TA\nobject New: TB\nend object B: TB\nend end"));
}

TEST(FormTextEditTest, OfADeletedObjectExactlyItsLinesGo) {
  EXPECT_EQ(QByteArray(kEditedForm).replace("\tobject  Button1 : TButton\n\t\tLeft=2\n\tend\n", ""),
            Edit(kEditedForm,
                 "object Form1: TForm1 Caption='f'\nobject Panel1: TPanel Left=1\n"
                 "object Edit1: TEdit Text='ef' end end object Button2: TButton Left=3 end end"));
}

TEST(FormTextEditTest, ADeletedParentTakesItsChildrenAlong) {
  QByteArray wanted(kEditedForm);
  const qsizetype from = wanted.indexOf("\tobject  Panel1");
  wanted.remove(from, wanted.indexOf("\n\tobject  Button1") - from);
  EXPECT_EQ(wanted, Edit(kEditedForm,
                         "object Form1: TForm1 Caption='f'\nobject Button1: TButton Left=2 end\n"
                         "object Button2: TButton Left=3 end end"));
}

TEST(FormTextEditTest, ARenamedObjectChangesItsNameAlone) {
  EXPECT_EQ(QByteArray(kEditedForm).replace("Panel1", "Other"),
            Edit(kEditedForm,
                 "object Form1: TForm1 Caption='f'\nobject Other: TPanel Left=1\n"
                 "object Edit1: TEdit Text='ef' end end object Button1: TButton Left=2 end\n"
                 "object Button2: TButton Left=3 end end"));
}

TEST(FormTextEditTest, ARenamedRootChangesItsNameAndClass) {
  EXPECT_EQ("OBJECT  F : TF  [ 3 ]\n X=1 END",
            Edit("OBJECT  Form1 : TForm1  [ 3 ]\n X=1 END", "object F: TF [3]\n X=1 end"));
}

TEST(FormTextEditTest, ASiblingThatMovesTakesItsLinesAlong) {
  QByteArray wanted(kEditedForm);
  const QByteArray moved("\tobject  Button2 : TButton\n\t\tLeft=3\n\tend\n");
  wanted.replace(moved, "").replace("\tobject  Button1", moved + "\tobject  Button1");
  wanted.replace("\tend\n\n" + moved, "\tend\n" + moved + "\n");
  EXPECT_EQ(wanted, Edit(kEditedForm,
                         "object Form1: TForm1 Caption='f'\nobject Panel1: TPanel Left=1\n"
                         "object Edit1: TEdit Text='ef' end end object Button2: TButton Left=3 end\n"
                         "object Button1: TButton Left=2 end end"));
}

TEST(FormTextEditTest, AnObjectThatMovesDeeperIsIndentedAsWhatIsThere) {
  QByteArray wanted(kEditedForm);
  wanted.replace("\tobject  Button1 : TButton\n\t\tLeft=2\n\tend\n", "");
  wanted.replace("\t\t\t  'f'\n\t\tend\n",
                 "\t\t\t  'f'\n\t\tend\n\t\tobject  Button1 : TButton\n\t\t\tLeft=2\n\t\tend\n");
  EXPECT_EQ(wanted, Edit(kEditedForm,
                         "object Form1: TForm1 Caption='f'\nobject Panel1: TPanel Left=1\n"
                         "object Edit1: TEdit Text='ef' end object Button1: TButton Left=2 end end\n"
                         "object Button2: TButton Left=3 end end"));
}

TEST(FormTextEditTest, AnObjectThatMovesUpAndChangesKeepsItsOtherLines) {
  QByteArray wanted(kEditedForm);
  wanted.replace("\t\tobject  Edit1 : TEdit\n\t\t\tText='e' +\n\t\t\t  'f'\n\t\tend\n", "");
  wanted.replace("\t\tLeft=3\n\tend\n",
                 "\t\tLeft=3\n\tend\n\tobject  Edit1 : TEdit\n\t\tText='e' +\n\t\t  'f'\n\t\tTop = 5\n\tend\n");
  EXPECT_EQ(wanted, Edit(kEditedForm,
                         "object Form1: TForm1 Caption='f'\nobject Panel1: TPanel Left=1 end\n"
                         "object Button1: TButton Left=2 end object Button2: TButton Left=3 end\n"
                         "object Edit1: TEdit Text='ef' Top=5 end end"));
}

TEST(FormTextEditTest, WhatMovesIntoANewObjectTakesItsLinesAlong) {
  QByteArray wanted(kEditedForm);
  wanted.replace("\tobject  Button2 : TButton\n\t\tLeft=3\n\tend\n",
                 "\tobject Box: TBox\n\t  Top = 1\n\t  object  Button2 : TButton\n\t  \tLeft=3\n\t  end\n\tend\n");
  EXPECT_EQ(wanted, Edit(kEditedForm,
                         "object Form1: TForm1 Caption='f'\nobject Panel1: TPanel Left=1\n"
                         "object Edit1: TEdit Text='ef' end end object Button1: TButton Left=2 end\n"
                         "object Box: TBox Top=1 object Button2: TButton Left=3 end end end"));
}

TEST(FormTextEditTest, ParentAndChildCanChangePlaces) {
  EXPECT_EQ("object A: TA\n  object  C : TC\n    Y=2\n    object  B : TB\n      X=1\n    end\n  end\nend\n",
            Edit("object A: TA\n  object  B : TB\n    X=1\n    object  C : TC\n      Y=2\n    end\n  end\nend\n",
                 "object A: TA\nobject C: TC Y=2 object B: TB X=1 end end end"));
}

TEST(FormTextEditTest, ObjectsWithoutNamesAreToldApartByTheirOrder) {
  EXPECT_EQ("object A: TA\n object  TB\n  X=1\n end\n object  TB\n  X=4\n end\nend\n",
            Edit("object A: TA\n object  TB\n  X=1\n end\n object  TB\n  X=2\n end\n object  TB\n  X=3\n end\nend\n",
                 "object A: TA\nobject TB\nX=1 end object TB\nX=4 end end"));
}

TEST(FormTextEditTest, AnotherClassIsAnotherObject) {
  EXPECT_EQ("object A: TA\n  object B: TC\n    X = 1\n  end\nend\n",
            Edit("object A: TA\n  object  B : TB\n    X=1\n  end\nend\n", "object A: TA\nobject B: TC X=1 end end"));
}

TEST(FormTextEditTest, ObjectsOnOneLineStayThere) {
  EXPECT_EQ("object A: TA object B: TB X=2 end object C: TC Y=1 end end",
            Edit("object A: TA object B: TB X=1 end object C: TC Y=1 end end",
                 "object A: TA\nobject B: TB X=2 end object C: TC Y=1 end end"));
  EXPECT_EQ("object A: TA object C: TC Y=1 end end", Edit("object A: TA object B: TB X=1 end object C: TC Y=1 end end",
                                                          "object A: TA\nobject C: TC Y=1 end end"));
}

/// Without the line of X the next word would name the class.
TEST(FormTextEditTest, ATextThatWouldSaySomethingElseIsWrittenAnew) {
  EXPECT_EQ("object A:\n  Y = 2\nend\n", Edit("object A:\nX=1 Y=2 end", "object A:\nY=2 end"));
}

constexpr char kEditedItems[] =
    "object L: TList\n  Items=<\n    item\n      V=1\n    end\n    item\n      V=2\n    end\n    item\n      V=3\n"
    "    end>\n  Left=5\nend\n";

TEST(FormTextEditTest, AnItemInTheMiddleLeavesTheOthersAlone) {
  EXPECT_EQ(
      QByteArray(kEditedItems).replace("    item\n      V=3", "    item\n      V = 9\n    end\n    item\n      V=3"),
      Edit(kEditedItems, "object L: TList Items=<item V=1 end item V=2 end item V=9 end item V=3 end> Left=5 end"));
}

TEST(FormTextEditTest, AnItemAtEitherEndLeavesTheOthersAlone) {
  EXPECT_EQ(
      QByteArray(kEditedItems).replace("Items=<\n", "Items=<\n    item\n      V = 9\n    end\n"),
      Edit(kEditedItems, "object L: TList Items=<item V=9 end item V=1 end item V=2 end item V=3 end> Left=5 end"));
  EXPECT_EQ(
      QByteArray(kEditedItems).replace("    end>", "    end\n    item\n      V = 9\n    end>"),
      Edit(kEditedItems, "object L: TList Items=<item V=1 end item V=2 end item V=3 end item V=9 end> Left=5 end"));
}

TEST(FormTextEditTest, ADeletedItemLeavesTheOthersAlone) {
  EXPECT_EQ(QByteArray(kEditedItems).replace("    item\n      V=2\n    end\n", ""),
            Edit(kEditedItems, "object L: TList Items=<item V=1 end item V=3 end> Left=5 end"));
  EXPECT_EQ(QByteArray(kEditedItems).replace("\n    item\n      V=3\n    end", ""),
            Edit(kEditedItems, "object L: TList Items=<item V=1 end item V=2 end> Left=5 end"));
  EXPECT_EQ("object L: TList\n  Items=<>\n  Left=5\nend\n", Edit(kEditedItems, "object L: TList Items=<> Left=5 end"));
}

TEST(FormTextEditTest, AChangedItemChangesItsLineAlone) {
  EXPECT_EQ(QByteArray(kEditedItems).replace("V=2", "V=8"),
            Edit(kEditedItems, "object L: TList Items=<item V=1 end item V=8 end item V=3 end> Left=5 end"));
}

TEST(FormTextEditTest, AnItemThatMovesTakesItsLinesAlong) {
  EXPECT_EQ(
      "object L: TList\n  Items=<\n    item\n      V=3\n    end\n    item\n      V=1\n    end\n    item\n"
      "      V=2\n    end>\n  Left=5\nend\n",
      Edit(kEditedItems, "object L: TList Items=<item V=3 end item V=1 end item V=2 end> Left=5 end"));
}

TEST(FormTextEditTest, AnEmptyCollectionGetsItsFirstItem) {
  EXPECT_EQ("object L: TList\n  Items=<\n    item\n      V = 1\n    end>\nend\n",
            Edit("object L: TList\n  Items=<>\nend\n", "object L: TList Items=<item V=1 end> end"));
}

TEST(FormTextEditTest, ItemsOfItemsAreToldApartToo) {
  EXPECT_EQ("object L: TL\n I=<\n item\n  J=<\n  item\n   A=1\n  end\n  item\n    A = 2\n  end>\n end>\nend\n",
            Edit("object L: TL\n I=<\n item\n  J=<\n  item\n   A=1\n  end>\n end>\nend\n",
                 "object L: TL I=<item J=<item A=1 end item A=2 end> end> end"));
}

/// What is loaded may be written in another order: the file keeps its own.
TEST(FormTextEditTest, SiblingsKeepTheOrderOfTheFile) {
  const QByteArray original("object A: TA\n  object  C : TC\n    X=1\n  end\n  object  B : TB\n    X=1\n  end\nend\n");
  EXPECT_EQ(QByteArray(original).replace("X=1\n  end\nend", "X=2\n  end\nend"),
            EditFormText(original, BinaryOf("object A: TA\nobject B: TB X=1 end object C: TC X=1 end end"),
                         BinaryOf("object A: TA\nobject B: TB X=2 end object C: TC X=1 end end")));
}

TEST(FormTextEditTest, SiblingsThatChangeTheirOrderGetTheNewOne) {
  EXPECT_EQ(
      "object A: TA\n  object  D : TD\n  end\n  object  C : TC\n  end\n  object  B : TB\n  end\nend\n",
      EditFormText("object A: TA\n  object  C : TC\n  end\n  object  D : TD\n  end\n  object  B : TB\n  end\nend\n",
                   BinaryOf("object A: TA\nobject B: TB\nend object C: TC\nend object D: TD\nend end"),
                   BinaryOf("object A: TA\nobject D: TD\nend object C: TC\nend object B: TB\nend end")));
}

TEST(FormTextEditTest, AFileWithOtherObjectsIsWrittenAnew) {
  EXPECT_EQ("object A: TA\r\n  object C: TC\r\n    X = 2\r\n  end\r\nend\r\n",
            EditFormText("object A: TA\r\n object B: TB\r\n end\r\nend\r\n",
                         BinaryOf("object A: TA\nobject C: TC X=1 end end"),
                         BinaryOf("object A: TA\nobject C: TC X=2 end end")));
}

TEST(FormTextEditTest, WhatTheWriterLeavesOutStays) {
  EXPECT_EQ("inherited A: TA\n  X=0\n  Y=2\n  Items=<item V=1 end>\nend\n",
            EditFormText("inherited A: TA\n  X=0\n  Y=1\n  Items=<item V=1 end>\nend\n",
                         BinaryOf("object A: TA Y=1 end"), BinaryOf("object A: TA Y=2 end")));
}

TEST(FormTextEditTest, ADescendantThatIsWrittenAnewStaysOne) {
  EXPECT_EQ("inherited A: TA\n  object C: TC\n  end\nend\n",
            EditFormText("inherited A: TA\nend\n", BinaryOf("object A: TA\nobject B: TB\nend end"),
                         BinaryOf("object A: TA\nobject C: TC\nend end")));
}

TEST(FormTextEditTest, LinesEndAndCharactersStandAsInTheFile) {
  EXPECT_EQ("object A: TA\r\n\tX='\xE9'\r\n\tobject B: TB\r\n\t  Y = '\xE9'\r\n\tend\r\nend",
            EditFormText("object A: TA\r\n\tX='\xE9'\r\nend", BinaryOf("object A: TA X='\xC3\xA9' end"),
                         BinaryOf("object A: TA X='\xC3\xA9' object B: TB Y='\xC3\xA9' end end")));
}

TEST(FormTextEditTest, AFileThatIsNoFormIsRefusedWithItsPlace) {
  EXPECT_EQ("Identifier expected on line 2, column 3", tests::MessageOf<EParserError>([] {
              EditFormText("object A: TA\n  = 1\nend\n", BinaryOf("object A: TA X=1 end"),
                           BinaryOf("object A: TA X=2 end"));
            }));
  EXPECT_THROW(EditFormText("", BinaryOf("object A: TA X=1 end"), BinaryOf("object A: TA X=2 end")), EParserError);
}

TEST(FormTextEditTest, ABinaryFileKeepsItsFormatAndOrder) {
  const QByteArray original = BinaryOf("object A: TA Y=0 X=1 object B: TB\nend end");
  EXPECT_EQ(BinaryOf("object A: TA Y=0 X=2 object B: TB\nend object C: TC\nend end").toHex(' '),
            EditFormFile(original, BinaryOf("object A: TA X=1 object B: TB\nend end"),
                         BinaryOf("object A: TA X=2 object B: TB\nend object C: TC\nend end"))
                .toHex(' '));
}

TEST(FormTextEditTest, AResourceKeepsItsHeaderAndWhatFollows) {
  const QByteArray form = BinaryOf("object A: TA X=1 end");
  const QByteArray changed = BinaryOf("object A: TA X='longer' end");
  EXPECT_EQ((WithResourceHeader(changed) + QByteArray(3, '\0')).toHex(' '),
            EditFormFile(WithResourceHeader(form) + QByteArray(3, '\0'), form, changed).toHex(' '));
}

}  // namespace
}  // namespace kt
