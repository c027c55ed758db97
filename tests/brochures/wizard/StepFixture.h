#pragma once

#include "base/Text.h"
#include "brochures/wizard/WizardFixture.h"
#include "support/CatalogueBuilder.h"

#include <QAbstractItemModel>
#include <QStringList>

namespace kavor {

// The wizard over the small catalogue of the engine's tests, for one step at a time.
class StepTest : public WizardTest {
protected:
    CatalogueBuilder builder;

    // Enters the section of a kind with the builder's catalogue and a new draft.
    void open(BrochureType kind) {
        session.applicationInformation = builder.take();
        session.actualSection = SectionIdentifier::brochure(kind);
        BrochureIntermediateData::replaceTemporalBrochure();
    }
    void TearDown() override {
        if (session.actualSection)
            WizardTest::TearDown();
        session.isSectionDigital = false;
    }

    // One role of every row of a model, in its text form.
    static QStringList column(const QAbstractItemModel& model, int role) {
        QStringList result;
        for (int row = 0; row < model.rowCount(); ++row)
            result << model.data(model.index(row, 0), role).toString();
        return result;
    }
    static HashedResource resource(const char* key) { return {key, Url{"http://server.example/doc.pdf"}, 3}; }
};

// Several texts as one, to compare in one line.
inline std::string joined(const QStringList& texts) {
    return texts.join(QStringLiteral(" | ")).toStdString();
}

} // namespace kavor
