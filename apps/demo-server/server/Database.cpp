#include "server/Database.h"

#include <sqlite3.h>

#include <memory>
#include <stdexcept>

namespace kavor::demo {

namespace {

using Statement = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

Statement prepared(sqlite3* handle, const std::string& sql, const std::vector<SqlValue>& values) {
    sqlite3_stmt* raw = nullptr;
    if (sqlite3_prepare_v2(handle, sql.c_str(), int(sql.size()), &raw, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(handle));
    }
    Statement statement(raw, &sqlite3_finalize);
    int place = 1;
    for (const SqlValue& value : values) {
        if (const auto* number = std::get_if<std::int64_t>(&value)) {
            sqlite3_bind_int64(raw, place, *number);
        } else if (const auto* words = std::get_if<std::string>(&value)) {
            sqlite3_bind_text(raw, place, words->data(), int(words->size()), SQLITE_TRANSIENT);
        } else {
            sqlite3_bind_null(raw, place);
        }
        ++place;
    }
    return statement;
}

SqlRow rowOf(sqlite3_stmt* statement) {
    std::vector<SqlValue> columns;
    for (int i = 0; i < sqlite3_column_count(statement); ++i) {
        switch (sqlite3_column_type(statement, i)) {
        case SQLITE_NULL:
            columns.emplace_back(nullptr);
            break;
        case SQLITE_INTEGER:
            columns.emplace_back(std::int64_t(sqlite3_column_int64(statement, i)));
            break;
        default:
            columns.emplace_back(std::string(reinterpret_cast<const char*>(sqlite3_column_text(statement, i)),
                                             size_t(sqlite3_column_bytes(statement, i))));
        }
    }
    return SqlRow(std::move(columns));
}

} // namespace

std::int64_t SqlRow::integer(size_t column) const {
    const auto* number = std::get_if<std::int64_t>(&columns_[column]);
    return number ? *number : 0;
}

std::string SqlRow::text(size_t column) const {
    const auto* words = std::get_if<std::string>(&columns_[column]);
    return words ? *words : std::string();
}

Database::Database(const std::string& file) {
    if (sqlite3_open(file.c_str(), &handle_) != SQLITE_OK) {
        const std::string reason = sqlite3_errmsg(handle_);
        sqlite3_close(handle_);
        throw std::runtime_error(file + ": " + reason);
    }
    sqlite3_busy_timeout(handle_, 3000);
    query("PRAGMA journal_mode = WAL");
    run("PRAGMA synchronous = NORMAL");
    createTables();
}

Database::~Database() {
    sqlite3_close(handle_);
}

void Database::createTables() {
    for (const char* sql : {
             "CREATE TABLE IF NOT EXISTS accounts (id INTEGER PRIMARY KEY, login TEXT UNIQUE, salt TEXT, "
             "password TEXT, user_token TEXT, full_rights INTEGER)",
             "CREATE TABLE IF NOT EXISTS tokens (token TEXT PRIMARY KEY, account INTEGER, expires INTEGER)",
             "CREATE TABLE IF NOT EXISTS customers (id INTEGER PRIMARY KEY, tevo TEXT, name TEXT)",
             "CREATE TABLE IF NOT EXISTS orders (id INTEGER PRIMARY KEY AUTOINCREMENT, account INTEGER, kind "
             "TEXT, "
             "token TEXT UNIQUE, type INTEGER, created INTEGER, filename TEXT, tevo TEXT, pdv TEXT, cloud "
             "INTEGER, "
             "state INTEGER, note TEXT, qr_asked INTEGER DEFAULT 0, seeded INTEGER DEFAULT 0, body TEXT)",
             "CREATE INDEX IF NOT EXISTS orders_of_account ON orders (account, kind)",
             "CREATE TABLE IF NOT EXISTS documents (name TEXT PRIMARY KEY, kind TEXT, created INTEGER, body "
             "TEXT)",
             "CREATE TABLE IF NOT EXISTS answers (account INTEGER, key TEXT, body TEXT, PRIMARY KEY "
             "(account, key))",
             "CREATE TABLE IF NOT EXISTS suggestions (id INTEGER PRIMARY KEY, account INTEGER, category "
             "INTEGER, "
             "body TEXT)",
             "CREATE TABLE IF NOT EXISTS messages (id INTEGER PRIMARY KEY, order_id INTEGER, kind TEXT, "
             "created INTEGER, body TEXT)",
             "CREATE TABLE IF NOT EXISTS profiles (account INTEGER PRIMARY KEY, page TEXT UNIQUE, body TEXT)",
             "CREATE TABLE IF NOT EXISTS mails (id INTEGER PRIMARY KEY, account INTEGER, order_id INTEGER, "
             "created INTEGER, recipient TEXT, subject TEXT, url TEXT)",
             "CREATE TABLE IF NOT EXISTS seeds (account INTEGER PRIMARY KEY, number INTEGER)",
         }) {
        run(sql);
    }
    addColumns();
}

/// What a folder of an earlier version lacks. Its seeded orders go: there are more and better ones now.
void Database::addColumns() {
    struct Column {
        const char* table;
        const char* name;
        const char* type;
    };
    bool older = false;
    for (const Column& column :
         {Column{"suggestions", "created", "INTEGER DEFAULT 0"},
          Column{"orders", "road", "INTEGER DEFAULT 0"}, Column{"orders", "since", "INTEGER DEFAULT 0"},
          Column{"orders", "pending", "INTEGER"}, Column{"orders", "linked", "INTEGER DEFAULT 1"},
          Column{"orders", "qr_brand", "INTEGER"}, Column{"orders", "qr_blocks", "INTEGER DEFAULT 0"},
          Column{"orders", "typography", "INTEGER DEFAULT 0"}}) {
        if (query("SELECT 1 FROM pragma_table_info(?) WHERE name = ?",
                  {std::string(column.table), std::string(column.name)})
                .empty()) {
            run(std::string("ALTER TABLE ") + column.table + " ADD COLUMN " + column.name + " " +
                column.type);
            older = true;
        }
    }
    if (older) {
        run("DELETE FROM orders WHERE state = 7 OR seeded = 1");
        run("UPDATE orders SET qr_brand = json_extract(body, '$.menu.brand_qr_id'), "
            "qr_blocks = COALESCE(json_extract(body, '$.menu.quantity_qr_taco'), 0) > 0, "
            "typography = COALESCE(json_extract(body, '$.order.typography_id'), 0)");
    }
}

void Database::together(const std::function<void()>& changes) {
    run("BEGIN IMMEDIATE");
    try {
        changes();
    } catch (...) {
        run("ROLLBACK");
        throw;
    }
    run("COMMIT");
}

std::vector<SqlRow> Database::query(const std::string& sql, const std::vector<SqlValue>& values) {
    const std::lock_guard lock(mutex_);
    const Statement statement = prepared(handle_, sql, values);
    std::vector<SqlRow> rows;
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement.get())) == SQLITE_ROW) {
        rows.push_back(rowOf(statement.get()));
    }
    if (result != SQLITE_DONE) {
        throw std::runtime_error(sqlite3_errmsg(handle_));
    }
    return rows;
}

std::int64_t Database::run(const std::string& sql, const std::vector<SqlValue>& values) {
    const std::lock_guard lock(mutex_);
    const Statement statement = prepared(handle_, sql, values);
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement.get())) == SQLITE_ROW) {
    }
    if (result != SQLITE_DONE) {
        throw std::runtime_error(sqlite3_errmsg(handle_));
    }
    return sqlite3_last_insert_rowid(handle_);
}

} // namespace kavor::demo
