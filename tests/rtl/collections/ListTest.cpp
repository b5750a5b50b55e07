#include "kt/rtl/collections/List.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassInfo.h"

#include <gtest/gtest.h>
#include <string>

namespace kt {
namespace {

/// The elements of the tests: pointers to these letters.
char Letters[] = "abcdefghij";

char* At(char letter) { return &Letters[letter - 'a']; }

/// Writes down what it is told: "+a" added, "-a" deleted, "!a" extracted.
class TLoggingList : public TListOf<char> {
 public:
  explicit TLoggingList(std::string& log) : FLog(log) {}

 protected:
  void Notify(void* item, TListNotification action) override {
    FLog += "+!-"[action];
    FLog += *static_cast<char*>(item);
  }

 private:
  std::string& FLog;
};

class ListTest : public testing::Test {
 protected:
  void Fill(const std::string& letters) {
    for (char letter : letters) FList->Add(letter == '.' ? nullptr : At(letter));
    FLog.clear();
  }
  static std::unique_ptr<TListOf<char>> ListOf(const std::string& letters) {
    auto list = Make<TListOf<char>>();
    for (char letter : letters) list->Add(At(letter));
    return list;
  }
  /// A dot stands for a null pointer.
  static std::string Shown(const TList& list) {
    std::string text;
    for (void* item : list) text += item ? *static_cast<char*>(item) : '.';
    return text;
  }
  std::string Shown() const { return Shown(*FList); }
  std::string TakeLog() { return std::exchange(FLog, {}); }
  template <class F>
  static std::string ErrorOf(F&& call) {
    try {
      call();
    } catch (const EListError& error) {
      return error.what();
    }
    return "no error";
  }

  std::string FLog;
  std::unique_ptr<TLoggingList> FList = Make<TLoggingList>(FLog);
};

TEST_F(ListTest, IsAClassDirectlyBelowTheRoot) {
  EXPECT_EQ("TList", TList::Class()->ClassName());
  EXPECT_EQ(TObject::Class(), TList::Class()->ClassParent());
  EXPECT_TRUE(TList::Class()->IsCreatable());
  EXPECT_EQ("TList", FList->ClassName());
}

TEST_F(ListTest, AddAnswersTheIndexAndTells) {
  EXPECT_EQ(0, FList->Add(At('a')));
  EXPECT_EQ(1, FList->Add(At('b')));
  EXPECT_EQ("ab", Shown());
  EXPECT_EQ("+a+b", TakeLog());
}

TEST_F(ListTest, NullPointersAreElementsThatNobodyIsToldOf) {
  EXPECT_EQ(0, FList->Add(nullptr));
  FList->Insert(0, nullptr);
  FList->Delete(0);
  EXPECT_EQ(".", Shown());
  EXPECT_EQ("", TakeLog());
}

TEST_F(ListTest, InsertTells) {
  Fill("ab");
  FList->Insert(1, At('c'));
  FList->Insert(3, At('d'));
  EXPECT_EQ("acbd", Shown());
  EXPECT_EQ("+c+d", TakeLog());
}

TEST_F(ListTest, DeleteTells) {
  Fill("abc");
  FList->Delete(1);
  EXPECT_EQ("ac", Shown());
  EXPECT_EQ("-b", TakeLog());
}

TEST_F(ListTest, RemoveDeletesTheFirstAndAnswersWhereItWas) {
  Fill("abcb");
  EXPECT_EQ(1, FList->Remove(At('b')));
  EXPECT_EQ("acb", Shown());
  EXPECT_EQ("-b", TakeLog());
  EXPECT_EQ(-1, FList->Remove(At('j')));
  EXPECT_EQ("", TakeLog());
}

TEST_F(ListTest, ExtractTellsThatItIsExtracted) {
  Fill("abc");
  EXPECT_EQ(At('b'), FList->Extract(At('b')));
  EXPECT_EQ("ac", Shown());
  EXPECT_EQ("!b", TakeLog());
  EXPECT_EQ(nullptr, FList->Extract(At('b')));
  EXPECT_EQ("", TakeLog());
}

TEST_F(ListTest, ClearDeletesFromTheEndAndFreesTheMemory) {
  Fill("abc");
  FList->Clear();
  EXPECT_EQ("-c-b-a", TakeLog());
  EXPECT_EQ(0, FList->GetCount());
  EXPECT_EQ(0, FList->GetCapacity());
}

TEST_F(ListTest, DestructionDeletesFromTheEnd) {
  Fill("ab");
  FList.reset();
  EXPECT_EQ("-b-a", TakeLog());
}

TEST_F(ListTest, ExchangeTellsNothing) {
  Fill("abc");
  FList->Exchange(0, 2);
  EXPECT_EQ("cba", Shown());
  EXPECT_EQ("", TakeLog());
}

TEST_F(ListTest, MoveTellsNothing) {
  Fill("abcd");
  FList->Move(0, 2);
  EXPECT_EQ("bcad", Shown());
  FList->Move(3, 1);
  EXPECT_EQ("bdca", Shown());
  FList->Move(1, 1);
  EXPECT_EQ("bdca", Shown());
  EXPECT_EQ("", TakeLog());
}

TEST_F(ListTest, PackRemovesNullPointers) {
  Fill(".a..b.");
  FList->Pack();
  EXPECT_EQ("ab", Shown());
  EXPECT_EQ("", TakeLog());
}

TEST_F(ListTest, FirstAndLast) {
  Fill("abc");
  EXPECT_EQ(At('a'), FList->First());
  EXPECT_EQ(At('c'), FList->Last());
}

TEST_F(ListTest, SetItemsTellsOfTheOldAndTheNew) {
  Fill("ab");
  FList->SetItems(0, At('c'));
  EXPECT_EQ("-a+c", TakeLog());
  FList->SetItems(0, At('c'));
  EXPECT_EQ("", TakeLog());
  FList->SetItems(0, nullptr);
  EXPECT_EQ("-c", TakeLog());
  EXPECT_EQ(".b", Shown());
}

TEST_F(ListTest, CountAddsNullPointersOrDeletesAtTheEnd) {
  Fill("abc");
  FList->SetCount(5);
  EXPECT_EQ("abc..", Shown());
  FList->SetCount(1);
  EXPECT_EQ("a", Shown());
  EXPECT_EQ("-c-b", TakeLog());
}

TEST_F(ListTest, CapacityCanBeSet) {
  Fill("ab");
  FList->SetCapacity(50);
  EXPECT_EQ(50, FList->GetCapacity());
  FList->SetCapacity(2);
  EXPECT_EQ(2, FList->GetCapacity());
}

TEST_F(ListTest, IndexOfFindsTheFirst) {
  Fill("ab.b");
  EXPECT_EQ(1, FList->IndexOf(At('b')));
  EXPECT_EQ(2, FList->IndexOf(nullptr));
  EXPECT_EQ(-1, FList->IndexOf(At('c')));
}

TEST_F(ListTest, ErrorsNameTheIndex) {
  Fill("ab");
  EXPECT_EQ("List index out of bounds (2)", ErrorOf([this] { FList->GetItems(2); }));
  EXPECT_EQ("List index out of bounds (-1)", ErrorOf([this] { FList->GetItems(-1); }));
  EXPECT_EQ("List index out of bounds (2)", ErrorOf([this] { FList->SetItems(2, nullptr); }));
  EXPECT_EQ("List index out of bounds (3)", ErrorOf([this] { FList->Insert(3, nullptr); }));
  EXPECT_EQ("List index out of bounds (2)", ErrorOf([this] { FList->Delete(2); }));
  EXPECT_EQ("List index out of bounds (2)", ErrorOf([this] { FList->Exchange(0, 2); }));
  EXPECT_EQ("List index out of bounds (-1)", ErrorOf([this] { FList->Exchange(-1, 0); }));
  EXPECT_EQ("List index out of bounds (2)", ErrorOf([this] { FList->Move(0, 2); }));
  EXPECT_EQ("List index out of bounds (5)", ErrorOf([this] { FList->Move(5, 0); }));
  EXPECT_EQ("List count out of bounds (-1)", ErrorOf([this] { FList->SetCount(-1); }));
  EXPECT_EQ("List capacity out of bounds (1)", ErrorOf([this] { FList->SetCapacity(1); }));
  EXPECT_EQ("ab", Shown());
  EXPECT_EQ("", TakeLog());
}

TEST_F(ListTest, AnEmptyListHasNeitherFirstNorLast) {
  EXPECT_EQ("List index out of bounds (0)", ErrorOf([this] { FList->First(); }));
  EXPECT_EQ("List index out of bounds (-1)", ErrorOf([this] { FList->Last(); }));
}

TEST_F(ListTest, SortIsStableAndTellsNothing) {
  Fill("ieabhcd");
  // By thirds of the alphabet: abc def ghi.
  FList->Sort([](char* first, char* second) { return (*first - 'a') / 3 - (*second - 'a') / 3; });
  EXPECT_EQ("abcedih", Shown());
  EXPECT_EQ("", TakeLog());
}

TEST_F(ListTest, AComparisonThatRaisesLeavesTheOrder) {
  Fill("cab");
  EXPECT_THROW(FList->Sort([](char*, char*) -> int { throw EAbort(QString()); }), EAbort);
  EXPECT_EQ("cab", Shown());
}

TEST_F(ListTest, AComparisonThatRemovesElementsRaises) {
  Fill("cab");
  EXPECT_EQ("List count out of bounds (0)", ErrorOf([this] {
              FList->Sort([this](char*, char*) {
                FList->Clear();
                return 1;
              });
            }));
}

TEST_F(ListTest, AssignCopiesAndTells) {
  Fill("ab");
  FList->Assign(*ListOf("cd"));
  EXPECT_EQ("cd", Shown());
  EXPECT_EQ("-b-a+c+d", TakeLog());
}

TEST_F(ListTest, AListAssignedToItselfStaysAsItIs) {
  Fill("ab");
  FList->Assign(*FList);
  EXPECT_EQ("ab", Shown());
  EXPECT_EQ("", TakeLog());
}

TEST_F(ListTest, AListCombinedWithItself) {
  Fill("ab");
  FList->Assign(*FList, laOr);
  EXPECT_EQ("ab", Shown());
  FList->Assign(*FList, laXor);
  EXPECT_EQ("", Shown());
}

struct TCombination {
  TListAssignOp Operation;
  const char* Result;
  const char* Log;
};

class ListAssignTest : public ListTest, public testing::WithParamInterface<TCombination> {};

TEST_P(ListAssignTest, CombinesTheListWithASource) {
  Fill("abcde");
  FList->Assign(*ListOf("cdf"), GetParam().Operation);
  EXPECT_EQ(GetParam().Result, Shown());
  EXPECT_EQ(GetParam().Log, TakeLog());
}

TEST_P(ListAssignTest, CombinesTwoOtherLists) {
  Fill("gh");
  const auto second = ListOf("cdf");
  FList->Assign(*ListOf("abcde"), GetParam().Operation, second.get());
  EXPECT_EQ(GetParam().Result, Shown());
}

TEST_P(ListAssignTest, TheListItselfMayBeTheSecond) {
  Fill("cdf");
  FList->Assign(*ListOf("abcde"), GetParam().Operation, FList.get());
  EXPECT_EQ(GetParam().Result, Shown());
}

INSTANTIATE_TEST_SUITE_P(ListTest, ListAssignTest,
                         testing::Values(TCombination{laCopy, "cdf", "-e-d-c-b-a+c+d+f"},
                                         TCombination{laAnd, "cd", "-e-b-a"}, TCombination{laOr, "abcdef", "+f"},
                                         TCombination{laXor, "abef", "-d-c+f"},
                                         TCombination{laSrcUnique, "f", "-e-d-c-b-a+f"},
                                         TCombination{laDestUnique, "abe", "-d-c"}));

TEST_F(ListTest, AUnionTakesADuplicateOfTheSourceOnce) {
  Fill("a");
  FList->Assign(*ListOf("bcb"), laOr);
  EXPECT_EQ("abc", Shown());
}

}  // namespace
}  // namespace kt
