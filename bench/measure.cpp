#include "bench/measure.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <limits>
#include <stdexcept>
#include <utility>

namespace ov::bench
{

void Require(bool holds, std::string_view what)
{
    if (!holds)
        throw std::runtime_error(std::string(what));
}

Race::Entry Race::Add(std::function<void()> work, std::function<void()> after)
{
    m_runners.push_back({std::move(work), std::move(after), std::numeric_limits<double>::max()});
    return m_runners.size() - 1;
}

void Race::Run(int turns)
{
    for (int turn = 0; turn < turns; ++turn) {
        for (Runner& runner : m_runners) {
            const auto start = std::chrono::steady_clock::now();
            runner.work();
            const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
            runner.best = std::min(runner.best, taken.count());
            if (runner.after)
                runner.after();
        }
    }
}

std::string Decimal(double number, int places)
{
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.*f", places, number);
    return text.data();
}

Table::Table(std::string caption, std::vector<std::string> titles) : m_caption(std::move(caption))
{
    m_rows.push_back(std::move(titles));
}

void Table::AddRow(std::vector<std::string> cells)
{
    Require(cells.size() == m_rows.front().size(), "a row of another length");
    m_rows.push_back(std::move(cells));
}

void Table::Print() const
{
    std::vector<std::size_t> widths(m_rows.front().size(), 3);
    for (const auto& row : m_rows) {
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    }
    std::printf("%s\n\n", m_caption.c_str());
    bool first = true;
    for (const auto& row : m_rows) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            // Words are left-aligned, numbers right-aligned.
            const int width = static_cast<int>(widths[column]);
            std::printf("| %*s ", column == 0 ? -width : width, row[column].c_str());
        }
        std::puts("|");
        if (!std::exchange(first, false))
            continue;
        for (std::size_t column = 0; column < row.size(); ++column)
            std::printf("|%s%s", std::string(widths[column] + 1, '-').c_str(), column == 0 ? "-" : ":");
        std::puts("|");
    }
    std::puts("");
    std::fflush(stdout);
}

void Targets::AtMost(std::string what, double measured, double limit, const std::string& unit, int places)
{
    m_table.AddRow({std::move(what) + ": at most " + Decimal(limit, places) + unit,
                    Decimal(measured, places) + unit, measured <= limit ? "yes" : "no"});
}

void Targets::AtLeast(std::string what, double measured, double limit, const std::string& unit, int places)
{
    m_table.AddRow({std::move(what) + ": at least " + Decimal(limit, places) + unit,
                    Decimal(measured, places) + unit, measured >= limit ? "yes" : "no"});
}

} // namespace ov::bench
