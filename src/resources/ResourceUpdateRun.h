#pragma once

#include "interaction/PendingRun.h"

#include <QObject>
#include <QString>

#include <functional>

namespace kavor {

class FontUpdater;
class ImageCache;
class NotificationCenter;
struct ApplicationInformation;

// The update of resources that follows each fetch of the catalogue: pictures with progress, pictures in the
// background, then fonts, and "UpdatingResourcesDidEnd" at the end. Running it again is always safe.
class ResourceUpdateRun : public QObject {
    Q_OBJECT
public:
    // How many of the pictures that are waited for have been dealt with, and their number.
    using Progress = std::function<void(int count, int total)>;

    // The collaborators outlive the run.
    ResourceUpdateRun(ImageCache& cache, FontUpdater& fonts, NotificationCenter& notifications,
                      QObject* parent = nullptr);

    // Starts a run over a catalogue, of which nothing is kept. Progress begins with 0 inside this call.
    void start(const ApplicationInformation& catalogue, const Progress& progress);

    // The run is waited for no longer: the pictures with progress stop, and nothing is told of its end.
    void leave() { run_.end(); }

    // "Actualizando imágenes 3/12"
    [[nodiscard]] static QString label(int count, int total);
    // The position of the progress indicator, from two thirds to one.
    [[nodiscard]] static double fraction(int count, int total);

signals:
    // All pictures of a run have been dealt with, also those of the background, whatever failed.
    void picturesEnded();

private:
    ImageCache& cache_;
    FontUpdater& fonts_;
    NotificationCenter& notifications_;
    PendingRun run_;
};

} // namespace kavor
