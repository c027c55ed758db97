#include "screens/RowListModel.h"

#include <QPersistentModelIndex>

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace kavor {

namespace {

struct Entry {
    int id = 0;
    std::string text = {};
    bool operator==(const Entry&) const = default;

    struct Key {
        int operator()(const Entry& entry) const { return entry.id; }
    };
};

class Entries : public RowListModel {
public:
    RowList<Entry, Entry::Key> rows{*this};

    [[nodiscard]] QVariant data(const QModelIndex& index, int /*role*/) const override {
        const Entry* entry = rows.at(index);
        return entry ? QVariant(QString::fromStdString(std::to_string(entry->id) + entry->text)) : QVariant();
    }
};

// A view: knows of the rows only what the model tells.
class View : public QObject {
public:
    explicit View(Entries& model)
        : model_(model) {
        using Model = QAbstractItemModel;
        for (int row = 0; row < model.rowCount(); ++row)
            texts << textOf(row);
        connect(&model, &Model::rowsInserted, this, [this](const QModelIndex&, int first, int last) {
            for (int row = first; row <= last; ++row)
                texts.insert(row, textOf(row));
            ++steps;
        });
        connect(&model, &Model::rowsRemoved, this, [this](const QModelIndex&, int first, int last) {
            texts.remove(first, last - first + 1);
            ++steps;
        });
        connect(&model, &Model::rowsMoved, this,
                [this](const QModelIndex&, int first, int last, const QModelIndex&, int to) {
                    const QStringList moved = texts.mid(first, last - first + 1);
                    texts.remove(first, moved.size());
                    for (int i = 0; i < moved.size(); ++i)
                        texts.insert((to > first ? to - int(moved.size()) : to) + i, moved[i]);
                    ++steps;
                });
        connect(&model, &Model::dataChanged, this, [this](const QModelIndex& first, const QModelIndex& last) {
            for (int row = first.row(); row <= last.row(); ++row)
                texts[row] = textOf(row);
            repainted += last.row() - first.row() + 1;
        });
        connect(&model, &Model::modelReset, this, [] { FAIL() << "the list was reset"; });
    }
    void expectToShow(const std::vector<Entry>& wanted) const {
        QStringList all;
        for (const Entry& entry : wanted)
            all << QString::fromStdString(std::to_string(entry.id) + entry.text);
        EXPECT_EQ(texts.join(u' '), all.join(u' '));
    }
    QStringList texts;
    int steps = 0;
    int repainted = 0;

private:
    [[nodiscard]] QString textOf(int row) const { return model_.data(model_.index(row), 0).toString(); }
    Entries& model_;
};

std::vector<Entry> listOf(const std::vector<int>& ids) {
    std::vector<Entry> list;
    for (const int id : ids)
        list.push_back({id});
    return list;
}

TEST(RowListModel, AnyListBecomesAnyOtherAndAViewThatFollowsShowsIt) {
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same lists each time
    Entries model;
    View view(model);
    for (int round = 0; round < 400; ++round) {
        std::vector<Entry> wanted;
        const unsigned size = round % 10 == 0 ? 200 : 12; // now and then more than is changed run by run
        for (int id = 0; id < int(size); ++id) {
            if (random() % 3 != 0)
                wanted.push_back({id, random() % 4 == 0 ? "!" : ""});
        }
        if (round % 2 == 0)
            std::ranges::shuffle(wanted, random);
        if (round % 5 == 0)
            model.rows.showInPlaces(wanted);
        else
            model.rows.show(wanted);
        view.expectToShow(wanted);
        ASSERT_EQ(model.count(), int(wanted.size()));
        ASSERT_FALSE(testing::Test::HasFailure()) << "round " << round;
    }
}

TEST(RowListModel, AChangeIsOneStepAndRowsThatStayAreNotPaintedAnew) {
    struct Case {
        const char* what;
        std::vector<int> wanted;
        int steps;
    };
    for (const Case& each :
         {Case{"nothing", {1, 2, 3, 4, 5, 6}, 0}, Case{"a run goes", {1, 5, 6}, 1},
          Case{"a run comes", {1, 2, 7, 8, 9, 3, 4, 5, 6}, 1}, Case{"one goes down", {2, 3, 4, 1, 5, 6}, 1},
          Case{"one comes up", {1, 6, 2, 3, 4, 5}, 1}, Case{"a run comes up", {4, 5, 1, 2, 3, 6}, 1},
          Case{"the rest goes", {1, 2}, 1}, Case{"one is replaced", {1, 2, 3, 7, 5, 6}, 2},
          Case{"all go", {}, 1}}) {
        Entries model;
        model.rows.show(listOf({1, 2, 3, 4, 5, 6}));
        View view(model);
        const QPersistentModelIndex second(model.index(1));
        model.rows.show(listOf(each.wanted));
        EXPECT_EQ(view.steps, each.steps) << each.what;
        EXPECT_EQ(view.repainted, 0) << each.what;
        const bool stays = std::ranges::find(each.wanted, 2) != each.wanted.end();
        EXPECT_EQ(second.isValid(), stays) << each.what;
        EXPECT_EQ(second.data().toString(), stays ? "2" : "") << each.what;
    }
}

TEST(RowListModel, ALongListThatIsTurnedRoundChangesInFewSteps) {
    std::vector<int> ids(5000);
    std::ranges::generate(ids, [id = 0]() mutable { return id++; });
    Entries model;
    model.rows.show(listOf(ids));
    View view(model);
    std::ranges::reverse(ids);
    model.rows.show(listOf(ids));
    EXPECT_LE(view.steps, 50);
    EXPECT_EQ(model.rows.at(0)->id, 4999);
    EXPECT_EQ(model.rows.at(4999)->id, 0);
}

TEST(RowListModel, RowsThatDifferArePaintedAnewAndInATableEachPlaceStays) {
    Entries model;
    model.rows.show(listOf({1, 2, 3, 4}));
    View view(model);
    const std::vector<Entry> changed{{1}, {2, "b"}, {3, "c"}, {4}};
    model.rows.show(changed);
    EXPECT_EQ(view.repainted, 2);
    view.expectToShow(changed);
    const QPersistentModelIndex first(model.index(0));
    const std::vector<Entry> sorted{{4}, {3, "c"}, {1}};
    model.rows.showInPlaces(sorted);
    view.expectToShow(sorted);
    EXPECT_EQ(view.steps, 1) << "the row that went";
    EXPECT_EQ(first.data().toString(), "4");
}

} // namespace
} // namespace kavor
