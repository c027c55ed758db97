#pragma once

#include "textile/screens/TextileDesk.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <chrono>
#include <optional>

namespace kavor {

// The cart of the draft on the screen: its lines, its total against the minimum, and taking a line out, which
// can be undone for a while.
class TextileCart : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the step")
    Q_PROPERTY(kavor::TextileCartModel* lines READ lines CONSTANT)
    // "Referencias: 2 unidades: 31"
    Q_PROPERTY(QString summary READ summary NOTIFY changed)
    // How much of the minimum there is, from 0 to 1; what is missing, "Faltan 4"; empty without a minimum.
    Q_PROPERTY(double share READ share NOTIFY changed)
    Q_PROPERTY(QString minimumText READ minimumText NOTIFY changed)
    Q_PROPERTY(bool enough READ isEnough NOTIFY changed)
    // What was taken out and can be brought back; empty without any.
    Q_PROPERTY(QString undoText READ undoText NOTIFY undoChanged)

public:
    static constexpr std::chrono::seconds undoTime{8};

    // The desk outlives it.
    explicit TextileCart(TextileDesk& desk, QObject* parent = nullptr);
    ~TextileCart() override;

    Q_INVOKABLE void askToDelete(const QString& key);
    Q_INVOKABLE void undoDelete();
    // "Deslice hacia arriba para eliminar el elemento."
    Q_INVOKABLE void helpAction();

    [[nodiscard]] TextileCartModel* lines() { return &lines_; }
    [[nodiscard]] QString summary() const;
    [[nodiscard]] double share() const;
    [[nodiscard]] QString minimumText() const;
    [[nodiscard]] bool isEnough() const;
    [[nodiscard]] QString undoText() const;

signals:
    void changed();
    void undoChanged();

private:
    struct Removed {
        TextileIntermediateData::OrderItem line;
        std::size_t place = 0;
        QString name;
    };

    void reload();
    void deleteLine(const QString& key);
    void endUndo();

    TextileDesk& desk_;
    TextileCartModel lines_;
    std::optional<Removed> removed_;
    quint64 undoTimer_ = 0;
};

} // namespace kavor
