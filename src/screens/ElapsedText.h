#pragma once

#include <QString>

namespace kavor {

// A number with its noun: "1 pedido", "3 pedidos".
QString countOf(qint64 count, const char* one, const char* many);
// How long ago something was: "un momento", "5 minutos", "2 días".
QString elapsedText(qint64 seconds);

} // namespace kavor
