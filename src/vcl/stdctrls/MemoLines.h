#pragma once

#include "kt/vcl/stdctrls/Memo.h"

namespace kt {

/// The lines of a memo: another view of its text. They have no objects.
class TCustomMemo::TLines : public TStrings {
 public:
  using Inherited = TStrings;

  int GetCount() const override { return FMemo.FText.LineCount(); }
  int AddObject(const QString& text, TObject*) override { return Add(text); }
  void Insert(int index, const QString& text) override;
  void InsertObject(int index, const QString& text, TObject*) override { Insert(index, text); }
  void Delete(int index) override;
  void Clear() override;

 protected:
  explicit TLines(TCustomMemo& memo) : FMemo(memo) {}

  QString Get(int index) override;
  void Put(int index, const QString& text) override;
  QString GetTextStr() override;
  void SetTextStr(const QString& text) override;
  void SetUpdateState(bool updating) override { FMemo.HoldChanges(updating); }

 private:
  void CheckIndex(int index, int count) const;
  bool HasUsualBreaks() const;

  TCustomMemo& FMemo;
};

}  // namespace kt
