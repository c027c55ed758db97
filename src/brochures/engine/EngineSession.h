#pragma once

#include "catalogue/Catalogue.h"
#include "session/StateFile.h"
#include "session/UnfinishedWork.h"

#include <filesystem>
#include <optional>
#include <vector>

// What the engine asks of the session; nothing else of the engine includes the session's headers.
namespace kavor::engine {

// The catalogue; the process stops without one.
const Catalogue& catalogue();
// Puts brands that the user added into the catalogue and has it stored.
void addProducts(std::vector<Product> made);
// The kind of brochure of the section entered, none outside a brochure section.
std::optional<BrochureType> sectionKind();
// Whether the user that is logged in must give a customer code.
bool isCustomerCodeRequired();
// Where the state files lie; empty where nothing is kept.
const std::filesystem::path& documentsFolder();

} // namespace kavor::engine
