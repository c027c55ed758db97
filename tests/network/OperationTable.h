#pragma once

#include "NetworkFixture.h"

#include <QByteArray>

#include <functional>
#include <ostream>
#include <vector>

namespace kavor {

// One operation of the backend: how it is called, what it sends, and an answer that it takes.
struct OperationCase {
    QByteArray method;
    QByteArray target; // path and query behind "/api"; its first part is the operation's name
    QByteArray form;   // the body when it is a form
    QByteArray answer;
    std::function<void(NetworkManager&, Outcome&)> start;
    bool changesServer = false;
    std::vector<QByteArray> bodyHas = {}; // pieces of a JSON body
    bool takesAnyDocument = false;

    [[nodiscard]] std::string name() const {
        return target.mid(1).split('?').first().split('/').first().toStdString();
    }
    [[nodiscard]] QByteArray path() const { return "/api" + target.split('?').first(); }
    friend std::ostream& operator<<(std::ostream& out, const OperationCase& each) {
        return out << each.name();
    }
};

const std::vector<OperationCase>& everyOperation();

} // namespace kavor
