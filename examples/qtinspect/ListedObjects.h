#pragma once

#include <QString>

#include <vector>

class QObject;

/// Inspecting the windows of a Qt program that knows nothing of it.
namespace qtinspect {

/// Whether an object is one that its program's author put there, as far as can be told; false for what Qt's widgets
/// are made of, such as the line edit of a spin box.
bool IsListed(const QObject& object);
/// What is listed below an object: its children, and what stands in parts of it that are not listed themselves, such as
/// the pages of a tab widget.
std::vector<QObject*> ListedChildren(const QObject& object);
/// The object itself, or the listed one that it is a part of; null for null.
QObject* ListedAround(QObject* object);
/// "ok: QPushButton", or the class alone for an object without a name.
QString TitleOf(const QObject& object);

}  // namespace qtinspect
