#include "kt/rtl/conversions/TextCompare.h"
#include "kt/rtl/objects/Exceptions.h"
#include "rtl/strings/StringsFixture.h"
#include "support/ModelRun.h"

#include <algorithm>
#include <memory>

namespace kt::tests {
namespace {

/// What a string list is meant to be, in the simplest way: a vector that is searched from end to end.
class TModel {
 public:
  struct TLine {
    QString Text;
    TObject* Object;
  };
  using TLines = std::vector<TLine>;

  TLines Lines;
  bool Sorted = false;
  bool CaseSensitive = false;
  TDuplicates Duplicates = dupIgnore;

  int Compare(const QString& a, const QString& b) const {
    return CaseSensitive ? AnsiCompareStr(a, b) : AnsiCompareText(a, b);
  }
  /// Of a sorted list: how many lines come before that text.
  int PlaceOf(const QString& text) const {
    int place = 0;
    for (const TLine& line : Lines) place += Compare(line.Text, text) < 0 ? 1 : 0;
    return place;
  }
  int IndexOf(const QString& text) const {
    for (size_t i = 0; i < Lines.size(); ++i) {
      if (Compare(Lines[i].Text, text) == 0) return static_cast<int>(i);
    }
    return -1;
  }
  /// -2 for an error.
  int Add(const QString& text, TObject* object) {
    const int there = Sorted ? IndexOf(text) : -1;
    if (there >= 0 && Duplicates == dupIgnore) return there;
    if (there >= 0 && Duplicates == dupError) return -2;
    const int place = Sorted ? PlaceOf(text) : static_cast<int>(Lines.size());
    Lines.insert(Lines.begin() + place, {text, object});
    return place;
  }
  void Sort() {
    std::stable_sort(Lines.begin(), Lines.end(),
                     [this](const TLine& a, const TLine& b) { return Compare(a.Text, b.Text) < 0; });
  }
};

struct TMode {
  const char* Name;
  bool Sorted;
  bool CaseSensitive;
  TDuplicates Duplicates;
  /// Also changes the mode now and then.
  bool Changes;
};

void PrintTo(const TMode& mode, std::ostream* out) { *out << mode.Name; }

/// Does the same random operations to a list and to the model and compares after each.
class TStringListMachine {
 public:
  explicit TStringListMachine(const TMode& mode) : FMode(mode) {
    FList->SetCaseSensitive(FModel.CaseSensitive = mode.CaseSensitive);
    FList->SetDuplicates(FModel.Duplicates = mode.Duplicates);
    FList->SetSorted(FModel.Sorted = mode.Sorted);
    FList->OnChanging = [this](TObject*) { ++FBefore; };
    FList->OnChange = [this](TObject*) { ++FAfter; };
  }

  void Step(quint32 number) {
    FRandom = TStepRandom(number);
    Step();
  }
  /// Empty while the two are the same.
  QString Fault() const {
    if (!FIsRight) return QStringLiteral("the last operation did not answer as the model did");
    if (FBefore != FAfter) return QStringLiteral("OnChanging and OnChange do not come in pairs");
    return IsSame() ? QString() : QStringLiteral("[%1] instead of [%2]").arg(FList->GetCommaText(), ModelText());
  }
  QString StepText() const { return FText; }

 private:
  int Below(int limit) { return FRandom.Below(limit); }
  void Note(const char* what, int index = -1, const QString& text = {}) {
    FText = QStringLiteral("%1 %2 '%3'").arg(QLatin1StringView(what)).arg(index).arg(text);
  }
  QString ModelText() const {
    QStringList texts;
    for (const TModel::TLine& line : FModel.Lines) texts += line.Text;
    return texts.join(u',');
  }
  int Count() const { return static_cast<int>(FModel.Lines.size()); }
  QString AnyText() {
    QString text;
    for (int length = Below(4); length > 0; --length) text += u"abABc=\u00e9 "[Below(8)];
    return text;
  }
  TObject* AnyObject() { return Below(3) == 0 ? FObjects[Below(3)].get() : nullptr; }

  void Step() {
    switch (Below(FMode.Changes ? 14 : 11)) {
      case 0:
      case 1:
      case 2:
        return Add();
      case 3:
        return Insert();
      case 4:
        return Delete();
      case 5:
        return Put();
      case 6:
        return Exchange();
      case 7:
        return Move();
      case 8:
        return Search();
      case 9:
        return Rare();
      case 10:
        return PutObject();
      case 11:
        return SetSorted();
      case 12:
        return SetCaseSensitive();
      default:
        FList->SetDuplicates(FModel.Duplicates = static_cast<TDuplicates>(Below(3)));
        Note("duplicates", FModel.Duplicates);
    }
  }

  void Expect(bool asExpected) { FIsRight = FIsRight && asExpected; }

  /// True when the operation raised; it must do so exactly when the model says.
  template <class F>
  bool Raises(bool expected, F&& call) {
    bool raised = false;
    try {
      call();
    } catch (const EStringListError&) {
      raised = true;
    }
    Expect(raised == expected);
    return raised;
  }

  void Add() {
    const QString text = AnyText();
    TObject* object = AnyObject();
    const int expected = FModel.Add(text, object);
    Note("add", expected, text);
    int index = -2;
    Raises(expected == -2, [&] { index = FList->AddObject(text, object); });
    Expect(index == expected);
  }
  void Insert() {
    const int index = Below(Count() + 2);
    const QString text = AnyText();
    TObject* object = AnyObject();
    const bool refused = FModel.Sorted || index > Count();
    Note("insert", index, text);
    if (!refused) FModel.Lines.insert(FModel.Lines.begin() + index, {text, object});
    Raises(refused, [&] { FList->InsertObject(index, text, object); });
  }
  void Delete() {
    const int index = Below(Count() + 1);
    const bool refused = index == Count();
    if (!refused) FModel.Lines.erase(FModel.Lines.begin() + index);
    Note("delete", index);
    Raises(refused, [&] { FList->Delete(index); });
  }
  void Put() {
    const int index = Below(Count() + 1);
    const QString text = AnyText();
    const bool refused = FModel.Sorted || index == Count();
    Note("put", index, text);
    if (!refused) FModel.Lines[static_cast<size_t>(index)].Text = text;
    Raises(refused, [&] { FList->SetStrings(index, text); });
  }
  void PutObject() {
    const int index = Below(Count() + 1);
    TObject* object = AnyObject();
    const bool refused = index == Count();
    if (!refused) FModel.Lines[static_cast<size_t>(index)].Object = object;
    Note(object ? "put object" : "put no object", index);
    Raises(refused, [&] { FList->SetObjects(index, object); });
  }
  /// Not in a sorted list, where it would leave the model's order undefined.
  void Exchange() {
    if (FModel.Sorted || Count() == 0) return;
    const int first = Below(Count()), second = Below(Count());
    Note("exchange", first, QString::number(second));
    std::swap(FModel.Lines[static_cast<size_t>(first)], FModel.Lines[static_cast<size_t>(second)]);
    FList->Exchange(first, second);
  }
  void Move() {
    const int from = Below(Count() + 1), to = Below(Count() + 1);
    Note("move", from, QString::number(to));
    const bool refused = from != to && (FModel.Sorted || from == Count() || to == Count());
    if (!refused && from != to) {
      const TModel::TLine line = FModel.Lines[static_cast<size_t>(from)];
      FModel.Lines.erase(FModel.Lines.begin() + from);
      FModel.Lines.insert(FModel.Lines.begin() + to, line);
    }
    Raises(refused, [&] { FList->Move(from, to); });
  }
  void Search() {
    const QString text = AnyText();
    Note("search", -1, text);
    Expect(FList->IndexOf(text) == FModel.IndexOf(text));
    if (!FModel.Sorted) return;
    int index = -1;
    Expect(FList->Find(text, index) == (FModel.IndexOf(text) >= 0));
    Expect(index == FModel.PlaceOf(text));
  }
  void Rare() {
    const int which = Below(20);
    Note("clear, sort, set capacity or reload", which);
    switch (which) {
      case 0:
        FModel.Lines.clear();
        return FList->Clear();
      case 1:
        if (!FModel.Sorted) FModel.Sort();
        return FList->Sort();
      case 2:
        return FList->SetCapacity(Count() + Below(10));
      case 3:
        return Reload();
      default:
        return Delete();
    }
  }
  void Reload() {
    const TModel::TLines before = std::exchange(FModel.Lines, {});
    bool refused = false;
    for (const TModel::TLine& line : before) refused = refused || FModel.Add(line.Text, nullptr) == -2;
    Raises(refused, [this] { FList->SetText(FList->GetText()); });
  }
  void SetSorted() {
    const bool value = Below(2) == 0;
    if (value && !FModel.Sorted) FModel.Sort();
    Note("sorted", value);
    FList->SetSorted(FModel.Sorted = value);
  }
  void SetCaseSensitive() {
    FModel.CaseSensitive = Below(2) == 0;
    Note("case sensitive", FModel.CaseSensitive);
    if (FModel.Sorted && FModel.CaseSensitive != FList->GetCaseSensitive()) FModel.Sort();
    FList->SetCaseSensitive(FModel.CaseSensitive);
  }

  bool IsSame() const {
    if (FList->GetCount() != Count()) return false;
    if (FList->GetSorted() != FModel.Sorted || FList->GetCapacity() < Count()) return false;
    for (int i = 0; i < Count(); ++i) {
      const TModel::TLine& line = FModel.Lines[static_cast<size_t>(i)];
      if (line.Object != FList->GetObjects(i) || line.Text != FList->GetStrings(i)) return false;
    }
    return true;
  }

  const TMode& FMode;
  TStepRandom FRandom;
  QString FText;
  TModel FModel;
  std::unique_ptr<TObject> FObjects[3] = {Make<TObject>(), Make<TObject>(), Make<TObject>()};
  std::unique_ptr<TStringList> FList = Make<TStringList>();
  int FBefore = 0;
  int FAfter = 0;
  bool FIsRight = true;
};

class StringListModelTest : public testing::TestWithParam<TMode> {};

TEST_P(StringListModelTest, RandomOperationsGiveWhatTheModelGives) {
  TModelRun(ModelSeed(1), [] { return std::make_unique<TStringListMachine>(GetParam()); }).Run(50'000);
}

INSTANTIATE_TEST_SUITE_P(StringListModelTest, StringListModelTest,
                         testing::Values(TMode{"Unsorted", false, false, dupIgnore, false},
                                         TMode{"UnsortedCaseSensitive", false, true, dupError, false},
                                         TMode{"SortedIgnore", true, false, dupIgnore, false},
                                         TMode{"SortedAccept", true, false, dupAccept, false},
                                         TMode{"SortedError", true, false, dupError, false},
                                         TMode{"SortedIgnoreCaseSensitive", true, true, dupIgnore, false},
                                         TMode{"SortedAcceptCaseSensitive", true, true, dupAccept, false},
                                         TMode{"SortedErrorCaseSensitive", true, true, dupError, false},
                                         TMode{"Changing", false, false, dupIgnore, true}),
                         [](const auto& test) { return std::string(test.param.Name); });

}  // namespace
}  // namespace kt::tests
