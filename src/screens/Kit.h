#pragma once

class QQmlEngine;

namespace kavor {

// Makes the QML module of the kit known; once for each engine, after registerUi.
void registerKit(QQmlEngine& engine);

} // namespace kavor
