#include "kt/rtl/collections/ThreadList.h"
#include "kt/rtl/objects/Exceptions.h"
#include "kt/rtl/objects/Make.h"
#include "kt/rtl/typeinfo/ClassInfo.h"
#include "support/InThreads.h"

#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

namespace kt {
namespace {

using tests::InThreads;

char ThreadLetters[] = "abc";

std::string Shown(TThreadList& threadList) {
  const TThreadListLock list(threadList);
  std::string text;
  for (void* item : *list) text += *static_cast<char*>(item);
  return text;
}

std::string ErrorOfAdding(TThreadList& list, void* item) {
  try {
    list.Add(item);
  } catch (const EListError& error) {
    return error.what();
  }
  return "no error";
}

TEST(ThreadListTest, IsAClassDirectlyBelowTheRoot) {
  EXPECT_EQ("TThreadList", TThreadList::Class()->ClassName());
  EXPECT_EQ(TObject::Class(), TThreadList::Class()->ClassParent());
  EXPECT_TRUE(TThreadList::Class()->IsCreatable());
}

TEST(ThreadListTest, AddsRemovesAndClears) {
  auto list = Make<TThreadListOf<char>>();
  list->Add(&ThreadLetters[0]);
  list->Add(&ThreadLetters[1]);
  list->Add(&ThreadLetters[2]);
  list->Remove(&ThreadLetters[1]);
  EXPECT_EQ("ac", Shown(*list));
  list->Remove(&ThreadLetters[1]);
  EXPECT_EQ("ac", Shown(*list));
  list->Clear();
  EXPECT_EQ("", Shown(*list));
}

TEST(ThreadListTest, LeavesOutDuplicatesByDefault) {
  auto list = Make<TThreadList>();
  EXPECT_EQ(dupIgnore, list->GetDuplicates());
  list->Add(&ThreadLetters[0]);
  list->Add(&ThreadLetters[0]);
  EXPECT_EQ("a", Shown(*list));
}

TEST(ThreadListTest, AcceptsDuplicates) {
  auto list = Make<TThreadList>();
  list->SetDuplicates(dupAccept);
  list->Add(&ThreadLetters[0]);
  list->Add(&ThreadLetters[0]);
  EXPECT_EQ("aa", Shown(*list));
}

// The text speaks of strings; so it does in the framework's lists.
TEST(ThreadListTest, RefusesDuplicatesWithTheTextOfStringLists) {
  auto list = Make<TThreadList>();
  list->SetDuplicates(dupError);
  list->Add(&ThreadLetters[0]);
  EXPECT_EQ("String list does not allow duplicates", ErrorOfAdding(*list, &ThreadLetters[0]));
  EXPECT_EQ("a", Shown(*list));
  InThreads(1, [&list](int) { EXPECT_EQ("a", Shown(*list)) << "the lock must be free after the error"; });
}

TEST(ThreadListTest, OneThreadMayLockSeveralTimes) {
  auto list = Make<TThreadList>();
  TList& outer = list->LockList();
  list->Add(&ThreadLetters[0]);
  TList& inner = list->LockList();
  EXPECT_EQ(&outer, &inner);
  EXPECT_EQ(1, inner.GetCount());
  list->UnlockList();
  list->UnlockList();
  InThreads(1, [&list](int) { list->Add(&ThreadLetters[1]); });
  EXPECT_EQ("ab", Shown(*list));
}

TEST(ThreadListTest, ManyThreadsAddAndRemoveWithoutLoss) {
  constexpr int ThreadCount = 4, PerThread = 500;
  auto list = Make<TThreadList>();
  std::vector<char> items(ThreadCount * PerThread);
  InThreads(ThreadCount, [&](int number) {
    char* own = &items[static_cast<size_t>(number * PerThread)];
    for (int i = 0; i < PerThread; ++i) list->Add(own + i);
    for (int i = 0; i < PerThread; i += 2) list->Remove(own + i);
  });
  EXPECT_EQ(ThreadCount * PerThread / 2, TThreadListLock(*list)->GetCount());
}

TEST(ThreadListTest, ALockedListChangesForNobodyElse) {
  auto list = Make<TThreadList>();
  std::vector<char> items(4000);
  InThreads(4, [&](int number) {
    for (int i = 0; i < 250; ++i) {
      const TThreadListLock locked(*list);
      const int before = locked->GetCount();
      locked->Add(&items[static_cast<size_t>(number * 250 + i)]);
      std::this_thread::yield();
      EXPECT_EQ(before + 1, locked->GetCount());
    }
  });
  EXPECT_EQ(1000, TThreadListLock(*list)->GetCount());
}

}  // namespace
}  // namespace kt
