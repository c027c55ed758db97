#include "base/BackgroundFileWriter.h"
#include "base/Log.h"
#include "brochures/engine/TemporalBrochure.h"
#include "device/Background.h"
#include "device/UserDefaults.h"
#include "device/keychain/FileKeychain.h"
#include "orders/DraftsWithChanges.h"
#include "orders/OrderDiskManager.h"
#include "orders/services/OrderActions.h"
#include "promotions/UnfinishedPromotion.h"
#include "robust/StampedFiles.h"
#include "robust/StampedNames.h"
#include "sellingsheets/UnfinishedSheet.h"
#include "session/AppSingleton.h"
#include "session/StateFile.h"
#include "support/FakeServices.h"
#include "textile/UnfinishedTextile.h"

#include <QCoreApplication>

#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <random>

// Writes, replaces, moves and removes the client's files without end, telling each step on stdout before and
// after it is done, until somebody kills it:
//
//   kavor-kill-child FOLDER SEED FIRST-STAMP [OPERATIONS [FILE-SIZE-LIMIT]]
//
//   "> KEY STAMP"  the file is about to hold this stamp, 0 for being removed
//   "= KEY STAMP"  it does now
//   "! KEY"        it could not be done: the file holds what it held
//   "? KEY"        some of what was asked for could not be done
namespace kavor::robust {

namespace {

using Directory = OrderDiskManager::DirectoryName;

std::atomic<bool> somethingFailed = false;

class Child {
public:
    Child(std::filesystem::path folder, unsigned seed, Int firstStamp)
        : folder_(std::move(folder))
        , random_(seed)
        , stamp_(firstStamp)
        , orders_(folder_) {
        openMenu();
        promotion_ = UnfinishedPromotion::shared().open(promotionId);
        UnfinishedSheet::shared().open();
    }

    void step() {
        switch (random_() % 18) {
        case 0:
        case 1:
            return saveDraft<SaveBrochuresOrder>();
        case 2:
            return saveDraft<SaveTextileOrder>();
        case 3:
            return saveDraft<SellingSheetOrder>();
        case 4:
            return moveToOutbox();
        case 5:
            return write(std::string(state_file::applicationInformation), [this](Int stamp) {
                return state_file::write(folder_, state_file::applicationInformation,
                                         stamped<ApplicationInformation>(stamp));
            });
        case 6:
            return write(std::string(state_file::loginResult), [this](Int stamp) {
                return state_file::write(folder_, state_file::loginResult, stamped<LoginResult>(stamp));
            });
        case 7:
            return writeTemporaryCopy();
        case 8:
            return openMenu() && random_() % 3 == 0 ? removeTemporaryCopy() : void();
        case 9:
            return storeNetPrices();
        case 10:
            return deleteAndUndo();
        case 11:
            return write(defaultsKey, [this](Int stamp) {
                FileUserDefaults(folder_ / defaultsKey).setInteger(QStringLiteral("stamp"), stamp);
                return !somethingFailed;
            });
        case 12:
            return copy();
        case 13:
            return noteChanges();
        case 14:
            return workOnPromotion();
        case 15:
            return workOnTextile();
        case 16:
            return workOnSheet();
        default:
            return write(keychainKey, [this](Int stamp) {
                FileKeychain keychain(folder_ / keychainKey);
                const auto secret = stampedSecret(stamp);
                const auto status = keychain.update(secret);
                return (status == KeychainStatus::NotFound ? keychain.add(secret) : status) ==
                       KeychainStatus::Success;
            });
        }
    }

private:
    static void tell(char sign, const std::string& key, std::optional<Int> stamp = std::nullopt) {
        const std::string line =
            std::string(1, sign) + " " + key + (stamp ? " " + std::to_string(*stamp) : "") + "\n";
        if (::write(STDOUT_FILENO, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
            ::_exit(1);
    }

    void begin(const std::string& key, Int stamp) {
        somethingFailed = false;
        tell('>', key, stamp);
    }

    template <class Operation>
    void write(const std::string& key, Operation operation) {
        const Int stamp = ++stamp_;
        begin(key, stamp);
        if (operation(stamp))
            tell('=', key, stamp);
        else
            tell('!', key);
    }

    template <class Operation>
    void remove(const std::string& key, Operation operation) {
        begin(key, 0);
        if (operation())
            tell('=', key, 0);
        else
            tell('!', key);
    }

    // After what is done in the background.
    void tellOutcome(const std::string& key, Int stamp) {
        BackgroundFileWriter::shared().flush();
        if (somethingFailed)
            tell('?', key);
        else
            tell('=', key, stamp);
    }

    template <class Order>
    static std::string keyOf(const std::string& name, Directory directory) {
        return std::string("orders/") + (directory == Directory::draft ? "draft_orders/" : "outbox_orders/") +
               std::string(Order::folderName) + "/" + OrderDiskManager::fileName(name);
    }

    std::string anyName() { return "Pedido nº " + std::to_string(random_() % 4); }

    template <class Order>
    void save(const std::string& name, Directory directory) {
        write(keyOf<Order>(name, directory), [&](Int stamp) {
            const auto order = stamped<Order>(stamp);
            return orders_.exists<Order>(name, directory)
                       ? orders_.update(order, OrderDiskManager::fileName(name), directory)
                       : orders_.create(order, directory, name);
        });
    }

    template <class Order>
    void saveDraft() {
        save<Order>(anyName(), Directory::draft);
    }

    void removeOrder(const std::string& name, Directory directory) {
        remove(keyOf<SaveBrochuresOrder>(name, directory), [&] {
            return orders_.remove<SaveBrochuresOrder>(OrderDiskManager::fileName(name), directory);
        });
    }

    // The order stands in the outbox before its draft goes. Now and then the outbox is sent.
    void moveToOutbox() {
        const std::string name = anyName();
        if (orders_.exists<SaveBrochuresOrder>(name, Directory::draft)) {
            save<SaveBrochuresOrder>(name, Directory::outbox);
            if (!somethingFailed)
                removeOrder(name, Directory::draft);
        } else if (orders_.exists<SaveBrochuresOrder>(name, Directory::outbox)) {
            removeOrder(name, Directory::outbox);
        }
    }

    // A draft that is deleted comes back as it was, or goes for good.
    void deleteAndUndo() {
        const std::string name = anyName();
        const std::string file = OrderDiskManager::fileName(name);
        const std::string key = keyOf<SaveBrochuresOrder>(name, Directory::draft);
        const auto stamp = stampIn(folder_, key);
        if (!stamp || *stamp == 0)
            return;
        bool isAside = false;
        remove(key, [&] {
            isAside = orders_.setAside<SaveBrochuresOrder>(file, Directory::draft);
            return isAside;
        });
        if (isAside && random_() % 2 == 0) {
            begin(key, *stamp);
            if (orders_.bringBack<SaveBrochuresOrder>(file, Directory::draft))
                tell('=', key, *stamp);
            else
                tell('!', key);
        } else if (isAside) {
            orders_.removeSetAside<SaveBrochuresOrder>(file, Directory::draft);
        }
    }

    // A sent order becomes a draft, over another one of its name or not.
    void copy() {
        const std::string name = anyName();
        write(keyOf<SaveBrochuresOrder>(name, Directory::draft), [&](Int stamp) {
            std::optional<bool> stored;
            actions_.storeCopy(stamped<SaveBrochuresOrder>(stamp), name, actions_.draftExists(name),
                               [&](bool isStored) { stored = isStored; });
            while (!stored)
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            return *stored;
        });
    }

    // A further draft has changes and the others are at the server by now, or all are.
    void noteChanges() {
        auto& drafts = DraftsWithChanges::shared();
        const std::string key(state_file::draftsWithChanges);
        const auto former = drafts.names();
        const bool there = !former.empty() && stampIn(folder_, key).value_or(0) != 0;
        const Int stamp = there && random_() % 4 == 0 ? 0 : ++stamp_;
        begin(key, stamp);
        if (stamp > 0)
            drafts.add(stampedName(stamp));
        for (const auto& name : former)
            drafts.remove(name);
        tellOutcome(key, stamp);
    }

    // Opens this or the other section: the menu of the one that is left is set aside.
    // Answers whether there was one to come back.
    bool openMenu() {
        kind_ = menuKinds[random_() % std::size(menuKinds)];
        AppSingleton::shared().actualSection = SectionIdentifier::brochure(kind_);
        return TemporalBrochure::shared().takeForOpening(kind_).has_value();
    }

    // Several wishes at once: the latest wins.
    void writeTemporaryCopy() {
        auto& draft = *BrochureIntermediateData::temporalBrochure();
        for (unsigned times = 1 + random_() % 3; times > 0; --times) {
            draft.sourceIdentifier = draft.orderIdentifier = ++stamp_;
            if (times > 1)
                tell('>', menuKey(kind_), stamp_);
            else
                begin(menuKey(kind_), stamp_);
            TemporalBrochure::shared().write(draft);
        }
        tellOutcome(menuKey(kind_), stamp_);
    }

    void removeTemporaryCopy() {
        begin(menuKey(kind_), 0);
        TemporalBrochure::shared().removeAll();
        tellOutcome(menuKey(kind_), 0);
    }

    // The order of a promotion is opened, sent, or written on.
    void workOnPromotion() {
        const std::string key(state_file::promotionDraft);
        auto& unfinished = UnfinishedPromotion::shared();
        const unsigned chance = random_() % 6;
        if (chance == 0) {
            promotion_ = unfinished.open(promotionId);
            return;
        }
        Int stamp = 0;
        if (chance == 1 && stampIn(folder_, key).value_or(0) != 0) {
            begin(key, stamp);
            unfinished.sent(*promotion_);
        } else {
            stamp = ++stamp_;
            begin(key, stamp);
            *promotion_ = stamped<PromotionDraft>(stamp);
            unfinished.keep(*promotion_);
        }
        tellOutcome(key, stamp);
    }

    // The order of clothing is opened, begun anew, or written on.
    void workOnTextile() {
        const std::string key(state_file::textileDraft);
        auto& unfinished = UnfinishedTextile::shared();
        const unsigned chance = random_() % 6;
        if (chance == 0)
            return unfinished.open();
        Int stamp = 0;
        if (chance == 1 && stampIn(folder_, key).value_or(0) != 0) {
            begin(key, stamp);
            unfinished.beginAnew();
        } else {
            stamp = ++stamp_;
            begin(key, stamp);
            TextileIntermediateData::setShared(
                std::make_shared<TextileIntermediateData>(draftOf(stamped<TextileDraftRecord>(stamp))));
            unfinished.keep();
        }
        tellOutcome(key, stamp);
    }

    // The sheet in work comes back, is stored elsewhere, or is written on.
    void workOnSheet() {
        const std::string key(UnfinishedSheet::stateFile);
        auto& unfinished = UnfinishedSheet::shared();
        const unsigned chance = random_() % 6;
        if (chance == 0) {
            unfinished.open();
            return;
        }
        Int stamp = 0;
        if (chance == 1 && stampIn(folder_, key).value_or(0) != 0) {
            begin(key, stamp);
            unfinished.removeAll();
        } else {
            stamp = ++stamp_;
            begin(key, stamp);
            StyleSingleton::shared() = {stamped<SellingSheetOrder>(stamp), std::to_string(stamp)};
            unfinished.keep();
        }
        tellOutcome(key, stamp);
    }

    void storeNetPrices() {
        auto& draft = *BrochureIntermediateData::temporalBrochure();
        draft.netPrices = stamped<BrochureIntermediateData::NetPrices>(++stamp_);
        begin(std::string(state_file::netPrices), stamp_);
        draft.storeNetPrices();
        tellOutcome(std::string(state_file::netPrices), stamp_);
    }

    static constexpr Int promotionId = 1;

    std::filesystem::path folder_;
    std::mt19937 random_;
    Int stamp_;
    BrochureType kind_ = BrochureType::beer;
    std::shared_ptr<PromotionDraft> promotion_;
    OrderDiskManager orders_;
    FakeServices network_; // nothing is asked of it
    OrderActions actions_{network_, orders_};
};

int run(int argc, char** argv) {
    if (argc < 4)
        return 64;
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    atomic_file::survivePassingTheSizeLimit();
    if (argc > 5) {
        const rlimit limit{std::strtoul(argv[5], nullptr, 10), std::strtoul(argv[5], nullptr, 10)};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    const QCoreApplication application(argc, argv); // what is done in the background comes back by its events
    const BackgroundWorkEnd backgroundWork;
    setLogSink([](const LogEntry&) { somethingFailed = true; });
    auto& session = AppSingleton::shared();
    session.setFolders(argv[1], argv[1]);
    session.applicationInformation = std::make_shared<const Catalogue>(stamped<ApplicationInformation>(1));
    Child child(argv[1], static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)), std::atoll(argv[3]));
    const long operations = argc > 4 ? std::atol(argv[4]) : 0;
    for (long done = 0; operations == 0 || done < operations; ++done)
        child.step();
    return 0;
}

} // namespace

} // namespace kavor::robust

int main(int argc, char** argv) {
    return kavor::robust::run(argc, argv);
}
