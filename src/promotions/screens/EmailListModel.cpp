#include "promotions/screens/EmailListModel.h"

#include "interaction/QtText.h"

#include <QRegularExpression>

namespace kavor {

namespace {

// What no server of mail would take; the order goes all the same.
QString errorOf(const QString& text) {
    static const QRegularExpression address(QStringLiteral("^[^@\\s]+@[^@\\s]+\\.[^@\\s.]+$"));
    return text.isEmpty() || address.match(text).hasMatch() ? QString()
                                                            : QStringLiteral("Revisa esta dirección.");
}

} // namespace

EmailListModel::EmailListModel(QObject* parent)
    : RowListModel(parent) {
    show({});
}

void EmailListModel::show(const std::vector<std::string>& emails) {
    std::vector<EmailRow> rows;
    rows.reserve(emails.size());
    for (const std::string& email : emails)
        rows.push_back({++lastNumber_, fromUtf8(email)});
    if (rows.empty())
        rows.push_back({++lastNumber_, {}});
    rows_.show(std::move(rows));
}

std::vector<std::string> EmailListModel::texts() const {
    std::vector<std::string> texts;
    for (const EmailRow& row : rows_.all())
        texts.push_back(row.text.toStdString());
    return texts;
}

void EmailListModel::edit(int row, const QString& text) {
    const EmailRow* content = rows_.at(row);
    if (!content || content->text == text)
        return;
    rows_.set(row, {content->number, text}, {TextRole, ErrorRole});
    emit edited();
}

void EmailListModel::add() {
    if (rows_.all().back().text.isEmpty())
        return;
    std::vector<EmailRow> rows = rows_.all();
    rows.push_back({++lastNumber_, {}});
    rows_.show(std::move(rows));
    emit edited();
}

void EmailListModel::remove(int row) {
    if (!rows_.at(row))
        return;
    std::vector<EmailRow> rows = rows_.all();
    rows.erase(rows.begin() + row);
    if (rows.empty())
        rows.push_back({++lastNumber_, {}});
    rows_.show(std::move(rows));
    emit edited();
}

QVariant EmailListModel::data(const QModelIndex& index, int role) const {
    const EmailRow* row = rows_.at(index);
    if (!row)
        return {};
    return role == TextRole ? row->text : role == ErrorRole ? errorOf(row->text) : QVariant();
}

QHash<int, QByteArray> EmailListModel::roleNames() const {
    return {{TextRole, "text"}, {ErrorRole, "error"}};
}

} // namespace kavor
