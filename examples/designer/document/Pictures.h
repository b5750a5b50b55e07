#pragma once

#include <QString>

#include <vector>

namespace kt {
class TComponent;
class TCustomImageList;
class TObject;
}  // namespace kt

namespace designer {

/// Reads the file into a picture, or into a graphic of the file's kind. Raises what these raise when they cannot take
/// it; what they show stays then.
void LoadPicture(kt::TObject& picture, const QString& fileName);
/// Whether one of the components has a picture that is not empty.
bool HasPicture(const std::vector<kt::TComponent*>& components);
/// Empties all of their pictures.
void ClearPictures(const std::vector<kt::TComponent*>& components);

/// Adds what is in the file to a list: a row of pictures where it is as high as those of the list and several times as
/// wide, else one that is brought to their size. Raises EDocumentError for a file without a picture.
void AddImageFile(kt::TCustomImageList& list, const QString& fileName);

}  // namespace designer
