#include "catalogue/ApplicationInformation.h"

#include "catalogue/ApplicationInformationTables.h"

KAVOR_JSON_DOCUMENT(kavor::ApplicationInformation)
