#pragma once

#include "kt/rtl/objects/Persistent.h"

#include <QLatin1StringView>
#include <QString>

#include <memory>

class QIODevice;

namespace kt {

/// A list of lines, each with an object that the list does not own.
///
/// Abstract: a descendant says where the lines are kept by overriding Get(), GetCount(), Insert(), Delete() and
/// Clear(), and as much of the rest as it can do better. Nearly everything goes through Get(), which may change the
/// list (a descendant brings missing lines into being there); that is why reading is not const, and why whatever walks
/// through the lines looks at the count in each turn.
///
/// Errors of descendants are EStringListError, see Error(). Indices count from 0.
class TStrings : public TPersistent {
 public:
  using Inherited = TPersistent;

  static const TClassInfo* Class();
  const TClassInfo* ClassType() const override { return Class(); }
  ~TStrings() override;

  /// Adds a line and returns its index: the end, here.
  virtual int Add(const QString& text);
  virtual int AddObject(const QString& text, TObject* object);
  void Append(const QString& text) { Add(text); }
  /// Adds the lines and objects of another list, within one update bracket.
  virtual void AddStrings(TStrings& strings);
  virtual void Insert(int index, const QString& text) = 0;
  virtual void InsertObject(int index, const QString& text, TObject* object);
  virtual void Delete(int index) = 0;
  virtual void Clear() = 0;
  virtual void Exchange(int first, int second);
  /// Takes a line out and puts it back so that it ends up at `to`.
  virtual void Move(int from, int to);

  /// From another TStrings: replaces the lines, objects and settings (delimiter, separator and so on) within one update
  /// bracket. The lines go through AddObject(), so that a sorted list stays sorted. A list assigned to itself stays as
  /// it is.
  void Assign(TPersistent* source) override;
  /// True when the other list has the same lines, compared exactly. Objects and settings do not count.
  bool Equals(TStrings& strings);

  /// The first line that equals `text` by CompareStrings(), or -1.
  virtual int IndexOf(QStringView text);
  /// The first line with that name part, compared by CompareStrings(), or -1.
  virtual int IndexOfName(QStringView name);
  virtual int IndexOfObject(TObject* object);

  virtual int GetCount() const = 0;
  QString GetStrings(int index) { return Get(index); }
  void SetStrings(int index, const QString& text) { Put(index, text); }
  TObject* GetObjects(int index) const { return GetObject(index); }
  void SetObjects(int index, TObject* object) { PutObject(index, object); }
  /// The number of lines there is room for; the count where a list has no such notion.
  virtual int GetCapacity() const { return GetCount(); }
  /// Does nothing where a list has no such notion.
  virtual void SetCapacity(int) {}

  /// The name part of a line: what stands before the first separator; empty without a separator.
  QString GetNames(int index);
  /// The value part of the first line with that name; empty without such a line.
  QString GetValues(QStringView name);
  /// Changes the value part of the first line with that name or adds a line. An empty value deletes the line instead.
  void SetValues(const QString& name, const QString& value);
  /// What follows the name part and one character more; so a line without a separator loses its first character. Empty
  /// for a negative index.
  QString GetValueFromIndex(int index);
  /// Changes the value part of a line; a negative index adds a line with an empty name. An empty value deletes the
  /// line.
  void SetValueFromIndex(int index, const QString& value);
  /// Between name and value; '=' by default.
  QChar GetNameValueSeparator() const;
  void SetNameValueSeparator(QChar value);

  /// All lines, each followed by LineBreak.
  QString GetText() { return GetTextStr(); }
  /// Replaces the lines within one update bracket. The text ends at a NUL character if it has one. Lines end with CR,
  /// LF or CR LF while LineBreak is CR LF, else with exactly LineBreak; what follows the last end of line is a line if
  /// not empty.
  void SetText(const QString& text) { SetTextStr(text); }
  /// Ends a line in Text; CR LF by default.
  QString GetLineBreak() const;
  void SetLineBreak(const QString& value);

  /// DelimitedText with comma and double quotes.
  QString GetCommaText();
  /// Leaves Delimiter a comma and QuoteChar a double quote.
  void SetCommaText(const QString& text);
  /// The lines with Delimiter between them. A line that holds Delimiter, QuoteChar or, unless StrictDelimiter, a blank
  /// or control character is enclosed in QuoteChar, and each QuoteChar in it is doubled. One empty line gives two
  /// QuoteChars.
  QString GetDelimitedText();
  /// Replaces the lines within one update bracket. Unless StrictDelimiter, blanks and control characters separate lines
  /// too, and those around a delimiter do not count. A quoted line that does not end takes the rest of the text.
  void SetDelimitedText(const QString& text);
  /// Comma by default.
  QChar GetDelimiter() const;
  void SetDelimiter(QChar value);
  /// Double quote by default; the NUL character stands for no quoting at all.
  QChar GetQuoteChar() const;
  void SetQuoteChar(QChar value);
  /// False by default.
  bool GetStrictDelimiter() const;
  void SetStrictDelimiter(bool value);

  /// Reads the text of a file in UTF-8, UTF-16 with a byte-order mark, or an old 8-bit file (Windows-1252). Raises
  /// EFOpenError 'Cannot open file "%s". %s' or EReadError, and leaves the list as it is then.
  virtual void LoadFromFile(const QString& fileName);
  /// The same from the present position of an open device to its end.
  virtual void LoadFromStream(QIODevice& stream);
  /// Writes the text in UTF-8 without a byte-order mark. The file is replaced when all is written, or else stays what
  /// it was. Raises EFCreateError 'Cannot create file "%s". %s' or EWriteError.
  virtual void SaveToFile(const QString& fileName);
  virtual void SaveToStream(QIODevice& stream);

  /// Brackets nest; what they hold back is up to SetUpdateState().
  void BeginUpdate();
  void EndUpdate();
  int GetUpdateCount() const { return FUpdateCount; }

 protected:
  TStrings();

  void DefineProperties(TFiler& filer) override;

  virtual QString Get(int index) = 0;
  /// Deletes the line and inserts the new one with the same object, here.
  virtual void Put(int index, const QString& text);
  virtual TObject* GetObject(int) const { return nullptr; }
  virtual void PutObject(int, TObject*) {}
  virtual QString GetTextStr();
  virtual void SetTextStr(const QString& text);
  /// Called by the outermost BeginUpdate() before and by the outermost EndUpdate() after the bracket counts.
  virtual void SetUpdateState(bool /*updating*/) {}
  /// Negative, 0 or positive; without regard to case, by the rules of the language, here.
  virtual int CompareStrings(QStringView a, QStringView b) const;
  /// The name part of a line.
  QString ExtractName(const QString& line) const;
  /// Raises EStringListError with a message that may hold one %d.
  [[noreturn]] static void Error(QLatin1StringView message, int data);

 private:
  struct TSettings;

  const TSettings& Settings() const;
  TSettings& EnsureSettings();
  void CopySettings(const TStrings& source);
  void AddLines(QStringView text);
  void AddLinesEndedBy(QStringView text, const QString& lineBreak);

  /// Null while all settings are the default ones.
  std::unique_ptr<TSettings> FSettings;
  // Last: descendants lay small members right behind it.
  int FUpdateCount = 0;
};

}  // namespace kt
