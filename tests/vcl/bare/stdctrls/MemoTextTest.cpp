#include "kt/vcl/stdctrls/MemoText.h"
#include "support/Print.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <random>

namespace kt {
namespace {

QString Marked(const QString& text) { return QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("|")); }
QString Meant(const char* text) { return QString::fromLatin1(text).replace(u'|', QStringLiteral("\r\n")); }

/// "a|b" for the lines, "|" standing for a line break.
class MemoTextTest : public testing::Test {
 protected:
  void Set(const char* text) { FText.SetText(Meant(text)); }
  QString Lines() const {
    QStringList lines;
    for (int i = 0; i < FText.LineCount(); ++i) lines += FText.Line(i);
    return QString::number(lines.size()) + u':' + lines.join(u'/');
  }
  QString Text() const { return Marked(FText.Text()); }
  QString Place(int position) const {
    const QPoint place = FText.PlaceOf(position);
    return QStringLiteral("%1,%2").arg(place.x()).arg(place.y());
  }

  TMemoText FText;
};

TEST_F(MemoTextTest, AnyLineBreakBecomesCrLf) {
  EXPECT_EQ("a|b|c|d|", Marked(TMemoText::Normalized(QStringLiteral("a\rb\nc\r\nd\u2029"))));
  EXPECT_EQ("||", Marked(TMemoText::Normalized(QStringLiteral("\n\r"))));
}

TEST_F(MemoTextTest, AnEmptyLineAtTheEndIsNone) {
  Set("");
  EXPECT_EQ("0:", Lines());
  Set("a");
  EXPECT_EQ("1:a", Lines());
  Set("a|");
  EXPECT_EQ("1:a", Lines());
  Set("a||b");
  EXPECT_EQ("3:a//b", Lines());
  Set("|");
  EXPECT_EQ("1:", Lines());
}

TEST_F(MemoTextTest, ALineIsAddedBehindWhatIsThere) {
  FText.Apply(FText.Inserting(0, QStringLiteral("a")));
  EXPECT_EQ("a|", Text());
  FText.Apply(FText.Inserting(1, QStringLiteral("b")));
  EXPECT_EQ("a|b|", Text());
  Set("a");
  FText.Apply(FText.Inserting(1, QStringLiteral("b")));
  EXPECT_EQ("a|b", Text());
  EXPECT_EQ("2:a/b", Lines());
}

TEST_F(MemoTextTest, ALineIsInsertedBeforeAnother) {
  Set("a|c");
  FText.Apply(FText.Inserting(1, QStringLiteral("b")));
  EXPECT_EQ("a|b|c", Text());
}

TEST_F(MemoTextTest, ALineGoesWithItsBreak) {
  Set("a|b|c");
  FText.Apply(FText.Deleting(1));
  EXPECT_EQ("a|c", Text());
  FText.Apply(FText.Deleting(1));
  EXPECT_EQ("a|", Text());
}

TEST_F(MemoTextTest, ALineMayBecomeSeveral) {
  Set("a|b");
  FText.Apply(FText.Replacing(0, Meant("x|y")));
  EXPECT_EQ("3:x/y/b", Lines());
}

TEST_F(MemoTextTest, PlacesAreColumnAndLine) {
  Set("ab|c|");
  EXPECT_EQ("2,0", Place(2));
  EXPECT_EQ("0,1", Place(4));
  EXPECT_EQ("0,2", Place(7));
  EXPECT_EQ(5, FText.PositionOf({9, 1}));
  EXPECT_EQ(7, FText.PositionOf({0, 9}));
  EXPECT_EQ(0, FText.PositionOf({-1, -1}));
}

TEST_F(MemoTextTest, NoPositionPartsABreak) {
  Set("ab|c");
  EXPECT_EQ(2, FText.Valid(3));
  EXPECT_EQ(4, FText.Valid(4));
  EXPECT_EQ("2,0", Place(3));
}

/// Lines that come and go at random against a list of them.
TEST_F(MemoTextTest, TheModelOfAListHolds) {
  std::mt19937 random(7);
  QStringList model;
  QString wrong;
  for (int step = 0; step < 3000 && wrong.isEmpty(); ++step) {
    const auto what = random() % 3;
    const int count = static_cast<int>(model.size());
    const QString line = QStringLiteral("l%1").arg(random() % 100);
    const int at = static_cast<int>(random() % static_cast<unsigned>(count + 1));
    if (what == 0 || count == 0) {
      FText.Apply(FText.Inserting(at, line));
      model.insert(at, line);
    } else if (what == 1) {
      FText.Apply(FText.Deleting(at % count));
      model.removeAt(at % count);
    } else {
      FText.Apply(FText.Replacing(at % count, line));
      model[at % count] = line;
    }
    const QString expected = QString::number(model.size()) + u':' + model.join(u'/');
    if (Lines() != expected) wrong = QStringLiteral("step %1: %2").arg(step).arg(Lines());
  }
  EXPECT_EQ("", wrong);
}

}  // namespace
}  // namespace kt
