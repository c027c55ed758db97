#pragma once

#include "brochures/engine/BrochureIntermediateData.h"
#include "catalogue/ApplicationInformation.h"
#include "device/keychain/KeychainStore.h"
#include "promotions/PromotionDraft.h"
#include "sellingsheets/SellingSheetOrder.h"
#include "session/LoginResult.h"
#include "textile/TextileDraftRecord.h"

#include <filesystem>
#include <optional>
#include <string>

// Every kind of file that the client writes, with a number in two far places of its content: a mixture of two
// versions shows two numbers, a torn file none.
namespace kavor::robust {

// Which file, by its path below the documents folder. The unfinished menu of a kind is one key with three
// places: the temporary copy, the recovery copy, and the one that is set aside, which gives the key.
inline const std::string temporaryCopyName = "temporalBrochure";
inline const std::string recoveryCopyName = "temporalBrochure.recovery";
inline const std::string recoveryEnding = ".recovery"; // of other unfinished work, whose key is the copy's
inline constexpr BrochureType menuKinds[] = {BrochureType::beer, BrochureType::wineA4};
std::string menuKey(BrochureType kind);
inline const std::string defaultsKey = "UserDefaults";
inline const std::string keychainKey = ".keychain/items";

template <class Record>
Record stamped(Int stamp);
// Every fourth catalogue is about six megabytes large, the others are small.
template <>
ApplicationInformation stamped(Int stamp);
template <>
LoginResult stamped(Int stamp);
template <>
SaveBrochuresOrder stamped(Int stamp);
template <>
SaveTextileOrder stamped(Int stamp);
template <>
SellingSheetOrder stamped(Int stamp);
template <>
BrochureIntermediateData::NetPrices stamped(Int stamp);
template <>
PromotionDraft stamped(Int stamp);
template <>
TextileDraftRecord stamped(Int stamp);
KeychainItem stampedSecret(Int stamp);

// The number in a file: 0 when it is missing, nothing when it doesn't decode, when its two numbers differ,
// when anything follows the document, or when others than the owner may read it.
std::optional<Int> stampIn(const std::filesystem::path& documents, const std::string& key);

} // namespace kavor::robust
