#include "interaction/AlertPresenter.h"

#include <QVariantMap>

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

QString roleName(AlertButton::Role role) {
    switch (role) {
    case AlertButton::Role::Cancel:
        return QStringLiteral("cancel");
    case AlertButton::Role::Destructive:
        return QStringLiteral("destructive");
    case AlertButton::Role::Normal:
        break;
    }
    return QStringLiteral("normal");
}

} // namespace

AlertPresenter::AlertPresenter(QObject* parent)
    : QObject(parent) {}

void AlertPresenter::present(AlertRequest request, QObject* context, Callback callback) {
    if (context != nullptr)
        connect(context, &QObject::destroyed, this, &AlertPresenter::dropOrphans, Qt::UniqueConnection);
    queue_.push_back({std::move(request), context != nullptr, context, std::move(callback)});
    if (queue_.size() == 1)
        emit changed();
}

void AlertPresenter::inform(const QString& title, const QString& text, QObject* context,
                            std::function<void()> callback) {
    AlertRequest request;
    request.title = title;
    request.text = text;
    request.buttons = {{QStringLiteral("Aceptar"), AlertButton::Role::Cancel}};
    present(std::move(request), context, [callback = std::move(callback)](const AlertAnswer&) {
        if (callback)
            callback();
    });
}

const AlertRequest* AlertPresenter::current() const {
    return queue_.empty() ? nullptr : &queue_.front().request;
}

QString AlertPresenter::title() const {
    return current() ? current()->title : QString();
}
QString AlertPresenter::text() const {
    return current() ? current()->text : QString();
}

QVariantList AlertPresenter::buttons() const {
    QVariantList list;
    if (const AlertRequest* alert = current()) {
        for (const AlertButton& button : alert->buttons)
            list.append(QVariantMap{{QStringLiteral("text"), button.text},
                                    {QStringLiteral("role"), roleName(button.role)}});
    }
    return list;
}

bool AlertPresenter::hasTextField() const {
    return current() && current()->textField.has_value();
}
QString AlertPresenter::fieldCaption() const {
    return hasTextField() ? current()->textField->caption : QString();
}
QString AlertPresenter::fieldInitialText() const {
    return hasTextField() ? current()->textField->initialText : QString();
}
int AlertPresenter::fieldMaximumLength() const {
    return hasTextField() ? current()->textField->maximumLength : 0;
}
QStringList AlertPresenter::choices() const {
    return current() ? current()->choices : QStringList();
}

void AlertPresenter::answerButton(int index, const QString& text) {
    if (current() != nullptr && index >= 0 && index < current()->buttons.size())
        finish({index, -1, text});
}

void AlertPresenter::answerChoice(int index) {
    if (current() != nullptr && index >= 0 && index < current()->choices.size())
        finish({-1, index, {}});
}

void AlertPresenter::finish(const AlertAnswer& answer) {
    Entry entry = std::move(queue_.front());
    queue_.pop_front();
    emit changed();
    if (entry.callback && (!entry.bound || entry.context))
        entry.callback(answer);
}

void AlertPresenter::dropOrphans() {
    const auto before = queue_.size();
    std::erase_if(queue_, [](const Entry& entry) { return entry.bound && !entry.context; });
    if (queue_.size() != before)
        emit changed();
}

} // namespace kavor
