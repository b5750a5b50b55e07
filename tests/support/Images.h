#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QStringList>

#include <string>

namespace kt::tests {

/// A picture of the given letters, one line a row: "." white, "#" black, "r" red, " " transparent.
QImage ImageOf(const QStringList& rows);
/// The letters of a picture, rows joined by "/"; "?" for other colours.
std::string LettersOf(const QImage& image);
/// A file of one picture in a format of Qt's.
QByteArray FileOf(const QImage& image, const char* format);
/// An icon file of the given pictures.
QByteArray IconOf(const QList<QImage>& images);

}  // namespace kt::tests
