// Loads random variables into the rows of all pages and expects their meaning to be
// saved, independent of other variables. OV_CATALOGUE_ROUNDS requests more rounds,
// OV_CATALOGUE_SEED other values.
#include "pages/core/page_catalogue.h"
#include "pages/core/page_values.h"
#include "tests/pages/expected_pages.h"
#include "tests/pages/page_changes.h"
#include "tests/pages/random_table.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace
{
using expected::Table;

int FromEnvironment(const char* name, int otherwise)
{
    const char* value = std::getenv(name);
    return value != nullptr ? std::atoi(value) : otherwise;
}

std::string Today()
{
    const std::time_t now = std::time(nullptr);
    const std::tm* date = std::localtime(&now);
    return std::to_string(date->tm_mday) + ", " + std::to_string(date->tm_mon + 1) + ", " +
           std::to_string(date->tm_year + 1900);
}

void Fill(ov::SettingStore& store, const Table& table)
{
    for (const auto& [variable, value] : table) {
        store.SetSetting(ov::TextFromUtf8(variable), ov::TextFromUtf8(value), ov::SettingKindText, u"",
                         ov::kCurrentTable);
    }
}

Table Content(const ov::SettingStore& store)
{
    Table table;
    store.VisitInOrder(ov::kCurrentTable, [&](const ov::SettingRecord& record) {
        table[ov::Utf8FromText(ov::Text(record.name))] = ov::Utf8FromText(ov::Text(record.value));
        return true;
    });
    return table;
}

/// Opens every page on the store, which loads it, and saves all pages.
void OpenAndSave(ov::SettingStore& store)
{
    std::vector<ov::PageValues> pages;
    for (const ov::PageRows* rows : ov::AllPageRows()) {
        ov::PageValues& values = pages.emplace_back(*rows);
        values.Load(store, ov::kCurrentTable);
        if (rows->refresh != nullptr)
            rows->refresh(values);
    }
    for (ov::PageValues& values : pages)
        values.Save(store, true);
}

TEST(CatalogueProperty, RandomTablesAreSavedAsTheirMeaningSays)
{
    const int rounds = FromEnvironment("OV_CATALOGUE_ROUNDS", 250);
    const int firstSeed = FromEnvironment("OV_CATALOGUE_SEED", 1);
    for (int seed = firstSeed; seed < firstSeed + rounds && !HasFailure(); ++seed) {
        SCOPED_TRACE(testing::Message() << "OV_CATALOGUE_SEED=" << seed);
        std::mt19937 random(static_cast<unsigned>(seed));
        const Table loaded = expected::RandomTable(random, expected::Carrier::Store);
        Table saved = loaded;
        for (const ov::PageRows* rows : ov::AllPageRows())
            expected::SaveInto(saved, expected::PageOf(rows->info.pageId), loaded, Today());

        ov::SettingStore store;
        Fill(store, loaded);
        OpenAndSave(store);
        EXPECT_EQ("", expected::DifferenceOf(saved, Content(store)));
    }
}

// Saving a second time gives the same result.
TEST(CatalogueProperty, SavingAgainChangesNothing)
{
    for (unsigned seed = 1; seed <= 50 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        ov::SettingStore store;
        Table table = expected::RandomTable(random, expected::Carrier::Store);
        // It is never removed, and takes effect again once no fixed period is saved.
        table.erase("_ORTHOVAL_SCANPERIOD_VALUE");
        Fill(store, table);
        OpenAndSave(store);
        const Table once = Content(store);
        OpenAndSave(store);
        EXPECT_EQ("", expected::DifferenceOf(once, Content(store)));
    }
}

} // namespace
