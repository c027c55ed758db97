#pragma once

#include <QString>

namespace kavor {

// Drawn stand-ins for the catalogue's pictures and a menu of three pages; written into a folder.
void writeGalleryPictures(const QString& folder);
void writeGalleryPdf(const QString& path);

} // namespace kavor
