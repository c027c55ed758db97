#pragma once

class QQmlEngine;

namespace kavor {

// Makes "import Kavor.Ui" work in this engine: types, resources, import path, the image provider of the PDF
// preview.
void registerUi(QQmlEngine& engine);

// Makes the bundled fonts known, and one of them the application's font; the first call of a process does
// it. To be made before the first window.
void useBundledFonts();

} // namespace kavor
