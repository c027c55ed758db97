#include "Documents.h"
#include "TypedDecode.h"
#include "catalogue/ApplicationInformationTables.h"
#include "catalogue/Catalogue.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <nlohmann/json.hpp>

// The catalogue in and out, against a bare parse of the same bytes and against other libraries.
namespace kavor::bench {

namespace {

struct Nlohmann {
    using Value = nlohmann::json;
    static bool isNull(const Value& value) { return value.is_null(); }
    static bool readInteger(const Value& value, std::int64_t& out) {
        if (!value.is_number_integer())
            return false;
        out = value.get<std::int64_t>();
        return true;
    }
    static bool readDouble(const Value& value, double& out) {
        if (!value.is_number())
            return false;
        out = value.get<double>();
        return true;
    }
    static bool readBool(const Value& value, bool& out) {
        if (!value.is_boolean())
            return false;
        out = value.get<bool>();
        return true;
    }
    static bool readString(const Value& value, std::string& out) {
        if (!value.is_string())
            return false;
        out = value.get_ref<const std::string&>();
        return true;
    }
    template <class Visitor>
    static bool forEachItem(const Value& value, Visitor visitor) {
        return value.is_array() && std::all_of(value.begin(), value.end(), visitor);
    }
    static const Value* find(const Value& value, std::string_view key) {
        const auto found = value.find(key);
        return found == value.end() ? nullptr : &*found;
    }
};

struct QtJson {
    using Value = QJsonValue;
    static bool isNull(const Value& value) { return value.isNull(); }
    static bool readInteger(const Value& value, std::int64_t& out) {
        constexpr qint64 none = std::numeric_limits<qint64>::min();
        out = value.toInteger(none);
        return out != none;
    }
    static bool readDouble(const Value& value, double& out) {
        out = value.toDouble();
        return value.isDouble();
    }
    static bool readBool(const Value& value, bool& out) {
        out = value.toBool();
        return value.isBool();
    }
    static bool readString(const Value& value, std::string& out) {
        if (!value.isString())
            return false;
        out = value.toString().toStdString();
        return true;
    }
    template <class Visitor>
    static bool forEachItem(const Value& value, Visitor visitor) {
        if (!value.isArray())
            return false;
        const QJsonArray items = value.toArray();
        return std::all_of(items.begin(), items.end(), [&](const QJsonValue& item) { return visitor(item); });
    }
    static std::optional<Value> find(const Value& value, std::string_view key) {
        const QJsonValue found = value[QLatin1String(key.data(), static_cast<int>(key.size()))];
        return found.isUndefined() ? std::nullopt : std::optional(found);
    }
};

void must(bool good, const char* what) {
    if (!good) {
        std::fprintf(stderr, "bench: %s failed\n", what);
        std::abort();
    }
}

void count(benchmark::State& state, const std::string& document) {
    state.SetBytesProcessed(static_cast<std::int64_t>(document.size()) *
                            static_cast<std::int64_t>(state.iterations()));
}

void bareParse(benchmark::State& state) {
    const std::string& document = catalogueOfMegabytes(static_cast<std::size_t>(state.range(0)));
    const simdjson::padded_string padded(document);
    simdjson::dom::parser parser;
    for (auto _ : state) {
        simdjson::dom::element root;
        must(parser.parse(padded).get(root) == simdjson::SUCCESS, "bare parse");
        benchmark::DoNotOptimize(root);
    }
    count(state, document);
}

// The document has room behind it, as one from a file or the network has.
void decodeRecords(benchmark::State& state, std::string document) {
    document.reserve(document.size() + json::Source::padding);
    const json::Parser parser;
    for (auto _ : state) {
        auto catalogue = json::decode<ApplicationInformation>(document, parser);
        must(catalogue.has_value(), "decode");
        benchmark::DoNotOptimize(catalogue);
        state.PauseTiming(); // freeing has a figure of its own
        catalogue = tl::unexpected(json::Error());
        state.ResumeTiming();
    }
    count(state, document);
}

void decode(benchmark::State& state) {
    decodeRecords(state, catalogueOfMegabytes(static_cast<std::size_t>(state.range(0))));
}
void decodeIndented(benchmark::State& state) {
    decodeRecords(state, indented(catalogueOfMegabytes(12)));
}
void decodeEscapes(benchmark::State& state) {
    decodeRecords(state, withEscapes(catalogueOfMegabytes(12)));
}
void decodeReversed(benchmark::State& state) {
    decodeRecords(state, withKeysReversed(catalogueOfMegabytes(12)));
}
void decodeShuffled(benchmark::State& state) {
    decodeRecords(state, withKeysShuffled(catalogueOfMegabytes(12)));
}

void freeRecords(benchmark::State& state) {
    const std::string& document = catalogueOfMegabytes(static_cast<std::size_t>(state.range(0)));
    const json::Parser parser;
    for (auto _ : state) {
        state.PauseTiming();
        auto catalogue = json::decode<ApplicationInformation>(document, parser);
        must(catalogue.has_value(), "decode");
        state.ResumeTiming();
        catalogue = tl::unexpected(json::Error());
    }
}

void decodeNlohmann(benchmark::State& state) {
    const std::string& document = catalogueOfMegabytes(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        auto root = nlohmann::json::parse(document);
        ApplicationInformation catalogue;
        must(readTyped<Nlohmann>(root, catalogue), "nlohmann decode");
        benchmark::DoNotOptimize(catalogue);
        state.PauseTiming();
        root = nullptr;
        catalogue = ApplicationInformation();
        state.ResumeTiming();
    }
    count(state, document);
}

void decodeQt(benchmark::State& state) {
    const std::string& document = catalogueOfMegabytes(static_cast<std::size_t>(state.range(0)));
    const QByteArray bytes = QByteArray::fromStdString(document);
    for (auto _ : state) {
        QJsonValue root(QJsonDocument::fromJson(bytes).object());
        ApplicationInformation catalogue;
        must(readTyped<QtJson>(root, catalogue), "Qt decode");
        benchmark::DoNotOptimize(catalogue);
        state.PauseTiming();
        root = QJsonValue();
        catalogue = ApplicationInformation();
        state.ResumeTiming();
    }
    count(state, document);
}

void encode(benchmark::State& state) {
    const std::string& document = catalogueOfMegabytes(static_cast<std::size_t>(state.range(0)));
    const auto catalogue = json::decode<ApplicationInformation>(document);
    for (auto _ : state)
        benchmark::DoNotOptimize(json::encode(*catalogue));
    count(state, document);
}

// The records as a tree of the other library, to be dumped.
template <class T>
nlohmann::json tree(const T& value) {
    if constexpr (json::IsVector<T>::value) {
        auto list = nlohmann::json::array();
        for (const auto& item : value)
            list.push_back(tree(item));
        return list;
    } else if constexpr (requires { json::Table<T>::fields; }) {
        auto object = nlohmann::json::object();
        const auto add = [&](const auto& field) {
            const auto& member = value.*field.member;
            if constexpr (json::IsOptional<std::remove_cvref_t<decltype(member)>>::value) {
                if (member)
                    object.emplace(field.key, tree(*member));
            } else {
                object.emplace(field.key, tree(member));
            }
        };
        std::apply([&](const auto&... field) { (add(field), ...); }, json::Table<T>::fields);
        return object;
    } else if constexpr (std::is_enum_v<T>) {
        return static_cast<std::int64_t>(value);
    } else if constexpr (std::is_same_v<T, Url>) {
        return value.text;
    } else if constexpr (std::is_same_v<T, LocalDateTime>) {
        return value.text();
    } else {
        return value;
    }
}

void encodeNlohmann(benchmark::State& state) {
    const std::string& document = catalogueOfMegabytes(static_cast<std::size_t>(state.range(0)));
    const auto catalogue = json::decode<ApplicationInformation>(document);
    for (auto _ : state)
        benchmark::DoNotOptimize(tree(*catalogue).dump());
    count(state, document);
}

constexpr std::size_t lookUps = 1'000'000;

void lookUpIndexed(benchmark::State& state) {
    const Catalogue catalogue(*json::decode<ApplicationInformation>(catalogueOfBrands(5000)));
    const auto& products = catalogue.information().products;
    for (auto _ : state) {
        for (std::size_t i = 0; i < lookUps; ++i)
            benchmark::DoNotOptimize(catalogue.product(products[i * 7919 % products.size()].id));
    }
}

void lookUpLinear(benchmark::State& state) {
    const Catalogue catalogue(*json::decode<ApplicationInformation>(catalogueOfBrands(5000)));
    const auto& products = catalogue.information().products;
    for (auto _ : state) {
        for (std::size_t i = 0; i < lookUps; ++i) {
            const Int id = products[i * 7919 % products.size()].id;
            benchmark::DoNotOptimize(std::find_if(products.begin(), products.end(),
                                                  [id](const Product& product) { return product.id == id; }));
        }
    }
}

BENCHMARK(bareParse)->Arg(1)->Arg(12)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK(decode)->Arg(1)->Arg(12)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeIndented)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeEscapes)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeReversed)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeShuffled)->Unit(benchmark::kMillisecond);
BENCHMARK(freeRecords)->Arg(12)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeNlohmann)->Arg(1)->Arg(12)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeQt)->Arg(1)->Arg(12)->Unit(benchmark::kMillisecond);
BENCHMARK(encode)->Arg(12)->Unit(benchmark::kMillisecond);
BENCHMARK(encodeNlohmann)->Arg(12)->Unit(benchmark::kMillisecond);
BENCHMARK(lookUpIndexed)->Unit(benchmark::kMillisecond);
BENCHMARK(lookUpLinear)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace

} // namespace kavor::bench

BENCHMARK_MAIN();
