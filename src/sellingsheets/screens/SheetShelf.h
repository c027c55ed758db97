#pragma once

#include "catalogue/Catalogue.h"
#include "orders/OrderDiskManager.h"
#include "sellingsheets/SellingSheetOrder.h"
#include "sellingsheets/screens/SheetListModel.h"

#include <QDate>

#include <optional>
#include <string>
#include <vector>

namespace kavor {

// The drafts of selling sheets on the device.
namespace sheet_shelf {

// A draft with the plain name of its file.
struct Draft {
    std::string filename;
    SellingSheetOrder order;
    OrderDiskManager::Listing file;
};

struct Drafts {
    std::vector<Draft> drafts; // the latest file first
    bool isComplete = true;    // otherwise some could not be read
};

// Reads the drafts; for any thread. A well-formed file that is no sheet stops the process.
Drafts readDrafts(const OrderDiskManager& orders);
// Stores a sheet under its name, or under one made of the moment; answers the plain name.
std::optional<std::string> store(const OrderDiskManager& orders, const SellingSheetOrder& order,
                                 const std::optional<std::string>& filename, const LocalDateTime& now);

SheetListRow rowOf(const Draft& draft, const Catalogue& catalogue, QDate today);
SheetListRow rowOf(const SellingSheetOrder& sent, const Catalogue& catalogue, QDate today);

} // namespace sheet_shelf

} // namespace kavor
