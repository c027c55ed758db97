#include "brochures/engine/PriceRecommendationTable.h"

KAVOR_JSON_DOCUMENT(kavor::PriceRecommendationResponse)
