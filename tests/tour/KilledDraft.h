#pragma once

#include <QString>

namespace kavor {

// Opens the documents folder of a tour that was killed as a new start does, and compares the draft that comes
// back with what the tour last held. Answers 0 when nothing was lost.
int checkKilledDraft(const QString& folder, const QString& documents);

} // namespace kavor
