/// Loads the sample dataset into the PostgreSQL server that a test run shares, twice: once to be
/// read, once to make copies of.

#include <cstdio>
#include <exception>

#include "sampledata/dataset.h"
#include "sampledata/loader_postgres.h"
#include "support/postgres_database.h"

namespace {

/// Texts sort there by the rules of a language, as on a server that was set up for people.
constexpr const char* kLocale =
    " template template0 encoding 'UTF8' locale 'C' locale_provider icu icu_locale 'en-US'";

void Load() {
    const std::string server = test::SharedPostgresUrl();
    test::PostgresClient client(server);
    for (const char* name : {test::kSampleDatabase, test::kSampleTemplate})
        client.Run(std::string("drop database if exists ") + name + " with (force)");
    client.Run(std::string("create database ") + test::kSampleTemplate + kLocale);
    {
        kv::sample::PostgresLoader loader(test::WithDatabase(server, test::kSampleTemplate), false);
        kv::sample::WriteDataset(loader, [](const std::string&) {});
        loader.Finish();
    }
    client.Run(std::string("create database ") + test::kSampleDatabase + " template " +
               test::kSampleTemplate);
}

}  // namespace

int main() {
    try {
        Load();
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
