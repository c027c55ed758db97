#pragma once

#include <QDate>
#include <QString>

#include <string>

// The forms of a sheet's dates: "yyyy-MM-dd" in the order, "dd/MM/yyyy" on the screen.
namespace kavor::sheet_dates {

// The date of an order's text; one that is not valid for no date.
QDate read(const std::string& stored);
// The order's text of a date; empty for one that is not valid.
std::string write(QDate date);
// As the screen shows it; empty for no date.
QString shown(const std::string& stored);
// "Del 01/06/2024 al 30/06/2024" and its shorter forms; empty without dates.
QString validity(const std::string& from, const std::string& to);

} // namespace kavor::sheet_dates
