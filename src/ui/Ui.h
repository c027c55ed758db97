#pragma once

class QQmlEngine;

namespace kavor {

// Makes "import Kavor.Ui" work in this engine: types, resources, import path, the image provider of the PDF
// preview, and (once for each process) the bundled fonts, which become the application's font.
void registerUi(QQmlEngine& engine);

} // namespace kavor
