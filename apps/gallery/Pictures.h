#pragma once

#include <QString>

namespace Zenvora::Lumidex::Gallery {

/// Uses the fonts that the pictures are made with wherever they are, and nothing of the desktop's. To be
/// called before the first window. The fonts that are missing; empty: none.
QString UseFontsOfPictures();

/// Photographs the widgets into PNG files of a folder that exists. False: some file could not be written.
bool MakePictures(const QString& folder);

}  // namespace Zenvora::Lumidex::Gallery
