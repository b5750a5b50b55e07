#pragma once

#include "kt/rtl/objects/Make.h"
#include "kt/rtl/strings/StringList.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace kt::tests {

/// The lines of a list as one text: "a | b | c".
inline std::string Lines(TStrings& strings) {
  QStringList lines;
  for (int i = 0; i < strings.GetCount(); ++i) lines.append(strings.GetStrings(i));
  return lines.join(" | ").toStdString();
}

inline std::unique_ptr<TStringList> NewList(const QStringList& lines = {}) {
  auto list = Make<TStringList>();
  for (const QString& line : lines) list->Add(line);
  return list;
}

inline std::unique_ptr<TStringList> NewSortedList(const QStringList& lines, TDuplicates duplicates = dupIgnore) {
  auto list = Make<TStringList>();
  list->SetDuplicates(duplicates);
  list->SetSorted(true);
  for (const QString& line : lines) list->Add(line);
  return list;
}

/// The message of the exception of class E that `call` raises; fails the test when it raises none.
template <class E, class F>
std::string RaisedBy(F&& call) {
  try {
    call();
  } catch (const E& error) {
    return error.Message().toStdString();
  }
  ADD_FAILURE() << "nothing was raised";
  return {};
}

/// Writes down the events of a string list with the lines there are at that time: "changing(a) changed(a | b)".
class TEventLog {
 public:
  explicit TEventLog(TStringList& list) {
    list.OnChanging = [this](TObject* sender) { Note("changing", sender); };
    list.OnChange = [this](TObject* sender) { Note("changed", sender); };
  }

  /// What happened since the last call.
  std::string Take() { return std::exchange(FText, {}); }

 private:
  void Note(const char* event, TObject* sender) {
    if (!FText.empty()) FText += ' ';
    FText += std::string(event) + "(" + Lines(*static_cast<TStringList*>(sender)) + ")";
  }

  std::string FText;
};

/// A list that overrides nothing but what a descendant of TStrings must, and writes down the calls that change it.
class TPlainStrings : public TStrings {
 public:
  int GetCount() const override { return static_cast<int>(FLines.size()); }
  void Insert(int index, const QString& text) override {
    Note(QStringLiteral("Insert(%1,%2)").arg(index).arg(text));
    FLines.insert(FLines.begin() + index, text);
  }
  void Delete(int index) override {
    Note(QStringLiteral("Delete(%1)").arg(index));
    FLines.erase(FLines.begin() + index);
  }
  void Clear() override {
    Note(QStringLiteral("Clear"));
    FLines.clear();
  }

  std::string TakeLog() { return std::exchange(FLog, {}).join(" ").toStdString(); }
  using TStrings::Error;
  using TStrings::ExtractName;

 protected:
  QString Get(int index) override { return FLines.at(static_cast<size_t>(index)); }
  void PutObject(int index, TObject* object) override {
    if (object) Note(QStringLiteral("PutObject(%1)").arg(index));
  }
  void SetUpdateState(bool updating) override { Note(updating ? QStringLiteral("{") : QStringLiteral("}")); }

 private:
  void Note(const QString& call) { FLog.append(call); }

  std::vector<QString> FLines;
  QStringList FLog;
};

/// A list whose Get() brings it to exactly `Wanted` lines first: "x" for each that is missing. It keeps objects.
class TFillingStrings : public TStringList {
 public:
  using Inherited = TStringList;

  int Wanted = 0;

 protected:
  QString Get(int index) override {
    while (GetCount() > Wanted) Delete(GetCount() - 1);
    while (GetCount() < Wanted) Add(QStringLiteral("x"));
    return index < GetCount() ? TStringList::Get(index) : QString();
  }
};

/// `lines` with a first Get() yet to come.
inline std::unique_ptr<TFillingStrings> NewFilling(int wanted, const QStringList& lines) {
  auto list = Make<TFillingStrings>();
  list->Wanted = wanted;
  for (const QString& line : lines) list->Insert(list->GetCount(), line);
  return list;
}

inline std::unique_ptr<TPlainStrings> NewPlain(const QStringList& lines) {
  auto list = Make<TPlainStrings>();
  for (const QString& line : lines) list->Insert(list->GetCount(), line);
  list->TakeLog();
  return list;
}

}  // namespace kt::tests
