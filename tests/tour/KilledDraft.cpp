#include "tour/KilledDraft.h"

#include "brochures/engine/TemporalBrochure.h"
#include "orders/OrderDiskManager.h"
#include "session/AppSingleton.h"
#include "session/services/SessionStore.h"
#include "tour/Tour.h"

#include <QFile>

#include <cstdio>
#include <filesystem>

namespace kavor {

int checkKilledDraft(const QString& folder, const QString& documents) {
    QFile file(folder + QStringLiteral("/expected.json"));
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "no tour was killed in %s\n", qPrintable(folder));
        return 1;
    }
    const QString expected = QString::fromUtf8(file.readAll());

    auto& session = AppSingleton::shared();
    session.setFolders(documents.toStdString(), documents.toStdString() + "-caches");
    if (!SessionStore(session).restoreSession()) {
        std::fputs("the session did not come back\n", stderr);
        return 1;
    }
    session.actualSection = SectionIdentifier::brochure(BrochureType::beer);
    const OrderDiskManager orders(documents.toStdString()); // sweeps, as every start does
    for (const auto& entry : std::filesystem::recursive_directory_iterator(documents.toStdString())) {
        if (entry.path().filename().string().starts_with(".tmp-")) {
            std::fprintf(stderr, "a temporary stayed: %s\n", entry.path().c_str());
            return 1;
        }
    }
    if (!TemporalBrochure::shared().restoreDraft()) {
        std::fputs("the draft did not come back\n", stderr);
        return 1;
    }
    const QString found = QString::fromStdString(Tour::draftDocument());
    if (found == expected)
        return 0;
    std::fprintf(stderr, "the draft came back as\n%s\ninstead of\n%s\n", qPrintable(found),
                 qPrintable(expected));
    return 1;
}

} // namespace kavor
