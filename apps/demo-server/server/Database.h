#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <mutex>
#include <string>
#include <variant>
#include <vector>

struct sqlite3;

namespace kavor::demo {

/// A value that goes into a statement.
using SqlValue = std::variant<std::nullptr_t, std::int64_t, std::string>;

/// A row of an answer; columns are counted from 0 and read as what they are asked for.
class SqlRow {
public:
    explicit SqlRow(std::vector<SqlValue> columns)
        : columns_(std::move(columns)) {}
    bool isNull(size_t column) const { return std::holds_alternative<std::nullptr_t>(columns_[column]); }
    size_t size() const { return columns_.size(); }
    std::int64_t integer(size_t column) const;
    std::string text(size_t column) const;

private:
    std::vector<SqlValue> columns_;
};

/// The SQLite file with accounts, tokens, orders and documents. One statement runs at a time.
/// Throws std::runtime_error with SQLite's words when the file cannot be used.
class Database {
public:
    explicit Database(const std::string& file);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    std::vector<SqlRow> query(const std::string& sql, const std::vector<SqlValue>& values = {});

    /// Runs a statement that answers nothing; answers the id of the row that it inserted last.
    std::int64_t run(const std::string& sql, const std::vector<SqlValue>& values = {});

    /// Runs what `changes` does as one change of the file.
    void together(const std::function<void()>& changes);

private:
    void createTables();
    void addColumns();

    sqlite3* handle_ = nullptr;
    std::mutex mutex_;
};

} // namespace kavor::demo
