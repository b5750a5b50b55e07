#pragma once

#include <QRect>
#include <QString>
#include <QtGlobal>

namespace kt {

class TCanvas;

/// How DrawText() lays out a text; bits that are added.
enum TDrawTextFlag : quint32 {
  DT_LEFT = 0x0,
  DT_TOP = 0x0,
  DT_CENTER = 0x1,
  DT_RIGHT = 0x2,
  DT_VCENTER = 0x4,          ///< with DT_SINGLELINE
  DT_BOTTOM = 0x8,           ///< with DT_SINGLELINE
  DT_WORDBREAK = 0x10,       ///< lines end between words where the rectangle does
  DT_SINGLELINE = 0x20,      ///< line breaks count as blanks
  DT_EXPANDTABS = 0x40,      ///< tabs reach to columns; else they are blanks
  DT_NOCLIP = 0x100,         ///< may draw outside the rectangle
  DT_CALCRECT = 0x400,       ///< draws nothing: fits the rectangle to the text
  DT_NOPREFIX = 0x800,       ///< "&" is itself and does not underline what follows
  DT_END_ELLIPSIS = 0x8000,  ///< a line that does not fit ends in dots; with DT_SINGLELINE
  DT_RTLREADING = 0x20000
};

/// Draws `text` of several lines into `rect` with the canvas's font, on no ground, and answers the height of the text.
/// With DT_CALCRECT, which needs no painter, it gives `rect` the size of the text instead; with DT_WORDBREAK the lines
/// end where `rect` did, and it becomes wider only for a word that is. `flags` are TDrawTextFlag values added up.
int DrawText(TCanvas& canvas, const QString& text, QRect& rect, quint32 flags);

}  // namespace kt
