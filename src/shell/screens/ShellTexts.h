#pragma once

#include <QString>

#include <optional>

namespace kavor {

class AppSingleton;

// "v 1.0.0.42": version and compilation of the application.
QString versionText(const AppSingleton& session);

// "Catálogo actualizado hace 5 minutos"; empty when that is not known.
QString catalogueAgeText(std::optional<qint64> seconds);

// "3 pedidos sin enviar"; empty for none.
QString unsentOrdersText(int count);

} // namespace kavor
