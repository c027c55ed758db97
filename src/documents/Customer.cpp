#include "documents/Customer.h"

#include "documents/DocumentTables.h"

KAVOR_JSON_DOCUMENT(std::vector<kavor::Customer>)
